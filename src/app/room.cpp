#include "app/room.h"

#include <QLayout>
#include <QMdiSubWindow>

namespace kaldo {

void makeRoom(QWidget *screen) {
    screen->layout()->activate();
    auto *frame = qobject_cast<QMdiSubWindow *>(screen->parentWidget());
    QWidget *window = frame != nullptr ? frame : screen;
    if (window->isMaximized()) {
        return;
    }
    QRect place(window->pos(), window->size().expandedTo(window->sizeHint()));
    if (frame != nullptr) {
        const QRect area = frame->parentWidget()->rect();
        place.setSize(place.size().boundedTo(area.size()));
        place.moveRight(std::min(place.right(), area.right()));
        place.moveBottom(std::min(place.bottom(), area.bottom()));
    }
    window->setGeometry(place);
}

}  // namespace kaldo
