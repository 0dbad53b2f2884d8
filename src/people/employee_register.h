#pragma once

#include <QString>

#include <optional>

#include "people/employee.h"

namespace kaldo {

class DMIngresosCaja;

/// Asks the personnel data for an employee; unset when there is no such number. The answer also
/// stays open in `consulta_empleado_p`.
std::optional<EmployeeRow> findEmployee(DMIngresosCaja &caja, const QString &numEmpleado);

/// The employee number that a text holds; 0 for none.
int employeeNumber(const QString &text);

}  // namespace kaldo
