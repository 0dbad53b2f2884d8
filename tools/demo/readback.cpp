#include "tools/demo/readback.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <cmath>
#include <iostream>

namespace kaldo {

void Check::that(bool holds, const QString &what) {
    if (!holds) {
        std::cerr << "demo: " << what.toStdString() << '\n';
        good_ = false;
    }
}

QList<QVariantMap> rowsOf(Connection &connection, const QString &text) {
    const auto result = connection.select({QStringLiteral("summary"), text}, {});
    QList<QVariantMap> rows;
    Row row;
    while (result->fetch(row)) {
        QVariantMap values;
        for (std::size_t at = 0; at < row.size(); ++at) {
            values.insert(result->columns()[at].name.toLower(), row[at]);
        }
        rows += values;
    }
    return rows;
}

QVariantMap rowOf(Connection &connection, const QString &text) {
    return rowsOf(connection, text).value(0);
}

bool same(double left, double right) {
    return std::abs(left - right) < 0.00005;
}

bool writeSummaryFile(const QString &folder, const QJsonObject &summary) {
    QFile file(QDir(folder).filePath(QStringLiteral("summary.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(summary).toJson()) <= 0) {
        std::cerr << "demo: summary.json can't be written\n";
        return false;
    }
    return true;
}

}  // namespace kaldo
