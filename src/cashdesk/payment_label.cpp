#include "cashdesk/payment_label.h"

#include "toolkit/core/money.h"
#include "toolkit/core/text.h"

namespace kaldo {

namespace {

constexpr int kLabelWidth = 30;

QString dollarsAt(double dolares, double second) {
    return formatPlainNumber(dolares) + QStringLiteral("   a    ") + formatPlainNumber(second);
}

/// The labels of card payments, which only a cashier's own cut has; empty where none fits.
QString cardLabel(const PaidNote &note, std::optional<int> pkTipoCaja) {
    if (note.dolares > 0) {
        // The change, where the same words without a card show the rate.
        return dollarsAt(note.dolares, note.cambio);
    }
    if (note.pesos > 0) {
        return QStringLiteral("TARJETA / PESOS");
    }
    if (note.dolares != 0 || note.pesos != 0) {
        return {};
    }
    if (pkTipoCaja == 1) {
        return QStringLiteral("DEPOSITO BANCARIO");
    }
    return note.beca > 0 ? QStringLiteral("PAGO CON TARJETA / PRESTACION")
                         : QStringLiteral("PAGO CON TARJETA");
}

QString labelByAmounts(const PaidNote &note, CutBy by, std::optional<int> pkTipoCaja) {
    if (note.credito > 0 && by == CutBy::Cashier) {
        if (const QString label = cardLabel(note, pkTipoCaja); !label.isEmpty()) {
            return label;
        }
    }
    if (note.dolares > 0) {
        return dollarsAt(note.dolares, note.tipocambio);
    }
    return note.beca > 0 ? QStringLiteral("CON PRESTACION") : QStringLiteral("EFECTIVO");
}

}  // namespace

QString paymentLabel(const PaidNote &note, CutBy by, std::optional<int> pkTipoCaja) {
    QString label = labelByAmounts(note, by, pkTipoCaja);
    if (note.cheque != 0) {
        label = QStringLiteral("CHEQUE");
    }
    if (note.chequedll != 0) {
        label = QStringLiteral("CHEQUE Dlls ") + formatPlainNumber(note.chequedll);
    }
    if (note.status == QLatin1String("CA")) {
        label = QStringLiteral("CANCELADA");
    }
    return cutToWidth(label, kLabelWidth);
}

}  // namespace kaldo
