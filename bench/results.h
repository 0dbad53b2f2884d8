#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace kaldo::bench {

/// One line of the table. With a bare side the ratio of both is held against the bar, without one
/// the measure itself, in its unit. Without a bar it is only told.
struct Result {
    QString name;
    QString unit = QStringLiteral("ms");
    double kaldo = 0;
    std::optional<double> bare{};
    std::optional<double> bar{};
    int runs = 1;

    double measured() const { return bare ? kaldo / *bare : kaldo; }
    bool passed() const { return !bar || measured() <= *bar; }
};

using Results = QList<Result>;

QString table(const Results &results);
QByteArray json(const Results &results);

}  // namespace kaldo::bench
