#pragma once

#include <QColor>
#include <QElapsedTimer>
#include <QStatusBar>

class QProgressBar;

namespace kaldo {

class PanelRow;

/// The status bar of the main window: seven panels, counted from 0, with the progress bar over
/// panel 4, which takes its room while the bar stands.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    void setPanel(int panel, const QString &text) { setPanel(panel, QStringList(text)); }
    /// A text and its shorter forms. Where there is no room for all panels, the greeting, the user
    /// and the city give way, and last the notice: a panel shows the longest form that it has room
    /// for, cut where it is the last, and tells the whole text in its tool tip.
    void setPanel(int panel, const QStringList &forms);
    /// A text for panel 2; an empty one takes it away. Of a path that it ends in the panel shows
    /// what there is room for: all of it, the name of its file behind the text, or that name alone.
    void showNotice(const QString &text);
    void setBarColour(const QColor &colour);

    void beginProgress(int total, double step);
    void advanceProgress();
    void endProgress();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTextColour(bool early);
    void paintRate();

    PanelRow *row_ = nullptr;
    QProgressBar *bar_ = nullptr;
    QColor barColour_;
    int total_ = 0;
    double step_ = 0;
    double position_ = 0;
    bool early_ = true;
    QElapsedTimer painted_;
};

}  // namespace kaldo
