#include "shell/frm000_main_window.h"

#include "shell/backdrop.h"
#include "shell/menu_entries.h"
#include "shell/side_bar.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMdiSubWindow>
#include <QMenu>
#include <QSet>

namespace kaldo {

namespace {

/// Screens stand this much above the middle, so that boxes over them don't hide their fields.
constexpr int kAboveMiddle = 80;

QSet<QKeySequence> mnemonicsOf(const QWidget *screen) {
    QSet<QKeySequence> letters;
    for (const auto *button : screen->findChildren<QAbstractButton *>()) {
        letters += QKeySequence::mnemonic(button->text());
    }
    for (const auto *label : screen->findChildren<QLabel *>()) {
        if (label->buddy() != nullptr) {
            letters += QKeySequence::mnemonic(label->text());
        }
    }
    letters -= QKeySequence();
    return letters;
}

/// Where the keys go in a screen that asks for no field: its first field or list, not a button.
QWidget *firstField(QWidget *screen) {
    for (QWidget *at = screen->nextInFocusChain(); at != screen && screen->isAncestorOf(at);
         at = at->nextInFocusChain()) {
        if ((at->focusPolicy() & Qt::TabFocus) != 0 && at->isEnabled() && at->isVisibleTo(screen) &&
            qobject_cast<QAbstractButton *>(at) == nullptr) {
            return at;
        }
    }
    return nullptr;
}

}  // namespace

Screen *FRM000::childScreen() const {
    // A closed window lives on until the event loop turns.
    return child_ && !child_->isHidden() ? qobject_cast<Screen *>(child_->widget()) : nullptr;
}

void FRM000::CerrarVentana() {
    const QList<QMdiSubWindow *> windows = backdrop_->subWindowList(QMdiArea::CreationOrder);
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        (*window)->close();
    }
    childGone();
}

void FRM000::childGone() {
    if (childScreen() == nullptr) {
        sideBar_->setVisible(sideBarWanted_);
        shareMnemonics(nullptr);
    }
}

void FRM000::dropChildren() {
    // Also those that are closed and wait for the event loop: screens speak to the window as they
    // go.
    qDeleteAll(backdrop_->findChildren<QMdiSubWindow *>());
}

void FRM000::openScreen(const ScreenMaker &maker) {
    CerrarVentana();
    if (childScreen() != nullptr) {
        return;  // it refused to close
    }
    // Now, not when the event loop turns: a screen gives back what it shares as it goes, and would
    // take it from the next one.
    delete child_;
    Screen *screen = maker().release();
    QMdiSubWindow *window = backdrop_->addSubWindow(screen);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowIcon(windowIcon());
    child_ = window;
    connectGuarded(screen, &Screen::closeRequested, window, [window] { window->close(); });
    connectGuarded(screen, &QObject::destroyed, window, &QObject::deleteLater);
    // Later: while a widget tells its destruction, a guarded pointer to it still stands.
    connectGuarded(window, &QObject::destroyed, sideBar_,
                   [this] { QTimer::singleShot(0, sideBar_, guarded([this] { childGone(); })); });
    place(window);
    shareMnemonics(screen);
    // A menu gives the focus back to where it was, which may be nowhere.
    if (QWidget *field = firstField(screen)) {
        moveFocus(field);
    }
    screen->open();
}

void FRM000::shareMnemonics(const QWidget *screen) {
    const QSet<QKeySequence> taken = screen != nullptr ? mnemonicsOf(screen) : QSet<QKeySequence>();
    for (const MenuHeading &heading : menuHeadings()) {
        QString title = heading.caption;
        if (taken.contains(QKeySequence::mnemonic(title))) {
            title.remove(u'&');
        }
        headings_.value(heading.name)->setTitle(title);
    }
}

void FRM000::place(QMdiSubWindow *window) {
    const QSize size = window->sizeHint();
    // On a small desktop the side bar gives way to a wide screen while that is open.
    sideBar_->setVisible(sideBarWanted_);
    centralWidget()->layout()->activate();
    if (sideBarWanted_ && size.width() > backdrop_->width()) {
        sideBar_->hide();
        centralWidget()->layout()->activate();
    }
    const QSize area = backdrop_->viewport()->size();
    if (size.width() > area.width() || size.height() > area.height()) {
        window->showMaximized();
        return;
    }
    const int left = (area.width() - size.width()) / 2;
    const int middle = (area.height() - size.height()) / 2;
    window->setGeometry(QRect(QPoint(left, qMax(0, middle - kAboveMiddle)), size));
    window->show();
}

void FRM000::Preliminar() {
    Screen *screen = childScreen();
    if (screen == nullptr) {
        return;
    }
    for (const QString &name : previewOrder()) {
        if (screen->objectName() == name) {
            screen->previewReport();
        }
    }
}

void FRM000::ConfigurarImpresora() {
    const int current = context_.session.ImpresoraIndice;
    const int chosen = context_.printing.choosePrinter(this, current);
    const Screen *screen = childScreen();
    if (screen != nullptr && screen->keepsPrinter()) {
        context_.session.ImpresoraIndice = chosen;
    }
}

}  // namespace kaldo
