#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct PaymentFormRow {
    QString idtipo, tipopago;
    QStringList cuentas;  ///< the five levels and the path that they make
};

report::Document layoutPaymentForms(const CatalogueHeading &heading,
                                    const QList<PaymentFormRow> &rows, bool accounts);

}  // namespace kaldo
