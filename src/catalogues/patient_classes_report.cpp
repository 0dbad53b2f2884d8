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
    const report::Layout layout = catalogueLayout(heading, u"Clasificación de Pacientes"_s);
    return listReport(layout, table, rows, [](const PatientClassLine &row) {
        return QStringList{row.prestacion, row.descripcion, row.beneficiario};
    });
}

}  // namespace kaldo
