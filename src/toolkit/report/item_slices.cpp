#include "toolkit/report/item_slices.h"

#include "toolkit/report/layout.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kaldo::report {

namespace {

constexpr double tolerance = 0.001;

void moveOne(Text &item, const QPointF &by) {
    item.rect.translate(by);
    for (TextLine &line : item.lines)
        line.baseline += by;
}

void moveOne(Line &item, const QPointF &by) {
    item.line.translate(by);
}

template <typename Rectangular>
void moveOne(Rectangular &item, const QPointF &by) {
    item.rect.translate(by);
}

double lineTop(const Text &text, std::size_t index) {
    return text.rect.top() + static_cast<double>(index) * lineHeight(text.style);
}

/// Things of no height belong to the slice that they begin in.
bool beginsIn(const Slice &slice, double y) {
    return y >= slice.from - tolerance && y < slice.to - tolerance;
}

QRectF partOf(const QRectF &rect, const Slice &slice) {
    return QRectF(QPointF(rect.left(), std::max(rect.top(), slice.from)),
                  QPointF(rect.right(), std::min(rect.bottom(), slice.to)));
}

std::optional<Item> partOf(const Text &text, const Slice &slice) {
    Text part{partOf(text.rect, slice), text.style, {}};
    for (std::size_t i = 0; i < text.lines.size(); ++i) {
        if (beginsIn(slice, lineTop(text, i)))
            part.lines.push_back(text.lines[i]);
    }
    if (part.lines.empty())
        return std::nullopt;
    return part;
}

std::optional<Item> partOf(const Line &line, const Slice &slice) {
    const double top = std::min(line.line.y1(), line.line.y2());
    const double bottom = std::max(line.line.y1(), line.line.y2());
    if (line.line.x1() == line.line.x2() && top < slice.to && bottom > slice.from) {
        Line part = line;
        part.line = QLineF(line.line.x1(), std::max(top, slice.from), line.line.x2(),
                           std::min(bottom, slice.to));
        return part;
    }
    if (!beginsIn(slice, top))
        return std::nullopt;
    return line;
}

std::optional<Item> partOf(const Box &box, const Slice &slice) {
    if (box.rect.top() >= slice.to - tolerance || box.rect.bottom() <= slice.from + tolerance)
        return std::nullopt;
    Box part = box;
    part.rect = partOf(box.rect, slice);
    return part;
}

template <typename Whole>
std::optional<Item> partOf(const Whole &whole, const Slice &slice) {
    if (!beginsIn(slice, whole.rect.top()))
        return std::nullopt;
    return whole;
}

}  // namespace

void moveItem(Item &item, const QPointF &by) {
    std::visit([&by](auto &it) { moveOne(it, by); }, item);
}

double cutBelow(const std::vector<Item> &items, double from, double limit, bool mustAdvance) {
    double cut = limit;
    const double above = mustAdvance ? from + tolerance : from - tolerance;
    bool moved = true;
    const auto keepWhole = [&](double top, double bottom) {
        if (top > above && top < cut - tolerance && bottom > cut + tolerance) {
            cut = top;
            moved = true;
        }
    };
    while (moved) {
        moved = false;
        for (const Item &item : items) {
            if (const Text *text = std::get_if<Text>(&item)) {
                for (std::size_t i = 0; i < text->lines.size(); ++i)
                    keepWhole(lineTop(*text, i), lineTop(*text, i + 1));
            } else if (const Image *image = std::get_if<Image>(&item)) {
                keepWhole(image->rect.top(), image->rect.bottom());
            } else if (const Drawing *drawing = std::get_if<Drawing>(&item)) {
                keepWhole(drawing->rect.top(), drawing->rect.bottom());
            }
        }
    }
    return cut;
}

void appendSlice(const std::vector<Item> &items, const Slice &slice, const QPointF &by,
                 std::vector<Item> &target) {
    for (const Item &item : items) {
        std::optional<Item> part =
            std::visit([&slice](const auto &it) { return partOf(it, slice); }, item);
        if (!part)
            continue;
        moveItem(*part, by);
        target.push_back(std::move(*part));
    }
}

}  // namespace kaldo::report
