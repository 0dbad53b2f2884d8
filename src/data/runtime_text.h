#pragma once

#include <QString>
#include <QStringList>

#include "data/parameters.h"

namespace kaldo {

class Connection;

/// An SQL text that a screen builds at run time: a list of lines, each with its Firebird form
/// (named parameters) and, where it differs, an ODBC form of its own. Both forms name the same
/// parameters; the ODBC text carries their values as literals between double quotes.
class RuntimeText {
public:
    RuntimeText &line(const QString &both) { return line(both, both); }
    /// An empty form leaves the line out on that side.
    RuntimeText &line(const QString &firebird, const QString &odbc);
    RuntimeText &bind(const QString &name, const QVariant &value);

    QString firebird() const;
    /// Literals stand between double quotes, quotes inside doubled; NULL is the word null; dates
    /// are dd/MM/yyyy and numbers plain.
    QString odbc() const;
    const Parameters &values() const { return values_; }

private:
    QStringList firebird_;
    QStringList odbc_;
    Parameters values_;
};

/// Executes a text that delivers nothing, in the form that the connection wants; committed on
/// return. The number of rows that it changed.
qint64 execute(Connection &connection, const QString &name, const RuntimeText &text);

/// A value as the ODBC form writes it.
QString odbcLiteral(const QVariant &value);

}  // namespace kaldo
