#include "bench/measurements.h"
#include "bench/note_typist.h"
#include "bench/replay.h"
#include "tests/support/private_server.h"

namespace kaldo::bench {

namespace {

using test::TestInstallation;

constexpr int kWarmUps = 3;
constexpr int kRuns = 40;

/// Two installations of stations that print nothing: receipts have a measurement of their own.
struct Installations {
    Installations() {
        printNoReceipts(*own);
        printNoReceipts(*bare);
    }
    std::shared_ptr<TestInstallation> own = std::make_shared<TestInstallation>();
    std::shared_ptr<TestInstallation> bare = std::make_shared<TestInstallation>();
};

/// Notes by the cashier and bare, turn by turn, each over databases in the same state. Both begin
/// at the moment when a cashier has typed a note: what a disk, an engine and a processor do slower
/// after some milliseconds of another work, they do on both sides. A run is a note of each kind,
/// and tells the time of one.
Results measure(const Installations &installations, const QString &where, double bar) {
    BenchStation station(installations.own, installations.bare);
    station.logIn(QStringLiteral("cajero1"));
    NoteTypist cashier(station);
    BareClient bare([&](const QString &connection) { return station.twinOf(connection); });
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> repaints;
    for (int run = 0; run < kWarmUps + kRuns; ++run) {
        double own = 0;
        double other = 0;
        double repaint = 0;
        for (const NoteKind kind : kNoteKinds) {
            const NoteTypist::Timed note = cashier.registerNote(kind);
            own += note.milliseconds / kNoteKinds.size();
            repaint += note.repaint / kNoteKinds.size();
            bare.repeat(note.typing);
            const auto log = bare.prepare(note.registering);
            const NoteTypist::Timed next = cashier.registerNote(kind, [&] {
                const double started = milliseconds();
                bare.play(*log);
                other += (milliseconds() - started) / kNoteKinds.size();
            });
            bare.repeat(next.typing);
            bare.repeat(next.registering);
        }
        if (run >= kWarmUps) {
            ours.push_back(own);
            theirs.push_back(other);
            repaints.push_back(repaint);
        }
    }
    return {{.name = QStringLiteral("registering a note, ") + where,
             .kaldo = median(ours),
             .bare = median(theirs),
             .bar = bar,
             .runs = kRuns},
            {.name = QStringLiteral("  painting the fresh screen after it"),
             .kaldo = median(repaints),
             .runs = kRuns}};
}

}  // namespace

Results registrationEmbedded() {
    return measure(Installations(), QStringLiteral("embedded engine"), 1.15);
}

Results registrationWithoutForcedWrites() {
    const Installations installations;
    writeUnforced(*installations.own);
    writeUnforced(*installations.bare);
    return measure(installations, QStringLiteral("embedded engine, forced writes off"), 1.5);
}

Results registrationOnServer() {
    const Installations installations;
    const test::PrivateServer server(installations.own->root());
    reachThrough(*installations.own, server.host());
    reachThrough(*installations.bare, server.host());
    return measure(installations, QStringLiteral("server"), 1.15);
}

}  // namespace kaldo::bench
