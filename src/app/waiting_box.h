#pragma once

#include <QObject>

#include <memory>

#include "data/call_runner.h"

namespace kaldo {

/// The box that says for what the program waits, and offers to give it up. While it stands the
/// windows paint, and that is all: what is struck or clicked elsewhere does nothing, timers and
/// the work that handlers have queued wait, so that nothing overtakes the handler whose call it is.
class WaitingBox final : public QObject, public WaitObserver {
public:
    WaitingBox();
    ~WaitingBox() override;

    void waitingBegan(const QString &whom) override;
    bool stillWaiting(std::chrono::milliseconds waited) override;
    void waitingEnded() override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    class Box;
    struct Standing;

    bool belongsToBox(const QObject *receiver) const;

    std::unique_ptr<Standing> standing_;
};

}  // namespace kaldo
