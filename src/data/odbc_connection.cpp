#include "data/odbc_connection.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include "data/database_error.h"
#include "data/statement_text.h"

namespace kaldo {

namespace {

[[noreturn]] void fail(const QSqlError &error, const QString &connection, const QString &statement,
                       DatabaseFailure failure) {
    const QString engine = error.text().trimmed();
    throw DatabaseError(
        failure == DatabaseFailure::CannotAttach
            ? QStringLiteral("No se pudo abrir la base de datos %1.\n%2").arg(connection, engine)
            : engine,
        {failure, {}, error.nativeErrorCode().toInt(), engine, connection, statement});
}

ColumnKind kindOf(const QMetaType &type) {
    switch (type.id()) {
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Short:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return ColumnKind::Integer;
        case QMetaType::Float:
        case QMetaType::Double:
            return ColumnKind::Number;
        case QMetaType::QDate:
            return ColumnKind::Date;
        case QMetaType::QTime:
            return ColumnKind::Time;
        case QMetaType::QDateTime:
            return ColumnKind::Timestamp;
        case QMetaType::Bool:
            return ColumnKind::Boolean;
        default:
            return ColumnKind::Text;
    }
}

std::vector<Column> columnsOf(const QSqlRecord &record) {
    std::vector<Column> columns;
    for (int at = 0; at < record.count(); ++at) {
        const QSqlField field = record.field(at);
        columns.push_back({field.name(), kindOf(field.metaType()), field.length()});
    }
    makeColumnNamesUnique(columns);
    return columns;
}

class OdbcResultSet final : public ResultSet {
public:
    OdbcResultSet(QSqlQuery query, QString connection, QString statement)
        : query_(std::move(query)),
          connection_(std::move(connection)),
          statement_(std::move(statement)),
          columns_(columnsOf(query_.record())) {}

    const std::vector<Column> &columns() const override { return columns_; }
    bool fetch(Row &row) override {
        if (!query_.next()) {
            const QSqlError error = query_.lastError();
            query_.finish();
            if (error.isValid()) {
                fail(error, connection_, statement_, DatabaseFailure::Other);
            }
            return false;
        }
        row.resize(columns_.size());
        for (std::size_t at = 0; at < columns_.size(); ++at) {
            const int column = static_cast<int>(at);
            row[at] = query_.isNull(column) ? QVariant() : query_.value(column);
        }
        return true;
    }

private:
    QSqlQuery query_;
    QString connection_;
    QString statement_;
    std::vector<Column> columns_;
};

QSqlQuery prepared(const QString &handle, const Statement &statement, const Parameters &values,
                   const QString &connection) {
    QSqlQuery query(QSqlDatabase::database(handle, false));
    query.setForwardOnly(true);
    const PositionalText positional = toPositional(statement.text);
    if (!query.prepare(positional.text)) {
        fail(query.lastError(), connection, statement.name, DatabaseFailure::Other);
    }
    for (const QString &name : positional.names) {
        query.addBindValue(parameterValue(values, name, statement, connection));
    }
    return query;
}

}  // namespace

OdbcConnection::OdbcConnection(QString name)
    : Connection(std::move(name)), handle_(QUuid::createUuid().toString()) {}

OdbcConnection::~OdbcConnection() {
    close();
}

bool OdbcConnection::isOpen() const {
    return QSqlDatabase::contains(handle_);
}

void OdbcConnection::open() {
    if (isOpen()) {
        return;
    }
    {
        QSqlDatabase handle = QSqlDatabase::addDatabase(QStringLiteral("QODBC"), handle_);
        const QString source = database().isEmpty() ? QLatin1String("DSN=") + name() : database();
        handle.setDatabaseName((QStringList(source) + parameters_).join(u';'));
        if (handle.open()) {
            return;
        }
        const QSqlError error = handle.lastError();
        handle = QSqlDatabase();
        QSqlDatabase::removeDatabase(handle_);
        fail(error, name(), QString(), DatabaseFailure::CannotAttach);
    }
}

void OdbcConnection::close() {
    if (isOpen()) {
        QSqlDatabase::database(handle_, false).close();
        QSqlDatabase::removeDatabase(handle_);
    }
}

std::unique_ptr<ResultSet> OdbcConnection::select(const Statement &statement,
                                                  const Parameters &values) {
    open();
    const auto execution = watched(statement, values, false);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    QSqlQuery query = prepared(handle_, statement, values, name());
    if (!query.exec()) {
        fail(query.lastError(), name(), statement.name, DatabaseFailure::Other);
    }
    if (execution) {
        seam()->afterExecution(*execution);
    }
    return std::make_unique<OdbcResultSet>(std::move(query), name(), statement.name);
}

qint64 OdbcConnection::execute(const Statement &statement, const Parameters &values) {
    open();
    const auto execution = watched(statement, values, true);
    if (execution) {
        seam()->beforeExecution(*execution);
    }
    QSqlDatabase handle = QSqlDatabase::database(handle_, false);
    handle.transaction();
    QSqlQuery query = prepared(handle_, statement, values, name());
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        handle.rollback();
        fail(error, name(), statement.name, DatabaseFailure::Other);
    }
    const qint64 changed = query.numRowsAffected();
    if (execution) {
        try {
            seam()->beforeCommit(*execution);
        } catch (...) {
            handle.rollback();
            throw;
        }
    }
    query.finish();
    if (!handle.commit()) {
        fail(handle.lastError(), name(), statement.name, DatabaseFailure::Other);
    }
    if (execution) {
        seam()->afterExecution(*execution);
    }
    return changed;
}

std::vector<Column> OdbcConnection::describe(const Statement &statement) {
    open();
    Parameters nulls;
    for (const QString &name : toPositional(statement.text).names) {
        nulls.append({name, QVariant()});
    }
    QSqlQuery query = prepared(handle_, statement, nulls, name());
    return columnsOf(query.record());
}

}  // namespace kaldo
