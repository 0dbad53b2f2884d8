#include "toolkit/report/printing.h"

#include "toolkit/report/paint.h"
#include "toolkit/report/preview_window.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QUuid>

#include <memory>
#include <utility>

namespace kaldo::report {

namespace {

/// A title as part of a file name on every platform.
QString fileName(const QString &title) {
    QString result;
    for (const QChar character : title) {
        const bool plain = character.isLetterOrNumber() || character == QLatin1Char('-') ||
                           character == QLatin1Char('_');
        result += plain ? character : QChar(QLatin1Char(' '));
    }
    result = result.simplified().left(80).trimmed();
    return result.isEmpty() ? QStringLiteral("Documento") : result;
}

const QString kUnfinished = QStringLiteral("sin-terminar-");

/// Gives a complete file a name that nobody had; the path.
QString nameFile(const QDir &folder, const QString &complete, const QString &title) {
    const QString stem = fileName(title) + QLatin1Char('_') +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (int counter = 1; counter <= 9999; ++counter) {
        const QString path = folder.filePath(
            QStringLiteral("%1_%2.pdf").arg(stem).arg(counter, 2, 10, QLatin1Char('0')));
        QFile file(complete);
        if (file.rename(path))  // never over another one
            return path;
        if (!QFile::exists(path))
            throw PrintError(QStringLiteral("No se pudo escribir el archivo \"%1\": %2")
                                 .arg(QDir::toNativeSeparators(path), file.errorString()));
    }
    throw PrintError(QStringLiteral("La carpeta \"%1\" ya tiene demasiados documentos iguales.")
                         .arg(QDir::toNativeSeparators(folder.path())));
}

QString chosenName(const QStringList &names, int index) {
    if (index >= 0 && index < names.size())
        return names.at(index);
    const QString name = QPrinterInfo::defaultPrinterName();
    return name.isEmpty() ? names.first() : name;
}

std::unique_ptr<QPrinter> openPrinter(const QString &name, const QString &title) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(name);
    printer->setDocName(title);
    return printer;
}

PrintingHost withDefaults(PrintingHost host) {
    if (!host.notice)
        host.notice = [](const QString &) {};
    if (!host.failure)
        host.failure = [](QWidget *parent, const QString &text) {
            QMessageBox::critical(parent, QStringLiteral("Impresión"), text);
        };
    if (!host.askPdfPath)
        host.askPdfPath = [](QWidget *parent, const QString &suggested) {
            QFileDialog dialog(parent, QStringLiteral("Guardar como PDF"), QString(),
                               QStringLiteral("Documentos PDF (*.pdf)"));
            dialog.setAcceptMode(QFileDialog::AcceptSave);
            // By the dialog, so that it asks before a file of the whole name is written over.
            dialog.setDefaultSuffix(QStringLiteral("pdf"));
            dialog.selectFile(suggested);
            return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
        };
    if (!host.askPrinter)
        host.askPrinter = [](QWidget *parent, QPrinter &printer, int pages) {
            QPrintDialog dialog(&printer, parent);
            dialog.setWindowTitle(QStringLiteral("Imprimir"));
            dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 1);
            if (pages > 0)
                dialog.setMinMax(1, pages);
            return dialog.exec() == QDialog::Accepted;
        };
    return host;
}

/// Gives the window below a dialog its activation back, where no window manager does.
class BelowDialog {
public:
    explicit BelowDialog(QWidget *window) : window_(window) {}
    ~BelowDialog() {
        if (window_ != nullptr && window_->isVisible()) {
            window_->activateWindow();
        }
    }
    BelowDialog(const BelowDialog &) = delete;
    BelowDialog &operator=(const BelowDialog &) = delete;

private:
    QWidget *window_;
};

}  // namespace

SystemPrinting::SystemPrinting(const QString &pdfFolder, PrintingHost host)
    : pdfFolder_(pdfFolder), host_(withDefaults(std::move(host))) {}

QStringList SystemPrinting::printers() const {
    return QPrinterInfo::availablePrinterNames();
}

void SystemPrinting::print(const Document &document, const PrintJob &job) {
    const QStringList names = printers();
    if (names.isEmpty()) {
        host_.notice(printToFolder(document, job.title));
        return;
    }
    const std::unique_ptr<QPrinter> printer =
        openPrinter(chosenName(names, job.printer), job.title);
    preparePrinter(document, *printer);
    printer->setCopyCount(std::max(1, job.copies));
    printTo(document, *printer);
}

QString SystemPrinting::printToFolder(const Document &document, const QString &title) const {
    const QDir folder(pdfFolder_);
    if (!folder.mkpath(QStringLiteral(".")))
        throw PrintError(QStringLiteral("No se pudo crear la carpeta \"%1\".")
                             .arg(QDir::toNativeSeparators(pdfFolder_)));
    const QString unfinished = folder.filePath(
        kUnfinished + QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".pdf"));
    QString path;
    try {
        writePdf(document, unfinished, title);
        path = nameFile(folder, unfinished, title);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    return QStringLiteral("No hay impresora; el documento se guardó en %1")
        .arg(QDir::toNativeSeparators(path));
}

QString SystemPrinting::printAsking(QWidget *parent, const Document &document, const QString &title,
                                    int printerIndex) {
    const QStringList names = printers();
    if (names.isEmpty()) {
        const QString text = printToFolder(document, title);
        host_.notice(text);
        return text;
    }
    const std::unique_ptr<QPrinter> printer = openPrinter(chosenName(names, printerIndex), title);
    preparePrinter(document, *printer);
    if (!host_.askPrinter(parent, *printer, document.pageCount()))
        return {};
    preparePrinter(document, *printer);
    printTo(document, *printer);
    return QStringLiteral("El documento se envió a %1")
        .arg(printer->outputFileName().isEmpty() ? printer->printerName()
                                                 : printer->outputFileName());
}

QString SystemPrinting::saveAsking(QWidget *parent, const Document &document,
                                   const QString &title) {
    const QString path =
        host_.askPdfPath(parent, QDir::home().filePath(fileName(title) + QStringLiteral(".pdf")));
    if (path.isEmpty())
        return {};
    writePdf(document, path, title);
    return QStringLiteral("El documento se guardó en %1").arg(QDir::toNativeSeparators(path));
}

void SystemPrinting::preview(const Document &document, const QString &title, QWidget *parent,
                             const PreviewOptions &options) {
    const auto told = [this](QWidget *window, const std::function<QString()> &action) {
        try {
            return action();
        } catch (const std::exception &failure) {
            host_.failure(window, QString::fromUtf8(failure.what()));
            return QString();
        }
    };
    PreviewActions actions;
    actions.print = [&, this](QWidget *window) {
        const BelowDialog below(window);
        return told(window, [&] { return printAsking(window, document, title, options.printer); });
    };
    actions.savePdf = [&, this](QWidget *window) {
        const BelowDialog below(window);
        return told(window, [&] { return saveAsking(window, document, title); });
    };
    PreviewWindow window(document, title, options, std::move(actions), parent);
    window.exec();
}

int SystemPrinting::choosePrinter(QWidget *parent, int current) {
    const QStringList names = printers();
    if (names.isEmpty()) {
        host_.failure(parent, QStringLiteral("No hay impresoras instaladas en esta estación."));
        return current;
    }
    const std::unique_ptr<QPrinter> printer = openPrinter(chosenName(names, current), {});
    if (!host_.askPrinter(parent, *printer, 0))
        return current;
    const auto chosen = static_cast<int>(names.indexOf(printer->printerName()));
    return chosen < 0 ? current : chosen;
}

void removeUnfinishedPdfs(const QString &pdfFolder) {
    const QDir folder(pdfFolder);
    for (const QFileInfo &file : folder.entryInfoList(
             {kUnfinished + QLatin1Char('*'), QStringLiteral("*.pdf")}, QDir::Files)) {
        // Older programs gave an empty file its name first.
        if (file.fileName().startsWith(kUnfinished) || file.size() == 0)
            QFile::remove(file.filePath());
    }
}

}  // namespace kaldo::report
