#include "cashdesk/cut_totals.h"

namespace kaldo {

bool countsInCut(const QString &tipoVta) {
    return tipoVta == QLatin1String("CONTADO");
}

CutTotals cutTotals(const QString &usuario, const PaymentSums &sums, const CutBalance &balance) {
    CutTotals totals;
    totals.usuario = usuario;
    totals.sumapesos = sums.pesos;
    totals.sumadolares = sums.dolares;
    totals.sumacheque = sums.cheque;
    totals.sumacredito = sums.credito;
    totals.sumapesosche = sums.pesosCheque;
    totals.sumchdll = sums.chequedll;
    totals.sumacomplemento = sums.complementaria;
    totals.sumadm = sums.prestacion;
    totals.sumatodo = balance.total().toDouble();
    return totals;
}

}  // namespace kaldo
