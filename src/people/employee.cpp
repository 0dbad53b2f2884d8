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

bool employeeFitsPatientType(int prestacion, int tipoEmpleado) {
    switch (tipoEmpleado) {
        case 1:
            return (prestacion >= 2 && prestacion <= 4) || prestacion == 11;
        case 2:
            return (prestacion >= 5 && prestacion <= 7) || prestacion == 12;
        default:
            return tipoEmpleado == 3;
    }
}

QString employeeLabel(int numEmpleado, const QString &nombre) {
    return QString::number(numEmpleado) + QLatin1Char(' ') + nombre;
}

QString dependencyLabel(const QString &cveUnida, const QString &descripcion) {
    return cveUnida + QLatin1Char(' ') + descripcion;
}

}  // namespace kaldo
