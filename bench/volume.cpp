#include <QTest>

#include <stdexcept>

#include "bench/measurements.h"
#include "bench/note_typist.h"
#include "bench/replay.h"
#include "cashdesk/frm801_incomplete_receipts.h"
#include "data/runtime_texts.h"
#include "tests/support/keys.h"

namespace kaldo::bench {

namespace {

using test::TestInstallation;

constexpr int kRuns = 15;
constexpr int kWarmUps = 3;
constexpr double kNoticed = 100;
constexpr double kGrowth = 1.15;
constexpr double kOverBare = 1.5;

/// The same work on both databases, turn by turn, so that what else the machine does meets both.
using Work = std::function<double(BenchStation &)>;

struct Pair {
    double large = 0;
    double small = 0;
};

Pair compare(BenchStation &large, BenchStation &small, const Work &work) {
    std::vector<double> onLarge;
    std::vector<double> onSmall;
    for (int run = 0; run < kWarmUps + kRuns; ++run) {
        const double first = work(large);
        const double second = work(small);
        if (run >= kWarmUps) {
            onLarge.push_back(first);
            onSmall.push_back(second);
        }
    }
    return {median(onLarge), median(onSmall)};
}

Results sideBySide(const QString &name, const Pair &times) {
    return {
        {.name = name, .kaldo = times.large, .bar = kNoticed, .runs = kRuns},
        {.name = QStringLiteral("  on the small database"), .kaldo = times.small, .runs = kRuns}};
}

double timed(const std::function<void()> &work) {
    const double started = milliseconds();
    work();
    return milliseconds() - started;
}

/// A list's first page; over 100 ms its bare SQL decides.
Result firstPage(BenchStation &station, const QString &name, const std::function<void()> &open) {
    const auto place = [&station](const QString &connection) {
        for (const Connection *each : station.context().conexion.all()) {
            if (each->name() == connection) {
                return each->database();
            }
        }
        throw std::runtime_error("no such connection");
    };
    open();
    station.recorder.take();
    std::vector<double> ours;
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back(timed(open));
    }
    Log log = station.recorder.take();
    log.resize(log.size() / kRuns);
    Result result{
        .name = name, .kaldo = median(ours), .bar = kNoticed, .runs = static_cast<int>(kRuns)};
    if (result.kaldo > kNoticed) {
        BareClient bare(place);
        const auto prepared = bare.prepare(log);
        std::vector<double> theirs;
        for (int run = 0; run < kRuns; ++run) {
            theirs.push_back(timed([&] { bare.play(*prepared); }));
        }
        result.bare = median(theirs);
        result.bar = kOverBare;
    }
    return result;
}

Results lists(BenchStation &station) {
    Context &context = station.context();
    Results results;
    for (const QString &ban :
         {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")}) {
        results += firstPage(station, QStringLiteral("list of dossiers, way ") + ban, [&] {
            context.odonto.CargarExp.open({{"CENT", QStringLiteral("01")},
                                           {"CD", QStringLiteral("VAN")},
                                           {"FECHA", QDate(2020, 1, 1)},
                                           {"TIPO", QStringLiteral("A")},
                                           {"BAN", ban}});
        });
    }
    const auto found = [&](const QString &name, const RuntimeText &text) {
        const auto query = context.odonto.newQuery("Busqueda");
        query->setText(text);
        results += firstPage(station, name, [&] { query->open(); });
    };
    found(QStringLiteral("search of a dossier by its number"), expeText("00110/20", "VAN"));
    found(QStringLiteral("search of an admission by surnames"),
          consultaAdmisionText("GARCIA", "LOPEZ", ""));
    found(QStringLiteral("search of an admission by a rare name"),
          consultaAdmisionText("WONG", "YAÑEZ", "IRMA"));
    results += firstPage(station, QStringLiteral("last note of the largest desk"), [&] {
        context.caja.UltimaNota.open({{"caja", 1}});
    });
    return results;
}

/// The last day on which the largest desk worked.
QDate lastDay(BenchStation &station) {
    return test::valueOf(station.clinic(),
                         "select first 1 fecha from registrovtas where num_caja = 1 order by "
                         "num_caja desc, nota_vta desc")
        .toDate();
}

Results cutOfADay(BenchStation &station) {
    const QDate day = lastDay(station);
    const Parameters desk{{"caja", 1}, {"fecha", day}, {"usr", QStringLiteral("cajero1")}};
    DMIngresosCaja &caja = station.context().caja;
    Results results;
    results += firstPage(station, QStringLiteral("the cut's sums of a desk's day"),
                         [&] { caja.Qry405_4.open(desk); });
    results += firstPage(station, QStringLiteral("the cut's notes of a desk's day"),
                         [&] { caja.Qry405_2.open(desk); });
    results += firstPage(station, QStringLiteral("the cut's advances of a day"), [&] {
        caja.PagoAnticipo.open({{"caja", 1}, {"fecha", day}});
    });
    results += firstPage(station, QStringLiteral("the figures of a desk's day"), [&] {
        station.context().odonto.est_caja.open({{"p_caja", 1}, {"p_fecha", day}});
    });
    results += firstPage(station, QStringLiteral("the bank cut of a desk's day"), [&] {
        caja.CompletaCorteBancario.execute(
            {{"usr", QStringLiteral("cajero1")}, {"caja", 1}, {"fecha", day}});
    });
    return results;
}

double openNote(BenchStation &station) {
    return timed([&] {
        NoteTypist cashier(station);
        cashier.screen().repaint();
    });
}

double dropPrices(BenchStation &station) {
    NoteTypist cashier(station);
    cashier.chooseClinicOfAdults();
    test::press(Qt::Key_Return);
    cashier.beginLineOfDossier(QStringLiteral("00001/24"));
    const double took = timed([&] {
        QTest::keyClick(test::keyTarget(), Qt::Key_F4);
        test::settle();
        cashier.screen().repaint();
    });
    test::press(Qt::Key_Escape);
    test::press(Qt::Key_Escape);
    return took;
}

double openRepair(BenchStation &station) {
    return timed([&] {
        FRM801 screen(station.context());
        screen.ensureBuilt();
        screen.activated();
    });
}

}  // namespace

Results onVolume(const QString &root) {
    Results results = startUpOn(root);
    const auto own = std::make_shared<TestInstallation>();
    printNoReceipts(*own);
    BenchStation small(own, own);
    BenchStation large(root);
    for (BenchStation *station : {&small, &large}) {
        station->logIn(QStringLiteral("cajero1"));
    }
    // Reading comes before the notes that are registered here.
    results += cutOfADay(large);
    results += lists(large);
    results += sideBySide(QStringLiteral("FRM401 created, shown and painted"),
                          compare(large, small, openNote));
    results += sideBySide(QStringLiteral("FRM401 opens the price list at \"Clave\""),
                          compare(large, small, dropPrices));
    results += sideBySide(QStringLiteral("FRM801 reads counter and notes"),
                          compare(large, small, openRepair));
    NoteTypist onLarge(large);
    NoteTypist onSmall(small);
    const Pair note = compare(large, small, [&](BenchStation &station) {
        NoteTypist &cashier = &station == &large ? onLarge : onSmall;
        test::showActive(&cashier.screen());
        return cashier.registerNote(NoteKind::Admission).milliseconds;
    });
    results += {.name = QStringLiteral("registering a note, against the small database"),
                .kaldo = note.large,
                .bare = note.small,
                .bar = kGrowth,
                .runs = kRuns};
    return results;
}

}  // namespace kaldo::bench
