#pragma once

#include <QString>

namespace kaldo {

/// What a screen may ask of the main window. Screens know nothing else of what stands above them.
class Frame {
public:
    virtual ~Frame() = default;

    /// Runs a menu entry ("F1") as if the user had chosen it; does nothing while it is disabled.
    /// One that opens a screen destroys the open one: a child screen must queue it.
    virtual void openEntry(const QString &entry) = 0;
    virtual void setEntryEnabled(const QString &entry, bool enabled) = 0;

    /// Shows the session's exchange rate in the status bar and the side bar.
    virtual void showRate() = 0;
    /// Reads the day's figures of the desk again.
    virtual void refreshDeskFigures() = 0;
    /// A line for the status bar: where a receipt went on a station without a printer.
    virtual void showNotice(const QString &text) = 0;

    /// The progress bar of the status bar. While it stands, menu and closing are held; use
    /// Progress.
    virtual void beginProgress(int total, double step) = 0;
    virtual void advanceProgress() = 0;
    virtual void endProgress() = 0;
};

/// A long loop that announces itself: the bar stands from construction to destruction, and the
/// screen keeps painting.
class Progress {
public:
    Progress(Frame &frame, int total, double step = 1) : frame_(frame) {
        frame_.beginProgress(total, step);
    }
    ~Progress() { frame_.endProgress(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void advance() { frame_.advanceProgress(); }

private:
    Frame &frame_;
};

}  // namespace kaldo
