#pragma once

#include "toolkit/report/document.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kaldo::report {

/// Width in millimetres of a text on one line.
double textWidth(const QString &text, const Style &style);

/// Height in millimetres of a text wrapped to a width as its style says; 0 for an empty text.
double textHeight(const QString &text, double widthMm, const Style &style);

/// Height in millimetres of one line.
double lineHeight(const Style &style);

/// A picture file read once: an SVG drawing, any raster format, or nothing.
class Picture {
public:
    Picture() = default;
    /// A file that is missing or can't be read gives an empty picture: a report prints without it.
    static Picture load(const QString &path);
    static Picture fromImage(const QImage &image);
    static Picture fromSvg(const QByteArray &svg);

    bool isEmpty() const { return image_.isNull() && svg_.isEmpty(); }
    const QByteArray &svg() const { return svg_; }

    /// The picture with as many dots as a box of this size in millimetres shows on paper, never
    /// more than it has. The same image each time for the same size: a logo on every page is scaled
    /// once, and a PDF file carries it once. Copies share it.
    QImage atPrintSize(const QSizeF &boxMm) const;

private:
    struct Scaled {
        QSizeF box;
        QImage image;
    };

    QImage image_;
    QByteArray svg_;
    std::shared_ptr<Scaled> scaled_;  ///< to the size that was last asked for
};

/// A strip of a page while it is filled. Positions are in millimetres from its upper left corner;
/// the band is as wide as the page inside its margins and may be drawn over on every side.
class Band {
public:
    explicit Band(double heightMm = 0.0) : designed_(heightMm), height_(heightMm) {}

    /// A text in a box of fixed size. Wrapped text keeps the lines that fit into the height, at
    /// least one. Empty text adds nothing.
    Band &text(const QRectF &rect, const QString &text, const Style &style = {});

    /// A wrapped text (by word unless the style says otherwise) that grows downwards as needed;
    /// the band grows with it and keeps the room that it was designed to have below.
    Band &memo(const QRectF &rect, const QString &text, const Style &style = {});

    Band &line(double x1, double y1, double x2, double y2, double penMm = 0.2);
    Band &box(const QRectF &rect, double penMm = 0.2, const QColor &fill = {});
    Band &picture(const QRectF &rect, const Picture &picture);

    /// A vertical line as long as the band turns out to be high.
    Band &fullHeightLine(double x, double penMm = 0.2);
    /// A box from x to x + width as high as the band turns out to be, painted under all the rest.
    Band &fullHeightBox(double x, double width, double penMm = 0.2, const QColor &fill = {});

    /// Sets another band below what stands here, as one band from now on.
    Band &append(const Band &below);

    double height() const { return height_; }
    void setHeight(double heightMm);
    /// Makes the band at least so high.
    void growTo(double heightMm);
    bool isEmpty() const { return items_.empty() && spans_.empty(); }

private:
    friend class Layout;
    struct Span {
        double x;
        double width;
        double pen;
        QColor fill;
        bool isLine;
    };

    std::vector<Item> itemsAt(const QPointF &origin) const;

    double designed_;
    double height_;
    std::vector<Item> items_;
    std::vector<Span> spans_;
};

struct PageInfo {
    int number = 1;
    int total = 1;  ///< Pages of the whole document
};

/// Fills the header or footer of one page; runs when the document is finished, page by page, so
/// that the total is known.
using PagePainter = std::function<void(Band &, const PageInfo &)>;

/// Lays bands out into pages, from the top down.
///
/// A band is kept together: without room for it a new page begins. One that is higher than a whole
/// page is cut between its lines of text. Groups are the caller's: place a head, the lines, a foot.
class Layout {
public:
    explicit Layout(const PageSetup &setup);

    /// Reserves a strip at the top (bottom) of every page that begins from now on, the first page
    /// included as long as nothing stands on it.
    void pageHeader(double heightMm, PagePainter painter);
    void pageFooter(double heightMm, PagePainter painter);

    /// A band that each following page begins with, below its header: the head of a group or the
    /// titles of columns. It isn't placed on the page that stands. Empty: none any more.
    void repeatOnNewPages(std::optional<Band> band);

    void place(const Band &band);
    /// Places the bands one below the other on one page if one page can hold them.
    void placeTogether(const std::vector<Band> &bands);
    /// Draws the band with its upper left corner so far right from the margin, without moving down:
    /// for labels side by side.
    void placeBeside(const Band &band, double xMm);

    void newPage();
    /// Begins a new page unless so much height is left.
    void need(double heightMm);
    void skip(double heightMm);

    double remaining() const;   ///< Height left on this page, in millimetres
    double bodyHeight() const;  ///< Height of this page without header and footer
    double width() const;       ///< Width inside the margins
    int pageNumber() const;     ///< From 1
    bool atTopOfPage() const;   ///< Nothing but header and repeated band stands on this page

    /// The document; the layout is spent.
    Document finish();

private:
    struct Strip {
        double height = 0.0;
        PagePainter painter;
    };
    struct Sheet {
        std::vector<Item> items;
        std::shared_ptr<const Strip> header;
        std::shared_ptr<const Strip> footer;
        double top = 0.0;
        double bottom = 0.0;
        double y = 0.0;
        bool used = false;
    };

    void beginSheet();
    void openStrips(Sheet &sheet) const;
    void put(const Band &band);
    void placeInSlices(const Band &band);

    PageSetup setup_;
    QRectF content_;
    std::shared_ptr<const Strip> header_;
    std::shared_ptr<const Strip> footer_;
    std::optional<Band> repeated_;
    std::vector<Sheet> sheets_;
};

}  // namespace kaldo::report
