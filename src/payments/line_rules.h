#pragma once

#include <QString>

namespace kaldo {

/// The sales area whose price list depends on the patient's age and whose treatments are charged
/// once at a time.
inline constexpr int kFaceArea = 96;

/// The concepts that the price list of kFaceArea leaves out at this age, as a LIKE pattern: phase
/// two up to 14 years, phase one above. Only the latter is open at its end.
QString faceConceptsLeftOut(int edad);

/// Whether a concept of a dossier's note must be asked of the clinic before it is charged.
bool needsTreatmentCheck(int tipoProd, int codigo);

/// Whether a concept fits the age of the admission whose dossier is opened: INFANTIL up to 13
/// years, any other above.
bool conceptFitsAge(const QString &descr, int edad);

}  // namespace kaldo
