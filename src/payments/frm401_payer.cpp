#include "data/runtime_texts.h"
#include "payments/frm401_payment_note.h"
#include "payments/service_types.h"
#include "people/age.h"
#include "people/employee_register.h"
#include "people/frm_alumnos_student_choice.h"
#include "people/repeated_patient.h"
#include "people/student_register.h"

namespace kaldo {

namespace {

constexpr int kOldestPatient = 100;
constexpr int kOldestChild = 13;

}  // namespace

/// Who pays is known: lines can be added, or the one that is open goes on.
void FRM401::readyForLines() {
    if (Editando_) {
        moveFocus(grid_);
        return;
    }
    agregar_->setEnabled(true);
    moveFocus(agregar_);
}

/// A note of the clinic is charged to the dossier that was accepted and to nobody else, an
/// employee's to the one who was found.
bool FRM401::payerMissing() const {
    if (payerPath(TipoServ_) == PayerPath::Dossier) {
        return expedienteTomado_.isEmpty() || Edit2_->text() != expedienteTomado_;
    }
    return !panelNoEmpleado_->isHidden() &&
           (NumEmpleado_ == 0 || employeeNumber(noEmpleado_->text()) != NumEmpleado_);
}

/// A note whose payer's number is typed over waits until it is accepted or typed back.
void FRM401::pagadorCambiado() {
    if (payerMissing()) {
        agregar_->setEnabled(false);
        registrar_->setEnabled(false);
    } else if (!Editando_ && !context().local.FBDetalleVtas.isEmpty()) {
        NoEditar();
    }
}

void FRM401::enterPaterno() {
    Obligatorio(paterno_, QStringLiteral("Apellido Paterno es"));
}

void FRM401::enterNombre() {
    if (!Obligatorio(nombre_, QStringLiteral("Nombre es"))) {
        return;
    }
    if (TipoServ_ == QLatin1String("AD")) {
        enterNombreAdmision();
    } else if (namesLeadToLines(TipoServ_)) {
        readyForLines();
    }
}

void FRM401::enterNombreAdmision() {
    ValidaNombre();
    if (NombreRepetido_) {
        NombreRepetido_ = false;
        return;
    }
    if (!options().SaltarAdmision) {
        readyForLines();
        return;
    }
    if (!empresarial() &&
        messages().confirm(QStringLiteral("¿El alumno viene con el paciente?")) == Answer::No) {
        panelNacimiento_->setVisible(false);
        readyForLines();
        return;
    }
    if (!empresarial()) {
        agregar_->setEnabled(false);
    }
    panelNacimiento_->setVisible(true);
    moveFocus(DateEdit2_);
}

/// Asks whether to go on with a patient whose names were already admitted.
void FRM401::ValidaNombre() {
    ConsultaAdmision_->setText(
        consultaAdmisionText(paterno_->text(), materno_->text(), nombre_->text()));
    ConsultaAdmision_->open();
    if (ConsultaAdmision_->isEmpty()) {
        return;
    }
    const QString question =
        repeatedPatientQuestion(ConsultaAdmision_->date(QStringLiteral("FECHA_NAC")),
                                ConsultaAdmision_->integer(QStringLiteral("NUM_CAJA")),
                                ConsultaAdmision_->integer(QStringLiteral("NOTA_VTA")));
    if (messages().confirm(question) == Answer::No) {
        formCreate();
        NombreRepetido_ = true;
    }
}

void FRM401::leaveNacimiento() {
    const QDate today = context().clock.today();
    const QDate birth = DateEdit2_->date();
    if (edad_->text() == QLatin1String("0") && birth == today) {
        messages().information(QStringLiteral("Fecha de nacimiento es campo obligatorio."));
        moveFocus(DateEdit2_);
        return;
    }
    if (!birth.isValid() || !birthDatePlausible(birth, today, kOldestPatient)) {
        messages().information(
            QStringLiteral("La edad del paciente esta fuera de rango, vuelva a intentar."));
        edad_->clear();
        DateEdit2_->setDate(today);
        moveFocus(DateEdit2_);
        return;
    }
    const int age = ageInYears(birth, today);
    edad_->setText(QString::number(age));
    TipoPaciente_ = tipoPacienteOf(age, kOldestChild);
    moveFocus(sexo_);
}

void FRM401::elegirSexo() {
    readyForLines();
}

void FRM401::buscarAlumno() {
    if (!Obligatorio(matricula_, QStringLiteral("Matricula es"))) {
        return;
    }
    alumno_->clear();
    const StudentLookup found =
        findStudent(context().escolares, matricula_->text(), [this](int unit) {
            NamedQuery &units = context().local.Unidades;
            units.open({{QStringLiteral("unidad"), unit}});
            return !units.isEmpty();
        });
    switch (found.outcome) {
        case StudentOutcome::Accepted:
            studentFound(found.alumno);
            break;
        case StudentOutcome::OtherFaculty:
            messages().information(
                QStringLiteral("El Alumno pertenece a la Facultad: %1. Verifique la información "
                               "con Servicios Escolares.")
                    .arg(found.unidadDesc));
            stayHere();
            break;
        case StudentOutcome::Several:
            elegirAlumno(QStringLiteral("Se encontraron varios registros de: ") + found.alumno);
            break;
        case StudentOutcome::NotCurrent:
            elegirAlumno(QStringLiteral("Se encontró un registro sin vigencia: ") + found.alumno);
            break;
        case StudentOutcome::NotOnRoll:
            buscarPosgrado();
            break;
    }
}

void FRM401::elegirAlumno(const QString &heading) {
    const std::optional<QString> chosen = alumnos_.choose(heading, this);
    if (chosen) {
        alumno_->setText(*chosen);
        readyForLines();
    } else {
        moveFocus(matricula_);
    }
}

void FRM401::buscarPosgrado() {
    const std::optional<QString> name = findPostgraduate(context().escolares, matricula_->text());
    if (name) {
        studentFound(*name);
        return;
    }
    messages().information(
        QStringLiteral("La matrícula no se encuentra registrada o esta capturada incorrectamente, "
                       "verifique su información."));
    matricula_->clear();
    stayHere();
}

void FRM401::studentFound(const QString &nombre) {
    alumno_->setText(nombre);
    ValidaPrestamo();
    if (PrestamoValido_) {
        readyForLines();
    }
}

/// Loans of dossiers are not kept at this desk: every student passes.
void FRM401::ValidaPrestamo() {
    PrestamoPendiente_ = false;
    PrestamoValido_ = true;
}

void FRM401::buscarEmpleado() {
    const std::optional<EmployeeRow> employee = findEmployee(context().caja, noEmpleado_->text());
    if (!isCurrentEmployee(employee)) {
        messages().information(
            QStringLiteral("El empleado no se encuentra vigente. Verifique su información."));
        LimpiaEmpleado();
        noEmpleado_->clear();
        pagadorCambiado();
        stayHere();
        return;
    }
    if (const std::optional<int> type = patientTypeOfEmployee(employee->tipoEmpleado)) {
        openPatientType(*type);
    } else {
        context().caja.Prestaciones1.reopen();
    }
    NumEmpleado_ = employeeNumber(noEmpleado_->text());
    nombreEmpleado_->setText(employee->nombre);
    empleado_->setText(employeeLabel(NumEmpleado_, employee->nombre));
    dependencia_->setText(dependencyLabel(employee->cveUnida, employee->descripcion));
    panelEmpleado_->setVisible(true);
    pagadorCambiado();
    readyForLines();
}

}  // namespace kaldo
