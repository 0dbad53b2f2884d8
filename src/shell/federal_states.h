#pragma once

#include <QStringList>

namespace kaldo {

/// The 32 federal states as code, dash and name, in the order of their indices in the ini file.
QStringList federalStates();

}  // namespace kaldo
