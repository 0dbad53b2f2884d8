#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct PaymentMethod {
    QString clave, descripcion;
};

report::Document layoutPaymentMethods(const CatalogueHeading &heading,
                                      const QList<PaymentMethod> &rows);

}  // namespace kaldo
