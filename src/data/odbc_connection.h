#pragma once

#include <QStringList>

#include "data/connection.h"

namespace kaldo {

/// A connection through ODBC, with the same contract as the others. The database is the name of
/// the data source or a whole ODBC connection string; where none is set, the data source has the
/// connection's name.
class OdbcConnection final : public Connection {
public:
    explicit OdbcConnection(QString name);
    ~OdbcConnection() override;

    /// "Server=..." and the like, added to the connection string in the order given.
    void addParameter(const QString &parameter) { parameters_ += parameter; }
    const QStringList &parameters() const { return parameters_; }

    Dialect dialect() const override { return Dialect::Odbc; }
    bool isOpen() const override;
    void open() override;
    void close() override;
    std::unique_ptr<ResultSet> select(const Statement &statement,
                                      const Parameters &values) override;
    qint64 execute(const Statement &statement, const Parameters &values) override;
    std::vector<Column> describe(const Statement &statement) override;

private:
    QString handle_;  ///< name of the QtSql connection, unique in the process
    QStringList parameters_;
};

}  // namespace kaldo
