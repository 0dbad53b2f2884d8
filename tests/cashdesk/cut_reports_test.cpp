#include "cashdesk/cut_reports.h"

#include "tests/support/documents.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

using test::matchesFile;
using test::readsCleanly;

CutHeading heading() {
    return {"Clínica de Odontología",
            "Facultad de Odontología",
            false,
            QDate(2026, 11, 20),
            QDate(2026, 11, 22),
            4,
            "",
            1530,
            1544,
            "ROSA M."};
}

ReceiptList receipts() {
    ReceiptList list;
    list.cajaCorte = 7;
    list.saldoFinal = Money::fromTenThousandths(12345678);
    list.pagoAnticipo = 300;
    list.rows = {
        {1530, "LÓPEZ MARTÍNEZ ANA", "EFECTIVO", 500, "4-1-1-001", "123", 2, 125.5, "RESINA"},
        {1530, "LÓPEZ MARTÍNEZ ANA", "EFECTIVO", 500, "4-1-1-002", "124", 1, 249, "SELLADOR"},
        {1544, "20231234 RUIZ SOTO EVA", "CANCELADA", 734.5678, "", "", 3, 0.3333, "COPIAS"}};
    return list;
}

TEST(CutReports, HeadingIsTheSessionsAndMayBeInCapitals) {
    CutHeading head = heading();
    EXPECT_EQ(cutHeadingLines(head).join('|'),
              "Clínica de Odontología|Facultad de Odontología|Corte de Caja del Día 20/11/2026|"
              "Relación de Recibos de Caja 4");
    head.capitals = true;
    EXPECT_EQ(cutHeadingLines(head).join('|'),
              "CLINICA DE ODONTOLOGIA|FACULTAD DE ODONTOLOGIA|CORTE DE CAJA DEL DIA 20/11/2026|"
              "RELACION DE RECIBOS DE CAJA 4");
    EXPECT_EQ(receiptRange(head), "RECIBOS DEL 1530 AL 1544");
    EXPECT_EQ(receiptRangeOfBankCut(head), "RECIBOS DEL   1530 AL 1544");
}

TEST(CutReports, TheListOfReceiptsPrintsAsItAlwaysDid) {
    const report::Document document = layoutReporteRecibos(heading(), receipts());
    EXPECT_TRUE(readsCleanly(document));
    EXPECT_TRUE(matchesFile(document, "cashdesk/expected/receipt_list.txt"));
}

TEST(CutReports, AccountsOfTheLinesOnlyWhereTheyAreWanted) {
    ReceiptList list = receipts();
    QString text = report::pageText(layoutReporteRecibos(heading(), list), 0);
    EXPECT_FALSE(text.contains("4-1-1-001") || text.contains("fondo revolvente"));
    list.contabilidadGubernamental = true;
    text = report::pageText(layoutReporteRecibos(heading(), list), 0);
    EXPECT_TRUE(text.contains("4-1-1-001\n123\n"));
    EXPECT_TRUE(text.contains("Nota: Importe tomado del fondo revolvente"));
}

TEST(CutReports, ALongListKeepsHeadAndNotesTogether) {
    ReceiptList list = receipts();
    list.rows.clear();
    for (int note = 1; note <= 200; ++note) {
        list.rows.append({note, QString("NOMBRE LARGO DE PACIENTE ").repeated(1 + note % 4),
                          "12345678.25   a    18.12345678", 1e9, "4-1-1-001", "99999", 9, 1e9,
                          QString("TRATAMIENTO DE ORTODONCIA ").repeated(1 + note % 5)});
    }
    list.contabilidadGubernamental = true;
    const report::Document document = layoutReporteRecibos(heading(), list);
    EXPECT_GT(document.pageCount(), 5);
    EXPECT_TRUE(readsCleanly(document));
    for (int page = 0; page < document.pageCount(); ++page) {
        const QString text = report::pageText(document, page);
        EXPECT_TRUE(text.contains("NO.RECIBO")) << page;
        EXPECT_TRUE(text.contains(QString("No. página: %1\n").arg(page + 1))) << page;
        // A page never begins with lines whose note stands on the page before.
        EXPECT_EQ(text.count("\n7-"), text.count("$9,000,000,000.00")) << page;
    }
}

TEST(CutReports, TheSummaryPrintsAsItAlwaysDid) {
    CutTotals totals;
    totals.sumapesos = 1000.5;
    totals.sumacheque = 200;
    totals.sumapesosche = 1200.5;
    totals.sumacredito = 350;
    totals.sumatodo = 1234.5678;
    totals.sumadm = 150;
    const report::Document document =
        layoutReporteResumen(heading(), totals, {{10, 0, 175, 18.5}, {20, 5, 344.002, 18.2001}});
    EXPECT_TRUE(readsCleanly(document));
    EXPECT_TRUE(matchesFile(document, "cashdesk/expected/summary.txt"));
    EXPECT_EQ(report::pageText(document, 0).count("$1,084.57"), 3);
    EXPECT_EQ(report::pageText(layoutReporteResumen(heading(), totals, {}), 0).count("DOLARES"), 0);
}

TEST(CutReports, TheBankCutSumsEachAccount) {
    const QList<BankCutRow> rows{
        {"100114001112", "1-1-2-001", "BANCO DEL VALLE", "1400", "11", "123", "EFECTIVO", 1000},
        {"100114001112", "1-1-2-001", "BANCO DEL VALLE", "1400", "11", "123", "TARJETA", 200.5},
        {"200114001112", "1-1-2-002", "BANCO DEL NORTE", "1400", "11", "124", "DOLARES", 30}};
    const report::Document document = layoutReporteBancario(heading(), rows);
    EXPECT_TRUE(readsCleanly(document));
    EXPECT_TRUE(matchesFile(document, "cashdesk/expected/bank_cut.txt"));
    EXPECT_TRUE(report::pageText(layoutReporteBancario(heading(), {}), 0).contains("MENSAJERO"));
}

}  // namespace
}  // namespace kaldo
