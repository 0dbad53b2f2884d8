#include "bench/results.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kaldo::bench {

namespace {

QString number(const std::optional<double> &value, int decimals) {
    return value ? QString::number(*value, 'f', decimals) : QStringLiteral("-");
}

QString verdict(const Result &result) {
    if (!result.bar) {
        return QStringLiteral("told");
    }
    return result.passed() ? QStringLiteral("pass") : QStringLiteral("FAIL");
}

QString lineOf(const QStringList &cells) {
    constexpr int nameWidth = 58;
    constexpr int cellWidth = 10;
    QString line = cells.first().leftJustified(nameWidth);
    for (const QString &cell : cells.mid(1)) {
        line += cell.rightJustified(cellWidth);
    }
    return line + u'\n';
}

}  // namespace

QString table(const Results &results) {
    QString text = lineOf({"measurement", "KALDO", "bare", "ratio", "bar", "unit", "runs", ""});
    for (const Result &result : results) {
        std::optional<double> ratio;
        if (result.bare) {
            ratio = result.measured();
        }
        text += lineOf({result.name, number(result.kaldo, 2), number(result.bare, 2),
                        number(ratio, 3), number(result.bar, 2), result.unit,
                        QString::number(result.runs), verdict(result)});
    }
    return text;
}

QByteArray json(const Results &results) {
    QJsonArray rows;
    for (const Result &result : results) {
        QJsonObject row{{"name", result.name},
                        {"unit", result.unit},
                        {"kaldo", result.kaldo},
                        {"runs", result.runs},
                        {"passed", result.passed()}};
        if (result.bare) {
            row.insert(QStringLiteral("bare"), *result.bare);
            row.insert(QStringLiteral("ratio"), result.measured());
        }
        if (result.bar) {
            row.insert(QStringLiteral("bar"), *result.bar);
        }
        rows.append(row);
    }
    return QJsonDocument(QJsonObject{{"measurements", rows}}).toJson();
}

}  // namespace kaldo::bench
