#pragma once

#include <QImage>

namespace kaldo {

/// A picture of the installation, null where the file is missing or damaged. What bears the name
/// of a PNG and isn't one is read all the same.
QImage loadPicture(const QString &file);

}  // namespace kaldo
