#pragma once

#include <span>

namespace kaldo {

/// A column of `antecedentes`, which is also a parameter of the routine that writes it.
struct ClinicalHistoryColumn {
    const char *name;
    int width;  ///< characters; 0 for a number
};

/// The 97 columns in the order of the table and of the routine. `linealba` is wider in the table,
/// since the old system's texts are copied into it; as an answer it has one character.
std::span<const ClinicalHistoryColumn> clinicalHistoryColumns();

}  // namespace kaldo
