#pragma once

#include <QDialog>
#include <QWidget>

#include "app/context.h"

namespace kaldo {

/// What child screens and dialogs have in common: the context, the work of their creation, and
/// the moment when they become the one in front.
class ScreenBase {
public:
    explicit ScreenBase(Context &context) : context_(context) {}
    virtual ~ScreenBase() = default;
    ScreenBase(const ScreenBase &) = delete;
    ScreenBase &operator=(const ScreenBase &) = delete;

    /// Called when the screen is shown, and when a dialog or a preview above it has closed; not
    /// after a message box.
    virtual void activated() {}

protected:
    Context &context() const { return context_; }
    Session &session() const { return context_.session; }
    const Options &options() const { return context_.options; }
    Messages &messages() const { return context_.messages; }

    /// "Campo <name> Obligatorio." and the focus back in the field when it is empty. True when it
    /// holds something.
    bool Obligatorio(class LineField *field, const QString &name) const;

private:
    Context &context_;
};

/// A child window of the main window: created when its menu entry is chosen, destroyed when it
/// closes.
///
/// The constructor of a screen only builds widgets. What happens at its creation stands in
/// formCreate(), which open() runs guarded: a failure half way is shown, the rest stays undone and
/// the screen opens all the same. Screens reset themselves by running formCreate() again.
class Screen : public QWidget, public ScreenBase {
    Q_OBJECT

public:
    /// `name`: "FRM401". The title stands in the window's frame.
    Screen(Context &context, const QString &name, const QString &title);

    /// Runs formCreate() and activated(), guarded. Called once, by the main window, when the
    /// screen is shown.
    void open();

    /// Previews the screen's report, where it has one. True where it has.
    virtual bool previewReport() { return false; }
    /// True for screens whose reports take the printer that the user chose for them.
    virtual bool keepsPrinter() const { return false; }

signals:
    /// The screen wants to close.
    void closeRequested();

protected:
    virtual void formCreate() = 0;
    /// Something stands typed that closing would lose: in a field, or in an open row.
    virtual bool holdsTypedWork() const;
    /// Escape closes the screen where nothing on it has a use for that key; it asks first where
    /// typed work would be lost.
    void keyPressEvent(QKeyEvent *event) override;
};

/// A screen that is shown modally and lives for the whole run: its constructor is light, its
/// widgets are built when it is first shown.
class Dialog : public QDialog, public ScreenBase {
    Q_OBJECT

public:
    Dialog(Context &context, const QString &name, const QString &title);

    /// Builds the widgets the first time, runs activated() and shows the dialog until it closes;
    /// then `opener`, the screen below, is activated again. The result is that of QDialog::exec().
    int showModal(ScreenBase *opener = nullptr);

    /// Makes sure that the widgets exist, for screens that set or read fields without showing the
    /// dialog.
    void ensureBuilt();

protected:
    /// Makes the widgets; runs once.
    virtual void build() = 0;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool built_ = false;
};

/// Shows a document in the preview and activates the screen again afterwards.
void previewDocument(Context &context, QWidget *parent, ScreenBase *opener,
                     const report::Document &document, const QString &title,
                     const report::PreviewOptions &options = {});

}  // namespace kaldo
