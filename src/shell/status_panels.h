#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QStatusBar>

#include <array>

class QLabel;
class QProgressBar;

namespace kaldo {

class NoticeLabel;

/// The status bar of the main window: seven panels, counted from 0, with the progress bar over
/// panel 4, which takes its room while the bar stands.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    void setPanel(int panel, const QString &text);
    /// A text for panel 2, cut down to what there is room for: a path that it ends in to the name
    /// of its file, and then to that name alone. The whole text is the panel's tool tip.
    void showNotice(const QString &text);
    void setBarColour(const QColor &colour);

    void beginProgress(int total, double step);
    void advanceProgress();
    void endProgress();

private:
    void showTextColour(bool early);

    std::array<QLabel *, 7> panels_{};
    NoticeLabel *notice_ = nullptr;
    QProgressBar *bar_ = nullptr;
    QColor barColour_;
    int total_ = 0;
    double step_ = 0;
    double position_ = 0;
    bool early_ = true;
    QElapsedTimer painted_;
};

}  // namespace kaldo
