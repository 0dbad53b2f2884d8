#include "data/database_error.h"

namespace kaldo {

DatabaseError::DatabaseError(const QString &message, Details details)
    : std::runtime_error(message.toStdString()), message_(message), details_(std::move(details)) {}

}  // namespace kaldo
