#include "catalogues/patient_classes_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

report::Document layoutPatientClasses(const CatalogueHeading &heading,
                                      const QList<PatientClassLine> &rows, bool accounts) {
    QList<ReportColumn> columns = {{u"Clave"_s, 16, report::Align::Right}, {u"Descripción"_s, 0}};
    if (accounts) {
        columns += {u"Beneficiario"_s, 80};
    }
    const ReportTable table(columns, catalogueWidth());
    report::Layout layout = catalogueLayout(heading, u"Clasificación de Pacientes"_s);
    layout.place(table.titles());
    layout.repeatOnNewPages(table.titles());
    for (const PatientClassLine &row : rows) {
        layout.place(table.row({row.prestacion, row.descripcion, row.beneficiario}));
    }
    return layout.finish();
}

}  // namespace kaldo
