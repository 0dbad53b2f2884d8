#pragma once

#include <string>

namespace kaldo::volume {

/// Prints how the engine answers every named query and routine of the program over this
/// installation, and marks those that read a table of many rows as a whole. False where one does.
bool showPlans(const std::string &root);

}  // namespace kaldo::volume
