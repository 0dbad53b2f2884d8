#include "people/employee_register.h"

#include "data/dm_ingresos_caja.h"

namespace kaldo {

int employeeNumber(const QString &text) {
    return text.trimmed().toInt();
}

std::optional<EmployeeRow> findEmployee(DMIngresosCaja &caja, const QString &numEmpleado) {
    NamedQuery &employee = caja.consulta_empleado_p;
    employee.close();
    bool isNumber = false;
    const int number = numEmpleado.trimmed().toInt(&isNumber);
    if (!isNumber) {
        return std::nullopt;
    }
    employee.open({{QStringLiteral("P_NUMEMPL"), number}});
    if (employee.isEmpty()) {
        return std::nullopt;
    }
    return EmployeeRow{employee.text(QStringLiteral("NOMBRE")),
                       employee.text(QStringLiteral("CVE_UNIDA")),
                       employee.text(QStringLiteral("DESCRIPCION")),
                       employee.integer(QStringLiteral("TIPO_EMPLEADO")),
                       employee.text(QStringLiteral("MENSAJE"))};
}

}  // namespace kaldo
