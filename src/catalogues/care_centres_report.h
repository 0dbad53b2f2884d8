#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct CareCentre {
    QString centro, descr, domicilio, colonia, responsable, telefono1, correoto, prog;
};

/// One block per centre; the programme only where government accounting asks for it.
report::Document layoutCareCentres(const CatalogueHeading &heading, const QList<CareCentre> &rows,
                                   bool accounts);

}  // namespace kaldo
