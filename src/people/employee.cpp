#include "people/employee.h"

namespace kaldo {

bool isCurrentEmployee(const std::optional<EmployeeRow> &row) {
    return row && row->mensaje.trimmed() == QLatin1String("EMPLEADO VIGENTE");
}

std::optional<int> patientTypeOfEmployee(int tipoEmpleado) {
    switch (tipoEmpleado) {
        case 1:
            return 2;
        case 2:
            return 5;
        default:
            return std::nullopt;
    }
}

QString employeeLabel(int numEmpleado, const QString &nombre) {
    return QString::number(numEmpleado) + QLatin1Char(' ') + nombre;
}

QString dependencyLabel(const QString &cveUnida, const QString &descripcion) {
    return cveUnida + QLatin1Char(' ') + descripcion;
}

}  // namespace kaldo
