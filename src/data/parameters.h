#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <utility>

namespace kaldo {

/// Named values in an order: the parameters of a query or of a stored routine. Names are compared
/// without regard to case. An invalid QVariant is NULL; an empty text is an empty text.
using Parameters = QList<std::pair<QString, QVariant>>;

}  // namespace kaldo
