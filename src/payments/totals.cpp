#include "payments/totals.h"

#include "toolkit/core/money.h"

namespace kaldo {

double subtotalOf(const QList<NoteLine> &lines) {
    double sum = 0;
    for (const NoteLine &line : lines) {
        sum += line.total;
    }
    return sum;
}

NoteTotals noteTotals(double subtotal, int porcPrestacion) {
    if (porcPrestacion <= 0) {
        return {0, subtotal};
    }
    const double prestacion = subtotal * porcPrestacion / 100;
    return {prestacion, subtotal - prestacion};
}

double lineTotal(int cant, double precio) {
    return cant * precio;
}

bool sameAmount(double left, double right) {
    return Money::rounded(left) == Money::rounded(right);
}

}  // namespace kaldo
