#pragma once

#include <QStringList>

namespace kaldo {

/// What kind of sale an area is for. The first two letters are stored; one family stands twice in
/// the list that the users know.
QStringList salesFamilies();
/// The campuses that an area can come from; the first two letters are stored.
QStringList salesOrigins();

/// The family as it is listed; a code that isn't stays as it is.
QString salesFamily(const QString &code);

}  // namespace kaldo
