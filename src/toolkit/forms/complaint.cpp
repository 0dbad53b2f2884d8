#include "toolkit/forms/complaint.h"

#include <QApplication>
#include <QToolTip>
#include <QWidget>

namespace kaldo {

void complain(QWidget *field, const QString &text) {
    field->setProperty("complaint", text);
    QApplication::beep();
    if (field->isVisible()) {
        QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), text, field);
    }
}

}  // namespace kaldo
