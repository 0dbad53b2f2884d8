#include "data/database_error.h"
#include "tests/payments/desk.h"
#include "tests/support/private_server.h"
#include "tests/support/seams.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <memory>

namespace kaldo {
namespace {

using test::atName;
using test::Desk;
using test::Moment;
using test::paidWith;
using test::PrivateServer;
using test::Records;
using test::TestSeam;

/// Does this when a call makes the cashier wait; true gives the call up.
class Patient : public WaitObserver {
public:
    explicit Patient(std::function<bool()> act) : act_(std::move(act)) {}
    void waitingBegan(const QString &) override {}
    bool stillWaiting(std::chrono::milliseconds) override { return act_(); }
    void waitingEnded() override {}

private:
    std::function<bool()> act_;
};

NoteDraft admissionNote(Desk &desk) {
    return desk.note("AD - ADMISION", 1, {1});
}

TEST(RegistrationOnServer, TwoDesksRegisterAndSurviveWhatHappensToTheServer) {
    test::TestInstallation files;
    PrivateServer server(files.root(), PrivateServer::Registry::Named);
    auto records = std::make_unique<Records>(files.root(), server.host());
    const int folio = records->folio();
    auto desk = std::make_unique<Desk>(files.root());
    {
        Desk other(files.root(), 12);
        ASSERT_TRUE(desk->conexion.FBOdonto.database().startsWith(server.host()));
        for (Desk *each : {desk.get(), &other, desk.get()}) {
            const NoteDraft draft = admissionNote(*each);
            EXPECT_TRUE(each->registers(draft, paidWith(draft, 0, 1, draft.amounts.importeTotal)));
        }
    }
    EXPECT_EQ(records->rows("admision", "folio, num_caja, nota_vta",
                            "folio >= " + QString::number(folio)),
              QStringLiteral("%1|1|1; %2|12|1; %3|1|2").arg(folio).arg(folio + 1).arg(folio + 2));
    const QString whole = records->ofNote(1, 2, folio + 2);

    // A server that refused a moment ago is asked again after a second.
    const auto attachedAgain = [&] {
        return QTest::qWaitFor([&] {
            try {
                desk->conexion.FBOdonto.open();
            } catch (const DatabaseError &) {
            }
            return desk->conexion.FBOdonto.isOpen();
        });
    };

    // The server dies; the same desk goes on with the one that comes after it.
    TestSeam dying(Moment::BeforeExecution, atName("sp_registrametodopago"),
                   [&](const Execution &) { server.kill(); });
    NoteDraft draft = admissionNote(*desk);
    desk->conexion.setSeam(&dying);
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(desk->fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    EXPECT_LT(clock.elapsed(), 2000);
    desk->conexion.setSeam(nullptr);
    ASSERT_TRUE(server.start());
    ASSERT_TRUE(attachedAgain());
    records = std::make_unique<Records>(files.root(), server.host());
    // Each connection finds its own loss.
    EXPECT_THROW(test::valueOf(desk->conexion.FBFinanzas, "select count(*) from cg_usuario"),
                 DatabaseError);
    const QString half =
        "registrovtas 1, pagos_odontologia 1, formapago 1, vtascontado 1, detallepago 1, "
        "metodopagonota 0, detallevtas 0, historicoodontologia 0, admision 1, "
        "datosgenerales 1, antecedentes 1, iva 0, finanzas 0, siguiente +0";
    EXPECT_EQ(records->ofNote(1, 3, folio + 3).toStdString(), half.toStdString());
    records->repair(1, 3);

    // Another station ends the attachment in the middle.
    TestSeam ending(
        Moment::BeforeExecution, atName("sp_registrametodopago"), [&](const Execution &) {
            test::run(
                records->clinic,
                "delete from mon$attachments where mon$attachment_id <> current_connection and "
                "mon$system_flag = 0");
        });
    draft = admissionNote(*desk);
    EXPECT_EQ(draft.notaActual, 3);
    desk->conexion.setSeam(&ending);
    EXPECT_TRUE(desk->fails(draft, paidWith(draft, 0, 0, draft.amounts.importeTotal)));
    desk->conexion.setSeam(nullptr);
    EXPECT_EQ(records->ofNote(1, 3, folio + 4).toStdString(), half.toStdString());
    records->repair(1, 3);

    // It stops answering in the middle, and goes on while the cashier waits.
    TestSeam freezing(Moment::BeforeExecution, atName("sp_registrametodopago"),
                      [&](const Execution &) { server.freeze(); });
    Patient patient([&] {
        server.thaw();
        return false;
    });
    draft = admissionNote(*desk);
    desk->conexion.setSeam(&freezing);
    desk->conexion.setWaitObserver(&patient);
    EXPECT_TRUE(desk->registers(draft, paidWith(draft, 0, 1, draft.amounts.importeTotal)));
    EXPECT_EQ(records->ofNote(1, 3, folio + 5).toStdString(), whole.toStdString());

    // The cashier gives it up: a failure that is told, and nothing twice.
    Patient hasty([] { return true; });
    draft = admissionNote(*desk);
    desk->conexion.setWaitObserver(&hasty);
    EXPECT_TRUE(desk->fails(draft, paidWith(draft, 0, 1, draft.amounts.importeTotal)));
    server.thaw();
    desk->conexion.setSeam(nullptr);
    desk->conexion.setWaitObserver(nullptr);
    ASSERT_TRUE(attachedAgain());
    EXPECT_EQ(records->count("registrovtas", "num_caja = 1 and nota_vta = 4"), 1);
    EXPECT_LE(records->count("metodopagonota", "num_caja = 1 and nota_vta = 4"), 1);
    records->repair(1, 4);
    draft = admissionNote(*desk);
    EXPECT_TRUE(desk->registers(draft, paidWith(draft, 0, 1, draft.amounts.importeTotal)));
    EXPECT_EQ(records->count("registrovtas", "num_caja = 1"), 4);
}

}  // namespace
}  // namespace kaldo
