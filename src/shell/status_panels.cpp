#include "shell/status_panels.h"

#include "shell/main_skin.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>

namespace kaldo {

namespace {

constexpr int kNoticePanel = 2;
constexpr int kRatePanel = 3;
constexpr int kBarPanel = 4;
/// A loop repaints the window this often, in milliseconds.
constexpr qint64 kRepaint = 50;

}  // namespace

StatusPanels::StatusPanels(QWidget *parent) : QStatusBar(parent), barColour_(baseAccent()) {
    setSizeGripEnabled(false);
    for (int number = 0; number < static_cast<int>(panels_.size()); ++number) {
        auto *label = new QLabel(this);
        label->setObjectName(QStringLiteral("panel%1").arg(number));
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(0, 3, 10, 3);
        panels_[number] = label;
        addPermanentWidget(label, number == kNoticePanel ? 1 : 0);
    }
    panels_[kNoticePanel]->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    QFont bold = font();
    bold.setBold(true);
    panels_[kRatePanel]->setFont(bold);
    QPalette red = panels_[kRatePanel]->palette();
    red.setColor(QPalette::WindowText, QColor(0xc0, 0x1c, 0x28));
    panels_[kRatePanel]->setPalette(red);
    panels_[kBarPanel]->setFixedWidth(fontMetrics().averageCharWidth() * 22);
    bar_ = new QProgressBar(panels_[kBarPanel]);
    bar_->setObjectName(QStringLiteral("progressBar"));
    bar_->setAccessibleName(QStringLiteral("Avance"));
    bar_->hide();
}

void StatusPanels::setPanel(int panel, const QString &text) {
    texts_[panel] = text;
    if (panel == kNoticePanel) {
        panels_[panel]->setToolTip(text.trimmed());
        elide(panel);
    } else {
        panels_[panel]->setText(text);
    }
}

QString StatusPanels::panel(int number) const {
    return texts_[number];
}

void StatusPanels::elide(int panel) {
    QLabel *label = panels_[panel];
    const int room = label->width() - 12;
    label->setText(label->fontMetrics().elidedText(texts_[panel], Qt::ElideMiddle, room));
}

void StatusPanels::resizeEvent(QResizeEvent *event) {
    QStatusBar::resizeEvent(event);
    elide(kNoticePanel);
}

void StatusPanels::setBarColour(const QColor &colour) {
    barColour_ = colour;
}

void StatusPanels::beginProgress(int total, double step) {
    total_ = total;
    step_ = step;
    position_ = 0;
    bar_->setGeometry(panels_[kBarPanel]->rect().adjusted(2, 2, -2, -2));
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
}

}  // namespace kaldo
