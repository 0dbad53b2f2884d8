#include "shell/frm000_main_window.h"

#include "shell/backdrop.h"
#include "shell/help_window.h"
#include "shell/menu_entries.h"
#include "shell/side_bar.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/list_popup.h"

#include <QActionEvent>
#include <QActionGroup>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSet>
#include <QToolBar>

namespace kaldo {

namespace {

/// A menu bar that isn't laid out anew for each heading that is switched off with it. On the way
/// back each heading lays it out, with all that changed meanwhile.
class MenuBar final : public QMenuBar {
protected:
    void actionEvent(QActionEvent *event) override {
        if (event->type() == QEvent::ActionChanged && !isEnabled()) {
            update();
        } else {
            QMenuBar::actionEvent(event);
        }
    }
};

/// A menu whose entries bear no letters of their own: the first letter of a caption goes to it, and
/// to the next one that begins so.
class LetterMenu final : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void keyPressEvent(QKeyEvent *event) override {
        const bool plain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
        QAction *next = plain ? entryAfter(activeAction(), event->text()) : nullptr;
        if (next != nullptr) {
            setActiveAction(next);
            event->accept();
        } else {
            QMenu::keyPressEvent(event);
        }
    }

private:
    QAction *entryAfter(QAction *current, const QString &letter) const {
        if (letter.size() != 1 || !letter.at(0).isLetterOrNumber()) {
            return nullptr;
        }
        const QList<QAction *> all = actions();
        const auto start = all.indexOf(current) + 1;
        for (qsizetype step = 0; step < all.size(); ++step) {
            QAction *entry = all.at((start + step) % all.size());
            if (entry->isEnabled() && entry->isVisible() && !entry->isSeparator() &&
                foldedText(entry->text()).startsWith(foldedText(letter))) {
                return entry;
            }
        }
        return nullptr;
    }
};

}  // namespace

void FRM000::buildMenu() {
    setMenuBar(new MenuBar);
    for (const MenuHeading &heading : menuHeadings()) {
        const QString name = QString::fromLatin1(heading.name);
        auto *menu = new LetterMenu(QString::fromUtf8(heading.caption), menuBar());
        menuBar()->addMenu(menu);
        menu->setObjectName(name);
        headings_.insert(name, menu);
        for (const MenuEntry &entry : heading.entries) {
            buildEntry(menu, &submenus_, entry);
        }
        // The menu itself: its action follows it each time the window is disabled and enabled.
        menu->setEnabled(!heading.entries.empty());
    }
    auto *filters = new QActionGroup(this);
    for (const char *name : {"D1a", "D1b", "D1c"}) {
        QAction *filter = action(QString::fromLatin1(name));
        filter->setCheckable(true);
        filters->addAction(filter);
    }
    action(QStringLiteral("D1a"))->setChecked(true);
    action(QStringLiteral("CancelarSA1"))->setVisible(false);
}

void FRM000::buildEntry(QMenu *menu, QMap<QString, QMenu *> *submenus, const MenuEntry &entry) {
    const QString caption = QString::fromUtf8(entry.caption);
    if (caption.isEmpty()) {
        menu->addSeparator();
        return;
    }
    const QString submenu = QString::fromLatin1(entry.submenu);
    if (!submenu.isEmpty()) {
        QMenu *&inner = (*submenus)[submenu];
        if (inner == nullptr) {
            inner = new LetterMenu(submenuCaption(submenu), menu);
            menu->addMenu(inner);
            inner->setObjectName(submenu);
        }
        menu = inner;
    }
    const QString name = QString::fromLatin1(entry.name);
    QAction *item = menu->addAction(caption);
    item->setObjectName(name);
    item->setMenuRole(QAction::NoRole);
    connectGuarded(item, &QAction::triggered, this, [this, name] { runEntry(name); });
    actions_.insert(name, item);
}

void FRM000::buildToolBar() {
    toolBar_ = addToolBar(QStringLiteral("Herramientas"));
    toolBar_->setObjectName(QStringLiteral("toolBar"));
    toolBar_->setMovable(false);
    toolBar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolBar_->setIconSize(QSize(28, 28));
    toolBar_->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolEntry &entry : toolEntries()) {
        const QString target = QString::fromLatin1(entry.entry);
        QAction *button = toolBar_->addAction(iconNamed(QString::fromLatin1(entry.icon)),
                                              QString::fromUtf8(entry.caption));
        button->setObjectName(QStringLiteral("ToolButton%1").arg(entry.number));
        QAction *item = action(target);
        button->setToolTip(item->text());
        const auto follow = [button, item] { button->setEnabled(item->isEnabled()); };
        connectGuarded(item, &QAction::changed, button, follow);
        follow();
        connectGuarded(button, &QAction::triggered, item, &QAction::trigger);
        buttons_.insert(entry.number, button);
        if (entry.separatorAfter > 0) {
            QAction *spacer = toolBar_->addSeparator();
            spacer->setObjectName(QStringLiteral("Spacer%1").arg(entry.separatorAfter));
            spacers_.insert(entry.separatorAfter, spacer);
        }
    }
}

QAction *FRM000::action(const QString &entry) const {
    return actions_.value(entry);
}

void FRM000::setScreen(const QString &entry, ScreenMaker maker) {
    screens_[entry] = std::move(maker);
}

void FRM000::setHandler(const QString &entry, std::function<void()> handler) {
    handlers_[entry] = std::move(handler);
}

void FRM000::setDefaultHandlers() {
    setHandler(QStringLiteral("A1"), [this] { Preliminar(); });
    setHandler(QStringLiteral("A2"), [this] { ConfigurarImpresora(); });
    setHandler(QStringLiteral("A4"), [this] { close(); });
    setHandler(QStringLiteral("D1a"),
               [this] { FiltroAdmision(QStringLiteral("D1a"), AdmissionFilter::Today); });
    setHandler(QStringLiteral("D1b"),
               [this] { FiltroAdmision(QStringLiteral("D1b"), AdmissionFilter::Authorised); });
    setHandler(QStringLiteral("D1c"),
               [this] { FiltroAdmision(QStringLiteral("D1c"), AdmissionFilter::LastMonth); });
    setHandler(QStringLiteral("E7"), [this] {
        CerrarVentana();
        throw std::runtime_error("La pantalla de abonos no está abierta.");
    });
    setHandler(QStringLiteral("K1"), [this] { showHelp(); });
}

void FRM000::openEntry(const QString &entry) {
    QAction *item = action(entry);
    if (item != nullptr && item->isEnabled()) {
        item->trigger();
    }
}

void FRM000::setEntryEnabled(const QString &entry, bool enabled) {
    if (QAction *item = action(entry)) {
        item->setEnabled(enabled);
        assignShortcuts();
    }
}

void FRM000::runEntry(const QString &entry) {
    if (entry == QLatin1String("E2") || entry == QLatin1String("F1")) {
        context_.session.ModoEstadoExpediente = entry == QLatin1String("F1");
    }
    if (entry == QLatin1String("A3") && context_.session.Acceso.text() != QLatin1String("AM") &&
        context_.session.Acceso.text() != QLatin1String("CA")) {
        return;
    }
    if (const auto maker = screens_.find(entry); maker != screens_.end()) {
        openScreen(maker->second);
    } else if (const auto handler = handlers_.find(entry); handler != handlers_.end()) {
        handler->second();
    } else if (kindOf(entry) == EntryKind::Screen) {
        context_.messages.information(
            QStringLiteral("La pantalla «%1» todavía no está disponible en esta versión.")
                .arg(action(entry)->text()));
    }
}

void FRM000::DisableButtons() {
    applyRights(rightsOfNobody());
}

void FRM000::EnableButtons() {
    DisableButtons();
    NamedQuery &rights = context_.odonto.Usuarios_Mant1;
    rights.open({{QStringLiteral("usuario"), context_.session.Usuario.text()}});
    const ShellRights granted = rightsOf(
        context_.session.Acceso,
        [&rights](const QString &column) { return rights.text(column) == QLatin1String("S"); },
        context_.clock.today().month());
    applyRights(granted);
    showSkinNotice(granted.notice);
    if (granted.caption) {
        try {
            MainSkin();
        } catch (const std::exception &) {
            // Told, but no reason to keep anybody out.
            tellFailure(std::current_exception());
        }
    }
    if (context_.session.AnioActual == 0) {
        context_.session.AnioActual = static_cast<qint16>(context_.clock.today().year());
    }
}

void FRM000::applyRights(const ShellRights &rights) {
    rights_ = rights;
    for (auto item = actions_.begin(); item != actions_.end(); ++item) {
        item.value()->setEnabled(rights.enabled.contains(item.key()));
    }
    for (const char *name : {"D1a", "D1b", "D1c"}) {
        const QString entry = QString::fromLatin1(name);
        action(entry)->setVisible(rights.shown.contains(entry));
    }
    headings_[QStringLiteral("I0")]->menuAction()->setVisible(
        rights.shown.contains(QStringLiteral("I0")));
    submenus_[QStringLiteral("BS1")]->menuAction()->setVisible(
        rights.shown.contains(QStringLiteral("BS1")));
    for (auto button = buttons_.begin(); button != buttons_.end(); ++button) {
        button.value()->setVisible(rights.buttons.contains(button.key()));
    }
    spacers_[2]->setVisible(rights.spacer2);
    spacers_[3]->setVisible(rights.spacer3);
    if (sideBar_ != nullptr) {
        sideBarWanted_ = rights.sideBar;
        sideBar_->setVisible(sideBarWanted_);
        sideBar_->setGroups(rights.rateGroup, rights.deskGroup, rights.sitesGroup);
        backdrop_->setCaptionVisible(rights.caption);
    }
    assignShortcuts();
}

void FRM000::assignShortcuts() {
    // A key that stands at two entries belongs to the first that is enabled, in menu order.
    QSet<QString> taken;
    for (const MenuHeading &heading : menuHeadings()) {
        for (const MenuEntry &entry : heading.entries) {
            const QString key = QString::fromLatin1(entry.key);
            if (key.isEmpty()) {
                continue;
            }
            QAction *item = action(QString::fromLatin1(entry.name));
            const bool owns = item->isEnabled() && !taken.contains(key);
            item->setShortcut(owns ? QKeySequence(key) : QKeySequence());
            if (owns) {
                taken.insert(key);
            }
        }
    }
}

void FRM000::FiltroAdmision(const QString &entry, AdmissionFilter filter) {
    action(entry)->setChecked(true);
    context_.session.FiltroAdmision = filter;
}

void FRM000::showHelp() {
    // A modal dialog takes the input of all windows but its own.
    auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
    QWidget *host = dialog != nullptr ? static_cast<QWidget *>(dialog) : this;
    auto *help = host->findChild<HelpWindow *>(QString(), Qt::FindDirectChildrenOnly);
    if (help == nullptr) {
        help = new HelpWindow(host);
        if (dialog != nullptr) {
            connectGuarded(dialog, &QDialog::finished, help, &QWidget::close);
        }
    }
    const QWidget *screen = dialog;
    if (screen == nullptr) {
        screen = childScreen();
    }
    help->showPage(screen != nullptr ? screen->objectName() : objectName());
}

}  // namespace kaldo
