#include "toolkit/report/layout.h"

#include "toolkit/report/item_slices.h"

#include <algorithm>
#include <utility>

namespace kaldo::report {

namespace {

/// Sums of heights in floating point must not push a band that fits exactly to the next page.
constexpr double tolerance = 0.001;

/// The least room, in millimetres, that margins, header and footer must leave.
constexpr double leastBody = 5.0;

void requireRoom(double body) {
    // Written so that a margin that is no number at all is refused as well.
    if (!(body >= leastBody))
        throw PrintError(QStringLiteral(
            "Los márgenes y encabezados no dejan espacio en la hoja para el contenido."));
}

}  // namespace

Layout::Layout(const PageSetup &setup) : setup_(setup), content_(setup.content()) {
    requireRoom(std::min(content_.height(), content_.width()));
    beginSheet();
}

void Layout::pageHeader(double heightMm, PagePainter painter) {
    header_ = std::make_shared<const Strip>(Strip{heightMm, std::move(painter)});
    requireRoom(content_.height() - heightMm - (footer_ ? footer_->height : 0.0));
    if (!sheets_.back().used)
        openStrips(sheets_.back());
}

void Layout::pageFooter(double heightMm, PagePainter painter) {
    footer_ = std::make_shared<const Strip>(Strip{heightMm, std::move(painter)});
    requireRoom(content_.height() - heightMm - (header_ ? header_->height : 0.0));
    if (!sheets_.back().used)
        openStrips(sheets_.back());
}

void Layout::repeatOnNewPages(std::optional<Band> band) {
    repeated_ = std::move(band);
}

void Layout::openStrips(Sheet &sheet) const {
    sheet.header = header_;
    sheet.footer = footer_;
    sheet.top = content_.top() + (header_ ? header_->height : 0.0);
    sheet.bottom = content_.bottom() - (footer_ ? footer_->height : 0.0);
    sheet.y = sheet.top;
}

void Layout::beginSheet() {
    const bool isFirst = sheets_.empty();
    openStrips(sheets_.emplace_back());
    if (isFirst || !repeated_)
        return;
    // A head that would leave no room for lines is better told once than on page after page.
    if (sheets_.back().bottom - sheets_.back().top - repeated_->height() >= leastBody)
        put(*repeated_);
}

void Layout::put(const Band &band) {
    Sheet &sheet = sheets_.back();
    std::vector<Item> items = band.itemsAt({content_.left(), sheet.y});
    sheet.items.insert(sheet.items.end(), std::make_move_iterator(items.begin()),
                       std::make_move_iterator(items.end()));
    sheet.y += band.height();
}

void Layout::place(const Band &band) {
    if (band.height() > remaining() + tolerance) {
        const double repeatedHeight = repeated_ ? repeated_->height() : 0.0;
        if (band.height() > bodyHeight() - repeatedHeight + tolerance) {
            placeInSlices(band);
            return;
        }
        if (!atTopOfPage())
            newPage();
    }
    put(band);
    sheets_.back().used = true;
}

void Layout::placeInSlices(const Band &band) {
    const std::vector<Item> items = band.itemsAt({content_.left(), 0.0});
    double done = 0.0;
    while (done < band.height() - tolerance) {
        const bool fresh = atTopOfPage();
        double end = band.height();
        if (end - done > remaining() + tolerance)
            end = cutBelow(items, done, done + remaining(), fresh);
        Sheet &sheet = sheets_.back();
        appendSlice(items, {done, end}, QPointF(0.0, sheet.y - done), sheet.items);
        sheet.y += end - done;
        sheet.used = true;
        done = end;
        if (done < band.height() - tolerance)
            newPage();
    }
}

void Layout::placeTogether(const std::vector<Band> &bands) {
    double height = 0.0;
    for (const Band &band : bands)
        height += band.height();
    need(height);
    for (const Band &band : bands)
        place(band);
}

void Layout::placeBeside(const Band &band, double xMm) {
    Sheet &sheet = sheets_.back();
    std::vector<Item> items = band.itemsAt({content_.left() + xMm, sheet.y});
    sheet.items.insert(sheet.items.end(), std::make_move_iterator(items.begin()),
                       std::make_move_iterator(items.end()));
    sheet.used = true;
}

void Layout::newPage() {
    beginSheet();
}

void Layout::need(double heightMm) {
    if (heightMm > remaining() + tolerance && !atTopOfPage())
        newPage();
}

void Layout::skip(double heightMm) {
    Sheet &sheet = sheets_.back();
    sheet.y = std::min(sheet.y + heightMm, sheet.bottom);
    sheet.used = true;
}

double Layout::remaining() const {
    return sheets_.back().bottom - sheets_.back().y;
}

double Layout::bodyHeight() const {
    return sheets_.back().bottom - sheets_.back().top;
}

double Layout::width() const {
    return content_.width();
}

int Layout::pageNumber() const {
    return static_cast<int>(sheets_.size());
}

bool Layout::atTopOfPage() const {
    return !sheets_.back().used;
}

Document Layout::finish() {
    Document document{setup_, {}};
    document.pages.reserve(sheets_.size());
    const int total = pageNumber();
    for (Sheet &sheet : sheets_) {
        const PageInfo info{static_cast<int>(document.pages.size()) + 1, total};
        Page page;
        const auto paintStrip = [&](const std::shared_ptr<const Strip> &strip, double y) {
            if (!strip || !strip->painter)
                return;
            Band band(strip->height);
            strip->painter(band, info);
            std::vector<Item> items = band.itemsAt({content_.left(), y});
            page.items.insert(page.items.end(), std::make_move_iterator(items.begin()),
                              std::make_move_iterator(items.end()));
        };
        paintStrip(sheet.header, content_.top());
        page.items.insert(page.items.end(), std::make_move_iterator(sheet.items.begin()),
                          std::make_move_iterator(sheet.items.end()));
        paintStrip(sheet.footer, sheet.bottom);
        document.pages.push_back(std::move(page));
    }
    sheets_.clear();
    return document;
}

}  // namespace kaldo::report
