#pragma once

#include "toolkit/report/document.h"

#include <QString>
#include <QStringList>

#include <functional>

class QPrinter;
class QWidget;

namespace kaldo::report {

/// `printer` is an index into Printing::printers(); -1, or one that is no more, is the default.
struct PrintJob {
    QString title;
    int printer = -1;
    int copies = 1;
};

struct PreviewOptions {
    bool thumbnails = false;
    int printer = -1;
};

/// Where documents go. Screens have it from their context; tests put a recorder in its place.
class Printing {
public:
    virtual ~Printing() = default;

    /// Prints without asking. Throws PrintError.
    virtual void print(const Document &document, const PrintJob &job) = 0;

    /// Shows the document in a window and comes back when it is closed. Throws nothing: what goes
    /// wrong in the window is told there.
    virtual void preview(const Document &document, const QString &title, QWidget *parent,
                         const PreviewOptions &options = {}) = 0;

    /// The names of the station's printers.
    virtual QStringList printers() const = 0;

    /// Lets the user choose a printer; `current` comes back if none was chosen.
    virtual int choosePrinter(QWidget *parent, int current) = 0;
};

/// What printing asks of its surroundings. An empty function has the default that is told.
struct PrintingHost {
    /// A line for the status bar: where a PDF file went. Default: nothing.
    std::function<void(const QString &text)> notice;
    /// Tells a failure that nobody above can. Default: a message box.
    std::function<void(QWidget *parent, const QString &text)> failure;
    /// Asks for the path of a PDF file; empty is no. Default: the file dialog.
    std::function<QString(QWidget *parent, const QString &suggested)> askPdfPath;
    /// Lets the user choose and set a printer; false is no. Default: the printer dialog.
    std::function<bool(QWidget *parent, QPrinter &printer, int pages)> askPrinter;
};

/// Prints on the station's printers. A station without any gets PDF files in `pdfFolder` (made when
/// needed), which get their names, by title and moment, when they are complete; none is ever
/// written over.
class SystemPrinting : public Printing {
public:
    explicit SystemPrinting(const QString &pdfFolder, PrintingHost host = {});

    void print(const Document &document, const PrintJob &job) override;
    void preview(const Document &document, const QString &title, QWidget *parent,
                 const PreviewOptions &options = {}) override;
    QStringList printers() const override;
    int choosePrinter(QWidget *parent, int current) override;

private:
    QString printToFolder(const Document &document, const QString &title) const;
    QString printAsking(QWidget *parent, const Document &document, const QString &title,
                        int printerIndex);
    QString saveAsking(QWidget *parent, const Document &document, const QString &title);

    QString pdfFolder_;
    PrintingHost host_;
};

/// Removes what a program that was killed has left of its PDF files. To be called while no other
/// one writes into the folder.
void removeUnfinishedPdfs(const QString &pdfFolder);

}  // namespace kaldo::report
