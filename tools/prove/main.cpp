#include <cstdio>
#include <exception>

#include "toolkit/forms/application.h"
#include "tools/prove/station.h"
#include "tools/prove/stations.h"

namespace {

constexpr int kUsage = 2;
constexpr int kBroken = 2;

int run(const QStringList &words) {
    using namespace kaldo::prove;
    if (words.size() == 6 && words[0] == QLatin1String("station")) {
        return runStation({words[1], words[1] + QStringLiteral("/ledger.txt"), words[2].toInt(),
                           words[3].toInt(), words[4].toInt(), words[5].toUInt()});
    }
    StationsPlan plan;
    if (words.size() % 2 == 1 && words[0] == QLatin1String("stations")) {
        bool known = true;
        for (int at = 1; at < words.size() && known; at += 2) {
            const int value = words[at + 1].toInt(&known);
            known = known && value > 0;
            if (words[at] == QLatin1String("--stations")) {
                plan.stations = value;
            } else if (words[at] == QLatin1String("--notes")) {
                plan.notes = value;
            } else if (words[at] == QLatin1String("--seed")) {
                plan.seed = static_cast<unsigned>(value);
            } else {
                known = false;
            }
        }
        if (known) {
            return proveStations(plan);
        }
    }
    std::fputs("usage: prove stations [--stations N] [--notes N] [--seed S]\n", stderr);
    return kUsage;
}

}  // namespace

int main(int argc, char **argv) {
    kaldo::Application application(argc, argv);
    try {
        return run(QApplication::arguments().mid(1));
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "prove: %s\n", failure.what());
        return kBroken;
    }
}
