#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariantMap>

#include "data/connection.h"

namespace kaldo {

/// What a demonstration should have left behind: each point that doesn't hold is told on stderr.
class Check {
public:
    void that(bool holds, const QString &what);
    bool good() const { return good_; }

private:
    bool good_ = true;
};

/// All rows of a query, by column names in small letters.
QList<QVariantMap> rowsOf(Connection &connection, const QString &text);
/// The first row of a query; empty without one.
QVariantMap rowOf(Connection &connection, const QString &text);

/// Equal amounts, as far as the databases' doubles can tell.
bool same(double left, double right);

/// Writes `DIR/summary.json`; false, with the reason on stderr, where that can't be.
bool writeSummaryFile(const QString &folder, const QJsonObject &summary);

}  // namespace kaldo
