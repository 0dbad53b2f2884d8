#pragma once

#include <QString>

#include <optional>

namespace kaldo {

/// How one note was paid, as its tables hold it; NULL amounts are 0.
struct PaidNote {
    double credito = 0;
    double dolares = 0;
    double pesos = 0;
    double cambio = 0;
    double beca = 0;
    double cheque = 0;
    double chequedll = 0;
    double tipocambio = 0;  ///< the note's own rate
    QString status = QStringLiteral("GE");
};

/// Whose cut it is decides over the labels of card payments.
enum class CutBy { Cashier, Administrator };

/// The way of payment as the list of receipts shows it, cut to the 30 characters of its column.
/// `pkTipoCaja` is that of the cash desk of the last payment screen, unset while that query is
/// closed.
QString paymentLabel(const PaidNote &note, CutBy by, std::optional<int> pkTipoCaja);

}  // namespace kaldo
