#pragma once

#include <QString>

class QWidget;

namespace kaldo {

/// How screens ask for a file. Tests replace it with a script.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// The file to open, which exists; empty when the user chose none. `start` is the file or the
    /// folder to begin with, `filter` reads "Imágenes (*.png *.jpg)".
    virtual QString openFile(QWidget *parent, const QString &title, const QString &start,
                             const QString &filter) = 0;
};

/// The chooser of the desktop.
class DesktopFileDialogs final : public FileDialogs {
public:
    QString openFile(QWidget *parent, const QString &title, const QString &start,
                     const QString &filter) override;
};

}  // namespace kaldo
