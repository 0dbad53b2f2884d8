#include "people/repeated_patient.h"

#include "toolkit/core/clock.h"

namespace kaldo {

QString repeatedPatientQuestion(const QDate &birth, int numCaja, int notaVta) {
    const QString nota = QStringLiteral("%1-%2").arg(numCaja).arg(notaVta);
    const QString ending = QStringLiteral(". ¿Desea continuar con la admisión?");
    if (birth.isValid() && birth > firstRealBirthDate()) {
        return QStringLiteral(
                   "Este paciente ya se encuentra registrado con fecha de nacimiento: ") +
               formatDate(birth) + QStringLiteral(", Nota de Admisión: ") + nota + ending;
    }
    return QStringLiteral("Este paciente ya se registro con la nota: ") + nota + ending;
}

}  // namespace kaldo
