#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QStatusBar>

#include <array>

class QLabel;
class QProgressBar;

namespace kaldo {

/// The status bar of the main window: seven panels, counted from 0, with the progress bar over
/// panel 4.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    void setPanel(int panel, const QString &text);
    QString panel(int number) const;
    void setBarColour(const QColor &colour);

    void beginProgress(int total, double step);
    void advanceProgress();
    void endProgress();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void elide(int panel);
    void showTextColour(bool early);

    std::array<QLabel *, 7> panels_{};
    std::array<QString, 7> texts_;
    QProgressBar *bar_ = nullptr;
    QColor barColour_;
    int total_ = 0;
    double step_ = 0;
    double position_ = 0;
    bool early_ = true;
    QElapsedTimer painted_;
};

}  // namespace kaldo
