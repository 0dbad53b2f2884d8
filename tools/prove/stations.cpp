#include "tools/prove/stations.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "data/firebird_connection.h"
#include "tests/support/private_server.h"
#include "tests/support/test_installation.h"
#include "tools/prove/station.h"
#include "tools/prove/verdict.h"

namespace kaldo::prove {

namespace {

using test::TestInstallation;

constexpr int kSilence = 120000;  ///< ms after which stations that register nothing are stuck

/// A station's own files, which name the shared databases through the server.
class StationProcess {
public:
    StationProcess(int number, const TestInstallation &shared, const QString &host, int notes,
                   unsigned seed)
        : orders_{own_.root(), own_.root() + "/ledger.txt", number, 0, notes, seed} {
        FirebirdConnection local(QStringLiteral("FBLocal"), {});
        local.setDatabase(own_.database("BD_LOCAL.GDB"));
        for (const auto &[base, file] : {std::pair{"Odontologia", "BD_ODONTOLOGIA.GDB"},
                                         std::pair{"Finanzas", "BD_FINANZAS.GDB"}}) {
            test::run(local, "update firebird set ruta = :ruta where base = :base",
                      {{"ruta", host + shared.database(QString::fromLatin1(file))},
                       {"base", QString::fromLatin1(base)}});
        }
        // Receipts aren't what is proved.
        test::run(local, "delete from recibos");
    }
    ~StationProcess() {
        process_.kill();
        process_.waitForFinished();
    }

    void start() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(
            QCoreApplication::applicationFilePath(),
            {"station", orders_.root, QString::number(orders_.number),
             QString::number(orders_.life), QString::number(orders_.notes - registered()),
             QString::number(orders_.seed)});
    }

    /// Looks after the process, and starts it again where its power was cut. False once it is done.
    bool attend() {
        if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(20)) {
            return true;
        }
        if (process_.exitStatus() != QProcess::NormalExit ||
            (process_.exitCode() != 0 && process_.exitCode() != kDied)) {
            throw std::runtime_error("a station broke");
        }
        if (process_.exitCode() == 0) {
            return false;
        }
        ++orders_.life;
        start();
        return true;
    }

    int registered() const { return static_cast<int>(told().notes.size()); }
    int deaths() const { return orders_.life; }
    Told told() const {
        Told told;
        addTo(&told);
        return told;
    }
    void addTo(Told *told) const { readLedger(orders_.ledger, cashierOf(orders_.number), told); }

private:
    TestInstallation own_;
    StationOrders orders_;
    QProcess process_;
};

/// The proof is about who writes what when, and not about the disk.
void writeUnforced(const TestInstallation &installation) {
    for (const char *file : {"BD_ODONTOLOGIA.GDB", "BD_FINANZAS.GDB"}) {
        if (QProcess::execute("gfix", {"-user", "SYSDBA", "-write", "async",
                                       installation.database(QString::fromLatin1(file))}) != 0) {
            throw std::runtime_error("gfix failed");
        }
    }
}

void waitFor(const std::vector<std::unique_ptr<StationProcess>> &stations) {
    QElapsedTimer silence;
    silence.start();
    int registered = -1;
    for (bool working = true; working;) {
        working = false;
        int now = 0;
        for (const auto &station : stations) {
            working |= station->attend();
            now += station->registered();
        }
        if (now != registered) {
            registered = now;
            silence.restart();
        }
        if (silence.hasExpired(kSilence)) {
            throw std::runtime_error("the stations are stuck");
        }
    }
}

void report(const StationsPlan &plan, const Told &told, int deaths, const Verdict &verdict,
            double seconds) {
    std::printf("%d stations at one desk, seed %u, %.1f s\n", plan.stations, plan.seed, seconds);
    std::printf("%7lld notes told as registered\n", static_cast<long long>(told.notes.size()));
    std::printf("%7d stations whose power was cut\n", deaths);
    QStringList texts = told.boxes.keys();
    std::sort(texts.begin(), texts.end());
    for (const QString &text : std::as_const(texts)) {
        std::printf("%7d times: %s\n", told.boxes[text], qPrintable(text));
    }
    std::printf(
        "%7d lost\n%7d numbers held by two patients\n%7d incomplete\n%7d rows without a "
        "note\n",
        verdict.lost, verdict.doubled, verdict.maimed, verdict.orphans);
    for (const QString &example :
         verdict.examples.first(std::min<qsizetype>(verdict.examples.size(), 5))) {
        std::printf("        %s\n", qPrintable(example));
    }
}

}  // namespace

int proveStations(const StationsPlan &plan) {
    const TestInstallation shared;
    writeUnforced(shared);
    const test::PrivateServer server(shared.root());
    const QString folder = server.host() + shared.root() + "/DataBase/";
    std::vector<std::unique_ptr<StationProcess>> stations;
    for (int number = 0; number < plan.stations; ++number) {
        const int notes =
            plan.notes * (number + 1) / plan.stations - plan.notes * number / plan.stations;
        stations.push_back(
            std::make_unique<StationProcess>(number, shared, server.host(), notes, plan.seed));
    }
    QElapsedTimer clock;
    clock.start();
    for (const auto &station : stations) {
        station->start();
    }
    waitFor(stations);
    const double seconds = static_cast<double>(clock.elapsed()) / 1000;

    Told told;
    int deaths = 0;
    for (const auto &station : stations) {
        station->addTo(&told);
        deaths += station->deaths();
    }
    FirebirdConnection clinic(QStringLiteral("clinic"), {});
    FirebirdConnection finance(QStringLiteral("finance"), {});
    clinic.setDatabase(folder + "BD_ODONTOLOGIA.GDB");
    finance.setDatabase(folder + "BD_FINANZAS.GDB");
    const Verdict verdict = judge(told, clinic, finance);
    report(plan, told, deaths, verdict, seconds);
    return verdict.holds() ? 0 : 1;
}

}  // namespace kaldo::prove
