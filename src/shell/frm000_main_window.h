#pragma once

#include <QMainWindow>
#include <QMap>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

#include "app/context.h"
#include "app/screen.h"
#include "shell/rights.h"

class QMdiSubWindow;
class QToolBar;

namespace kaldo {

class Backdrop;
class SideBar;
class StatusPanels;
struct MenuEntry;

/// The main window: menu, tool bar, side bar, status bar, and one child screen at a time. It knows
/// no screen by its class; the program registers what each menu entry opens or does.
class FRM000 final : public QMainWindow, public Frame {
    Q_OBJECT

public:
    using ScreenMaker = std::function<std::unique_ptr<Screen>()>;

    /// Builds the widgets and keeps the context without looking at it: the rest of the context may
    /// come to life later. `tick` is the pace of the clock.
    FRM000(Context &context, std::chrono::milliseconds tick);
    ~FRM000() override;

    /// What an entry opens as the child screen.
    void setScreen(const QString &entry, ScreenMaker maker);
    /// What an entry does instead.
    void setHandler(const QString &entry, std::function<void()> handler);

    /// The work of its creation, in order; a failure leaves the rest undone.
    void formCreate();
    /// Opens the ini file anew and takes its keys into the session.
    void Ini();
    void MainSkin();
    /// The look that the ini file names now, at once: colours, and the wallpaper of its library.
    void changeSkin();
    void DisableButtons();
    void EnableButtons();
    /// Status bar and side bar of the user who has just logged in.
    void showUser();
    /// What a login changes before it is done.
    struct Standing {
        Session session;
        ShellRights rights;
    };
    Standing standing() const { return {context_.session, rights_}; }
    /// Takes a login back that was refused or failed: session, rights and what the window shows of
    /// them are again what they were. Throws nothing.
    void restore(const Standing &before);
    /// The end of a login: the window takes input again.
    void startSession();
    bool sessionStarted() const { return sessionStarted_; }

    /// Runs a menu entry whether it is enabled or not.
    void runEntry(const QString &entry);
    /// Closes the child screen.
    void CerrarVentana();
    /// Destroys the child screens, also those that are closing, without asking: the end of the run.
    void dropChildren();
    /// The open child screen; null where there is none.
    Screen *childScreen() const;
    QAction *action(const QString &entry) const;

    /// Runs a call at once, or, while the run loop hasn't begun, in tellWhatWaits().
    void whenRunning(std::function<void()> call);
    /// Shows a failure that is no reason to stop, at the time of whenRunning().
    void tellFailure(const std::exception_ptr &failure);
    /// The run loop has begun.
    void setRunning();
    /// Runs what has waited: once the splash no longer covers the boxes.
    void tellWhatWaits();

    /// The file with the picture of the splash, which goes with the colour scheme.
    const QString &splashPicture() const { return splashPicture_; }

    // Frame
    void openEntry(const QString &entry) override;
    void setEntryEnabled(const QString &entry, bool enabled) override;
    void showRate() override;
    void refreshDeskFigures() override;
    void showNotice(const QString &text) override;
    void beginProgress(int total, double step) override;
    void advanceProgress() override;
    void endProgress() override;

signals:
    /// The daily closing hour has come.
    void closingHour();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenu();
    void buildEntry(QMenu *menu, QMap<QString, QMenu *> *submenus, const MenuEntry &entry);
    void buildToolBar();
    void buildCentre();
    void buildNotice();
    void setDefaultHandlers();
    void applyRights(const ShellRights &rights);
    void assignShortcuts();
    void showSkinNotice(Notice notice);
    void openNoticePage();
    QString skinStem() const;
    void showWallpaper();
    QString pictureFile(const QString &file) const;

    void openScreen(const ScreenMaker &maker);
    void place(QMdiSubWindow *window);
    /// What gave way to a child screen comes back once there is none.
    void childGone();
    /// Alt and a letter belong to the open screen first; a heading whose letter it uses is reached
    /// by Alt alone and the arrows while the screen stands.
    void shareMnemonics(const QWidget *screen);
    void Preliminar();
    void ConfigurarImpresora();
    void FiltroAdmision(const QString &entry, AdmissionFilter filter);
    void showHelp();
    void Timer1();

    Context &context_;
    std::map<QString, ScreenMaker> screens_;
    std::map<QString, std::function<void()>> handlers_;
    QMap<QString, QAction *> actions_;
    QMap<QString, QMenu *> headings_;
    QMap<QString, QMenu *> submenus_;
    QMap<int, QAction *> buttons_;
    QMap<int, QAction *> spacers_;
    QToolBar *toolBar_ = nullptr;
    Backdrop *backdrop_ = nullptr;
    SideBar *sideBar_ = nullptr;
    StatusPanels *panels_ = nullptr;
    QWidget *Panel2_ = nullptr;
    class Button *noticeButton_ = nullptr;
    Notice notice_ = Notice::None;
    ShellRights rights_;
    QString splashPicture_;
    QPointer<QMdiSubWindow> child_;
    QTimer clock_;
    QDateTime lastTick_;
    bool running_ = false;
    std::vector<std::function<void()>> waiting_;
    bool sessionStarted_ = false;
    bool closeAsked_ = false;
    bool sideBarWanted_ = false;
    int progress_ = 0;
};

}  // namespace kaldo
