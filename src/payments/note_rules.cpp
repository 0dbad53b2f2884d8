#include "payments/note_rules.h"

#include "people/employee_register.h"

namespace kaldo {

namespace {

bool sameNames(const Payer &one, const Payer &other) {
    return one.paterno == other.paterno && one.materno == other.materno &&
           one.nombre == other.nombre;
}

bool sameStudent(const Payer &one, const Payer &other) {
    return one.hasStudent() ? one.matricula == other.matricula : !other.hasStudent();
}

bool sameEmployee(const Payer &one, const Payer &other) {
    return employeeNumber(one.noEmpleado) == employeeNumber(other.noEmpleado);
}

bool birthKnown(const Payer &payer) {
    return !payer.nacimiento ||
           (!payer.nacimiento->tipoPaciente.isEmpty() && payer.sexo != Sex::Unset);
}

}  // namespace

bool payerComplete(const Payer &shown, const std::optional<Payer> &accepted) {
    return accepted && shown.expediente == accepted->expediente && sameNames(shown, *accepted) &&
           sameStudent(shown, *accepted) && sameEmployee(shown, *accepted) && birthKnown(*accepted);
}

NoteButtons enabledButtons(const NoteState &state) {
    NoteButtons on;
    on.service = !state.rowOpen && state.lines == 0;
    on.agregar = !state.rowOpen && state.payerComplete;
    on.borrar = !state.rowOpen && state.lines > 0;
    on.grabar = state.rowOpen && state.conceptTaken;
    on.cancelar = state.rowOpen;
    on.registrar = on.borrar && state.payerComplete;
    return on;
}

}  // namespace kaldo
