#pragma once

#include "app/catalogue_report.h"

namespace kaldo {

struct PatientClassLine {
    QString prestacion, descripcion;
    QString beneficiario;  ///< in words
};

/// One line per class; the class that it depends on only where government accounting asks for it.
report::Document layoutPatientClasses(const CatalogueHeading &heading,
                                      const QList<PatientClassLine> &rows, bool accounts);

}  // namespace kaldo
