#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct ExternalLaboratory {
    QString subsubcta, descr, domicilio, colonia, rfc, telefono, responsable, correo, cp, prog;
};

/// One block per laboratory.
report::Document layoutExternalLaboratories(const CatalogueHeading &heading, const QString &ciudad,
                                            const QList<ExternalLaboratory> &rows);

}  // namespace kaldo
