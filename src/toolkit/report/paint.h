#pragma once

#include "toolkit/report/document.h"

#include <QImage>

class QPainter;
class QPrinter;

namespace kaldo::report {

/// Paints one page (from 0). The painter's unit must be a millimetre and its origin the paper's
/// upper left corner; its state is put back.
void paint(const Document &document, int page, QPainter &painter);

/// One page as a picture on white ground, `scale` device pixels to the millimetre.
QImage pageImage(const Document &document, int page, double scale);

/// A picture of one page that fits into a size in pixels.
QImage thumbnail(const Document &document, int page, const QSize &fitInto);

/// Gives a printer the paper of the document, without margins of its own.
void preparePrinter(const Document &document, QPrinter &printer);

/// Prints the document, or the pages that the printer is set to. Throws PrintError if the printer
/// can't begin or refuses a page.
void printTo(const Document &document, QPrinter &printer);

/// Writes a PDF file with its text as text and its fonts inside. The file appears whole or not at
/// all; a path that can't be written throws PrintError.
void writePdf(const Document &document, const QString &path, const QString &title);

}  // namespace kaldo::report
