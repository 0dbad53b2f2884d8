#include "payments/employee_strip.h"

#include "people/employee_register.h"

namespace kaldo {

form::Item EmployeeStrip::numberItem() {
    using namespace form;
    return strip(&panelNoEmpleado_, QStringLiteral("PanelNoEmpleado"),
                 {text(&noEmpleado_, QStringLiteral("NoEmpleado"), QStringLiteral("No. Empleado"))
                      .digits()
                      .width(10)
                      .enter([this] { buscarEmpleado(); })
                      .edited([this] { emit edited(); }),
                  text(&nombreEmpleado_, QStringLiteral("NombreEmpleado"), QStringLiteral("Nombre"))
                      .width(100)
                      .readOnly()
                      .grow()})
        .grow();
}

form::Item EmployeeStrip::benefitItem() {
    using namespace form;
    return strip(&panelEmpleado_, QStringLiteral("PanelEmpleado"),
                 {label(QStringLiteral("Empleado:")),
                  label(&empleado_, QStringLiteral("Empleado")).bold().grow(),
                  label(QStringLiteral("Dependencia:")),
                  label(&dependencia_, QStringLiteral("Dependencia")).bold().grow()})
        .grow();
}

void EmployeeStrip::attach() {
    // Long names are cut rather than widen the screen.
    for (QLabel *name : {empleado_, dependencia_}) {
        name->setSizePolicy(QSizePolicy::Ignored, name->sizePolicy().verticalPolicy());
    }
}

void EmployeeStrip::clear() {
    forget();
    noEmpleado_->clear();
    close();
}

void EmployeeStrip::ask() {
    panelNoEmpleado_->setVisible(true);
    moveFocus(noEmpleado_);
}

void EmployeeStrip::forget() {
    show({});
    nombreEmpleado_->clear();
}

void EmployeeStrip::show(const PayingEmployee &employee) {
    employee_ = employee;
    empleado_->setText(employee.empleado);
    dependencia_->setText(employee.dependencia);
    panelEmpleado_->setVisible(employee.numEmpleado != 0);
}

void EmployeeStrip::buscarEmpleado() {
    const std::optional<EmployeeRow> row = findEmployee(context().caja, noEmpleado_->text());
    if (!isCurrentEmployee(row)) {
        messages().information(
            QStringLiteral("El empleado no se encuentra vigente. Verifique su información."));
        forget();
        noEmpleado_->clear();
        emit refused();
        stayHere();
        return;
    }
    const int number = employeeNumber(noEmpleado_->text());
    nombreEmpleado_->setText(row->nombre);
    show({number, employeeLabel(number, row->nombre),
          dependencyLabel(row->cveUnida, row->descripcion)});
    emit found(row->tipoEmpleado);
}

}  // namespace kaldo
