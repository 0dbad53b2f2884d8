#include "tests/payments/desk.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <unistd.h>
#include <csignal>
#include <memory>

namespace kaldo {
namespace {

using test::Desk;
using test::paidWith;
using test::Records;

/// A private database server over an installation, which names its databases through it.
class Server {
public:
    explicit Server(const QString &root) : root_(root) {
        for (int attempt = 0; attempt < 5 && !started_; ++attempt) {
            port_ = 20000 + (::getpid() * 7 + attempt * 131) % 10000;
            started_ = start();
        }
    }
    ~Server() { script({"stop", root_, "--registry"}); }

    bool started() const { return started_; }
    bool start() {
        return script({"start", root_, "--port", QString::number(port_), "--registry"});
    }
    QString address() const { return QStringLiteral("127.0.0.1/%1:").arg(port_); }
    /// The server dies without a word to anyone.
    void die() const {
        QFile file(root_ + "/server/pid");
        if (file.open(QIODevice::ReadOnly)) {
            ::kill(file.readAll().trimmed().toInt(), SIGKILL);
        }
    }

private:
    static bool script(const QStringList &arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(QStringLiteral(KALDO_SOURCE_DIR "/scripts/server"), arguments);
        return process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    QString root_;
    int port_ = 0;
    bool started_ = false;
};

/// Runs something just before the execution of a name.
class Before : public Seam {
public:
    Before(QString name, std::function<void()> act)
        : name_(std::move(name)), act_(std::move(act)) {}
    void beforeExecution(const Execution &execution) override {
        if (execution.name == name_) {
            act_();
        }
    }

private:
    QString name_;
    std::function<void()> act_;
};

NoteDraft admissionNote(Desk &desk) {
    return desk.note("AD - ADMISION", 1, {1});
}

TEST(RegistrationOnServer, TwoDesksRegisterAndADeadServerIsToldAtOnce) {
    test::TestInstallation files;
    Server server(files.root());
    ASSERT_TRUE(server.started());
    auto records = std::make_unique<Records>(files.root(), server.address());
    const int folio = records->folio();
    auto desk = std::make_unique<Desk>(files.root());
    {
        Desk other(files.root(), 12);
        ASSERT_TRUE(desk->conexion.FBOdonto.database().startsWith(server.address()));
        for (Desk *each : {desk.get(), &other, desk.get()}) {
            const NoteDraft draft = admissionNote(*each);
            EXPECT_TRUE(each->registers(draft, paidWith(draft, 0, 1, draft.importeTotal)));
        }
    }
    EXPECT_EQ(records->rows("admision", "folio, num_caja, nota_vta",
                            "folio >= " + QString::number(folio)),
              QStringLiteral("%1|1|1; %2|12|1; %3|1|2").arg(folio).arg(folio + 1).arg(folio + 2));
    const QString whole = records->ofNote(1, 2, folio + 2);

    Before dying("sp_registrametodopago", [&] { server.die(); });
    const NoteDraft draft = admissionNote(*desk);
    desk->conexion.setSeam(&dying);
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(desk->fails(draft, paidWith(draft, 0, 0, draft.importeTotal)));
    EXPECT_LT(clock.elapsed(), 2000);
    desk->conexion.setSeam(nullptr);
    desk.reset();
    records.reset();

    ASSERT_TRUE(server.start());
    records = std::make_unique<Records>(files.root(), server.address());
    desk = std::make_unique<Desk>(files.root());
    EXPECT_EQ(records->ofNote(1, 3, folio + 3),
              "registrovtas 1, pagos_odontologia 1, formapago 1, vtascontado 1, detallepago 1, "
              "metodopagonota 0, detallevtas 0, historicoodontologia 0, admision 1, "
              "datosgenerales 1, antecedentes 1, iva 0, finanzas 0, siguiente +0");
    records->repair(1, 3);
    const NoteDraft again = admissionNote(*desk);
    EXPECT_EQ(again.notaActual, 3);
    EXPECT_TRUE(desk->registers(again, paidWith(again, 0, 1, again.importeTotal)));
    EXPECT_EQ(records->ofNote(1, 3, folio + 4), whole);
}

}  // namespace
}  // namespace kaldo
