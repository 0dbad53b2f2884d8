#include "people/student.h"

#include "people/names.h"

namespace kaldo {

StudentLookup lookUpStudent(const QList<RollRow> &rows,
                            const std::function<bool(int)> &acceptsUnit) {
    StudentLookup answer;
    if (rows.isEmpty()) {
        return answer;
    }
    const RollRow &row = rows.first();
    answer.alumno = studentName(row.paterno, row.materno, row.nombre);
    answer.unidadDesc = row.unidadDesc.trimmed();
    if (rows.size() > 1) {
        answer.outcome = StudentOutcome::Several;
    } else if (row.vigenciaClave != 1) {
        answer.outcome = StudentOutcome::NotCurrent;
    } else {
        answer.outcome =
            acceptsUnit(row.unidadClave) ? StudentOutcome::Accepted : StudentOutcome::OtherFaculty;
    }
    return answer;
}

bool isSchoolUnit(int unidadClave) {
    return unidadClave == 220 || unidadClave == 240 || unidadClave == 334;
}

}  // namespace kaldo
