#pragma once

namespace kaldo {

/// The sales area whose price list depends on the patient's age and whose treatments are charged
/// once at a time.
inline constexpr int kFaceArea = 96;

/// Whether a concept of a dossier's note must be asked of the clinic before it is charged.
bool needsTreatmentCheck(int tipoProd, int codigo);

}  // namespace kaldo
