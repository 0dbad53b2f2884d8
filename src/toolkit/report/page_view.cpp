#include "toolkit/report/page_view.h"

#include "toolkit/report/paint.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kaldo::report {

namespace {

constexpr int gap = 12;  ///< Pixels of ground around the page
constexpr double leastPercent = 10.0;
constexpr double mostPercent = 800.0;

}  // namespace

PageView::PageView(const Document &document, QWidget *parent)
    : QAbstractScrollArea(parent), document_(document) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
}

void PageView::setPage(int page) {
    page_ = std::clamp(page, 0, std::max(0, document_.pageCount() - 1));
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

void PageView::setFit(Fit fit) {
    if (fit == Fit::None)
        percent_ = percent();
    fit_ = fit;
    updateScrollBars();
}

void PageView::setPercent(double percent) {
    fit_ = Fit::None;
    percent_ = std::clamp(percent, leastPercent, mostPercent);
    updateScrollBars();
}

double PageView::percent() const {
    return scale() * 25.4 / logicalDpiX() * 100.0;
}

/// Pixels to the millimetre.
double PageView::scale() const {
    return fit_ == Fit::None ? percent_ / 100.0 * logicalDpiX() / 25.4 : fittedScale();
}

double PageView::fittedScale() const {
    const QSizeF paper = document_.setup.paper;
    // Without scroll bars, and with room kept for the vertical one where it must appear, or else
    // the width would swing between the two.
    const QSizeF room(maximumViewportSize() - QSize(2 * gap, 2 * gap));
    double result = room.width() / paper.width();
    if (fit_ == Fit::Page)
        result = std::min(result, room.height() / paper.height());
    else if (result * paper.height() > room.height())
        result = (room.width() - verticalScrollBar()->sizeHint().width()) / paper.width();
    return std::max(result, leastPercent / 100.0 * logicalDpiX() / 25.4);
}

QSizeF PageView::pageSize() const {
    return document_.setup.paper * scale();
}

void PageView::updateScrollBars() {
    const QSize room = viewport()->size();
    const QSize all = pageSize().toSize() + QSize(2 * gap, 2 * gap);
    horizontalScrollBar()->setRange(0, std::max(0, all.width() - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(30);
    verticalScrollBar()->setRange(0, std::max(0, all.height() - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(30);
    viewport()->update();
    emit percentChanged();
}

void PageView::scrollToEnd() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void PageView::paintEvent(QPaintEvent *) {
    if (document_.pages.empty())
        return;
    QPainter painter(viewport());
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    const QSizeF size = pageSize();
    const QSize room = viewport()->size();
    const double x = std::max<double>(gap, (room.width() - size.width()) / 2.0);
    const double y = std::max<double>(gap, (room.height() - size.height()) / 2.0);
    const QRectF sheet(QPointF(std::round(x - horizontalScrollBar()->value()),
                               std::round(y - verticalScrollBar()->value())),
                       size);
    painter.fillRect(sheet.translated(3, 3), QColor(0, 0, 0, 60));
    painter.fillRect(sheet, Qt::white);
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(scale(), scale());
    paint(document_, page_, painter);
}

void PageView::resizeEvent(QResizeEvent *) {
    updateScrollBars();
}

void PageView::focusInEvent(QFocusEvent *event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PageView::focusOutEvent(QFocusEvent *event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

bool PageView::turn(int pages) {
    const int wanted = page_ + pages;
    if (wanted < 0 || wanted >= document_.pageCount())
        return false;
    emit pageWanted(wanted, pages < 0);
    return true;
}

void PageView::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
        case Qt::Key_Home:
            emit pageWanted(0, false);
            return;
        case Qt::Key_End:
            emit pageWanted(std::max(0, document_.pageCount() - 1), false);
            return;
        case Qt::Key_Space: {
            QScrollBar *bar = verticalScrollBar();
            if (bar->value() < bar->maximum())
                bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
            else
                turn(1);
            return;
        }
        default:
            QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageView::wheelEvent(QWheelEvent *event) {
    const int delta = event->angleDelta().y();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        if (delta != 0)
            emit zoomWanted(delta > 0 ? 1 : -1);
        event->accept();
        return;
    }
    const QScrollBar *bar = verticalScrollBar();
    const bool pastEnd = delta < 0 && bar->value() == bar->maximum();
    const bool pastTop = delta > 0 && bar->value() == bar->minimum();
    if ((pastEnd && turn(1)) || (pastTop && turn(-1))) {
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

}  // namespace kaldo::report
