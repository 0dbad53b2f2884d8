#pragma once

#include "app/context.h"

namespace kaldo {

/// Remembers on the station that the receipts of a note are due, in place of any other note's.
/// Throws DatabaseError.
void markReceipts(Context &context, int nota);

/// They are printed. A mark that can't be taken away is only told once too often: nothing is
/// thrown.
void unmarkReceipts(Context &context, int nota);

/// Tells of the note whose receipts were never finished, once; a note that wasn't written to its
/// end is left to the repair. Throws DatabaseError.
void tellUnfinishedReceipts(Context &context);

}  // namespace kaldo
