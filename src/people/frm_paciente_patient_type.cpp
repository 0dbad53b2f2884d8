#include "people/frm_paciente_patient_type.h"

#include "app/binding.h"
#include "people/employee_register.h"
#include "toolkit/forms/form.h"

namespace kaldo {

FRMPaciente::FRMPaciente(Context &context)
    : Dialog(context, QStringLiteral("FRMPaciente"), QStringLiteral("Tipo de Paciente")) {}

std::optional<PatientClass> FRMPaciente::choose(ScreenBase *opener) {
    continuar_ = false;
    showModal(opener);
    if (!continuar_) {
        return std::nullopt;
    }
    const NamedQuery &types = context().caja.PrestacionSB;
    return PatientClass{types.integer(QStringLiteral("prestacion")),
                        types.text(QStringLiteral("descripcion")), noEmpleado_->text(),
                        nombre_->text()};
}

void FRMPaciente::build() {
    using namespace form;
    const LookupSource types{
        &context().caja.PrestacionSB,
        QStringLiteral("PRESTACION"),
        QStringLiteral("DESCRIPCION"),
        {{QStringLiteral("DESCRIPCION"), QStringLiteral("Descripción"), 44, CellMask::Text}}};
    form::build(
        this,
        column({
            label(QStringLiteral("Seleccione Tipo de Paciente.")).bold().fill(),
            lookup(&paciente_, QStringLiteral("Paciente"), QStringLiteral("Paciente"))
                .source(types)
                .shown(44)
                .with(
                    [this](LookupField *field) { bindLookup(field, &context().caja.PrestacionSB); })
                .closedUp([this] { elegirTipo(); })
                .edited([this] { boton_->setEnabled(false); }),
            strip(&panelEmpleado_, QStringLiteral("PanelEmpleado"),
                  {text(&noEmpleado_, QStringLiteral("NoEmpleado"), QStringLiteral("No.Empleado"))
                       .digits()
                       .width(10)
                       .enter([this] { consultarEmpleado(); })
                       .edited([this] { boton_->setEnabled(false); }),
                   text(&nombre_, QStringLiteral("Nombre"), QStringLiteral("Nombre"))
                       .width(100)
                       .readOnly()
                       .grow()})
                .fill(),
            strip(&panelDependencia_, QStringLiteral("PanelDependencia"),
                  {label(QStringLiteral("Dependencia")),
                   label(&dependencia_, QStringLiteral("Dependencia")).bold().grow()})
                .fill(),
            stretch(),
            row({button(nullptr, QStringLiteral("Regresar"), QStringLiteral("<< Regresar"))
                     .icon(QStringLiteral("previous"))
                     .escape()
                     .clicked([this] { reject(); }),
                 stretch(),
                 button(&boton_, QStringLiteral("Continuar"), QStringLiteral("Continuar >>"))
                     .icon(QStringLiteral("next"))
                     .clicked([this] { continuar(); })}),
        }));
    // The panels keep their room, so that nothing jumps when a class needs them.
    for (QWidget *panel : {panelEmpleado_, panelDependencia_}) {
        QSizePolicy policy = panel->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        panel->setSizePolicy(policy);
    }
    resize(fontMetrics().averageCharWidth() * 84, sizeHint().height());
}

void FRMPaciente::activated() {
    context().caja.PrestacionSB.reopen();
    paciente_->clearField();
    showEmployeePanel(false);
    boton_->setEnabled(false);
    moveFocus(paciente_);
}

void FRMPaciente::showEmployeePanel(bool show) {
    panelEmpleado_->setVisible(show);
    panelDependencia_->setVisible(false);
    noEmpleado_->clear();
    nombre_->clear();
    dependencia_->clear();
}

void FRMPaciente::elegirTipo() {
    const NamedQuery &types = context().caja.PrestacionSB;
    const bool plain = types.integer(QStringLiteral("prestacion")) == kPlainPatient;
    showEmployeePanel(!plain);
    boton_->setEnabled(plain);
    moveFocus(plain ? static_cast<QWidget *>(boton_) : noEmpleado_);
}

void FRMPaciente::consultarEmpleado() {
    const std::optional<EmployeeRow> employee = findEmployee(context().caja, noEmpleado_->text());
    if (isCurrentEmployee(employee)) {
        nombre_->setText(employee->nombre);
        dependencia_->setText(dependencyLabel(employee->cveUnida, employee->descripcion));
        panelDependencia_->setVisible(true);
        boton_->setEnabled(true);
        moveFocus(boton_);
        return;
    }
    showEmployeePanel(true);
    boton_->setEnabled(false);
    messages().information((employee ? employee->mensaje : QString()) + QLatin1String(". "));
    moveFocus(noEmpleado_);
}

void FRMPaciente::continuar() {
    continuar_ = true;
    accept();
}

}  // namespace kaldo
