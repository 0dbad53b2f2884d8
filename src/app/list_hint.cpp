#include "app/list_hint.h"

#include <QAbstractScrollArea>
#include <QEvent>

namespace kaldo {

ListHint::ListHint(QAbstractScrollArea *list) : QLabel(list->viewport()) {
    setObjectName(QStringLiteral("listHint"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(8);
    setForegroundRole(QPalette::PlaceholderText);
    list->viewport()->installEventFilter(this);
    hide();
}

void ListHint::say(const QString &text) {
    setText(text);
    setVisible(!text.isEmpty());
    setGeometry(parentWidget()->rect());
}

bool ListHint::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QLabel::eventFilter(watched, event);
}

}  // namespace kaldo
