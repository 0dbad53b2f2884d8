#include "tools/prove/station.h"

#include <QAbstractButton>
#include <QFile>
#include <QThread>

#include <unistd.h>
#include <random>

#include "cashdesk/frm801_incomplete_receipts.h"
#include "data/database_error.h"
#include "tests/payments/desk.h"
#include "toolkit/forms/application.h"

namespace kaldo::prove {

namespace {

/// One mishap at one of the next executions: a call that fails before or at its commit, or a power
/// cut there.
class Mishap final : public Seam {
public:
    enum class Kind { None, Fails, FailsAtCommit, Dies };

    void arm(Kind kind, int call) {
        kind_ = kind;
        left_ = call;
    }
    void disarm() { kind_ = Kind::None; }

    void beforeExecution(const Execution &execution) override {
        --left_;
        if (!execution.writes || kind_ != Kind::FailsAtCommit) {
            strike();
        }
    }
    void beforeCommit(const Execution &) override {
        if (kind_ == Kind::FailsAtCommit) {
            strike();
        }
    }

private:
    void strike() {
        if (kind_ == Kind::None || left_ > 0) {
            return;
        }
        if (kind_ == Kind::Dies) {
            ::_exit(kDied);
        }
        kind_ = Kind::None;
        throw DatabaseError(QStringLiteral("mishap"), {});
    }

    Kind kind_ = Kind::None;
    int left_ = 0;
};

/// Answers every box at once and keeps the last text.
class PromptMessages final : public Messages {
public:
    QString last;

protected:
    Answer show(const Message &message) override {
        last = message.text;
        return Answer::Yes;
    }
};

class Ledger {
public:
    explicit Ledger(const QString &path) : file_(path) {
        if (!file_.open(QIODevice::Append | QIODevice::Unbuffered)) {
            throw std::runtime_error("the ledger can't be written");
        }
    }
    /// The first line of a text: what follows it differs from case to case.
    void write(const char *kind, const QString &text) {
        file_.write(QByteArray(kind) + ' ' + text.section(u'\n', 0, 0).toUtf8() + '\n');
    }

private:
    QFile file_;
};

class Station {
public:
    explicit Station(const StationOrders &orders)
        : orders_(orders),
          random_(orders.seed * 1009 + static_cast<unsigned>(orders.number * 101 + orders.life)),
          desk_(orders.root, kDesk),
          context_{desk_.context.installation, desk_.context.clock,    desk_.context.ini,
                   desk_.context.session,      desk_.context.options,  messages_,
                   desk_.context.fileDialogs,  desk_.context.printing, desk_.context.frame,
                   desk_.context.conexion,     desk_.context.local,    desk_.context.odonto,
                   desk_.context.caja,         desk_.context.finanzas, desk_.context.escolares},
          receipt_(context_),
          registration_(context_, receipt_),
          repair_(context_),
          ledger_(orders.ledger) {
        desk_.session.Usuario = cashierOf(orders.number);
        desk_.local.Recibos.open();
        repair_.ensureBuilt();
        Application::current()->setFailureHandler([this](const std::exception &failure) {
            messages_.last = QString::fromUtf8(failure.what());
        });
    }

    void work() {
        for (int registered = 0; registered < orders_.notes;) {
            if (oneIn(25)) {
                visitRepair(60);
            }
            if (registerNote()) {
                ++registered;
            } else {
                visitRepair(10);
            }
        }
    }

private:
    bool oneIn(int chances) { return below(chances) == 0; }
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    void arm(int calls) {
        using Kind = Mishap::Kind;
        const int call = 1 + below(calls);
        const int chance = below(100);
        mishap_.arm(chance < 2   ? Kind::Fails
                    : chance < 4 ? Kind::FailsAtCommit
                    : chance < 5 ? Kind::Dies
                                 : Kind::None,
                    call);
        desk_.conexion.setSeam(&mishap_);
    }
    void disarm() {
        mishap_.disarm();
        desk_.conexion.setSeam(nullptr);
    }

    bool registerNote() {
        const bool admission = oneIn(3);
        NoteDraft draft =
            desk_.note(admission ? QStringLiteral("AD - ADMISION") : QStringLiteral("OT - OTROS"),
                       1, oneIn(2) ? QList<int>{1} : QList<int>{1, 2, 3});
        const QString patient =
            QStringLiteral("P%1L%2N%3").arg(orders_.number).arg(orders_.life).arg(++patients_);
        draft.payer.paterno = patient;
        draft.payer.materno.clear();
        draft.payer.nombre.clear();
        arm(16);
        const bool told =
            registration_.registrar(draft, test::paidWith(draft, 0, 0, draft.amounts.importeTotal))
                .registered;
        disarm();
        if (told) {
            ledger_.write(kNoteLine, QStringLiteral("%1 %2 %3 %4")
                                         .arg(draft.notaActual)
                                         .arg(patient)
                                         .arg(draft.lines.size())
                                         .arg(admission ? 1 : 0));
        } else {
            ledger_.write(kToldLine, messages_.last);
        }
        return told;
    }

    void visitRepair(int hesitation) {
        repair_.activated();
        QThread::msleep(static_cast<unsigned long>(below(hesitation)));
        arm(8);
        messages_.last = QStringLiteral("(silence)");
        repair_.findChild<QAbstractButton *>(QStringLiteral("Procesar"))->click();
        disarm();
        ledger_.write(kToldLine, messages_.last);
    }

    StationOrders orders_;
    std::mt19937 random_;
    Mishap mishap_;
    PromptMessages messages_;
    test::Desk desk_;
    Context context_;
    ReceiptPrinter receipt_;
    Registration registration_;
    FRM801 repair_;
    Ledger ledger_;
    int patients_ = 0;
};

}  // namespace

QString cashierOf(int station) {
    return QStringLiteral("cajero%1").arg(station + 1);
}

int runStation(const StationOrders &orders) {
    Station(orders).work();
    return 0;
}

}  // namespace kaldo::prove
