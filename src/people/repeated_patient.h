#pragma once

#include <QDate>
#include <QString>

namespace kaldo {

/// A date of birth counts only after this day; before it, and where there is none, the patient has
/// no date.
inline QDate firstRealBirthDate() {
    return QDate(1920, 1, 1);
}

/// What the payment note asks when an admission's names are those of a patient already admitted.
/// `birth` may be null; caja and nota are those of the earlier admission.
QString repeatedPatientQuestion(const QDate &birth, int numCaja, int notaVta);

}  // namespace kaldo
