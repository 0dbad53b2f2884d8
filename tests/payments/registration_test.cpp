#include "payments/registration.h"

#include "payments/receipt_layout.h"
#include "payments/receipt_mark.h"
#include "tests/payments/desk.h"
#include "tests/support/seams.h"
#include "toolkit/report/paint.h"

#include <gtest/gtest.h>

#include <QPrinter>

namespace kaldo {
namespace {

using test::atName;
using test::Desk;
using test::Moment;
using test::paidWith;
using test::TestSeam;

class Registering : public ::testing::Test {
protected:
    QString rows(const QString &table, const QString &columns, int nota, int caja = 1) {
        return records.rows(table, columns,
                            QStringLiteral("num_caja = %1 and nota_vta = %2").arg(caja).arg(nota));
    }
    QString today() const { return desk.clock.today().toString(Qt::ISODate); }

    test::TestInstallation files;
    Desk desk{files.root()};
    test::Records records{files.root()};
};

TEST_F(Registering, AnAdmissionNoteWritesEverythingThatIsReadBack) {
    test::run(records.clinic, "update control set folioad = 700");
    NoteDraft draft = desk.note("AD - ADMISION", 1, {1});
    draft.payer.paterno = "O'HARA \"Ñ\"";
    draft.payer.materno = " 50% ";
    draft.payer.nombre = "ANA";
    draft.payer.sexo = Sex::Femenino;
    const double price = draft.lines[0].precio;
    const Payment payment = paidWith(draft, 10, 1, price);
    ASSERT_TRUE(desk.registers(draft, payment));
    EXPECT_EQ(desk.messages.boxes().last().title, "Información");

    const QString total = QString::number(price);
    EXPECT_EQ(
        rows("registrovtas",
             "mpio, fecha, status, capto, importe_tot, tipocambio, tipo_serv, matricula, "
             "alumno, pk_tipo_cliente, campusid, sistemaid, polizaid, paqueteid, recibo, "
             "tipo_vta",
             1),
        "M|" + today() + "|GE|cajero1|" + total + "|18.5|ADMISION|0||1|2|5|0|ING-2|1-1|CONTADO");
    EXPECT_EQ(rows("pagos_odontologia",
                   "expediente, paciente, tipo_serv, turno, centro, prestacion, porc_descto, "
                   "imp_descto, matricula, alumno, num_empl, empleado, area, paterno, materno, "
                   "nombre",
                   1),
              "|O'HARA \"Ñ\" 50% ANA|ADMISION|MA|01|1|0|0|0||0|NULL||O'HARA \"Ñ\"| 50% |ANA");
    EXPECT_EQ(rows("formapago",
                   "importe_tot, dolares, pesos, cambio, prestacion, anticipo, credito, cheque, "
                   "chequedll, numcheque, bancomn, bancodll, complementaria, beca",
                   1),
              total + "|1|" + QString::number(price - 28.5) + "|28.5|0|0|10|0|0||1|2|17.5|0");
    EXPECT_EQ(rows("vtascontado", "tipo_cliente, nombre, imp_total", 1),
              "1|O'HARA \"Ñ\" 50% ANA|" + total);
    EXPECT_EQ(rows("detallepago", "idtipo, importe", 1),
              "1|" + QString::number(price - 28.5) + "; 2|18.5; 4|10");
    EXPECT_EQ(rows("metodopagonota",
                   "cve, importe, cta, rfcbanco, banco, operacion, rfcdestino, ctadestino, moneda, "
                   "tipocambio",
                   1),
              "04|10|||||||MXN|0");
    EXPECT_EQ(
        rows("detallevtas",
             "codigo, tipo_prod, cve_prod, cant, precio, porc_desc, des_adic, fondo, foliosa, "
             "ftefinid, ingresoid, tipofactoriva",
             1),
        QString::number(draft.lines[0].codigo) + "|1|1|1|" + total + "|0| |11||1400|NULL|Exento");
    EXPECT_EQ(rows("historicoodontologia", "codigo, cant", 1), "");

    EXPECT_EQ(rows("admision",
                   "folio, fecha, status, tipoadmision, matricula, alumno, canalizadoa, nombre, "
                   "centro",
                   1),
              "700|" + today() + "|PD|N|NULL||NULL||01");
    EXPECT_EQ(records.rows("datosgenerales",
                           "folio, paterno, materno, paciente, edad, sexo, tipopaciente, "
                           "fecha_nac, cod_postal, domicilio, nombre",
                           "folio = 700"),
              "700|O'HARA \"Ñ\"|50%|ANA|0|F||NULL|NULL||O'HARA \"Ñ\" 50% ANA");
    EXPECT_EQ(
        records.rows("antecedentes", "folio, heredo_fam, diabetes, nivelglucosa, especifiquesaliva",
                     "folio = 700"),
        "700||N|NULL|");
    EXPECT_EQ(records.folio(), 701);
    EXPECT_EQ(test::valueOf(records.finance, "select count(*) from recibopago").toInt(), 1);
    EXPECT_EQ(desk.nextNote(), 2);
    EXPECT_EQ(desk.receipt.content().QRL16a, "ADMISION: 700");
    EXPECT_EQ(desk.receipt.content().QRL12, "RECIBO NO. 1-1");
}

TEST_F(Registering, AnAdmissionAskedForTheBirthIsAuthorised) {
    NoteDraft draft = desk.note("AD - ADMISION", 1, {1});
    draft.payer.nacimiento = Birth{QDate(2015, 3, 9), 11, "I"};
    draft.payer.sexo = Sex::Masculino;
    const int folio = records.folio();
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("admision", "folio, status", 1), QString::number(folio) + "|AU");
    EXPECT_EQ(records.rows("datosgenerales", "edad, sexo, tipopaciente, fecha_nac",
                           "folio = " + QString::number(folio)),
              "11|M|I|2015-03-09");
}

TEST_F(Registering, ADossierNoteByChequeHasItsHistory) {
    NoteDraft draft = desk.note("AP - SERVICIOS DE CLINICA", 4, {1, 17});
    draft.lines[1].cant = 2;
    draft.lines[1].total = 2 * draft.lines[1].precio;
    draft.lines[1].descAdic = "PIEZA 26";
    draft.amounts.importeTotal = subtotalOf(draft.lines);
    draft.payer.expediente = "00001/24";
    draft.payer.folioAdmision = 1;
    draft.payer.matricula = "1100001";
    draft.payer.alumno = "ALVAREZ CANO JIMENA";
    draft.service.lugarShown = true;
    draft.service.lugarArea = "A1";
    Payment payment = paidWith(draft, 0, 0, 0);
    payment.tipoDePago = PaymentKind::ChequeMN;
    payment.cheque = draft.amounts.importeTotal;
    payment.banco = "BANCO DEL PUERTO";
    payment.numCheque = "00012345";
    recomputeTotals(&payment);
    ASSERT_TRUE(desk.registers(draft, payment));

    const QString total = QString::number(draft.amounts.importeTotal);
    EXPECT_EQ(rows("pagos_odontologia",
                   "expediente, paciente, matricula, alumno, area, paterno, materno, nombre", 1),
              "00001/24|LÓPEZ MARTÍNEZ ANA|1100001|ALVAREZ CANO JIMENA|A1|LÓPEZ|MARTÍNEZ|ANA");
    EXPECT_EQ(rows("formapago", "pesos, dolares, credito, cheque, numcheque, cambio", 1),
              "0|0|0|" + total + "|00012345|0");
    EXPECT_EQ(rows("detallepago", "idtipo, importe", 1), "3|" + total);
    EXPECT_EQ(rows("detallevtas", "cve_prod, cant, des_adic", 1), "1|1| ; 17|2|PIEZA 26");
    EXPECT_EQ(rows("historicoodontologia",
                   "codigo, expediente, tipo_prod, cve_prod, fecha, cant, matricula, origen, "
                   "areactr",
                   1),
              QStringLiteral("%1|00001/24|4|1|%3|1|1100001|VA|A1; %2|00001/24|4|17|%3|2|1100001|VA|"
                             "A1")
                  .arg(draft.lines[0].codigo)
                  .arg(draft.lines[1].codigo)
                  .arg(today()));
    EXPECT_EQ(records.count("admision", "num_caja = 1 and nota_vta = 1"), 0);
    // The first note of the session has no method of an earlier one to keep.
    EXPECT_EQ(rows("metodopagonota", "cve, importe, moneda", 1), "NULL|NULL|NULL");
}

TEST_F(Registering, AMethodThatIsNoneKeepsThatOfTheNoteBefore) {
    const NoteDraft first = desk.note("PG - PUBLICO GENERAL", 6, {1});
    ASSERT_TRUE(desk.registers(first, paidWith(first, first.amounts.importeTotal, 0, 0)));
    const NoteDraft second = desk.note("PG - PUBLICO GENERAL", 6, {2});
    Payment cheque = paidWith(second, 0, 0, 0);
    cheque.cheque = second.amounts.importeTotal;
    ASSERT_TRUE(desk.registers(second, cheque));
    EXPECT_EQ(rows("metodopagonota", "cve, importe, moneda", 2),
              rows("metodopagonota", "cve, importe, moneda", 1));
    EXPECT_EQ(rows("metodopagonota", "nota_vta, cve", 2), "2|04");
}

TEST_F(Registering, AStudentPaysInDollars) {
    NoteDraft draft = desk.note("AL - ALUMNOS", 8, {1});
    draft.payer.paterno.clear();
    draft.payer.materno.clear();
    draft.payer.nombre.clear();
    draft.payer.matricula = "1100003";
    draft.payer.alumno = "CASTRO VALLE RENATA";
    const Payment payment = paidWith(draft, 0, 100, 5);
    ASSERT_TRUE(desk.registers(draft, payment));
    const QString change = QString::number(payment.cambio, 'g', 12);
    EXPECT_EQ(rows("registrovtas", "matricula, alumno", 1), "1100003|CASTRO VALLE RENATA");
    EXPECT_EQ(rows("pagos_odontologia", "paciente, nombre", 1),
              "CASTRO VALLE RENATA|CASTRO VALLE RENATA");
    // More change than pesos: the pesos are kept whole, and they are the method all the same.
    EXPECT_EQ(rows("formapago", "dolares, pesos, cambio", 1), "100|5|" + change);
    EXPECT_EQ(rows("metodopagonota", "cve, importe, moneda, tipocambio", 1),
              "01|" + QString::number(5 - payment.cambio, 'g', 12) + "|MXN|0");

    const NoteDraft next = desk.note("AL - ALUMNOS", 8, {1});
    ASSERT_TRUE(desk.registers(next, paidWith(next, 0, 100, 0)));
    EXPECT_EQ(rows("metodopagonota", "cve, moneda, tipocambio", 2), "01|USD|18.5");
}

TEST_F(Registering, AnEmployeePays) {
    NoteDraft draft = desk.note("VA - VARIOS", 9, {1});
    draft.payer.noEmpleado = "1001";
    draft.payer.numEmpleado = 1001;
    draft.payer.nombreEmpleado = "ARTURO SALCIDO MENDEZ";
    draft.payer.tipoPaciente = {2, "EMPLEADO"};
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("pagos_odontologia", "num_empl, empleado, paciente, nombre, prestacion", 1),
              "1001|ARTURO SALCIDO MENDEZ|ARTURO SALCIDO MENDEZ|ARTURO SALCIDO MENDEZ|2");
}

TEST_F(Registering, MunicipalityFollowsTheDeskOrTheNoteBefore) {
    test::run(records.clinic, "update datoscaja set campus = '1' where num_caja = 1");
    NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("registrovtas", "mpio, status", 1), "|GE");
    test::run(records.clinic, "update datoscaja set campus = '3' where num_caja = 1");
    draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    test::run(records.clinic, "update datoscaja set campus = '1' where num_caja = 1");
    draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("registrovtas", "mpio, status", 3), "T|GE");
}

TEST_F(Registering, TheWidestTextsFit) {
    NoteDraft draft = desk.note("EX - EXAMENES DE ESPECIALIDADES", 13, {1});
    draft.payer.paterno = QString(40, u'Ñ');
    draft.payer.materno = QString(40, u'Á');
    draft.payer.nombre = QString(70, u'Ü');
    draft.payer.matricula = "2147483647";
    draft.payer.alumno = QString(250, u'Ó');
    draft.lines[0].descAdic = QString(255, u'É');
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, 999999999.99)));
    EXPECT_EQ(rows("pagos_odontologia", "tipo_serv, paterno", 1),
              "EXAMENES DE ESPECIALIDADE|" + QString(40, u'Ñ'));
    EXPECT_EQ(rows("registrovtas", "matricula, char_length(alumno)", 1), "2147483647|100");
}

TEST_F(Registering, TwoSessionsOnOneDeskMeetTheNumberOfTheFirst) {
    Desk other(files.root());
    const NoteDraft first = desk.note("PG - PUBLICO GENERAL", 6, {1});
    const NoteDraft second = other.note("PG - PUBLICO GENERAL", 6, {2});
    ASSERT_EQ(first.notaActual, second.notaActual);
    ASSERT_TRUE(desk.registers(first, paidWith(first, 0, 0, first.amounts.importeTotal)));
    EXPECT_TRUE(other.fails(second, paidWith(second, 0, 0, second.amounts.importeTotal)));
    other.session.Usuario = "cajero2";
    other.messages.expectWarning(
        QString(test::kFailed) +
        "\n\nOtra estación usa la caja 1: la nota 1 es del usuario cajero1.");
    EXPECT_FALSE(other.registrar(second, paidWith(second, 0, 0, second.amounts.importeTotal)));
    EXPECT_EQ(rows("detallevtas", "cve_prod, cant", 1), "1|1");
    EXPECT_EQ(desk.nextNote(), 2);
    EXPECT_TRUE(other.printing.records.isEmpty());
}

TEST_F(Registering, TwoStationsThatAdmitAtTheSameMomentKeepTheirFolios) {
    Desk other(files.root(), 12);
    const int folio = records.folio();
    const NoteDraft mine = desk.note("AD - ADMISION", 1, {1});
    // Another desk registers at one moment of this one's registration.
    TestSeam seam(Moment::BeforeExecution, atName("registra_admision_p"), [&](const Execution &) {
        const NoteDraft theirs = other.note("AD - ADMISION", 1, {1});
        EXPECT_TRUE(other.registers(theirs, paidWith(theirs, 0, 0, theirs.amounts.importeTotal)));
    });
    desk.conexion.setSeam(&seam);
    EXPECT_TRUE(desk.fails(mine, paidWith(mine, 0, 0, mine.amounts.importeTotal)));
    desk.conexion.setSeam(nullptr);
    EXPECT_EQ(records.rows("admision", "num_caja, folio", "folio >= " + QString::number(folio)),
              "12|" + QString::number(folio));
    EXPECT_EQ(records.folio(), folio + 1);
    EXPECT_EQ(desk.nextNote(), mine.notaActual);

    records.repair(1, mine.notaActual);
    ASSERT_TRUE(desk.registers(mine, paidWith(mine, 0, 0, mine.amounts.importeTotal)));
    EXPECT_EQ(rows("admision", "folio, status", mine.notaActual),
              QString::number(folio + 1) + "|PD");
}

TEST_F(Registering, CopiesComeOutAsTheLocalTableSays) {
    const auto register_ = [this](const QString &service, int area) {
        desk.printing.records.clear();
        const NoteDraft draft = desk.note(service, area, {1});
        EXPECT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
        QStringList copies;
        for (const auto &record : desk.printing.records) {
            EXPECT_EQ(record.title, "Recibo de Pago 1-" + QString::number(draft.notaActual));
            EXPECT_EQ(record.printer, -1);
            EXPECT_FALSE(record.preview);
            for (const char *copy : {"ORIGINAL", "COPIA", "TERCERA"}) {
                if (report::pageText(record.document, 0).contains(copy)) {
                    copies += QString(copy);
                }
            }
        }
        return copies.join(' ');
    };
    Connection &local = desk.conexion.FBLocal;
    test::run(local,
              "insert into recibos values (3, '  TERCERA ', 'EX - EXAMENES DE ESPECIALIDADES')");
    EXPECT_EQ(register_("PG - PUBLICO GENERAL", 6), "ORIGINAL COPIA");
    EXPECT_EQ(register_("EX - EXAMENES DE ESPECIALIDADES", 13), "ORIGINAL COPIA TERCERA");
    test::run(local, "delete from recibos");
    desk.local.Recibos.reopen();
    EXPECT_EQ(register_("PG - PUBLICO GENERAL", 6), "");
}

TEST_F(Registering, FiguresAreRefreshedWhereTheStationCountsThem) {
    const NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    desk.options.GenerarEstadisticas = false;
    ASSERT_TRUE(desk.registers(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(desk.frame.figuresRefreshed, 0);
    desk.options.GenerarEstadisticas = true;
    const NoteDraft next = desk.note("PG - PUBLICO GENERAL", 6, {1});
    ASSERT_TRUE(desk.registers(next, paidWith(next, 0, 0, next.amounts.importeTotal)));
    EXPECT_EQ(desk.frame.figuresRefreshed, 1);
}

TEST_F(Registering, APrinterThatFailsLeavesTheNoteWrittenAndCounted) {
    const NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    desk.printing.onPrint = [] { throw report::PrintError("sin papel"); };
    EXPECT_TRUE(desk.fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(desk.messages.boxes().last().title, "Información");
    EXPECT_EQ(rows("registrovtas", "status, fecha", 1), "GE|" + today());
    EXPECT_EQ(desk.nextNote(), 2);
    EXPECT_EQ(desk.frame.figuresRefreshed, 0);
}

TEST_F(Registering, ReceiptsThatWereNeverFinishedAreToldOnce) {
    const NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    desk.printing.onPrint = [] { throw report::PrintError("sin papel"); };
    EXPECT_TRUE(desk.fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    desk.messages.expectWarning("Los recibos de la nota 1-1 no se terminaron de imprimir. *");
    tellUnfinishedReceipts(desk.context);
    tellUnfinishedReceipts(desk.context);

    // A note that its counter doesn't count is the repair's.
    const NoteDraft half = desk.note("PG - PUBLICO GENERAL", 6, {1});
    desk.receipt.Ticket(half, paidWith(half, 0, 0, half.amounts.importeTotal), {});
    tellUnfinishedReceipts(desk.context);

    desk.printing.onPrint = {};
    EXPECT_TRUE(desk.registers(half, paidWith(half, 0, 0, half.amounts.importeTotal)));
    tellUnfinishedReceipts(desk.context);
}

TEST_F(Registering, APainterThatCannotBeginEndsInTheSameBox) {
    desk.printing.onPrint = [this] {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(files.root() + "/no hay/recibo.pdf");
        report::printTo(layoutReceipt(desk.receipt.content(), "ORIGINAL"), printer);
    };
    const NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    EXPECT_TRUE(desk.fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("registrovtas", "status, fecha", 1), "GE|" + today());
    EXPECT_EQ(desk.nextNote(), 2);
    EXPECT_TRUE(desk.printing.records.isEmpty());
}

TEST_F(Registering, TheCounterStaysOnTheLastNumberThatAColumnHolds) {
    test::run(records.clinic, "update datoscaja set nota_vta = 2147483647 where num_caja = 1");
    const NoteDraft draft = desk.note("PG - PUBLICO GENERAL", 6, {1});
    EXPECT_TRUE(desk.fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("registrovtas", "status, recibo", 2147483647), "GE|1-2147483647");
    EXPECT_EQ(desk.nextNote(), 2147483647);
}

TEST_F(Registering, ANumberThatIsNoneWritesNothing) {
    NoteDraft draft = desk.note("AL - ALUMNOS", 8, {1});
    draft.payer.matricula = "12-";
    EXPECT_TRUE(desk.fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_EQ(rows("registrovtas", "status, fecha", 1), "");
    EXPECT_EQ(desk.nextNote(), 1);
}

}  // namespace
}  // namespace kaldo
