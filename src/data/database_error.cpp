#include "data/database_error.h"

#include <QHash>

namespace kaldo {

DatabaseError::DatabaseError(const QString &message, Details details)
    : std::runtime_error(message.toStdString()), message_(message), details_(std::move(details)) {}

QString databaseInWords(const QString &connection) {
    static const QHash<QString, QString> names = {
        {QStringLiteral("FBLocal"), QStringLiteral("de la estación")},
        {QStringLiteral("FBOdonto"), QStringLiteral("de la clínica")},
        {QStringLiteral("FBFinanzas"), QStringLiteral("de finanzas")},
        {QStringLiteral("FBEscolares"), QStringLiteral("de alumnos")},
        {QStringLiteral("FBPosgrado"), QStringLiteral("de posgrado")},
        {QStringLiteral("FBCtrclinicas"), QStringLiteral("del sistema anterior")},
    };
    return QStringLiteral("la base de datos ") + names.value(connection, connection);
}

QString DatabaseError::logText() const {
    QStringList codes;
    for (const int code : details_.engineCodes) {
        codes += QString::number(code);
    }
    const QString statement = details_.statement.isEmpty()
                                  ? details_.connection
                                  : details_.connection + u' ' + details_.statement;
    const QString said = details_.engineMessage.isEmpty() ? message_ : details_.engineMessage;
    return QStringLiteral("%1 (SQL %2; %3): %4")
        .arg(statement)
        .arg(details_.sqlCode)
        .arg(codes.join(u' '), withoutValues(said));
}

DatabaseError rowGone(const QString &connection, const QString &statement) {
    return {QStringLiteral("Otra estación borró el registro, la información no se guardó."),
            {DatabaseFailure::RowGone, {}, 0, {}, connection, statement}};
}

}  // namespace kaldo
