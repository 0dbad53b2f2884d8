#include "shell/status_panels.h"

#include "shell/main_skin.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace kaldo {

namespace {

constexpr int kUserPanel = 0;
constexpr int kGreetingPanel = 1;
constexpr int kNoticePanel = 2;
constexpr int kRatePanel = 3;
constexpr int kBarPanel = 4;
constexpr int kCityPanel = 5;
constexpr int kPanels = 7;
/// Blank behind the text of a panel, in pixels.
constexpr int kGap = 14;
/// A panel that gives room away keeps that of so many characters.
constexpr int kLeast = 14;
constexpr int kBarCharacters = 22;
/// A loop repaints the window this often, in milliseconds.
constexpr qint64 kRepaint = 50;

/// The path that a text ends in, behind a blank: 1 what stands before it, 2 the name of its file.
const QRegularExpression kPath(QStringLiteral("^(.*?\\s)(?:[A-Za-z]:)?[\\\\/].*?([^\\\\/]+)$"));

/// A panel: its text, or the longest of the forms of it that there is room for.
class Panel : public QLabel {
public:
    explicit Panel(QWidget *parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    void setForms(const QStringList &forms) {
        forms_ = forms;
        choose();
    }
    int wanted() const { return widthOf(forms_.value(0)); }
    /// Room for the shortest form.
    int needed() const { return widthOf(forms_.value(forms_.size() - 1)); }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        const bool file = forms_.size() > 1;
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), file ? Qt::ElideMiddle : Qt::ElideRight,
                                                  width() - kGap / 2));
    }
    void resizeEvent(QResizeEvent *event) override {
        QLabel::resizeEvent(event);
        choose();
    }

private:
    int widthOf(const QString &form) const {
        return form.isEmpty() ? 0 : fontMetrics().horizontalAdvance(form) + kGap;
    }
    void choose() {
        const auto fits = [this](const QString &form) { return widthOf(form) <= width(); };
        const auto longest = std::find_if(forms_.begin(), forms_.end(), fits);
        setText(longest != forms_.end() ? *longest : forms_.value(forms_.size() - 1));
        setToolTip(wanted() > width() ? forms_.value(0).trimmed() : QString());
    }

    QStringList forms_;
};

}  // namespace

/// Deals the width out to the panels.
class PanelRow : public QWidget {
public:
    explicit PanelRow(QWidget *parent) : QWidget(parent) {
        for (int number = 0; number < kPanels; ++number) {
            panels_[number] = new Panel(this);
            panels_[number]->setObjectName(QStringLiteral("panel%1").arg(number));
        }
        setMinimumHeight(fontMetrics().height() + 8);
    }

    Panel *panel(int number) const { return panels_[number]; }
    void setBarShown(bool shown) {
        barShown_ = shown;
        arrange();
    }
    void arrange() {
        std::array<int, kPanels> widths{};
        int others = 0;
        for (int number = 0; number < kPanels; ++number) {
            widths[number] = number == kBarPanel ? barWidth() : panels_[number]->wanted();
            others += number == kNoticePanel ? 0 : widths[number];
        }
        const int least = fontMetrics().averageCharWidth() * kLeast;
        for (const int giver : {kGreetingPanel, kUserPanel, kCityPanel}) {
            const int lack = panels_[kNoticePanel]->needed() + others - width();
            const int given = qMax(0, qMin(lack, widths[giver] - least));
            widths[giver] -= given;
            others -= given;
        }
        widths[kNoticePanel] = qMax(0, width() - others);
        int left = 0;
        for (int number = 0; number < kPanels; ++number) {
            panels_[number]->setGeometry(left, 0, widths[number], height());
            panels_[number]->update();
            left += widths[number];
        }
    }

protected:
    void resizeEvent(QResizeEvent *event) override {
        QWidget::resizeEvent(event);
        arrange();
    }

private:
    int barWidth() const {
        return barShown_ ? fontMetrics().averageCharWidth() * kBarCharacters + kGap : 0;
    }

    std::array<Panel *, kPanels> panels_{};
    bool barShown_ = false;
};

StatusPanels::StatusPanels(QWidget *parent) : QStatusBar(parent), barColour_(baseAccent()) {
    setSizeGripEnabled(false);
    row_ = new PanelRow(this);
    addPermanentWidget(row_, 1);
    Panel *rate = row_->panel(kRatePanel);
    QFont bold = font();
    bold.setBold(true);
    rate->setFont(bold);
    paintRate();
    bar_ = new QProgressBar(row_->panel(kBarPanel));
    bar_->setObjectName(QStringLiteral("progressBar"));
    bar_->setAccessibleName(QStringLiteral("Avance"));
    bar_->hide();
}

void StatusPanels::paintRate() {
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    QPalette red;
    red.setColor(QPalette::WindowText, dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xc0, 0x1c, 0x28));
    row_->panel(kRatePanel)->setPalette(red);
}

void StatusPanels::changeEvent(QEvent *event) {
    QStatusBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && row_ != nullptr) {
        paintRate();
    }
}

void StatusPanels::setPanel(int panel, const QStringList &forms) {
    row_->panel(panel)->setForms(forms);
    row_->arrange();
}

void StatusPanels::showNotice(const QString &text) {
    const QString lead = QStringLiteral("   ");
    QStringList forms{text.isEmpty() ? text : lead + text};
    if (const QRegularExpressionMatch path = kPath.match(text); path.hasMatch()) {
        const QString file = path.captured(2);
        forms += lead + path.captured(1) + file;
        forms += lead + QStringLiteral("Archivo: ") + file;
        forms += lead + file;
    }
    row_->panel(kNoticePanel)->setForms(forms);
    row_->arrange();
}

void StatusPanels::setBarColour(const QColor &colour) {
    barColour_ = colour;
}

void StatusPanels::beginProgress(int total, double step) {
    total_ = total;
    step_ = step;
    position_ = 0;
    row_->setBarShown(true);
    bar_->setGeometry(row_->panel(kBarPanel)->rect().adjusted(0, 2, -kGap, -2));
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
    row_->setBarShown(false);
}

}  // namespace kaldo
