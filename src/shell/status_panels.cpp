#include "shell/status_panels.h"

#include "shell/main_skin.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QRegularExpression>

namespace kaldo {

namespace {

constexpr int kNoticePanel = 2;
constexpr int kRatePanel = 3;
constexpr int kBarPanel = 4;
/// A loop repaints the window this often, in milliseconds.
constexpr qint64 kRepaint = 50;

/// The path that a text ends in, behind a blank: 1 what stands before it, 2 the name of its file.
const QRegularExpression kPath(QStringLiteral("^(.*?\\s)(?:[A-Za-z]:)?[\\\\/].*?([^\\\\/]+)$"));

}  // namespace

/// The line that tells what went where, in the longest of its forms that there is room for.
class NoticeLabel : public QLabel {
public:
    using QLabel::QLabel;

    void tell(const QString &text) {
        setToolTip(text);
        forms_ = {text};
        if (const QRegularExpressionMatch path = kPath.match(text); path.hasMatch()) {
            forms_ += path.captured(1) + path.captured(2);
            forms_ += QStringLiteral("Archivo: ") + path.captured(2);
            forms_ += path.captured(2);
        }
        fit();
    }

    QSize minimumSizeHint() const override {
        return {fontMetrics().averageCharWidth() * 12, QLabel::minimumSizeHint().height()};
    }

protected:
    void resizeEvent(QResizeEvent *event) override {
        QLabel::resizeEvent(event);
        fit();
    }

private:
    void fit() {
        if (forms_.isEmpty()) {
            return;
        }
        const QString lead = QStringLiteral("   ");
        const int room = contentsRect().width();
        for (const QString &form : forms_) {
            if (fontMetrics().horizontalAdvance(lead + form) <= room) {
                setText(lead + form);
                return;
            }
        }
        setText(fontMetrics().elidedText(lead + forms_.last(), Qt::ElideMiddle, room));
    }

    QStringList forms_;
};

StatusPanels::StatusPanels(QWidget *parent) : QStatusBar(parent), barColour_(baseAccent()) {
    setSizeGripEnabled(false);
    notice_ = new NoticeLabel(this);
    for (int number = 0; number < static_cast<int>(panels_.size()); ++number) {
        QLabel *label = number == kNoticePanel ? notice_ : new QLabel(this);
        label->setObjectName(QStringLiteral("panel%1").arg(number));
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(0, 3, 10, 3);
        panels_[number] = label;
        addPermanentWidget(label, number == kNoticePanel ? 1 : 0);
    }
    QFont bold = font();
    bold.setBold(true);
    panels_[kRatePanel]->setFont(bold);
    QPalette red = panels_[kRatePanel]->palette();
    red.setColor(QPalette::WindowText, QColor(0xc0, 0x1c, 0x28));
    panels_[kRatePanel]->setPalette(red);
    bar_ = new QProgressBar(panels_[kBarPanel]);
    bar_->setObjectName(QStringLiteral("progressBar"));
    bar_->setAccessibleName(QStringLiteral("Avance"));
    bar_->setFixedWidth(fontMetrics().averageCharWidth() * 22);
    bar_->hide();
    panels_[kBarPanel]->setFixedWidth(0);
}

void StatusPanels::setPanel(int panel, const QString &text) {
    panels_[panel]->setText(text);
}

void StatusPanels::showNotice(const QString &text) {
    notice_->tell(text);
}

void StatusPanels::setBarColour(const QColor &colour) {
    barColour_ = colour;
}

void StatusPanels::beginProgress(int total, double step) {
    total_ = total;
    step_ = step;
    position_ = 0;
    panels_[kBarPanel]->setFixedWidth(bar_->width() + 4);
    bar_->setFixedHeight(panels_[kBarPanel]->height() - 4);
    bar_->move(2, 2);
    bar_->setRange(0, qMax(1, total));
    bar_->setValue(0);
    bar_->setTextVisible(false);
    showTextColour(true);
    bar_->show();
    painted_.start();
}

void StatusPanels::advanceProgress() {
    bar_->setTextVisible(true);
    // White until the bar lies under the text, black from then on.
    const bool early = position_ < total_ / 2.0 - 1;
    if (early != early_) {
        showTextColour(early);
    }
    position_ = position_ < total_ ? position_ + step_ : 0;
    bar_->setValue(qMin(total_, static_cast<int>(position_)));
    if (painted_.elapsed() >= kRepaint) {
        painted_.restart();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

void StatusPanels::showTextColour(bool early) {
    bar_->setStyleSheet(
        QStringLiteral("QProgressBar { text-align: center; border: none;"
                       " background: #7c8ba1; color: %1; }"
                       "QProgressBar::chunk { background: %2; }")
            .arg(early ? QStringLiteral("white") : QStringLiteral("black"), barColour_.name()));
    early_ = early;
}

void StatusPanels::endProgress() {
    bar_->hide();
    panels_[kBarPanel]->setFixedWidth(0);
}

}  // namespace kaldo
