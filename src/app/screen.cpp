#include "app/screen.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/line_field.h"

namespace kaldo {

bool ScreenBase::Obligatorio(LineField *field, const QString &name) const {
    if (!field->text().isEmpty()) {
        return true;
    }
    messages().information(QStringLiteral("Campo %1 Obligatorio.").arg(name));
    moveFocus(field);
    return false;
}

Screen::Screen(Context &context, const QString &name, const QString &title) : ScreenBase(context) {
    setObjectName(name);
    setWindowTitle(title);
}

void Screen::open() {
    runGuarded([this] { formCreate(); });
    runGuarded([this] { activated(); });
}

Dialog::Dialog(Context &context, const QString &name, const QString &title) : ScreenBase(context) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

void Dialog::ensureBuilt() {
    if (!built_) {
        built_ = true;
        build();
    }
}

int Dialog::showModal(ScreenBase *opener) {
    ensureBuilt();
    runGuarded([this] { activated(); });
    int result = 0;
    {
        const ActivationReturn activation;
        result = exec();
    }
    if (opener != nullptr) {
        runGuarded([opener] { opener->activated(); });
    }
    return result;
}

void Dialog::keyPressEvent(QKeyEvent *event) {
    // Enter belongs to the fields; it never presses a button that hasn't the focus.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        return;
    }
    // The shortcut of the menu doesn't reach over a modal window.
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
        context().frame.openEntry(QStringLiteral("K1"));
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void previewDocument(Context &context, QWidget *parent, ScreenBase *opener,
                     const report::Document &document, const QString &title,
                     const report::PreviewOptions &options) {
    {
        const ActivationReturn activation;
        context.printing.preview(document, title, parent, options);
    }
    if (opener != nullptr) {
        runGuarded([opener] { opener->activated(); });
    }
}

}  // namespace kaldo
