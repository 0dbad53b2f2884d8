#include "toolkit/forms/read_only_look.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace kaldo {

void showReadOnly(QWidget *field, bool readOnly) {
    QPalette colours;  // the rest stays with the application
    if (readOnly) {
        colours.setBrush(QPalette::Base, QApplication::palette(field).window());
    }
    field->setPalette(colours);
}

void followColours(QWidget *field, bool readOnly, const QEvent &event) {
    const bool changed =
        event.type() == QEvent::ApplicationPaletteChange || event.type() == QEvent::PaletteChange;
    if (changed && readOnly &&
        field->palette().brush(QPalette::Base) != QApplication::palette(field).window()) {
        showReadOnly(field, true);
    }
}

}  // namespace kaldo
