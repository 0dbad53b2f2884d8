#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct CashDeskRow {
    QString numCaja, nombre, bancomn, bancodll, serie, serien, tipoliza, progPol, sistemaid, campus;
};

/// The rows of `DatosCaja`.
QList<CashDeskRow> cashDeskRows(NamedQuery &datosCaja);

/// ReporteDatosCaja: one line per desk; banks by their numbers.
report::Document layoutCashDesks(CatalogueHeading heading, const QString &ciudad,
                                 const QList<CashDeskRow> &rows);

}  // namespace kaldo
