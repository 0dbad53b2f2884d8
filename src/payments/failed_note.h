#pragma once

#include "app/context.h"

namespace kaldo {

/// After a registration that failed: lets other stations have the desk again, and finds out whether
/// one of them has used the number. Returns what the cashier is told below the box's text then, or
/// nothing. Throws nothing.
QString tellFailedNote(Context &context, int nota);

}  // namespace kaldo
