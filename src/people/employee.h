#pragma once

#include <QString>

#include <optional>

namespace kaldo {

/// The answer of `consulta_empleado_p` for a number that has a row.
struct EmployeeRow {
    QString nombre;
    QString cveUnida;
    QString descripcion;
    int tipoEmpleado = 0;
    QString mensaje;
};

/// Only the message counts, whatever the other columns say.
bool isCurrentEmployee(const std::optional<EmployeeRow> &row);

/// The patient type without a benefit.
inline constexpr int kPlainPatient = 1;

/// The patient type that a walk-in employee pays as: 2 for an employee of type 1, 5 for type 2.
/// Other types leave the patient type as it stands.
std::optional<int> patientTypeOfEmployee(int tipoEmpleado);

/// "Empleado:" shows number, blank, name; "Dependencia:" key, blank, description.
QString employeeLabel(int numEmpleado, const QString &nombre);
QString dependencyLabel(const QString &cveUnida, const QString &descripcion);

}  // namespace kaldo
