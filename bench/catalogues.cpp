#include <QTest>
#include <QTimer>

#include <stdexcept>

#include "bench/bench_station.h"
#include "bench/catalogue_rows.h"
#include "bench/measurements.h"
#include "bench/replay.h"
#include "cashdesk/frm_datos_caja_cash_desks.h"
#include "catalogues/frm100_care_centres.h"
#include "catalogues/frm101_clinics.h"
#include "catalogues/frm102_centre_areas.h"
#include "catalogues/frm103_patient_classes.h"
#include "catalogues/frm104_service_classes.h"
#include "catalogues/frm105_sales_areas.h"
#include "catalogues/frm106_external_laboratories.h"
#include "catalogues/frm107_price_list.h"
#include "catalogues/frm108_payment_forms.h"
#include "catalogues/frm109_payment_methods.h"
#include "catalogues/frm110_banks.h"
#include "catalogues/frm111_exchange_rate.h"
#include "shell/frm_control_usuarios_users.h"
#include "tests/support/keys.h"

namespace kaldo::bench {

namespace {

using test::TestInstallation;

constexpr int kRuns = 7;
constexpr double kNoticed = 100;
constexpr int kCopies = 5;
constexpr int kFirstPage = 64;

/// What is chosen above a list before it has rows.
struct Choice {
    const char *field;
    const char *text;
};

struct Catalogue {
    std::function<std::unique_ptr<Screen>(Context &)> make;
    QList<Choice> choices;
    int leastRows = kFirstPage;  ///< in its longest list
};

template <typename S>
Catalogue catalogue(const QList<Choice> &choices = {}, int leastRows = kFirstPage) {
    return {[](Context &context) { return std::make_unique<S>(context); }, choices, leastRows};
}

void type(const Screen &screen, const Choice &choice) {
    test::child<QWidget>(&screen, QString::fromLatin1(choice.field))->setFocus(Qt::TabFocusReason);
    test::settle();
    test::typeText(QString::fromLatin1(choice.text));
}

/// From a stroke to the picture: its handlers, what they queued, and the painting.
double untilPainted(QWidget *screen, Qt::Key key) {
    const double started = milliseconds();
    QTest::keyClick(test::keyTarget(), key);
    test::settle();
    screen->repaint();
    return milliseconds() - started;
}

int rowsShown(const Screen &screen) {
    int most = 0;
    for (const DataGrid *grid : screen.findChildren<DataGrid *>()) {
        most = std::max(most, grid->model()->rowCount());
    }
    return most;
}

Results measure(BenchStation &station, const Catalogue &catalogue) {
    std::vector<double> opened;
    std::vector<double> chosen;
    QString name;
    for (int run = 0; run <= kRuns; ++run) {
        const double started = milliseconds();
        const std::unique_ptr<Screen> screen = catalogue.make(station.context());
        screen->resize(screen->sizeHint());
        test::showActive(screen.get());
        screen->open();
        test::settle();
        screen->repaint();
        const double open = milliseconds() - started;
        name = screen->objectName();
        double choose = 0;
        for (const Choice &choice : catalogue.choices) {
            type(*screen, choice);
            choose = untilPainted(screen.get(), Qt::Key_Return);
        }
        if (rowsShown(*screen) < catalogue.leastRows) {
            throw std::runtime_error(name.toStdString() + " lacks rows");
        }
        if (run > 0) {  // the first one fills the caches of fonts and statements
            opened.push_back(open);
            chosen.push_back(choose);
        }
    }
    Results results{{.name = name + QStringLiteral(" created, shown and painted"),
                     .kaldo = median(opened),
                     .bar = kNoticed,
                     .runs = kRuns}};
    if (!catalogue.choices.isEmpty()) {
        results += {.name = name + QStringLiteral(" shows the list that was chosen"),
                    .kaldo = median(chosen),
                    .bar = kNoticed,
                    .runs = kRuns};
    }
    return results;
}

/// The dialog of the discounts runs a loop of its own.
Result measureDiscounts(BenchStation &station) {
    FRM104a dialog(station.context());
    std::vector<double> opened;
    for (int run = 0; run <= kRuns; ++run) {
        const double started = milliseconds();
        double open = 0;
        QTimer::singleShot(0, &dialog, [&] {
            test::settle();
            dialog.repaint();
            open = milliseconds() - started;
            dialog.done(QDialog::Rejected);
        });
        dialog.update(QStringLiteral("01"), 3, nullptr);
        if (run > 0) {
            opened.push_back(open);
        }
    }
    return {.name = QStringLiteral("FRM104a shown and painted"),
            .kaldo = median(opened),
            .bar = kNoticed,
            .runs = kRuns};
}

/// Chooses what a copy goes by; the button has the focus in the end.
void prepareCopy(FRM107 &screen, int target) {
    const QByteArray name = "DESTINO " + QByteArray::number(target);
    for (const Choice &choice :
         QList<Choice>{{"Ciudad", "COS"}, {"AreaDestino", name.constData()}, {"Programa", "980"}}) {
        type(screen, choice);
        test::press(Qt::Key_Return);
    }
}

}  // namespace

Results catalogues() {
    auto installation = std::make_shared<TestInstallation>();
    storeCatalogues(*installation);
    BenchStation station(installation, installation);
    station.logIn(QStringLiteral("admin"));
    const Choice centre{"Centro", "CLINICA DE LIC"};
    const QList<Catalogue> all = {
        catalogue<FRM100>(),
        catalogue<FRM101>({{"CentroAtencion", "CLINICA DE LIC"}, {"TipoServicio", "INFANTIL"}}),
        catalogue<FRM102>({centre}),
        catalogue<FRM103>(),
        catalogue<FRM104>({centre, {"AreaVentas", "INFANTIL"}}, 1),
        catalogue<FRM105>(),
        catalogue<FRM106>(),
        catalogue<FRM107>({{"AreaVentas", "AREA 1"}}),
        catalogue<FRM108>(),
        catalogue<FRM109>(),
        catalogue<FRM110>(),
        catalogue<FRM111>(),
        catalogue<FRMControlUsuarios>(),
    };
    Results results;
    for (const Catalogue &each : all) {
        results += measure(station, each);
    }
    results += measureDiscounts(station);
    storeCashDesks(*installation);
    return results << measure(station, catalogue<FRMDatosCaja>());
}

Results priceListCopy() {
    auto own = std::make_shared<TestInstallation>();
    auto bare = std::make_shared<TestInstallation>();
    storePriceList(*own, kCopies);
    storePriceList(*bare, kCopies);
    BenchStation station(own, bare);
    station.logIn(QStringLiteral("admin"));
    FRM107 screen(station.context());
    test::showActive(&screen);
    screen.open();
    type(screen, {"AreaVentas", "ORIGEN"});
    test::press(Qt::Key_Return);
    test::child<QWidget>(&screen, QStringLiteral("Duplicados"))->setFocus();
    test::press(Qt::Key_Space);
    BareClient client([&](const QString &connection) { return station.twinOf(connection); });
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int target = 1; target <= kCopies; ++target) {
        prepareCopy(screen, target);
        station.recorder.take();
        ours.push_back(untilPainted(&screen, Qt::Key_Return));
        const auto prepared = client.prepare(station.recorder.take());
        if (prepared->calls() < kListItems) {
            throw std::runtime_error("the list was not copied");
        }
        const double started = milliseconds();
        client.play(*prepared);
        theirs.push_back(milliseconds() - started);
    }
    return {{.name = QStringLiteral("a price list of %1 items copied").arg(kListItems),
             .kaldo = median(ours),
             .bare = median(theirs),
             .bar = 1.2,
             .runs = kCopies}};
}

}  // namespace kaldo::bench
