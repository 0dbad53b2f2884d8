#include "tests/payments/desk.h"
#include "tests/support/seams.h"

#include "toolkit/core/log.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <unistd.h>
#include <csignal>
#include <memory>

namespace kaldo {
namespace {

using test::atCall;
using test::Desk;
using test::Moment;
using test::paidWith;
using test::TestSeam;

/// What a good registration does: its calls, and what stands after each of them.
struct GoodRun {
    struct Call {
        QString name;
        bool writes = false;
        QString after;
    };
    QList<Call> calls;
    QString before;

    /// What stands when the first `done` calls have been committed.
    QString standsAfter(qsizetype done) const { return done == 0 ? before : calls[done - 1].after; }
};

NoteDraft admissionNote(Desk &desk) {
    return desk.note("AD - ADMISION", 1, {1});
}

NoteDraft dossierNote(Desk &desk) {
    NoteDraft draft = desk.note("AP - SERVICIOS DE CLINICA", 4, {1, 17});
    draft.payer.expediente = "00001/24";
    return draft;
}

Payment paid(const NoteDraft &draft) {
    return paidWith(draft, 1, 1, draft.amounts.importeTotal);
}

class RegistrationFaults : public ::testing::Test {
protected:
    QString stands(const NoteDraft &draft) { return records.ofNote(1, draft.notaActual, folio); }

    GoodRun watch(Desk &desk, const NoteDraft &draft) {
        folio = records.folio();
        GoodRun run;
        run.before = stands(draft);
        TestSeam watch(
            // When the mark goes the note is whole, and its failure isn't one.
            Moment::AfterExecution,
            [](const Execution &done, int) { return done.name != "QuitaMarcaRecibo"; },
            [&](const Execution &done) {
                run.calls.append({done.name, done.writes, stands(draft)});
            });
        desk.conexion.setSeam(&watch);
        EXPECT_TRUE(desk.registers(draft, paid(draft)));
        desk.conexion.setSeam(nullptr);
        return run;
    }

    void failAtEachCall(NoteDraft (*make)(Desk &));

    test::TestInstallation files;
    test::Records records{files.root()};
    int folio = 0;
};

/// A failure of each call, then of each commit; after it the second try, the repair, and the note
/// again.
void RegistrationFaults::failAtEachCall(NoteDraft (*make)(Desk &)) {
    Desk desk(files.root());
    desk.local.Recibos.open();
    const GoodRun good = watch(desk, make(desk));
    for (const Moment moment : {Moment::BeforeExecution, Moment::BeforeCommit}) {
        for (int call = 1; call <= good.calls.size(); ++call) {
            const GoodRun::Call &struck = good.calls[call - 1];
            if (moment == Moment::BeforeCommit && !struck.writes) {
                continue;
            }
            SCOPED_TRACE(struck.name.toStdString() +
                         (moment == Moment::BeforeCommit ? " commit" : ""));
            const NoteDraft draft = make(desk);
            folio = records.folio();
            const int printed = static_cast<int>(desk.printing.records.size());
            TestSeam fault(moment, atCall(call));
            desk.conexion.setSeam(&fault);
            EXPECT_TRUE(desk.fails(draft, paid(draft)));
            desk.conexion.setSeam(nullptr);
            const QString left = stands(draft);
            EXPECT_EQ(left, good.standsAfter(call - 1));
            EXPECT_EQ(desk.printing.records.size(), printed);

            EXPECT_EQ(desk.nextNote(), draft.notaActual);
            if (call > 1) {
                EXPECT_TRUE(desk.fails(draft, paid(draft)));
                EXPECT_EQ(stands(draft), left);
                EXPECT_EQ(desk.nextNote(), draft.notaActual);
                records.repair(1, draft.notaActual);
            }
            folio = records.folio();
            EXPECT_EQ(stands(draft), good.before);
            EXPECT_TRUE(desk.registers(draft, paid(draft)));
            EXPECT_EQ(stands(draft), good.calls.last().after);
        }
    }
}

TEST_F(RegistrationFaults, EachCallOfAnAdmissionNote) {
    failAtEachCall(admissionNote);
}

TEST_F(RegistrationFaults, EachCallOfADossierNote) {
    failAtEachCall(dossierNote);
}

TEST_F(RegistrationFaults, TheOrderIsSettled) {
    Desk desk(files.root());
    desk.local.Recibos.open();
    const auto names = [](const GoodRun &run) {
        QStringList all;
        for (const GoodRun::Call &call : run.calls) {
            all += call.name;
        }
        return all.join(", ");
    };
    EXPECT_EQ(names(watch(desk, admissionNote(desk))),
              "registra_pago_odontologia_p, Control, registra_admision_p, "
              "registra_datosgenerales_p, registra_antecedentes_p, sp_registrametodopago, "
              "spinsdetalle, inserta_vw_recibopago, registraiva, Ticket, MarcaRecibo, DatosCaja1 "
              "(update)");
    EXPECT_EQ(names(watch(desk, dossierNote(desk))),
              "registra_pago_odontologia_p, sp_registrametodopago, spinsdetalle, "
              "registra_historicodontologia_p, spinsdetalle, registra_historicodontologia_p, "
              "inserta_vw_recibopago, registraiva, Ticket, MarcaRecibo, DatosCaja1 (update)");
}

TEST_F(RegistrationFaults, TheLogSaysWhyANoteStayedHalfWritten) {
    Desk desk(files.root());
    desk.local.Recibos.open();
    const NoteDraft draft = admissionNote(desk);
    EXPECT_TRUE(desk.registers(draft, paid(draft)));
    const QString path = files.root() + "/Log/kaldo.log";
    const FileLog log(path);
    EXPECT_TRUE(desk.fails(draft, paid(draft))) << "its number is taken";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString told = QString::fromUtf8(file.readAll());
    const QString why = QStringLiteral(
                            "kaldo.told: nota 1-%1: FBOdonto registra_pago_odontologia_p "
                            "(SQL -803; 335544665")
                            .arg(draft.notaActual);
    EXPECT_TRUE(told.contains(why)) << qPrintable(told);
}

constexpr char kRoot[] = "KALDO_FAULT_ROOT";
constexpr char kCall[] = "KALDO_FAULT_CALL";
constexpr char kMoment[] = "KALDO_FAULT_MOMENT";

/// Runs in a process of its own too, over the databases of the test that started it; there it is
/// killed at the call and the moment that the environment names. By itself it registers a note.
TEST(RegistrationChild, RegistersUntilItIsKilled) {
    std::unique_ptr<test::TestInstallation> own;
    QString root = qEnvironmentVariable(kRoot);
    if (root.isEmpty()) {
        own = std::make_unique<test::TestInstallation>();
        root = own->root();
    }
    Desk desk(root);
    desk.local.Recibos.open();
    const NoteDraft draft = admissionNote(desk);
    TestSeam fault(static_cast<Moment>(qEnvironmentVariableIntValue(kMoment)),
                   atCall(qEnvironmentVariableIntValue(kCall)),
                   [](const Execution &) { ::kill(::getpid(), SIGKILL); });
    desk.conexion.setSeam(&fault);
    EXPECT_TRUE(desk.registers(draft, paid(draft)));
    desk.conexion.setSeam(nullptr);
}

/// True if the child died by the kill.
bool killChild(const QString &root, int call, Moment moment) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kRoot, root);
    environment.insert(kCall, QString::number(call));
    environment.insert(kMoment, QString::number(static_cast<int>(moment)));
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {"--gtest_filter=RegistrationChild.RegistersUntilItIsKilled"});
    return child.waitForFinished(60000) && child.exitStatus() == QProcess::CrashExit &&
           child.exitCode() == SIGKILL;
}

TEST_F(RegistrationFaults, KilledAtEachCallOfAnAdmissionNote) {
    GoodRun good;
    int nota = 1;
    {
        Desk desk(files.root());
        desk.local.Recibos.open();
        good = watch(desk, admissionNote(desk));
        nota = desk.nextNote();
    }
    for (int call = 1; call <= good.calls.size(); ++call) {
        for (const Moment moment :
             {Moment::BeforeExecution, Moment::BeforeCommit, Moment::AfterExecution}) {
            const GoodRun::Call &struck = good.calls[call - 1];
            if (!struck.writes && moment != Moment::BeforeExecution) {
                continue;
            }
            SCOPED_TRACE(struck.name.toStdString() + " " +
                         std::to_string(static_cast<int>(moment)));
            folio = records.folio();
            records.clinic.close();
            records.finance.close();
            ASSERT_TRUE(killChild(files.root(), call, moment));
            const int done = moment == Moment::AfterExecution ? call : call - 1;
            EXPECT_EQ(records.ofNote(1, nota, folio), good.standsAfter(done));
            if (done == good.calls.size()) {
                ++nota;
            } else {
                records.repair(1, nota);
                folio = records.folio();
                EXPECT_EQ(records.ofNote(1, nota, folio), good.before);
            }
        }
    }
    Desk desk(files.root());
    folio = records.folio();
    const NoteDraft draft = admissionNote(desk);
    EXPECT_EQ(draft.notaActual, nota);
    EXPECT_TRUE(desk.registers(draft, paid(draft)));
    EXPECT_EQ(stands(draft), good.calls.last().after);
}

}  // namespace
}  // namespace kaldo
