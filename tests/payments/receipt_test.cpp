#include "payments/receipt.h"

#include "payments/receipt_copies.h"
#include "tests/payments/sample_note.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

using test::noteDraft;
using test::noteLine;
using test::paidWith;
using test::receiptOptions;
using test::registeredNote;

ReceiptContent receiptOf(const NoteDraft &draft, const Payment &payment,
                         const ReceiptExtras &extras = {}) {
    ReceiptWriter writer;
    return writer.Ticket(draft, payment, registeredNote(), extras, receiptOptions());
}

ReceiptContent receiptOf(const NoteDraft &draft) {
    return receiptOf(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal));
}

/// "SUBTOTAL $1.00 | TOTAL $1.00 | 80": empty rows are left out.
QString totalsOf(const ReceiptContent &content) {
    QStringList rows;
    for (const ReceiptRow &row : content.totals) {
        if (!row.caption.isEmpty() || !row.amount.isEmpty()) {
            rows.append((row.caption + ' ' + row.amount).trimmed());
        }
    }
    return rows.join(" | ") + " | " + QString::number(content.totalsHeight);
}

TEST(Receipt, HeadingLinesFollowTheStation) {
    const NoteDraft draft = noteDraft("AD - ADMISION", {noteLine(1, 80)});
    const Payment payment = paidWith(draft, 0, 0, 80);
    ReceiptOptions options = receiptOptions();
    ReceiptWriter writer;
    ReceiptContent content = writer.Ticket(draft, payment, registeredNote(), {}, options);
    EXPECT_EQ(content.QRL2, "Facultad de Odontología");
    EXPECT_EQ(content.QRL3, "R.F.C. UVN850101AB1");
    EXPECT_EQ(content.QRL5, "TEL. (612) 555-0100");
    EXPECT_EQ(content.QRL8a, "CLÍNICA NORTE");
    EXPECT_EQ(content.QRL12, "RECIBO NO. 4-1532");
    EXPECT_EQ(content.QRL15, "FECHA: 2026-11-22 09:05:07");
    EXPECT_EQ(content.QRL37, "LE ATENDIO: ROSA M.");
    EXPECT_EQ(content.QRL13, "");
    options.capitals = true;
    options.direccion = QString(31, 'x');
    content = writer.Ticket(draft, payment, registeredNote(), {}, options);
    EXPECT_EQ(content.QRL2, "FACULTAD DE ODONTOLOGIA");
    EXPECT_EQ(content.QRL4, QString(31, 'X'));
    EXPECT_TRUE(content.longAddress);
    options.direccion.chop(1);
    EXPECT_FALSE(writer.Ticket(draft, payment, registeredNote(), {}, options).longAddress);
}

TEST(Receipt, PolicyReferenceFollowsModeAndOption) {
    NoteDraft draft = noteDraft("OT - OTROS", {noteLine(1, 80)});
    RegisteredNote note = registeredNote();
    note.polizaId = 77;
    ReceiptOptions options = receiptOptions();
    ReceiptWriter writer;
    const auto policy = [&] { return writer.Ticket(draft, {}, note, {}, options).QRL13; };
    EXPECT_EQ(policy(), "POLIZA: 1-2-77");
    draft.mode = NoteMode::Consultar;
    EXPECT_EQ(policy(), "");
    options.generarPolizas = true;
    EXPECT_EQ(policy(), "POLIZA NO. 1-2-77");
    note.campusId = 2000000000;
    note.sistemaId = 2000000000;
    EXPECT_EQ(policy(), "POLIZA NO. 2000000000-200000000");
}

TEST(Receipt, IdentityLines) {
    NoteDraft draft = noteDraft("AD - ADMISION", {noteLine(1, 80)});
    ReceiptContent content = receiptOf(draft, {}, {.folioAdmision = 345});
    EXPECT_EQ(content.QRL16, "NOMBRE: ");
    EXPECT_EQ(content.QRL16a, "ADMISION: 345");
    EXPECT_EQ(content.QRL17, "LÓPEZ MARTÍNEZ ANA");

    draft = noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(1, 80)});
    draft.payer.expediente = "00015/23";
    draft.payer.folioAdmision = 12;
    draft.payer.matricula = "20231234";
    content = receiptOf(draft);
    EXPECT_EQ(content.QRL16, "EXPEDIENTE: 00015/23");
    EXPECT_EQ(content.QRL16a, "ADMISION: 12");

    draft = noteDraft("AL - ALUMNOS", {noteLine(1, 80)});
    draft.payer.matricula = "20231234";
    draft.payer.alumno = "RUIZ SOTO EVA ";
    content = receiptOf(draft);
    EXPECT_EQ(content.QRL16, "MATRICULA: 20231234");
    EXPECT_EQ(content.QRL17, "RUIZ SOTO EVA");

    draft = noteDraft("VA - VARIOS", {noteLine(1, 80)});
    draft.payer.noEmpleado = "77";
    draft.payer.nombreEmpleado = "SAENZ LEAL OMAR";
    content = receiptOf(draft);
    EXPECT_EQ(content.QRL16, "EMPLEADO: 77");
    EXPECT_EQ(content.QRL17, "SAENZ LEAL OMAR");

    draft = noteDraft("EX - EXAMENES DE ESPECIALIDADES", {noteLine(1, 80)});
    draft.payer.matricula = " ";
    content = receiptOf(draft);
    EXPECT_FALSE(content.identified);
    EXPECT_EQ(content.QRL16 + content.QRL17, "");
}

TEST(Receipt, TheStudentIsPrintedOnce) {
    ReceiptOptions options = receiptOptions();
    options.educativo = true;
    NoteDraft draft = noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(1, 80)});
    ReceiptWriter writer;
    const auto student = [&] {
        const ReceiptContent content = writer.Ticket(draft, {}, registeredNote(), {}, options);
        return content.QRL39 + "|" + content.QRL40;
    };
    draft.payer.expediente = "00015/23";
    draft.payer.matricula = "20231234";
    draft.payer.alumno = "RUIZ SOTO EVA";
    EXPECT_EQ(student(), "Matricula: 20231234|Alumno: RUIZ SOTO EVA");
    draft.payer.expediente = "";
    EXPECT_EQ(student(), "|");  // stands in the identity lines
    draft.payer.expediente = "00015/23";
    draft.service.tipoServ = "AD";
    EXPECT_EQ(student(), "|");
    draft.service.tipoServ = "AP";
    draft.payer.matricula = "0";
    EXPECT_EQ(student(), "|");
    draft.payer.matricula = "20231234";
    options.educativo = false;
    EXPECT_EQ(student(), "|");
}

TEST(Receipt, TotalsOfAreasWithoutAdvance) {
    NoteDraft draft = noteDraft("OT - OTROS", {noteLine(2, 250)});
    EXPECT_EQ(totalsOf(receiptOf(draft)),
              "SUBTOTAL $500.00 | EFECTIVO $500.00 | IVA $0.00 | TOTAL $500.00 | 80");
    draft = noteDraft("OT - OTROS", {noteLine(2, 250)}, 40);
    EXPECT_EQ(totalsOf(receiptOf(draft)),
              "SUBTOTAL $500.00 | PRESTACIÓN 40% $200.00 | EFECTIVO $300.00 | TOTAL $300.00 | 100");
    draft = noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(2, 250)}, 100);
    const ReceiptContent covered = receiptOf(draft, skippedPayment(draft, 18.5));
    EXPECT_EQ(totalsOf(covered), "SUBTOTAL $500.00 | PRESTACIÓN 100% $500.00 | TOTAL $0.00 | 100");
    EXPECT_EQ(covered.QRLetras1, "*** CERO  PESO  M.N. ***");
}

TEST(Receipt, TotalsOfAreasWithAdvance) {
    const QList<NoteLine> lines{noteLine(1, 1000)};
    NoteDraft draft = noteDraft("AP - SERVICIOS DE CLINICA", lines, 0, "S");
    Payment payment = paidWith(draft, 0, 0, 1000);
    payment.cantidadAnticipo = 300;
    payment.saldo = 700;
    EXPECT_EQ(totalsOf(receiptOf(draft, payment)),
              "SUBTOTAL $1,000.00 | ANTICIPO $300.00 | SALDO A PAGAR $700.00 | IVA $0.00 | TOTAL "
              "$300.00 | 100");
    payment.anticipoPanelShown = false;
    EXPECT_EQ(totalsOf(receiptOf(draft, payment)),
              "SUBTOTAL $1,000.00 | EFECTIVO $1,000.00 | IVA $0.00 | TOTAL $1,000.00 | 80");

    const ReceiptExtras accounts{.folioAdmision = {},
                                 .edoctaSaldoAnt = AccountMovement{900, 650},
                                 .edoctaSaldoAnt1 = AccountMovement{250, 400}};
    draft = noteDraft("AP - SERVICIOS DE CLINICA", lines, 50, "S");
    payment = paidWith(draft, 0, 0, 500);
    payment.cantidadAnticipo = 400;
    payment.prestacion = 200;
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $400.00 | PRESTACIÓN 50% $200.00 | EFECTIVO $200.00 | ANTICIPO $400.00 | "
              "SALDO A PAGAR $650.00 | IVA $0.00 | TOTAL $200.00 | 120");
    draft.tipoServNota = "ABO";
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $400.00 | PRESTACIÓN 50% $200.00 | EFECTIVO $200.00 | ABONO $250.00 | "
              "SALDO A PAGAR $400.00 | IVA $0.00 | TOTAL $200.00 | 120");
    payment.anticipoPanelShown = false;
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $500.00 | PRESTACIÓN 50% $200.00 | ABONO $500.00 | SALDO A PAGAR $400.00 | "
              "TOTAL $500.00 | 100");
    draft.tipoServNota = "";
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $500.00 | PRESTACIÓN 50% $200.00 | EFECTIVO $500.00 | SALDO A PAGAR "
              "$650.00 | TOTAL $500.00 | 100");
}

TEST(Receipt, TotalsOfPaymentsToAnAccount) {
    const ReceiptExtras accounts{.folioAdmision = {},
                                 .edoctaSaldoAnt = AccountMovement{900, 650},
                                 .edoctaSaldoAnt1 = AccountMovement{250, 400}};
    NoteDraft draft = noteDraft("AB - ABONO A CUENTA", {noteLine(1, 250)}, 0, "S");
    Payment payment = paidWith(draft, 0, 0, 250);
    ReceiptContent content = receiptOf(draft, payment, accounts);
    EXPECT_EQ(totalsOf(content),
              "SUBTOTAL $250.00 | EFECTIVO $250.00 | SALDO A PAGAR $650.00 | TOTAL $250.00 | 100");
    EXPECT_EQ(content.totals[2], ReceiptRow());  // the third row waits for the payment
    draft.tipoServNota = "ABO";
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $250.00 | EFECTIVO $250.00 | ABONO $250.00 | SALDO A PAGAR $400.00 | TOTAL "
              "$250.00 | 100");
    payment.prestacionPanelShown = true;
    EXPECT_EQ(totalsOf(receiptOf(draft, payment, accounts)),
              "SUBTOTAL $250.00 | PRESTACIÓN 0% $0.00 | ABONO $250.00 | SALDO A PAGAR $400.00 | "
              "TOTAL $250.00 | 100");
}

TEST(Receipt, CaptionsStayAsTheLastPrintLeftThem) {
    ReceiptWriter writer;
    NoteDraft uncovered = noteDraft("OT - OTROS", {noteLine(1, 500)});
    uncovered.amounts.pagoAnticipoShown = true;
    const auto print = [&](const NoteDraft &draft) {
        return writer.Ticket(draft, paidWith(draft, 0, 0, 500), registeredNote(), {},
                             receiptOptions());
    };
    const ReceiptContent first = print(uncovered);
    EXPECT_EQ(first.totals[0], (ReceiptRow{"SUBTOTAL", "$0.00"}));
    EXPECT_EQ(first.totals[6], (ReceiptRow{"", "$0.00"}));
    print(noteDraft("OT - OTROS", {noteLine(1, 500)}, 40));
    const ReceiptContent after = print(uncovered);
    EXPECT_EQ(after.totals[1], (ReceiptRow{"PRESTACIÓN 40%", "$0.00"}));
    EXPECT_EQ(after.totals[3], (ReceiptRow{"TOTAL", "$0.00"}));
}

TEST(Receipt, EachReprintAddsToTheHeading) {
    ReceiptWriter writer;
    NoteDraft draft = noteDraft("OT - OTROS", {noteLine(1, 500)});
    const auto heading = [&](NoteMode mode) {
        draft.mode = mode;
        return writer.Ticket(draft, {}, registeredNote(), {}, receiptOptions()).QRL6;
    };
    EXPECT_EQ(heading(NoteMode::Consultar), "RECIBO DE PAGO DUPLICADO");
    EXPECT_EQ(heading(NoteMode::Consultar), "RECIBO DE PAGO DUPLICADO DUPLICADO");
    EXPECT_EQ(heading(NoteMode::Registrar), "RECIBO DE PAGO");
    EXPECT_EQ(heading(NoteMode::Consultar), "RECIBO DE PAGO DUPLICADO");
}

TEST(Receipt, WhatWasReceived) {
    NoteDraft draft = noteDraft("OT - OTROS", {noteLine(1, 500.5)});
    Payment payment = paidWith(draft, 100, 10, 300);
    ReceiptContent content = receiptOf(draft, payment);
    EXPECT_EQ(content.QRL27.amount, "$585.00");
    EXPECT_EQ(content.QRL28.amount, "$300.00");
    EXPECT_EQ(content.QRL29, (ReceiptRow{"DLLS.", "$10.00"}));
    EXPECT_EQ(content.QRL32.amount, "$84.50");
    EXPECT_EQ(content.QRL33, "TIPO DE CAMBIO:  $18.50");
    EXPECT_EQ(content.QRLetras1, "***  QUINIENTOS PESOS CON  CINCUENTA CENTAVOS *** M.N. ***");
    EXPECT_EQ(content.QRL34 + content.QRL35 + content.QRL36, "");

    draft.mode = NoteMode::Consultar;  // an old note converts at its own rate
    content = receiptOf(draft, payment);
    EXPECT_EQ(content.QRL27.amount, "$582.50");
    EXPECT_EQ(content.QRL33, "TIPO DE CAMBIO:  $18.25");
    draft.benefit.porcPrestacion = 10;
    payment.importeAPagar = 21;
    payment.banco = "BANCO DEL VALLE";
    payment.numCheque = "77";
    content = receiptOf(draft, payment);
    EXPECT_EQ(content.QRLetras1, "***  VEINTIUNO PESOS  M.N. ***");
    EXPECT_EQ(content.QRL34, "BANCO:  BANCO DEL VALLE");
    EXPECT_EQ(content.QRL35, "CUENTA: ");
    EXPECT_EQ(content.QRL36, "CHEQUE: 77");
}

TEST(ReceiptCopies, FollowTheLocalTable) {
    const QList<ReceiptCopy> rows{
        {1, " ORIGINAL ", ""}, {2, "ADMISION", "AD - ADMISION "}, {3, "COPIA", " "}};
    const auto copies = [&](NoteMode mode, const QString &service, const CopyOptions &options) {
        QStringList names;
        for (const PlannedCopy &copy : plannedCopies(rows, mode, service, options)) {
            names.append(copy.descripcion + (copy.target == CopyTarget::Preview ? "?" : ""));
        }
        return names.join(',');
    };
    const NoteMode registering = NoteMode::Registrar;
    const NoteMode consulting = NoteMode::Consultar;
    EXPECT_EQ(copies(registering, "AD - ADMISION", {false, 0}), "ORIGINAL,ADMISION,COPIA");
    EXPECT_EQ(copies(registering, "OT - OTROS", {false, 0}), "ORIGINAL,COPIA");
    EXPECT_EQ(copies(consulting, "OT - OTROS", {false, 0}), "");
    EXPECT_EQ(copies(consulting, "OT - OTROS", {false, 5}), "ORIGINAL?,ADMISION?,COPIA?");
    EXPECT_EQ(copies(consulting, "OT - OTROS", {true, 0}), "ORIGINAL,COPIA");
}

}  // namespace
}  // namespace kaldo
