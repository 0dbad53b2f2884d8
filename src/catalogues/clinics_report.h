#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct ClinicRow {
    QString centro, centroDescr, tipoProd, areaDescr;
    QString area, descr, prog, tipoServ, responsable;
};

/// The rows of `AreaAtencionR`; `area` opens one sales area by its number, of whatever campus.
QList<ClinicRow> clinicRows(NamedQuery &areaatencion, NamedQuery &area);

/// By centre and, within it, by sales area.
report::Document layoutClinics(const CatalogueHeading &heading, const QList<ClinicRow> &rows);

}  // namespace kaldo
