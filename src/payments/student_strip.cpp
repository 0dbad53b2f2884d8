#include "payments/student_strip.h"

#include "people/frm_alumnos_student_choice.h"
#include "people/student_register.h"

namespace kaldo {

form::Item StudentStrip::item() {
    using namespace form;
    return strip(&panel_, QStringLiteral("PanelAlumno"),
                 {text(&matricula_, QStringLiteral("Matricula"), QStringLiteral("Matricula"))
                      .digits()
                      .width(10)
                      .enter([this] { buscarAlumno(); })
                      .edited([this] { emit edited(); }),
                  text(&alumno_, QStringLiteral("Alumno"), QStringLiteral("Alumno"))
                      .width(100)
                      .readOnly()
                      .grow()})
        .grow();
}

void StudentStrip::clear() {
    show({}, {});
    setOpen(false);
    panel_->setVisible(options().sector == Sector::Educativo);
}

void StudentStrip::ask() {
    panel_->setVisible(true);
    setOpen(true);
    moveFocus(matricula_);
}

void StudentStrip::show(const QString &matricula, const QString &alumno) {
    matricula_->setText(matricula);
    alumno_->setText(alumno);
}

void StudentStrip::buscarAlumno() {
    if (!Obligatorio(matricula_, QStringLiteral("Matricula es"))) {
        return;
    }
    alumno_->clear();
    emit refused();  // until the rolls say otherwise
    const StudentLookup student =
        findStudent(context().escolares, matricula_->text(), [this](int unit) {
            NamedQuery &units = context().local.Unidades;
            units.open({{QStringLiteral("unidad"), unit}});
            return !units.isEmpty();
        });
    switch (student.outcome) {
        case StudentOutcome::Accepted:
            take(student.alumno);
            break;
        case StudentOutcome::OtherFaculty:
            messages().information(
                QStringLiteral("El Alumno pertenece a la Facultad: %1. Verifique la información "
                               "con Servicios Escolares.")
                    .arg(student.unidadDesc));
            moveFocus(matricula_);
            break;
        case StudentOutcome::Several:
            elegirAlumno(QStringLiteral("Se encontraron varios registros de: ") + student.alumno);
            break;
        case StudentOutcome::NotCurrent:
            elegirAlumno(QStringLiteral("Se encontró un registro sin vigencia: ") + student.alumno);
            break;
        case StudentOutcome::NotOnRoll:
            buscarPosgrado();
            break;
    }
}

void StudentStrip::buscarPosgrado() {
    const std::optional<QString> name = findPostgraduate(context().escolares, matricula_->text());
    if (name) {
        take(*name);
        return;
    }
    messages().information(
        QStringLiteral("La matrícula no se encuentra registrada o esta capturada incorrectamente, "
                       "verifique su información."));
    matricula_->clear();
    stayHere();
}

void StudentStrip::elegirAlumno(const QString &heading) {
    const std::optional<QString> chosen = alumnos_.choose(heading, this);
    if (chosen) {
        take(*chosen);
    } else {
        moveFocus(matricula_);
    }
}

void StudentStrip::take(const QString &alumno) {
    alumno_->setText(alumno);
    emit found();
}

}  // namespace kaldo
