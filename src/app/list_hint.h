#pragma once

#include <QLabel>
#include <QPointer>

class QAbstractScrollArea;

namespace kaldo {

/// A line in the middle of an empty list that says why it is empty. It takes no input.
class ListHint : public QLabel {
    Q_OBJECT

public:
    /// The list owns it.
    explicit ListHint(QAbstractScrollArea *list);

    /// An empty text hides it.
    void say(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

}  // namespace kaldo
