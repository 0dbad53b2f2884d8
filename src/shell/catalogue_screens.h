#pragma once

#include "app/context.h"
#include "shell/frm000_main_window.h"

namespace kaldo {

/// Tells the main window which catalogue each entry of the maintenance and administration menus
/// opens.
void registerCatalogues(FRM000 &window, Context &context);

}  // namespace kaldo
