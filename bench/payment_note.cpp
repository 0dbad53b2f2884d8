#include <QTest>

#include <stdexcept>

#include "bench/measurements.h"
#include "bench/note_typist.h"
#include "tests/support/keys.h"
#include "toolkit/forms/data_grid.h"

namespace kaldo::bench {

namespace {

constexpr int kRuns = 15;
constexpr double kNoticed = 100;

/// From a stroke to the picture: its handlers, what they queued, and the painting.
double untilPainted(QWidget &screen, Qt::Key key) {
    const double started = milliseconds();
    QTest::keyClick(test::keyTarget(), key);
    test::settle();
    screen.repaint();
    return milliseconds() - started;
}

}  // namespace

Results paymentNote() {
    BenchStation station(std::make_shared<test::TestInstallation>(),
                         std::make_shared<test::TestInstallation>());
    station.logIn(QStringLiteral("cajero1"));
    std::vector<double> opened;
    std::vector<double> listed;
    std::vector<double> dropped;
    int items = 0;
    for (int run = 0; run <= kRuns; ++run) {
        const double started = milliseconds();
        NoteTypist cashier(station);
        cashier.screen().repaint();
        const double open = milliseconds() - started;

        cashier.chooseClinicOfAdults();
        const double list = untilPainted(cashier.screen(), Qt::Key_Return);
        cashier.beginLineOfDossier(QStringLiteral("00001/24"));
        const double drop = untilPainted(cashier.screen(), Qt::Key_F4);
        if (QApplication::activePopupWidget() == nullptr) {
            throw std::runtime_error("the price list did not open");
        }
        items = station.context().caja.ListaPrecios.count();
        test::press(Qt::Key_Escape);
        test::press(Qt::Key_Escape);
        if (run > 0) {
            opened.push_back(open);
            listed.push_back(list);
            dropped.push_back(drop);
        }
    }
    const auto result = [](const QString &name, const std::vector<double> &times) {
        return Result{
            .name = name, .kaldo = median(times), .bar = kNoticed, .runs = int(times.size())};
    };
    return {result(QStringLiteral("FRM401 created, shown and painted"), opened),
            result(QStringLiteral("FRM401 takes a price list of %1 items").arg(items), listed),
            result(QStringLiteral("FRM401 opens that list at \"Clave\""), dropped)};
}

}  // namespace kaldo::bench
