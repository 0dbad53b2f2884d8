#pragma once

#include <QPointer>
#include <QTimer>

#include <chrono>

#include "app/screen.h"

class QLabel;

namespace kaldo {

class Button;

/// How fast the count-down runs; a person's pace unless a test hurries it.
struct CountDownPace {
    std::chrono::milliseconds tick{1000};      ///< each takes one second off the count
    std::chrono::milliseconds farewell{5000};  ///< from the end of the count to that of the program
};

/// The count-down before the program ends by itself at the daily hour: three minutes, without
/// asking and without saving. Its button only hides it, the count goes on; closing the window stops
/// it. It is modal without a loop of its own, so that what stands below goes on as it was.
class FRMClose final : public Dialog {
    Q_OBJECT

public:
    FRMClose(Context &context, const CountDownPace &pace);

    /// Starts the count anew and shows the window.
    void begin();

    void reject() override;

protected:
    void build() override;
    void closeEvent(QCloseEvent *event) override;

private:
    void Timer1();
    void sayFarewell();
    void showInFront();

    CountDownPace pace_;
    QTimer clock_;  ///< runs while the count is on
    std::chrono::milliseconds left_{};
    bool farewell_ = false;
    QPointer<QWidget> below_;

    QLabel *Image1_ = nullptr;
    QLabel *Image2_ = nullptr;
    QLabel *Label1_ = nullptr;
    QLabel *Label2_ = nullptr;
    QLabel *Label3_ = nullptr;
    Button *BitBtn1_ = nullptr;
};

}  // namespace kaldo
