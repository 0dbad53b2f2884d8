#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct ClinicRow {
    QString centro, centroDescr, tipoProd, areaDescr;
    QString area, descr, prog, tipoServ, responsable;
};

/// The rows of `AreaAtencionR`; the names of the sales areas come from a list of areas.
QList<ClinicRow> clinicRows(NamedQuery &areaatencion, NamedQuery &areas);

/// By centre and, within it, by sales area.
report::Document layoutClinics(const CatalogueHeading &heading, const QList<ClinicRow> &rows);

}  // namespace kaldo
