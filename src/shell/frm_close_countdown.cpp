#include "shell/frm_close_countdown.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/form.h"

#include <QCloseEvent>

namespace kaldo {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kWhole = 3min;
constexpr int kPicture = 56;

const QString kAnnouncement = QStringLiteral("Este equipo esta configurado para apagar KALDO en: ");

QString clockText(std::chrono::milliseconds left) {
    return QTime(0, 0)
        .addMSecs(static_cast<int>(left.count()))
        .toString(QStringLiteral("HH:mm:ss"));
}

}  // namespace

FRMClose::FRMClose(Context &context, const CountDownPace &pace)
    : Dialog(context, QStringLiteral("FRMClose"), QStringLiteral("KALDO")), pace_(pace) {
    clock_.setInterval(pace.tick);
    connectGuarded(&clock_, &QTimer::timeout, this, [this] { Timer1(); });
}

void FRMClose::build() {
    using namespace form;
    const auto glyph = [](const QString &icon) {
        return [icon](QLabel *label) {
            label->setPixmap(
                iconNamed(icon).pixmap(QSize(kPicture, kPicture), label->devicePixelRatioF()));
        };
    };
    const auto large = [](QLabel *label) {
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 2);
        font.setBold(true);
        label->setFont(font);
    };
    form::build(
        this, column({
                  row({form::label(&Image1_, QStringLiteral("Image1"))
                           .with(glyph(QStringLiteral("clock"))),
                       form::label(&Image2_, QStringLiteral("Image2"))
                           .with(glyph(QStringLiteral("exit"))),
                       panel(nullptr, QStringLiteral("Panel1"),
                             column({
                                 form::label(&Label1_, QStringLiteral("Label1"), kAnnouncement),
                                 row({form::label(&Label2_, QStringLiteral("Label2")).with(large),
                                      form::label(&Label3_, QStringLiteral("Label3")), stretch()}),
                             }))
                           .grow()}),
                  row({stretch(),
                       button(&BitBtn1_, QStringLiteral("BitBtn1"), QStringLiteral("&Cancelar"))
                           .icon(QStringLiteral("cancel"))
                           .escape()
                           .clicked([this] { reject(); })}),
              }));
    Label1_->setMinimumWidth(Label1_->sizeHint().width());  // for the shorter farewell, too
}

void FRMClose::begin() {
    if (farewell_) {
        return;
    }
    ensureBuilt();
    left_ = kWhole;
    Image1_->show();
    Image2_->hide();
    Label1_->setText(kAnnouncement);
    Label2_->setText(clockText(left_));
    Label3_->setText(QStringLiteral("Min."));
    clock_.start();
    showInFront();
}

void FRMClose::Timer1() {
    left_ -= 1s;
    if (left_ < 0s) {
        return;
    }
    Label2_->setText(clockText(left_));
    if (left_ == 59s) {
        Label3_->setText(QStringLiteral("Seg."));
    }
    if (left_ == 0s) {
        sayFarewell();
    }
}

void FRMClose::sayFarewell() {
    farewell_ = true;
    clock_.stop();
    Image1_->hide();
    Image2_->show();
    Label1_->setText(QStringLiteral("Cerrando KALDO automáticamente..."));
    Label2_->clear();
    Label3_->clear();
    BitBtn1_->setEnabled(false);
    showInFront();
    QTimer::singleShot(pace_.farewell, this, [] { Application::current()->endApplication(); });
}

void FRMClose::showInFront() {
    // Shown afresh, it blocks every window that was opened since.
    hide();
    below_ = windowInFront();
    setEnabled(
        true);  // under the login the main window is disabled, and with it what belongs to it
    show();
    raise();
    activateWindow();
    moveFocus(BitBtn1_);
}

void FRMClose::reject() {
    if (farewell_) {
        return;
    }
    Dialog::reject();
    if (below_ && below_->isVisible()) {
        below_->activateWindow();
    }
}

void FRMClose::closeEvent(QCloseEvent *event) {
    if (farewell_) {
        event->ignore();
        return;
    }
    clock_.stop();
    Dialog::closeEvent(event);
}

}  // namespace kaldo
