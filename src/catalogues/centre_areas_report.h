#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct CentreArea {
    QString centro, centroDescr;
    int tipoProd = 0;
    QString descr;
};

/// The sales areas of each centre, by centre.
report::Document layoutCentreAreas(const CatalogueHeading &heading, const QString &ciudad,
                                   const QList<CentreArea> &rows);

}  // namespace kaldo
