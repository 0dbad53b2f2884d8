#include "data/database_error.h"

namespace kaldo {

DatabaseError::DatabaseError(const QString &message, Details details)
    : std::runtime_error(message.toStdString()), message_(message), details_(std::move(details)) {}

DatabaseError rowGone(const QString &connection, const QString &statement) {
    return {QStringLiteral("Otra estación borró el registro, la información no se guardó."),
            {DatabaseFailure::RowGone, {}, 0, {}, connection, statement}};
}

}  // namespace kaldo
