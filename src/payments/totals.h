#pragma once

#include "payments/note_draft.h"

#include <QList>

namespace kaldo {

/// The footer sum of `total`, called subtotal throughout. Not rounded.
double subtotalOf(const QList<NoteLine> &lines);

/// What the benefit covers and what is left to pay.
struct NoteTotals {
    double prestacion = 0;
    double importeTotal = 0;
};

/// prestacion = subtotal × percent / 100, importeTotal the rest. Nothing is rounded; a percent of
/// zero or less is no benefit.
NoteTotals noteTotals(double subtotal, int porcPrestacion);

/// The total of a line: quantity × unit price.
double lineTotal(int cant, double precio);

/// Amounts are equal when their ten-thousandths are: sums of doubles are never compared as such.
bool sameAmount(double left, double right);

}  // namespace kaldo
