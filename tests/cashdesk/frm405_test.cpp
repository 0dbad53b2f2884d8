#include "cashdesk/frm405_cash_cut.h"

#include <gtest/gtest.h>

#include <QTest>

#include <memory>

#include "data/database_error.h"
#include "tests/cashdesk/registered_notes.h"
#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "tests/support/seams.h"
#include "tests/support/test_station.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/choice.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/lookup_field.h"

namespace kaldo::test {
namespace {

const QString kNothing = "No existen movimientos registrados a esta fecha.";
const QString kNoInformation =
    "No existe información para esta caja, revise los parámetros de entrada.";

class FRM405Test : public ::testing::Test {
protected:
    FRM405Test() { station.clock.set(QDateTime(today, QTime(14, 0))); }

    FRM405 &open(const QString &usuario) {
        station.logIn(usuario);
        screen = std::make_unique<FRM405>(station.context);
        screen->resize(520, 220);
        showActive(screen.get());
        screen->open();
        settle();
        return *screen;
    }
    /// From the date to the end of the cut.
    void cutByEnter() {
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    }
    Button *generar() const { return child<Button>(screen.get(), "Generar"); }
    NotesOf of(int caja, const QString &usuario) const { return {caja, usuario, today}; }

    std::string labels(int caja = 1) {
        QStringList lines;
        for (const QVariantList &row :
             rowsOf(station.clinic(),
                    "select nota_vta, tipo_pago from cortedetallado where num_caja=:caja order by "
                    "nota_vta",
                    {{"caja", caja}})) {
            lines += row.at(0).toString() + " " + row.at(1).toString();
        }
        return lines.join('|').toStdString();
    }
    double total(const QString &column, int caja = 1) {
        return valueOf(station.clinic(), "select " + column + " from totales where num_caja=:caja",
                       {{"caja", caja}})
            .toDouble();
    }
    int rows(const QString &table, const QString &condition) {
        return valueOf(station.clinic(), "select count(*) from " + table + " where " + condition)
            .toInt();
    }
    /// The text of a previewed report, page after page.
    QString report(int number) const {
        QString text;
        const report::Document &document = station.printing.records.at(number).document;
        for (int page = 0; page < document.pageCount(); ++page) {
            text += report::pageText(document, page) + '\n';
        }
        return text;
    }

    const QDate today{2024, 11, 20};
    TestStation station;
    std::unique_ptr<FRM405> screen;
};

/// Every way to pay that a label tells apart, on one day of desk 1.
std::vector<RegisteredNote> everyWayToPay() {
    return {
        {.nota = 1, .importe = 80, .pesos = 80, .lines = {{4001, 1, 80}}},
        {.nota = 2, .importe = 975, .dolares = 50, .tipocambio = 19.5, .lines = {{4002, 2, 120}}},
        {.nota = 3, .importe = 300, .credito = 300, .numEmpl = 1002, .lines = {{4004, 2, 150}}},
        {.nota = 4, .importe = 300, .pesos = 100, .credito = 200, .lines = {{4004, 2, 150}}},
        {.nota = 5, .importe = 300, .dolares = 10.5, .credito = 200, .cambio = 4.75},
        {.nota = 6, .importe = 400, .cheque = 300, .credito = 100, .lines = {{4004, 1, 150}}},
        {.nota = 7, .importe = 400, .cheque = 400, .status = "CA", .lines = {{4004, 1, 150}}},
        {.nota = 8, .importe = 500, .chequedll = 25.5, .lines = {{4004, 1, 150}}},
        {.nota = 9,
         .importe = 60,
         .pesos = 30,
         .beca = 30,
         .matricula = 1100001,
         .lines = {{4003, 1, 50}}},
        {.nota = 10, .importe = 189, .dolares = 10, .tipocambio = 18.9},
        {.nota = 11, .importe = 700, .pesos = 700, .tipoVta = "CREDITO"},
        {.nota = 12, .importe = 40, .dolares = 2, .tipocambio = 18.1234, .status = "RV"},
        {.nota = 13, .importe = 150, .credito = 100, .beca = 50},
        {.nota = 14, .importe = 95, .dolares = 5, .tipocambio = 19, .status = "CA"},
    };
}

TEST_F(FRM405Test, ACashiersCutLabelsAndSumsEachNote) {
    const std::vector<RegisteredNote> notes = everyWayToPay();
    store(station.clinic(), of(1, "cajero1"), notes);
    store(station.clinic(), of(1, "cajero9"), {.nota = 20, .importe = 1000, .pesos = 1000});
    store(station.clinic(), {1, "cajero1", today.addDays(-1)},
          {.nota = 21, .importe = 1000, .pesos = 1000});
    station.options.CortesBancarios = true;
    station.session.ImpresoraIndice = 3;
    open("cajero1");
    picture(screen.get(), "frm405-cashier");
    cutByEnter();

    EXPECT_EQ(labels(),
              "1 EFECTIVO|2 50   a    19.5|3 PAGO CON TARJETA|4 TARJETA / PESOS|"
              "5 10.5   a    4.75|6 CHEQUE|7 CANCELADA|8 CHEQUE Dlls 25.5|9 CON PRESTACION|"
              "10 10   a    18.9|12 2   a    18.1234|13 PAGO CON TARJETA / PRESTACION|"
              "14 CANCELADA");
    EXPECT_EQ(rows("cortedetallado", "usuario='cajero1'"), 13);
    EXPECT_EQ(rows("cortedetallado", "num_empl is not null"), 1);
    EXPECT_EQ(valueOf(station.clinic(), "select num_empl from cortedetallado where nota_vta=3"),
              1002);

    // A second way to the sums: over the notes themselves.
    double pesos = 0, dolares = 0, cheque = 0, credito = 0, chequedll = 0, beca = 0, todo = 0;
    for (const RegisteredNote &note : notes) {
        todo += note.tipoVta == "CONTADO" ? note.importe : 0;
        if (note.status == "CA") {
            continue;
        }
        pesos += note.pesos;
        dolares += note.dolares;
        cheque += note.cheque;
        credito += note.credito;
        chequedll += note.chequedll;
        beca += note.beca;
    }
    EXPECT_DOUBLE_EQ(total("sumapesos"), pesos);
    EXPECT_DOUBLE_EQ(total("sumadolares"), dolares);
    EXPECT_DOUBLE_EQ(total("sumacheque"), cheque);
    EXPECT_DOUBLE_EQ(total("sumacredito"), credito);
    EXPECT_DOUBLE_EQ(total("sumapesosche"), pesos + cheque);
    EXPECT_DOUBLE_EQ(total("sumchdll"), chequedll);
    EXPECT_DOUBLE_EQ(total("sumadm"), beca);
    EXPECT_DOUBLE_EQ(total("sumatodo"), todo);
    EXPECT_NEAR(
        total("sumacomplemento"),
        valueOf(station.clinic(),
                "select sum(f.complementaria) from formapago f, registrovtas r where "
                "f.num_caja=1 and r.num_caja=1 and r.nota_vta=f.nota_vta and r.capto='cajero1' "
                "and r.fecha=date '2024-11-20' and r.status in ('GE', 'RV')")
            .toDouble(),
        1e-9);
    EXPECT_EQ(total("sumadvn") + total("sumadoc") + total("sumapagoreconocido"), 0);

    ASSERT_EQ(station.printing.records.size(), 3);
    for (const RecordingPrinting::Record &record : station.printing.records) {
        EXPECT_TRUE(record.preview);
        EXPECT_EQ(record.printer, 3);
    }
    EXPECT_EQ(station.frame.progressTotals, QList<int>{14});
    EXPECT_EQ(station.frame.progressSteps, 14);
    EXPECT_EQ(station.frame.progressEnded, 1);
}

TEST_F(FRM405Test, TheReportsPrintWhatTheTablesHold) {
    store(station.clinic(), of(1, "cajero1"), everyWayToPay());
    station.options.CortesBancarios = true;
    station.options.ContabilidadGubernamental = true;
    open("cajero1");
    cutByEnter();
    ASSERT_EQ(station.printing.records.size(), 3);

    const QString recibos = report(0);
    EXPECT_TRUE(recibos.contains("1-9\n1100001 PACIENTE 9\nCON PRESTACION\n$60.00"))
        << recibos.toStdString();
    EXPECT_TRUE(recibos.contains("1-1\nPACIENTE 1\nEFECTIVO\n$80.00"));
    EXPECT_TRUE(recibos.contains("CONSULTA DE URGENCIA"));
    EXPECT_TRUE(recibos.contains("$240.00")) << "two at 120";
    const QVariant nomenclatura =
        valueOf(station.clinic(), "select nomenclatura from listaprecios where codigo=4002");
    EXPECT_TRUE(recibos.contains(nomenclatura.toString()));
    EXPECT_TRUE(recibos.contains("RECIBOS DEL 1 AL 14"));
    EXPECT_TRUE(recibos.contains("SALDO FINAL DEL CORTE\n$3,789.00")) << recibos.toStdString();
    EXPECT_TRUE(recibos.contains("FERNANDA OCHOA"));
    EXPECT_TRUE(recibos.contains("fondo revolvente"));

    // Three rates stand among the generated notes; 18.1234 and 19 don't.
    const QString resumen = report(1);
    EXPECT_EQ(resumen.count("COMPLEMENTARIA"), 2) << resumen.toStdString();
    EXPECT_TRUE(resumen.contains("18.9"));
    EXPECT_FALSE(resumen.contains("18.1234"));
    EXPECT_TRUE(resumen.contains("$179.00")) << "10 dollars at 18.9, less 10";

    const QString bancario = report(2);
    EXPECT_TRUE(bancario.contains("RECIBOS DEL   1 AL 14"));
    EXPECT_EQ(bancario.count("BANCO DEL LITORAL 4410 INGRESOS"), 2) << "by source of funding";
    EXPECT_TRUE(bancario.contains("Importe Total\n$1,110.00")) << bancario.toStdString();
    EXPECT_TRUE(bancario.contains("BANCO DEL LITORAL 4411 DOLARES"));
}

TEST_F(FRM405Test, EveryRunReplacesTheLastOneAndWhatBeginsLikeTheDesk) {
    Connection &clinic = station.clinic();
    store(clinic, of(1, "cajero1"), {.nota = 5, .importe = 80, .pesos = 80});
    for (const int caja : {1, 2, 12, 21}) {
        run(clinic, "insert into cortedetallado (num_caja, nota_vta, usuario) values (:c, 99, 'x')",
            {{"c", caja}});
        run(clinic, "insert into totales (num_caja, usuario) values (:c, 'x')", {{"c", caja}});
        run(clinic,
            "insert into cortebancario (num_caja, fechacorte, usuario) values (:c, :f, 'x')",
            {{"c", caja}, {"f", today}});
        run(clinic,
            "insert into cortebancario (num_caja, fechacorte, usuario) values (:c, :f, 'x')",
            {{"c", caja}, {"f", today.addDays(-1)}});
    }
    open("cajero1");
    for (int times = 0; times < 2; ++times) {
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        child<DateField>(screen.get(), "FechaCorte")->setFocus();
        EXPECT_EQ(labels(), "5 EFECTIVO");
        EXPECT_EQ(labels(12), "");
        EXPECT_EQ(rows("totales", "num_caja=1"), 1);
    }
    for (const QString table : {"cortedetallado", "totales"}) {
        EXPECT_EQ(rows(table, "num_caja=12"), 0) << table.toStdString();
        EXPECT_EQ(rows(table, "num_caja in (2, 21)"), 2) << table.toStdString();
    }
    EXPECT_EQ(rows("cortebancario", "num_caja=12 and fechacorte=date '2024-11-20'"), 0);
    EXPECT_EQ(rows("cortebancario", "num_caja=12 and fechacorte=date '2024-11-19'"), 1);
    EXPECT_EQ(rows("cortebancario", "num_caja in (2, 21)"), 4);
    EXPECT_EQ(rows("cortebancario", "num_caja=1 and usuario='cajero1'"), 1);
}

TEST_F(FRM405Test, TheFirstEmptyAnswerIsSilentEveryLaterOneIsTold) {
    store(station.clinic(), {1, "cajero1", QDate(2024, 11, 18)},
          {.nota = 5, .importe = 80, .pesos = 80});
    open("cajero1");
    EXPECT_FALSE(generar()->isEnabled());
    EXPECT_TRUE(station.messages.shown().isEmpty());

    station.messages.expectInformation(kNothing);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("19/11/2024");
    press(Qt::Key_Return);
    EXPECT_FALSE(generar()->isEnabled());
    station.messages.verify();

    press(Qt::Key_A, Qt::ControlModifier);
    typeText("31/02/2024");
    press(Qt::Key_Return);
    auto *fecha = child<DateField>(screen.get(), "FechaCorte");
    EXPECT_EQ(fecha->text(), "31/02/2024") << "no date: nothing is asked, nothing lost";
    EXPECT_EQ(keyTarget(), fecha);

    fecha->setDate(QDate(2024, 11, 19));
    press(Qt::Key_F4);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_EQ(fecha->text(), "18/11/2024");
    EXPECT_TRUE(generar()->isEnabled()) << "closing the calendar asks as well";
    hold(Qt::Key_Return, 20);
    EXPECT_EQ(keyTarget(), generar());
    EXPECT_EQ(rows("totales", "1=1"), 0) << "a held Enter cuts nothing";
    press(Qt::Key_Return);
    EXPECT_EQ(labels(), "5 EFECTIVO");
}

TEST_F(FRM405Test, ADateIsCheckedBeforeItIsCut) {
    store(station.clinic(), of(1, "cajero1"), {.nota = 5, .importe = 80, .pesos = 80});
    store(station.clinic(), {1, "cajero1", QDate(2024, 11, 18)},
          {.nota = 3, .importe = 60, .pesos = 60});
    open("cajero1");
    station.options.CortesBancarios = false;
    ASSERT_TRUE(generar()->isEnabled());
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("18/11/24");
    // Faster than the date is heard as left.
    QTest::mouseClick(generar(), Qt::LeftButton);
    EXPECT_EQ(labels(), "3 EFECTIVO");
    ASSERT_EQ(station.printing.records.size(), 2);
    EXPECT_TRUE(report(0).contains("Corte de Caja del Día 18/11/2024"));
    EXPECT_TRUE(report(0).contains("RECIBOS DEL 3 AL 3"));

    // An emptied date is today's again.
    child<DateField>(screen.get(), "FechaCorte")->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(labels(), "5 EFECTIVO");
    EXPECT_EQ(child<DateField>(screen.get(), "FechaCorte")->text(), "20/11/2024");
}

TEST_F(FRM405Test, AnAdministratorCutsTheCashierOfADeskAndShift) {
    store(station.clinic(), of(12, "cajero3"), everyWayToPay());
    const QVariant turno =
        valueOf(station.clinic(), "select turno from controlusuarios where usuario='cajero3'");
    station.options.CortesBancarios = true;
    open("admin");
    auto *cajas = child<LookupField>(screen.get(), "NumeroCaja");
    auto *turnos = child<Choice>(screen.get(), "Turno");
    EXPECT_TRUE(cajas->isVisible());
    EXPECT_TRUE(turnos->isVisible());
    EXPECT_FALSE(turnos->isEnabled());
    EXPECT_FALSE(generar()->isEnabled());

    press(Qt::Key_Return);
    EXPECT_EQ(keyTarget(), cajas);
    press(Qt::Key_Return);
    picture(cajas->list(), "frm405-desks");
    typeText("CAJA ESP");
    press(Qt::Key_Return);
    EXPECT_EQ(cajas->text(), "CAJA ESPECIALIDADES");
    EXPECT_EQ(keyTarget(), turnos);
    const int wanted = QStringList({"MA", "VE", "CO"}).indexOf(turno.toString());
    for (int at = 0; at <= wanted; ++at) {
        press(Qt::Key_Down);
    }
    press(Qt::Key_Return);
    EXPECT_EQ(keyTarget(), generar());
    picture(screen.get(), "frm405-administrator");
    checkAccessibility(*screen);
    press(Qt::Key_Return);

    EXPECT_EQ(labels(12),
              "1 EFECTIVO|2 50   a    19.5|3 EFECTIVO|4 EFECTIVO|5 10.5   a    19.5|6 CHEQUE|"
              "7 CANCELADA|8 CHEQUE Dlls 25.5|9 CON PRESTACION|10 10   a    18.9|"
              "12 2   a    18.1234|13 CON PRESTACION|14 CANCELADA");
    EXPECT_EQ(rows("cortedetallado", "num_caja=12 and usuario='cajero3'"), 13);
    ASSERT_EQ(station.printing.records.size(), 3);
    EXPECT_TRUE(report(0).contains("Relación de Recibos de Caja 1\n")) << "the session's desk";
    EXPECT_TRUE(report(0).contains("12-1\n"));
    EXPECT_TRUE(report(0).contains("ROSA DUARTE"));
    EXPECT_TRUE(report(1).contains("ROSA DUARTE"));
    EXPECT_FALSE(report(2).contains("ROSA DUARTE"));
    EXPECT_TRUE(report(2).contains(station.session.NombreCorto.text()));
}

TEST_F(FRM405Test, AnAdministratorWithoutACashierIsToldAtTheButton) {
    open("admin");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    typeText("CAJA LIC");
    press(Qt::Key_Return);
    typeText("C");
    press(Qt::Key_Return);
    EXPECT_TRUE(station.messages.shown().isEmpty()) << "the first empty answer";
    EXPECT_EQ(keyTarget(), generar());
    station.messages.expectInformation(kNoInformation);
    press(Qt::Key_Return);
    EXPECT_EQ(keyTarget(), child<DateField>(screen.get(), "FechaCorte"));
    EXPECT_EQ(rows("totales", "1=1"), 0);

    // Leaving the date asks again; another desk forgets the shift, and then nothing is asked.
    station.messages.expectInformation(kNothing);
    auto *cajas = child<LookupField>(screen.get(), "NumeroCaja");
    cajas->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("CAJA ESP");
    press(Qt::Key_Return);
    EXPECT_EQ(child<Choice>(screen.get(), "Turno")->currentIndex(), -1);
    EXPECT_FALSE(generar()->isEnabled()) << "what was found is the desk's before";
    child<DateField>(screen.get(), "FechaCorte")->setFocus();
    settle();
    press(Qt::Key_Tab);
    EXPECT_EQ(station.messages.shown().size(), 2);
}

TEST_F(FRM405Test, TheDesksAreThoseOfTheCampusThatTheUserHasNow) {
    open("admin");
    run(station.clinic(),
        "insert into datoscaja (num_caja, nombre, campus) values (77, 'CAJA NUEVA', '3')");
    run(station.clinic(), "update controlusuarios set campus='3' where usuario='admin'");
    screen->open();
    EXPECT_TRUE(station.caja.DatosCaja.locate({{"num_caja", 77}}));
}

TEST_F(FRM405Test, TheBankCutNeverAddsDollarsToPesos) {
    store(station.clinic(), of(1, "cajero1"),
          {{.nota = 1, .importe = 100, .pesos = 100}, {.nota = 2, .importe = 95, .dolares = 5}});
    station.options.CortesBancarios = true;
    for (const QVariant &bank : {QVariant(), QVariant(1)}) {
        run(station.clinic(), "update formapago set bancomn=:b, bancodll=:b", {{"b", bank}});
        open("cajero1");
        cutByEnter();
        const QString text = report(station.printing.records.size() - 1);
        EXPECT_TRUE(text.contains("Importe Total\n$100.00")) << text.toStdString();
        EXPECT_TRUE(text.contains("Importe Total\n$5.00")) << text.toStdString();
        EXPECT_EQ(text.count("BANCO DEL LITORAL 4410 INGRESOS"), bank.isValid() ? 2 : 0);
    }
}

TEST_F(FRM405Test, ADeskThatBanksItsCardsSaysSoOnceItsPaymentScreenWasOpen) {
    store(station.clinic(), of(2, "cajero2"), {.nota = 1, .importe = 80, .credito = 80});
    open("cajero2");
    cutByEnter();
    EXPECT_EQ(labels(2), "1 PAGO CON TARJETA");
    station.caja.DatosCaja1.open({{"caja", 2}});
    child<DateField>(screen.get(), "FechaCorte")->setFocus();
    cutByEnter();
    EXPECT_EQ(labels(2), "1 DEPOSITO BANCARIO");
}

TEST_F(FRM405Test, WithoutBankCutsTheRoutineStillRuns) {
    store(station.clinic(), of(1, "cajero1"),
          {{.nota = 1, .importe = 80, .pesos = 80, .status = "CA"},
           {.nota = 2, .importe = 20.00005, .cheque = 20, .status = "CA"}});
    store(station.clinic(), of(12, "cajero3"),
          {.nota = 1, .importe = 80, .pesos = 80, .lines = {{4001, 1, 80}}});
    station.options.CortesBancarios = false;
    open("cajero1");
    cutByEnter();
    EXPECT_EQ(labels(), "1 CANCELADA|2 CANCELADA");
    EXPECT_DOUBLE_EQ(total("sumatodo"), 100.0001) << "as they stand, to the ten-thousandth";
    EXPECT_EQ(total("sumapesos"), 0);
    EXPECT_EQ(total("sumacheque"), 0);
    ASSERT_EQ(station.printing.records.size(), 2);
    EXPECT_FALSE(report(1).contains("COMPLEMENTARIA"));

    open("cajero3");
    cutByEnter();
    EXPECT_EQ(station.printing.records.size(), 4);
    EXPECT_EQ(rows("cortebancario", "num_caja=12 and usuario='cajero3' and importe=80"), 1);
}

TEST_F(FRM405Test, TheAdvancesOfTheDayArePrintedAndNotSubtracted) {
    store(station.clinic(), of(1, "cajero1"),
          {.nota = 7, .importe = 250, .pesos = 250, .lines = {{4001, 1, 80}}});
    run(station.clinic(),
        "insert into anticipos (campus, expediente, recibo_anticipo, saldo) values ('VAN', "
        "'00001/24', '1-7', 150)");
    run(station.clinic(),
        "insert into estadocuenta (campus, expediente, recibo, recibopago, tipo_mov, concepto, "
        "importe, saldo) values ('VAN', '00001/24', '1-7', '1-7', '1', 'PAGO DE ANTICIPO CORONA', "
        "400, 150)");
    open("cajero1");
    cutByEnter();
    EXPECT_TRUE(report(0).contains("- Pago con Anticipo\n$250.00")) << report(0).toStdString();
    EXPECT_TRUE(report(0).contains("SALDO FINAL DEL CORTE\n$250.00"));
}

TEST_F(FRM405Test, AFailureStopsTheCutAndTheNextRunStartsAfresh) {
    store(station.clinic(), of(1, "cajero1"), everyWayToPay());
    open("cajero1");
    TestSeam seam(Moment::BeforeExecution, atName("CorteDetallado (insert)", 4));
    station.conexion.setSeam(&seam);
    station.messages.expectError("fallo de prueba");
    cutByEnter();
    station.conexion.setSeam(nullptr);
    EXPECT_EQ(rows("cortedetallado", "1=1"), 3) << "each row stands by itself";
    EXPECT_EQ(rows("totales", "1=1"), 0);
    EXPECT_TRUE(station.printing.records.isEmpty());
    EXPECT_EQ(station.frame.progressEnded, 1);

    press(Qt::Key_Return);
    EXPECT_EQ(rows("cortedetallado", "1=1"), 13);
    EXPECT_EQ(rows("totales", "1=1"), 1);
    EXPECT_DOUBLE_EQ(total("sumatodo"), 3789);

    // A check that failed found nothing: no cut under the numbers of the one before.
    child<DateField>(screen.get(), "FechaCorte")->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("19/11/2024");
    TestSeam check(Moment::BeforeExecution, atName("Qry405", 1));
    station.conexion.setSeam(&check);
    station.messages.expectError("fallo de prueba");
    press(Qt::Key_Tab);
    station.conexion.setSeam(nullptr);
    station.messages.expectInformation(kNoInformation);
    generar()->click();
}

}  // namespace
}  // namespace kaldo::test
