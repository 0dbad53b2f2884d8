#pragma once

#include "payments/note_draft.h"
#include "payments/payment.h"
#include "payments/receipt.h"
#include "payments/service_types.h"
#include "payments/tender.h"
#include "payments/totals.h"

#include <QString>

namespace kaldo::test {

inline NoteLine noteLine(int cant, double precio, const QString &descripcion = {}) {
    NoteLine line;
    line.codigo = 1001;
    line.tipoProd = 10;
    line.cveProd = 1;
    line.cant = cant;
    line.precio = precio;
    line.total = lineTotal(cant, precio);
    line.prog = QStringLiteral("00123");
    line.subsubcta = 7;
    line.descripcion = descripcion;
    line.nomenclatura = QStringLiteral("4-1-1-001");
    return line;
}

/// A note of one service row over its lines, with the totals that the screen shows.
inline NoteDraft noteDraft(const QString &row, const QList<NoteLine> &lines, int percent = 0,
                           const QString &anticipo = QStringLiteral("N")) {
    NoteDraft draft;
    draft.notaActual = 1532;
    draft.service.row = row;
    draft.service.tipoServ = tipoServOf(row);
    draft.service.cadenaServicio = cadenaServicioOf(row);
    draft.service.area = {10, QStringLiteral("INFANTIL"), anticipo};
    draft.centroLabel = QStringLiteral("Clínica norte");
    draft.payer.paterno = QStringLiteral("LÓPEZ");
    draft.payer.materno = QStringLiteral("MARTÍNEZ");
    draft.payer.nombre = QStringLiteral("ANA");
    draft.payer.matricula = QStringLiteral("0");
    draft.payer.tipoPaciente = {1, QStringLiteral("PACIENTE GENERAL")};
    draft.benefit.porcPrestacion = percent;
    draft.lines = lines;
    const NoteTotals totals = noteTotals(subtotalOf(lines), percent);
    draft.amounts.prestacion = totals.prestacion;
    draft.amounts.importeTotal = totals.importeTotal;
    return draft;
}

inline Payment paidWith(const NoteDraft &draft, double card, double dollars, double pesos) {
    Payment payment = openPayment(draft, 18.5);
    payment.tarjetaCredito = card;
    payment.tipoDeTarjeta = card > 0 ? CardKind::Credito : CardKind::None;
    payment.dolares = dollars;
    payment.pesos = pesos;
    recomputeTotals(&payment);
    return payment;
}

inline RegisteredNote registeredNote() {
    return {QDateTime(QDate(2026, 11, 22), QTime(9, 5, 7)), 1, 2, 0, 18.25};
}

inline ReceiptOptions receiptOptions() {
    ReceiptOptions options;
    options.nombreCliente = QStringLiteral("Universidad del Valle del Norte");
    options.facultad = QStringLiteral("Facultad de Odontología");
    options.rfc = QStringLiteral("UVN850101AB1");
    options.direccion = QStringLiteral("Av. Reforma 120, Centro");
    options.tel = QStringLiteral("(612) 555-0100");
    options.numCaja = 4;
    options.nombreCorto = QStringLiteral("ROSA M.");
    return options;
}

}  // namespace kaldo::test
