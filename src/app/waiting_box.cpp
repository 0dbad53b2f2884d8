#include "app/waiting_box.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

namespace kaldo {

namespace {

constexpr int kTurnMilliseconds = 20;  ///< of one turn of events
constexpr int kTextCharacters = 58;

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TouchEnd:
        case QEvent::ContextMenu:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

class WaitingBox::Box final : public QDialog {
public:
    explicit Box(const QString &whom) : QDialog(windowInFront()) {
        setObjectName(QStringLiteral("waitingBox"));
        setWindowTitle(QStringLiteral("Espere un momento"));
        setWindowModality(Qt::ApplicationModal);
        setFocusPolicy(Qt::StrongFocus);
        auto *rows = new QVBoxLayout(this);
        rows->setContentsMargins(20, 20, 20, 16);
        rows->setSpacing(14);
        rows->setSizeConstraint(QLayout::SetFixedSize);
        rows->addWidget(line(QStringLiteral("Se espera la respuesta de %1.").arg(whom)));
        waited_ = line({});
        rows->addWidget(waited_);
        rows->addWidget(line(
            QStringLiteral("Si deja de esperar, no se sabrá si lo que se estaba guardando quedó "
                           "guardado: revíselo antes de repetirlo.")));
        auto *button = new Button(this);
        button->setObjectName(QStringLiteral("giveUpButton"));
        button->setText(QStringLiteral("&Dejar de esperar"));
        rows->addWidget(button, 0, Qt::AlignRight);
        connectGuarded(button, &QPushButton::clicked, this, [this] { givenUp_ = true; });
        // The button waits for a Tab: a stroke that was meant for the screen must not press it.
        setFocus();
        setAccessibleName(windowTitle());
        setAccessibleDescription(whom);
    }

    void showWaited(std::chrono::milliseconds waited) {
        const qint64 seconds = waited.count() / 1000;
        if (seconds != shown_) {
            shown_ = seconds;
            waited_->setText(QStringLiteral("Han pasado %1 segundos.").arg(seconds));
        }
    }
    bool givenUp() const { return givenUp_; }

    void reject() override {}

protected:
    void keyPressEvent(QKeyEvent *event) override { event->accept(); }

private:
    QLabel *line(const QString &text) {
        auto *label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(fontMetrics().averageCharWidth() * kTextCharacters);
        return label;
    }

    QLabel *waited_ = nullptr;
    qint64 shown_ = -1;
    bool givenUp_ = false;
};

/// The box, and what is put right again in this order once it has gone.
struct WaitingBox::Standing {
    explicit Standing(const QString &whom) : box(whom) {}

    FocusKeeper::Hold hold;
    ActivationReturn activation;
    Box box;
};

WaitingBox::WaitingBox() = default;
WaitingBox::~WaitingBox() = default;

void WaitingBox::waitingBegan(const QString &whom) {
    standing_ = std::make_unique<Standing>(whom);
    standing_->box.showWaited(std::chrono::seconds(2));
    QCoreApplication::instance()->installEventFilter(this);
    standing_->box.show();
}

bool WaitingBox::stillWaiting(std::chrono::milliseconds waited) {
    standing_->box.showWaited(waited);
    QCoreApplication::processEvents(QEventLoop::AllEvents, kTurnMilliseconds);
    return standing_->box.givenUp();
}

void WaitingBox::waitingEnded() {
    // What was struck while the box stood, and has not been looked at yet, goes with it.
    QCoreApplication::processEvents(QEventLoop::AllEvents, kTurnMilliseconds);
    QCoreApplication::instance()->removeEventFilter(this);
    standing_.reset();
}

bool WaitingBox::belongsToBox(const QObject *receiver) const {
    for (const QObject *each = receiver; each != nullptr; each = each->parent()) {
        if (each == &standing_->box || each == standing_->box.windowHandle()) {
            return true;
        }
    }
    return false;
}

bool WaitingBox::eventFilter(QObject *receiver, QEvent *event) {
    // A timer that isn't heard comes again; one that fires once does so, too.
    const bool held = event->type() == QEvent::Timer || isInput(event->type());
    return held && !belongsToBox(receiver);
}

}  // namespace kaldo
