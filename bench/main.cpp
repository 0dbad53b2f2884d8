#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <functional>

#include "bench/measurements.h"
#include "toolkit/forms/application.h"

namespace {

using namespace kaldo::bench;

struct Measurement {
    const char *name;
    std::function<Results()> run;
};

const std::vector<Measurement> &measurements() {
    static const std::vector<Measurement> all{
        {"registration-embedded", registrationEmbedded},
        {"registration-server", registrationOnServer},
        {"registration-async", registrationWithoutForcedWrites},
        {"start-up", startUp},
        {"payment-note", paymentNote},
        {"receipt", receipt},
        {"cash-cut", cashCut},
        {"catalogues", catalogues},
        {"price-list", priceListCopy},
        {"memory", memory},
    };
    return all;
}

constexpr const char *kUsage =
    "usage: bench [--json FILE] [FILTER | --volume ROOT]\n"
    "\n"
    "Runs the measurements whose name contains FILTER, all without one, and prints their table.\n"
    "Ends with 0 when every bar is held, 1 when one is missed, 2 when one could not be run.\n"
    "\n";

void usage(std::FILE *where) {
    std::fputs(kUsage, where);
    for (const Measurement &measurement : measurements()) {
        std::fprintf(where, "  %s\n", measurement.name);
    }
}

int run(const std::vector<Measurement> &chosen, const QString &filter, const QString &jsonPath) {
    Results results;
    bool broken = false;
    for (const Measurement &measurement : chosen) {
        const QString name = QString::fromLatin1(measurement.name);
        if (!name.contains(filter)) {
            continue;
        }
        try {
            results += measurement.run();
        } catch (const std::exception &failure) {
            std::fprintf(stderr, "%s: %s\n", measurement.name, failure.what());
            broken = true;
        }
    }
    std::fputs(table(results).toUtf8().constData(), stdout);
    if (!jsonPath.isEmpty()) {
        QFile file(jsonPath);
        const QByteArray text = json(results);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            std::fprintf(stderr, "%s cannot be written\n", qPrintable(jsonPath));
            broken = true;
        }
    }
    if (broken || results.isEmpty()) {
        return 2;
    }
    return std::all_of(results.begin(), results.end(),
                       [](const Result &result) { return result.passed(); })
               ? 0
               : 1;
}

}  // namespace

int main(int argc, char **argv) {
    kaldo::Application application(argc, argv);
    QString filter;
    QString jsonPath;
    QString volume;
    bool memoryOnly = false;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (int at = 0; at < arguments.size(); ++at) {
        if (arguments[at] == QLatin1String("--json") && at + 1 < arguments.size()) {
            jsonPath = arguments[++at];
        } else if (arguments[at] == QLatin1String("--volume") && at + 1 < arguments.size()) {
            volume = arguments[++at];
        } else if (arguments[at] == QLatin1String("--memory-child")) {
            memoryOnly = true;
        } else if (!arguments[at].startsWith(u'-') && filter.isEmpty()) {
            filter = arguments[at];
        } else {
            usage(stderr);
            return 2;
        }
    }
    if (memoryOnly) {
        return memoryChild();
    }
    if (!volume.isEmpty()) {
        return run({{"volume", [&volume] { return onVolume(volume); }}}, {}, jsonPath);
    }
    return run(measurements(), filter, jsonPath);
}
