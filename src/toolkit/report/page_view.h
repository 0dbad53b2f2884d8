#pragma once

#include "toolkit/report/document.h"

#include <QAbstractScrollArea>

namespace kaldo::report {

/// Shows one page of a document, larger or smaller. Arrow keys scroll; the wheel goes on to the
/// next page at the end of one, with Ctrl it zooms.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    enum class Fit { Width, Page, None };

    /// The document must outlive the view.
    explicit PageView(const Document &document, QWidget *parent = nullptr);

    int page() const { return page_; }
    void setPage(int page);

    Fit fit() const { return fit_; }
    void setFit(Fit fit);

    /// 100 shows a page at its size on paper.
    double percent() const;
    void setPercent(double percent);

    void scrollToEnd();

signals:
    /// The user wants to see another page (from 0, always one that exists).
    void pageWanted(int page, bool atItsEnd);
    /// +1 larger, -1 smaller.
    void zoomWanted(int steps);
    /// The size on screen changed: by setPercent, or because the window did.
    void percentChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    double scale() const;
    double fittedScale() const;
    QSizeF pageSize() const;
    void updateScrollBars();
    bool turn(int pages);

    const Document &document_;
    int page_ = 0;
    Fit fit_ = Fit::Width;
    double percent_ = 100.0;
};

}  // namespace kaldo::report
