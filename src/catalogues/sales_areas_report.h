#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct SalesAreaRow {
    QString tipoProd, descr, vigente, dirigidoa;
    QStringList cuentas;  ///< the five levels and the path that they make
};

/// The rows of `AreaVenta`.
QList<SalesAreaRow> salesAreaRows(NamedQuery &areaventa);

/// With the accounts where government accounting asks for them, else with state and family.
report::Document layoutSalesAreas(const CatalogueHeading &heading, const QString &ciudad,
                                  const QList<SalesAreaRow> &rows, bool accounts);

}  // namespace kaldo
