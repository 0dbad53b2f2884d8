#pragma once

#include <QDialog>

class QTextBrowser;

namespace kaldo {

/// The user's manual. It stands beside the screens, so that one can read and work.
class HelpWindow : public QDialog {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget *parent);

    /// The page of a screen ("FRM401"), the table of contents where it has none.
    void showPage(const QString &screen);
    /// The page that stands open, by its file's name.
    QString page() const;

    /// Whether the manual has a page for a screen.
    static bool hasPage(const QString &screen);

    /// Gives the window below its activation back, with or without a window manager.
    void done(int result) override;

private:
    QTextBrowser *browser_;
};

}  // namespace kaldo
