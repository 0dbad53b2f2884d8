#include "payments/receipt_layout.h"

#include "tests/payments/sample_note.h"
#include "tests/support/documents.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

using test::matchesFile;
using test::noteDraft;
using test::noteLine;
using test::paidWith;
using test::readsCleanly;
using test::receiptOptions;
using test::registeredNote;

constexpr double kRoll = 250;  ///< report units

report::Document receiptOf(const NoteDraft &draft, const Payment &payment,
                           const ReceiptExtras &extras = {},
                           const ReceiptOptions &options = receiptOptions()) {
    ReceiptWriter writer;
    return layoutReceipt(writer.Ticket(draft, payment, registeredNote(), extras, options),
                         "ORIGINAL");
}

/// Where a text stands, in whole report units from the content's upper left corner; -1 if nowhere.
QRect placeOf(const report::Document &document, const QString &text) {
    for (const report::Item &item : document.pages.at(0).items) {
        const auto *found = std::get_if<report::Text>(&item);
        if (found != nullptr && found->content() == text) {
            const QRectF rect = found->rect.translated(-document.setup.content().topLeft());
            return QRectF(rect.topLeft() / report::units(1), rect.size() / report::units(1))
                .toRect();
        }
    }
    ADD_FAILURE() << "not printed: " << text.toStdString();
    return {-1, -1, 0, 0};
}

TEST(ReceiptLayout, AnAdmissionPrintsAsItAlwaysDid) {
    NoteDraft draft = noteDraft("AD - ADMISION", {noteLine(2, 250.25, "ADMISION INFANTIL")});
    draft.lines[0].descAdic = "CON RADIOGRAFIA";
    const report::Document document =
        receiptOf(draft, paidWith(draft, 100, 10, 300), {.folioAdmision = 345});
    EXPECT_TRUE(readsCleanly(document, report::units(kRoll)));
    EXPECT_TRUE(matchesFile(document, "payments/expected/receipt_admission.txt"));
}

TEST(ReceiptLayout, AChequeWithBenefitOnADossierPrintsAsItAlwaysDid) {
    NoteDraft draft = noteDraft("AP - SERVICIOS DE CLINICA",
                                {noteLine(1, 800, "RESINA"), noteLine(3, 66.5, "SELLADOR")}, 50);
    draft.payer.expediente = "00015/23";
    draft.payer.folioAdmision = 345;
    draft.payer.matricula = "20231234";
    draft.payer.alumno = "RUIZ SOTO EVA";
    draft.service.lugarShown = true;
    draft.service.lugarDescr = "CLINICA DE OPERATORIA";
    draft.payer.empleadoPanelShown = true;
    draft.payer.empleadoLabel = "77 SAENZ LEAL OMAR";
    draft.payer.dependenciaLabel = "220 FACULTAD DE ODONTOLOGIA";
    draft.payer.tipoPaciente = {2, "EMPLEADO ADMINISTRATIVO"};
    Payment payment = openPayment(draft, 18.5);
    choosePaymentKind(&payment, PaymentKind::ChequeMN);
    payment.cheque = payment.importeAPagar;
    payment.banco = "BANCO DEL VALLE";
    payment.numCuenta = "0011223344";
    payment.numCheque = "77";
    recomputeTotals(&payment);
    ReceiptOptions options = receiptOptions();
    options.educativo = true;
    options.contabilidadGubernamental = true;
    options.capitals = true;
    options.direccion = "Av. Reforma 120, Centro, Ciudad del Valle";
    const report::Document document = receiptOf(draft, payment, {}, options);
    EXPECT_TRUE(readsCleanly(document, report::units(kRoll)));
    EXPECT_TRUE(matchesFile(document, "payments/expected/receipt_cheque.txt"));
}

TEST(ReceiptLayout, BandsTakeTheHeightOfTheirCase) {
    NoteDraft draft = noteDraft("PG - PUBLICO GENERAL", {noteLine(1, 80, "CONSULTA")});
    const Payment payment = paidWith(draft, 0, 0, 80);
    report::Document document = receiptOf(draft, payment);
    EXPECT_EQ(placeOf(document, "RECIBO NO. 4-1532").top(), 265 + 2);
    EXPECT_EQ(placeOf(document, "CONSULTA").top(), 265 + 90 + 12);
    EXPECT_EQ(placeOf(document, "SUBTOTAL").top(), 265 + 90 + 34 + 6);
    EXPECT_EQ(placeOf(document, "IVA CORRESPONDIENTE:").top(), 265 + 90 + 34 + 80 + 4);
    EXPECT_EQ(placeOf(document, "Av. Reforma 120, Centro").top(), 85);

    draft.service.lugarShown = true;
    draft.service.tipoServ = "EX";  // nobody to name: a shorter header
    document = receiptOf(draft, payment);
    EXPECT_EQ(placeOf(document, "RECIBO NO. 4-1532").top(), 297 + 2);
    EXPECT_EQ(placeOf(document, "CONSULTA").top(), 297 + 60 + 12);
}

TEST(ReceiptLayout, LongTextsNeverCoverOthers) {
    NoteDraft draft = noteDraft("PR - PROG. LABIO PALADAR Y HENDIDO", {}, 50);
    for (int at = 0; at < 14; ++at) {
        draft.lines.append(noteLine(32767, 999999.99, QString("PROTESIS TOTAL ").repeated(at + 1)));
        draft.lines.last().descAdic = QString("DESCRIPCION ADICIONAL ").repeated(at % 4);
    }
    draft.payer.paterno = QString(40, 'W');
    draft.payer.materno = QString(40, 'M');
    draft.payer.expediente = "00015/23";
    draft.payer.folioAdmision = 2000000000;
    draft.payer.matricula = "2000000000";
    draft.payer.alumno = QString("NOMBRE LARGO ").repeated(8);
    draft.service.area.descr = QString("SERVICIOS DE ODONTOLOGIA ").repeated(3);
    draft.service.lugarShown = true;
    draft.service.lugarDescr = QString(40, 'W');
    draft.centroLabel = QString("Centro de atención dental ").repeated(3);
    draft.payer.empleadoPanelShown = true;
    draft.payer.empleadoLabel = "2000000000 " + QString("SAENZ LEAL ").repeated(9);
    ReceiptOptions options = receiptOptions();
    options.educativo = true;
    options.contabilidadGubernamental = true;
    options.nombreCliente = QString("Universidad del Valle ").repeated(5);
    options.direccion = QString("Avenida de la Reforma Universitaria ").repeated(4);
    options.tel = QString("(612) 555-0100 ext. 12, ").repeated(4);
    options.rfc = QString(40, 'W');
    options.nombreCorto = QString(60, 'W');
    Payment payment = paidWith(draft, 0, 0, 999999999.99);
    payment.importeAPagar = 777777777.77;
    payment.banco = QString(60, 'W');
    payment.numCuenta = QString(40, '8');
    const report::Document full = receiptOf(draft, payment, {}, options);
    EXPECT_GT(full.pageCount(), 2);
    EXPECT_TRUE(readsCleanly(full, report::units(kRoll)));

    // The employee memo of a note that names nobody else, and of one that names the employee.
    for (const char *service : {"UE", "VA"}) {
        NoteDraft employee = noteDraft("VA - VARIOS", {noteLine(1, 80, "COPIAS")});
        employee.service.tipoServ = service;
        employee.payer.noEmpleado = "77";
        employee.payer.nombreEmpleado = "SAENZ LEAL OMAR";
        employee.payer.empleadoPanelShown = true;
        employee.payer.empleadoLabel = "77 SAENZ LEAL OMAR";
        employee.payer.dependenciaLabel = "220 FACULTAD DE ODONTOLOGIA";
        EXPECT_TRUE(
            readsCleanly(receiptOf(employee, paidWith(employee, 0, 0, 80)), report::units(kRoll)))
            << service;
    }
}

TEST(ReceiptLayout, FurtherPagesTellWhoseTheyAre) {
    NoteDraft draft = noteDraft("PG - PUBLICO GENERAL", {});
    for (int at = 0; at < 40; ++at) {
        draft.lines.append(noteLine(1, 10, QString("CONCEPTO %1").arg(at)));
    }
    const report::Document document = receiptOf(draft, paidWith(draft, 0, 0, 400));
    ASSERT_GE(document.pageCount(), 2);
    QString all;
    for (int page = 0; page < document.pageCount(); ++page) {
        EXPECT_TRUE(report::pageText(document, page).contains("RECIBO NO. 4-1532"));
        all += report::pageText(document, page);
    }
    for (int at = 0; at < 40; ++at) {
        EXPECT_EQ(all.count(QString("CONCEPTO %1\n").arg(at)), 1) << at;
    }
    EXPECT_TRUE(report::pageText(document, document.pageCount() - 1).contains("SUBTOTAL"));
}

}  // namespace
}  // namespace kaldo
