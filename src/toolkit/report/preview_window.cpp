#include "toolkit/report/preview_window.h"

#include "toolkit/report/thumbnail_model.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kaldo::report {

namespace {

constexpr std::array zoomSteps{25, 50, 75, 100, 125, 150, 200, 300, 400};
constexpr int fitWidthIndex = 0;
constexpr int fitPageIndex = 1;
constexpr int firstPercentIndex = 2;
constexpr QSize thumbnailSize(112, 144);

}  // namespace

PreviewWindow::PreviewWindow(const Document &document, const QString &title,
                             const PreviewOptions &options, PreviewActions actions, QWidget *parent)
    : QDialog(parent), document_(document), actions_(std::move(actions)) {
    setObjectName(QStringLiteral("PreviewWindow"));
    setWindowTitle(title.isEmpty() ? QStringLiteral("Presentación preliminar")
                                   : QStringLiteral("Presentación preliminar - %1").arg(title));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    view_ = new PageView(document_, this);
    view_->setObjectName(QStringLiteral("pageView"));
    view_->setAccessibleName(QStringLiteral("Página"));
    auto *tools = new QHBoxLayout;
    buildTools(tools);
    auto *middle = new QHBoxLayout;
    if (options.thumbnails)
        middle->addWidget(buildThumbnails());
    middle->addWidget(view_, 1);
    notice_ = new QLabel(this);
    notice_->setObjectName(QStringLiteral("previewNotice"));
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice_->setWordWrap(true);
    notice_->hide();

    auto *all = new QVBoxLayout(this);
    all->addLayout(tools);
    all->addLayout(middle, 1);
    all->addWidget(notice_);

    buildShortcuts();
    connect(view_, &PageView::pageWanted, this, [this](int page, bool atItsEnd) {
        showPage(page);
        if (atItsEnd)
            view_->scrollToEnd();
    });
    connect(view_, &PageView::zoomWanted, this, &PreviewWindow::zoom);
    connect(view_, &PageView::percentChanged, this, &PreviewWindow::showZoom);
    const QSize desk = screen()->availableSize();
    resize(std::min(1280, desk.width() * 95 / 100), desk.height() * 90 / 100);
    showPage(0);
    view_->setFocus();
}

QPushButton *PreviewWindow::button(const char *name, const QString &text, const QString &icon,
                                   const QString &tip, std::function<void()> pressed) {
    auto *result = new QPushButton(this);
    result->setObjectName(QLatin1String(name));
    result->setAutoDefault(false);
    result->setToolTip(tip);
    const QString path = QStringLiteral(":/icons/%1.svg").arg(icon);
    const bool hasIcon = QFile::exists(path);
    if (hasIcon)
        result->setIcon(QIcon(path));
    // Words stay beside their icon; a sign such as "<" only stands in for one.
    const bool isSign = text.size() <= 2;
    if (!isSign || !hasIcon)
        result->setText(text);
    if (isSign)
        result->setAccessibleName(tip);
    connect(result, &QPushButton::clicked, this, std::move(pressed));
    return result;
}

void PreviewWindow::buildTools(QHBoxLayout *row) {
    row->addWidget(button("printButton", QStringLiteral("&Imprimir"), QStringLiteral("print"),
                          QStringLiteral("Imprimir (Ctrl+P)"), [this] { run(actions_.print); }));
    row->addWidget(button("pdfButton", QStringLiteral("&Guardar como PDF"), QStringLiteral("pdf"),
                          QStringLiteral("Guardar como PDF (Ctrl+S)"),
                          [this] { run(actions_.savePdf); }));
    row->addStretch(1);
    addPageTools(row);
    row->addStretch(1);
    addZoomTools(row);
    row->addStretch(1);
    row->addWidget(button("closeButton", QStringLiteral("&Cerrar"), QStringLiteral("close"),
                          QStringLiteral("Cerrar (Esc)"), [this] { reject(); }));
}

void PreviewWindow::addPageTools(QHBoxLayout *row) {
    const int count = std::max(1, document_.pageCount());
    first_ = button("firstButton", QStringLiteral("|<"), QStringLiteral("first"),
                    QStringLiteral("Primera página (Ctrl+Inicio)"), [this] { showPage(0); });
    previous_ =
        button("previousButton", QStringLiteral("<"), QStringLiteral("previous"),
               QStringLiteral("Página anterior (Re Pág)"), [this] { showPage(page() - 1); });
    next_ = button("nextButton", QStringLiteral(">"), QStringLiteral("next"),
                   QStringLiteral("Página siguiente (Av Pág)"), [this] { showPage(page() + 1); });
    last_ =
        button("lastButton", QStringLiteral(">|"), QStringLiteral("last"),
               QStringLiteral("Última página (Ctrl+Fin)"), [this, count] { showPage(count - 1); });
    pageField_ = new QSpinBox(this);
    pageField_->setObjectName(QStringLiteral("pageField"));
    pageField_->setRange(1, count);
    pageField_->setKeyboardTracking(false);
    pageField_->setAlignment(Qt::AlignRight);
    connect(pageField_, &QSpinBox::valueChanged, this,
            [this](int number) { showPage(number - 1); });
    auto *label = new QLabel(QStringLiteral("&Página"), this);
    label->setBuddy(pageField_);
    auto *total = new QLabel(QStringLiteral("de %1").arg(count), this);
    total->setObjectName(QStringLiteral("pageCount"));
    for (QWidget *widget : std::initializer_list<QWidget *>{first_, previous_, label, pageField_,
                                                            total, next_, last_})
        row->addWidget(widget);
}

void PreviewWindow::addZoomTools(QHBoxLayout *row) {
    zoomField_ = new QComboBox(this);
    zoomField_->setObjectName(QStringLiteral("zoomField"));
    zoomField_->addItem(QStringLiteral("Ancho de página"));
    zoomField_->addItem(QStringLiteral("Página completa"));
    for (const int percent : zoomSteps)
        zoomField_->addItem(QStringLiteral("%1 %").arg(percent), percent);
    connect(zoomField_, &QComboBox::activated, this, &PreviewWindow::chooseZoom);
    auto *label = new QLabel(QStringLiteral("&Zoom"), this);
    label->setBuddy(zoomField_);
    row->addWidget(label);
    row->addWidget(button("zoomOutButton", QStringLiteral("-"), QStringLiteral("zoom-out"),
                          QStringLiteral("Reducir (Ctrl+-)"), [this] { zoom(-1); }));
    row->addWidget(zoomField_);
    row->addWidget(button("zoomInButton", QStringLiteral("+"), QStringLiteral("zoom-in"),
                          QStringLiteral("Ampliar (Ctrl++)"), [this] { zoom(1); }));
}

void PreviewWindow::buildShortcuts() {
    const auto on = [this](const QKeySequence &keys, auto handler) {
        auto *shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, handler);
        return shortcut;
    };
    on(Qt::Key_PageUp, [this] { showPage(page() - 1); });
    on(Qt::Key_PageDown, [this] { showPage(page() + 1); });
    on(Qt::CTRL | Qt::Key_Home, [this] { showPage(0); });
    on(Qt::CTRL | Qt::Key_End, [this] { showPage(document_.pageCount() - 1); });
    // On many keyboards "+" needs Shift, and "=" is on its key.
    on(Qt::CTRL | Qt::Key_Plus, [this] { zoom(1); });
    on(Qt::CTRL | Qt::Key_Equal, [this] { zoom(1); });
    on(Qt::CTRL | Qt::Key_Minus, [this] { zoom(-1); });
    on(Qt::CTRL | Qt::Key_0, [this] { chooseZoom(fitPageIndex); });
    on(Qt::CTRL | Qt::Key_1, [this] { chooseZoom(fitWidthIndex); });
    // Held down, they would print again and again where nothing is asked.
    on(Qt::CTRL | Qt::Key_P, [this] { run(actions_.print); })->setAutoRepeat(false);
    on(Qt::CTRL | Qt::Key_S, [this] { run(actions_.savePdf); })->setAutoRepeat(false);
}

/// Enter presses the button that has the focus, as in all windows; a held one presses nothing.
void PreviewWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    auto *focused = qobject_cast<QPushButton *>(focusWidget());
    if (focused && !event->isAutoRepeat())
        focused->click();
}

QListView *PreviewWindow::buildThumbnails() {
    thumbnails_ = new QListView(this);
    thumbnails_->setObjectName(QStringLiteral("thumbnails"));
    thumbnails_->setAccessibleName(QStringLiteral("Guía de hojas"));
    thumbnails_->setViewMode(QListView::IconMode);
    thumbnails_->setFlow(QListView::TopToBottom);
    thumbnails_->setWrapping(false);
    thumbnails_->setMovement(QListView::Static);
    thumbnails_->setUniformItemSizes(true);
    thumbnails_->setSelectionMode(QAbstractItemView::SingleSelection);
    thumbnails_->setIconSize(thumbnailSize);
    thumbnails_->setSpacing(4);
    const int text = fontMetrics().height();
    thumbnails_->setGridSize(thumbnailSize + QSize(24, text + 16));
    thumbnails_->setFixedWidth(thumbnailSize.width() + 48);
    thumbnails_->setModel(
        new ThumbnailModel(document_, thumbnailSize, devicePixelRatioF(), thumbnails_));
    connect(thumbnails_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    showPage(current.row());
            });
    return thumbnails_;
}

void PreviewWindow::showPage(int page) {
    const int last = std::max(0, document_.pageCount() - 1);
    page = std::clamp(page, 0, last);
    if (page != view_->page())
        view_->setPage(page);
    pageField_->setValue(page + 1);
    if (thumbnails_) {
        const QModelIndex index = thumbnails_->model()->index(page, 0);
        thumbnails_->setCurrentIndex(index);
        thumbnails_->scrollTo(index);
    }
    // A button that goes grey under the focus would leave the keyboard nowhere.
    const auto enable = [this](QPushButton *tool, bool on) {
        if (!on && tool->hasFocus())
            view_->setFocus();
        tool->setEnabled(on);
    };
    enable(first_, page > 0);
    enable(previous_, page > 0);
    enable(next_, page < last);
    enable(last_, page < last);
}

void PreviewWindow::zoom(int steps) {
    const double now = view_->percent();
    double wanted = now;
    if (steps > 0) {
        const auto next = std::find_if(zoomSteps.begin(), zoomSteps.end(),
                                       [now](int step) { return step > now + 0.5; });
        wanted = next == zoomSteps.end() ? zoomSteps.back() : *next;
    } else {
        const auto next = std::find_if(zoomSteps.rbegin(), zoomSteps.rend(),
                                       [now](int step) { return step < now - 0.5; });
        wanted = next == zoomSteps.rend() ? zoomSteps.front() : *next;
    }
    view_->setPercent(wanted);
}

void PreviewWindow::chooseZoom(int index) {
    if (index == fitWidthIndex)
        view_->setFit(PageView::Fit::Width);
    else if (index == fitPageIndex)
        view_->setFit(PageView::Fit::Page);
    else
        view_->setPercent(zoomField_->itemData(index).toDouble());
}

void PreviewWindow::showZoom() {
    int index = view_->fit() == PageView::Fit::Width ? fitWidthIndex : fitPageIndex;
    if (view_->fit() == PageView::Fit::None) {
        const auto step = std::find(zoomSteps.begin(), zoomSteps.end(),
                                    static_cast<int>(std::lround(view_->percent())));
        index = step == zoomSteps.end()
                    ? -1
                    : firstPercentIndex + static_cast<int>(step - zoomSteps.begin());
    }
    zoomField_->setCurrentIndex(index);
}

void PreviewWindow::run(const std::function<QString(QWidget *)> &action) {
    if (!action)
        return;
    const QString text = action(this);
    notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
}

}  // namespace kaldo::report
