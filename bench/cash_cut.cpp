#include <QTest>

#include <stdexcept>

#include "bench/bench_station.h"
#include "bench/measurements.h"
#include "bench/replay.h"
#include "cashdesk/frm405_cash_cut.h"
#include "tests/support/keys.h"

namespace kaldo::bench {

namespace {

using test::TestInstallation;

constexpr int kNotes = 10000;
constexpr int kRuns = 3;

/// 10,000 notes of one line by one cashier today, over three ways to pay.
void storeNotes(const TestInstallation &installation, const QDate &today) {
    FirebirdConnection clinic(QStringLiteral("FBOdonto"), {});
    clinic.setDatabase(installation.database(QStringLiteral("BD_ODONTOLOGIA.GDB")));
    const QString numbers =
        QStringLiteral(
            " from (select first %1 row_number() over (order by a.codigo, b.codigo) as n "
            "from listaprecios a cross join listaprecios b) numbers")
            .arg(kNotes);
    const auto insert = [&](const QString &columns, const QString &values,
                            const Parameters &parameters = {}) {
        test::run(clinic,
                  QStringLiteral("insert into ") + columns + QStringLiteral(" select ") + values +
                      numbers,
                  parameters);
    };
    insert(
        "registrovtas (num_caja, nota_vta, fecha, tipo_vta, status, capto, importe_tot, "
        "tipocambio, matricula, recibo, tipo_serv)",
        "1, n, cast(:fecha as date), 'CONTADO', 'GE', 'cajero1', 78, 19.5, 0, '1-' || n, "
        "'OTROS SERVICIOS'",
        {{"fecha", today}});
    insert("vtascontado (num_caja, nota_vta, nombre, imp_total)", "1, n, 'PACIENTE ' || n, 78");
    insert("pagos_odontologia (num_caja, nota_vta, num_empl)", "1, n, 0");
    insert(
        "formapago (num_caja, nota_vta, importe_tot, dolares, pesos, credito, cambio, "
        "prestacion, cheque, chequedll, complementaria, beca, bancomn, bancodll)",
        "1, n, 78, iif(mod(n, 3) = 1, 4, 0), iif(mod(n, 3) = 0, 78, 0), "
        "iif(mod(n, 3) = 2, 78, 0), 0, 0, 0, 0, iif(mod(n, 3) = 1, 74, 0), 0, 1, 2");
    insert(
        "detallevtas (num_caja, nota_vta, codigo, tipo_prod, cve_prod, cant, precio, prog, "
        "fondo, ftefinid)",
        "1, n, 5001, 5, 1, 1, 78, 12510, '11', 1400");
}

/// How far each query that may hold more than a first page was read; it stands as the cut left it.
BareClient::RowsRead rowsRead(DMIngresosCaja &caja) {
    const std::vector<const NamedQuery *> queries{
        &caja.Qry405_2,      &caja.Qry405_3,     &caja.Qry405_5,       &caja.CorteBancario,
        &caja.SaldoPaciente, &caja.PagoAnticipo, &caja.ConsultaDolares};
    return [queries](const QString &name) {
        for (const NamedQuery *query : queries) {
            if (query->name() == name) {
                return query->rowCount() + 1;
            }
        }
        constexpr int firstPage = 64;
        return firstPage;
    };
}

double cut(BenchStation &station, FRM405 &screen) {
    auto *generar = test::child<QWidget>(&screen, QStringLiteral("Generar"));
    generar->setFocus();
    test::settle();
    station.recorder.take();
    const int previews = station.printing.previewed;
    const double started = milliseconds();
    QTest::keyClick(generar, Qt::Key_Return);
    const double took = milliseconds() - started;
    if (station.printing.previewed == previews) {
        throw std::runtime_error("the cut was not made");
    }
    return took;
}

}  // namespace

Results cashCut() {
    auto own = std::make_shared<TestInstallation>();
    auto bare = std::make_shared<TestInstallation>();
    const QDate today = QDate::currentDate();
    storeNotes(*own, today);
    storeNotes(*bare, today);
    BenchStation station(own, bare);
    station.logIn(QStringLiteral("cajero1"));
    FRM405 screen(station.context());
    test::showActive(&screen);
    screen.open();
    test::settle();
    BareClient client([&](const QString &connection) { return station.twinOf(connection); });
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back(cut(station, screen));
        const Log log = station.recorder.take();
        const auto prepared = client.prepare(log, rowsRead(station.context().caja));
        const double started = milliseconds();
        client.play(*prepared);
        theirs.push_back(milliseconds() - started);
    }
    return {{.name = QStringLiteral("a cash cut of %1 notes").arg(kNotes),
             .kaldo = median(ours),
             .bare = median(theirs),
             .bar = 1.15,
             .runs = kRuns}};
}

}  // namespace kaldo::bench
