#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace kaldo::bench {

/// Prints a line once the window of this name has been painted, and ends the process.
class PaintedReport : public QObject {
public:
    explicit PaintedReport(const QString &window) : window_(window) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint && !painted_ && watched->isWidgetType() &&
            static_cast<QWidget *>(watched)->window()->objectName() == window_) {
            painted_ = true;
            // At the next turn of the loop the whole window stands.
            QTimer::singleShot(0, this, [] {
                std::puts("painted");
                std::fflush(stdout);
                std::quick_exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QString window_;
    bool painted_ = false;
};

}  // namespace kaldo::bench
