#include "toolkit/report/paint.h"

#include "toolkit/report/text_shape.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace kaldo::report {

namespace {

constexpr double mmPerInch = 25.4;

/// Of PDF files; positions are rounded to this.
constexpr int pdfDotsPerInch = 1200;

QRectF fitted(const QSizeF &size, const QRectF &rect) {
    const QSizeF scaled = size.scaled(rect.size(), Qt::KeepAspectRatio);
    QRectF result(QPointF(0.0, 0.0), scaled);
    result.moveCenter(rect.center());
    return result;
}

QPen penOf(double width, const QColor &color) {
    if (width <= 0.0)
        return QPen(Qt::NoPen);
    return QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

void paintItem(const Text &item, QPainter &painter) {
    painter.save();
    painter.scale(1.0 / textUnitsPerMm, 1.0 / textUnitsPerMm);
    painter.setFont(textFont(item.style));
    painter.setPen(item.style.color);
    for (const TextLine &line : item.lines)
        painter.drawText(line.baseline * textUnitsPerMm, line.text);
    painter.restore();
}

void paintItem(const Line &item, QPainter &painter) {
    painter.setPen(penOf(item.pen, item.color));
    painter.drawLine(item.line);
}

void paintItem(const Box &item, QPainter &painter) {
    if (item.fill.isValid())
        painter.fillRect(item.rect, item.fill);
    if (item.pen <= 0.0)
        return;
    painter.setPen(penOf(item.pen, item.color));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(item.rect);
}

void paintItem(const Image &item, QPainter &painter) {
    painter.drawImage(fitted(item.image.size(), item.rect), item.image, QRectF(item.image.rect()));
}

void paintItem(const Drawing &item, QPainter &painter) {
    QSvgRenderer renderer;
    if (renderer.load(item.svg))
        renderer.render(&painter, fitted(renderer.viewBoxF().size(), item.rect));
}

/// Printers know upright papers that are turned, not wide ones.
QPageLayout pageLayout(const PageSetup &setup) {
    const bool wide = setup.paper.width() > setup.paper.height();
    const QSizeF upright = wide ? setup.paper.transposed() : setup.paper;
    return QPageLayout(QPageSize(upright, QPageSize::Millimeter),
                       wide ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}

void requirePages(const Document &document) {
    if (document.pages.empty())
        throw PrintError(QStringLiteral("El documento no tiene páginas que imprimir."));
}

}  // namespace

void paint(const Document &document, int page, QPainter &painter) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    for (const Item &item : document.pages.at(page).items)
        std::visit([&painter](const auto &it) { paintItem(it, painter); }, item);
    painter.restore();
}

QImage pageImage(const Document &document, int page, double scale) {
    const QSizeF size = document.setup.paper * scale;
    QImage image(std::max(1, static_cast<int>(std::lround(size.width()))),
                 std::max(1, static_cast<int>(std::lround(size.height()))), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paint(document, page, painter);
    return image;
}

QImage thumbnail(const Document &document, int page, const QSize &fitInto) {
    const QSizeF paper = document.setup.paper;
    const double scale =
        std::min(fitInto.width() / paper.width(), fitInto.height() / paper.height());
    return pageImage(document, page, scale);
}

void preparePrinter(const Document &document, QPrinter &printer) {
    printer.setFullPage(true);
    printer.setPageLayout(pageLayout(document.setup));
    printer.setFullPage(true);
}

void printTo(const Document &document, QPrinter &printer) {
    requirePages(document);
    int first = 0;
    int last = document.pageCount() - 1;
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = std::clamp(printer.fromPage() - 1, 0, last);
        last = std::clamp(printer.toPage() - 1, first, last);
    }
    const bool backwards = printer.pageOrder() == QPrinter::LastPageFirst;
    QPainter painter;
    if (!painter.begin(&printer))
        throw PrintError(QStringLiteral("No se pudo iniciar la impresión en \"%1\".")
                             .arg(printer.printerName().isEmpty() ? printer.outputFileName()
                                                                  : printer.printerName()));
    painter.scale(printer.logicalDpiX() / mmPerInch, printer.logicalDpiY() / mmPerInch);
    for (int i = 0; i <= last - first; ++i) {
        if (i > 0 && !printer.newPage())
            throw PrintError(QStringLiteral("La impresora no aceptó la página %1.").arg(i + 1));
        paint(document, backwards ? last - i : first + i, painter);
    }
    if (!painter.end())
        throw PrintError(QStringLiteral("No se pudo terminar la impresión."));
}

void writePdf(const Document &document, const QString &path, const QString &title) {
    requirePages(document);
    QSaveFile file(path);
    const auto fail = [&] {
        throw PrintError(QStringLiteral("No se pudo escribir el archivo \"%1\": %2")
                             .arg(path, file.errorString()));
    };
    // A device must not be replaced by a file of its name.
    const QFileInfo standing(path);
    if (standing.exists() && !standing.isFile())
        throw PrintError(QStringLiteral("\"%1\" no es un archivo.").arg(path));
    if (!file.open(QIODevice::WriteOnly))
        fail();
    {
        QPdfWriter writer(&file);
        writer.setTitle(title);
        writer.setResolution(pdfDotsPerInch);
        writer.setPageLayout(pageLayout(document.setup));
        QPainter painter;
        if (!painter.begin(&writer))
            fail();
        painter.scale(pdfDotsPerInch / mmPerInch, pdfDotsPerInch / mmPerInch);
        for (int page = 0; page < document.pageCount(); ++page) {
            if (page > 0)
                writer.newPage();
            paint(document, page, painter);
        }
        painter.end();
    }
    if (!file.commit())
        fail();
}

}  // namespace kaldo::report
