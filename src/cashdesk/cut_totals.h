#pragma once

#include "toolkit/core/money.h"

#include <QString>

namespace kaldo {

/// Only cash sales stand in the list of a cut and in its balance.
bool countsInCut(const QString &tipoVta);

/// "SaldoFinal": the running total of a cut. Cancelled notes count as they stand.
class CutBalance {
public:
    /// Adds one note's `importe_tot`, to the nearest ten-thousandth.
    void add(double importeTot) { sum_ += Money::rounded(importeTot); }
    Money total() const { return sum_; }

private:
    Money sum_;
};

/// The sums over the forms of payment of a cut, without cancelled notes; 0 where nothing was
/// summed.
struct PaymentSums {
    double pesos = 0;
    double dolares = 0;  ///< in dollars
    double cheque = 0;
    double credito = 0;
    double pesosCheque = 0;
    double prestacion = 0;
    double chequedll = 0;
    double complementaria = 0;
};

/// A row of `totales`, by its columns but the desk.
struct CutTotals {
    QString usuario;
    double sumapesos = 0;
    double sumadolares = 0;
    double sumacheque = 0;
    double sumacredito = 0;
    double sumapesosche = 0;
    double sumchdll = 0;
    double sumacomplemento = 0;
    double sumadm = 0;
    double sumatodo = 0;
    double sumadvn = 0;
    double sumadoc = 0;
    double sumapagoreconocido = 0;
};

/// The row of one cut. `sumatodo` is the balance and not a sum over the forms of payment: the two
/// are not reconciled.
CutTotals cutTotals(const QString &usuario, const PaymentSums &sums, const CutBalance &balance);

}  // namespace kaldo
