#pragma once

#include "toolkit/report/document.h"
#include "toolkit/report/page_view.h"
#include "toolkit/report/printing.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QListView;
class QPushButton;
class QSpinBox;

namespace kaldo::report {

/// What the preview's buttons do. Each gets the window as parent for its own dialogs and answers a
/// line to show in it, or nothing. They must not throw.
struct PreviewActions {
    std::function<QString(QWidget *parent)> print;
    std::function<QString(QWidget *parent)> savePdf;
};

/// A document on screen before it goes to paper.
class PreviewWindow : public QDialog {
    Q_OBJECT

public:
    PreviewWindow(const Document &document, const QString &title, const PreviewOptions &options,
                  PreviewActions actions, QWidget *parent = nullptr);

    int page() const { return view_->page(); }
    void showPage(int page);
    PageView *view() const { return view_; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildTools(QHBoxLayout *row);
    void addPageTools(QHBoxLayout *row);
    void addZoomTools(QHBoxLayout *row);
    void buildShortcuts();
    QListView *buildThumbnails();
    QPushButton *button(const char *name, const QString &text, const QString &icon,
                        const QString &tip, std::function<void()> pressed);
    void zoom(int steps);
    void chooseZoom(int index);
    void showZoom();
    void run(const std::function<QString(QWidget *)> &action);

    const Document document_;
    const PreviewActions actions_;
    PageView *view_ = nullptr;
    QSpinBox *pageField_ = nullptr;
    QComboBox *zoomField_ = nullptr;
    QListView *thumbnails_ = nullptr;
    QLabel *notice_ = nullptr;
    QPushButton *first_ = nullptr;
    QPushButton *previous_ = nullptr;
    QPushButton *next_ = nullptr;
    QPushButton *last_ = nullptr;
};

}  // namespace kaldo::report
