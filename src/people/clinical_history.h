#pragma once

#include "data/parameters.h"

namespace kaldo {

/// The 97 parameters of `KDREGISTRA_ANTECEDENTES_P` for an admission without an interview: the
/// folio, then the columns of `antecedentes` in the order of the table, "N" for each answer of one
/// character, NULL for the glucose level, every other text empty.
Parameters emptyClinicalHistory(int folio);

}  // namespace kaldo
