#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QLineF>
#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <stdexcept>
#include <variant>
#include <vector>

namespace kaldo::report {

/// Nothing more could be printed or written. what() is the Spanish text for the user, in UTF-8.
class PrintError : public std::runtime_error {
public:
    explicit PrintError(const QString &text) : std::runtime_error(text.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

/// Millimetres of a length in report units: one unit is a pixel at 96 dpi.
constexpr double units(double count) {
    return count * 25.4 / 96.0;
}

/// A rectangle given in report units, in millimetres.
inline QRectF unitRect(double x, double y, double width, double height) {
    return {units(x), units(y), units(width), units(height)};
}

/// Paper and margins in millimetres.
struct PageSetup {
    QSizeF paper{210.0, 297.0};
    QMarginsF margins{10.0, 10.0, 10.0, 10.0};

    static PageSetup a4(double marginMm = 10.0);
    static PageSetup letter(double marginMm = 10.0);
    static PageSetup custom(QSizeF paperMm, QMarginsF marginsMm);

    /// The same paper lying down; the margins stay on the sides they are on.
    PageSetup landscape() const;
    PageSetup withMargins(QMarginsF marginsMm) const;

    /// The part of the paper inside the margins.
    QRectF content() const;

    bool operator==(const PageSetup &) const = default;
};

enum class Align { Left, Center, Right };

enum class Wrap {
    None,      ///< One line; what is wider than the box runs over it (to the left if right-aligned)
    Elide,     ///< One line; what is wider than the box is cut and ends in "…"
    Word,      ///< Lines broken between words, inside one where it is wider than the box
    Anywhere,  ///< Lines broken after the last character that fits
};

/// How a text looks. Built in one expression: Style().size(10).bold().right().
struct Style {
    QString family = QStringLiteral("Liberation Sans");
    double points = 8.0;
    bool isBold = false;
    bool isItalic = false;
    Align align = Align::Left;
    Wrap wrapping = Wrap::None;
    QColor color = Qt::black;

    Style size(double value) const;
    Style bold(bool on = true) const;
    Style italic(bool on = true) const;
    Style left() const;
    Style center() const;
    Style right() const;
    Style wrap(Wrap value) const;
    Style ink(const QColor &value) const;

    bool operator==(const Style &) const = default;
};

/// One line of a text as it will be painted, from the left end of its base line.
struct TextLine {
    QString text;
    QPointF baseline;
    double width = 0.0;

    bool operator==(const TextLine &) const = default;
};

// The items of a page. Every position is in millimetres from the paper's upper left corner.

struct Text {
    QRectF rect;
    Style style;
    std::vector<TextLine> lines;

    /// The lines joined by line feeds.
    QString content() const;
    bool operator==(const Text &) const = default;
};

struct Line {
    QLineF line;
    double pen = 0.2;
    QColor color = Qt::black;

    bool operator==(const Line &) const = default;
};

/// A pen of 0 draws no outline, an invalid fill no ground.
struct Box {
    QRectF rect;
    double pen = 0.2;
    QColor fill;
    QColor color = Qt::black;

    bool operator==(const Box &) const = default;
};

/// Keeps its proportions, in the middle of the rectangle.
struct Image {
    QRectF rect;
    QImage image;

    bool operator==(const Image &) const = default;
};

/// An SVG drawing, painted as vectors; keeps its proportions, in the middle of the rectangle.
struct Drawing {
    QRectF rect;
    QByteArray svg;

    bool operator==(const Drawing &) const = default;
};

using Item = std::variant<Text, Line, Box, Image, Drawing>;

struct Page {
    std::vector<Item> items;

    bool operator==(const Page &) const = default;
};

/// A report laid out: a value that can be kept, compared, painted any number of times.
struct Document {
    PageSetup setup;
    std::vector<Page> pages;

    int pageCount() const { return static_cast<int>(pages.size()); }

    /// Puts the pages of another document of the same paper behind these. A document without
    /// pages takes over the other's paper; otherwise another paper throws std::invalid_argument.
    void append(const Document &other);

    bool operator==(const Document &) const = default;
};

/// Every item of a document on a line of its own, for comparing whole documents:
///   "page 1: text 4.0 7.9 59.5 3.7 8pt bold center "RECIBO DE PAGO""
/// x, y, width, height in tenths of millimetres exact; the lines of a text joined by " / ".
/// Where lines of text lie inside their box isn't told, so that it holds on every machine.
QString dump(const Document &document);

/// All text of one page (from 0), item by item in painting order, a line each.
QString pageText(const Document &document, int page);

}  // namespace kaldo::report
