#include "app/screen.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/choice.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/line_field.h"

#include <QKeyEvent>
#include <QTextDocument>

#include <algorithm>

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

bool Screen::holdsTypedWork() const {
    const QList<DataGrid *> grids = findChildren<DataGrid *>();
    const QList<LineField *> lines = findChildren<LineField *>();
    const QList<Memo *> memos = findChildren<Memo *>();
    return std::any_of(grids.begin(), grids.end(),
                       [](const DataGrid *grid) { return grid->rowEdit(); }) ||
           std::any_of(lines.begin(), lines.end(),
                       [](const LineField *line) {
                           return line->isModified() && !line->isReadOnly() &&
                                  !line->text().trimmed().isEmpty();
                       }) ||
           std::any_of(memos.begin(), memos.end(), [](const Memo *memo) {
               return memo->document()->isModified() && !memo->isReadOnly() &&
                      !memo->text().isEmpty();
           });
}

void Screen::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->isAutoRepeat()) {
        return;
    }
    runGuarded([this] {
        if (!holdsTypedWork() ||
            messages().confirmLoss(
                QStringLiteral("¿Desea cerrar la ventana? Lo que se escribió no se ha guardado."),
                {}) == Answer::Yes) {
            emit closeRequested();
        }
    });
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
