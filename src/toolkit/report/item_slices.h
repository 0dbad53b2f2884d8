#pragma once

#include "toolkit/report/document.h"

#include <vector>

namespace kaldo::report {

void moveItem(Item &item, const QPointF &by);

/// Of a band that is higher than the room for it: where to cut the part below `from` so that
/// neither a line of text nor a picture is cut, `limit` at the most. The answer may be `from`
/// itself, unless the part must have something because it has a fresh page to itself.
double cutBelow(const std::vector<Item> &items, double from, double limit, bool mustAdvance);

/// The heights of a band that come to stand on one page.
struct Slice {
    double from;
    double to;
};

/// Adds what lies in the slice, moved, to `target`; boxes and vertical lines are cut to size.
void appendSlice(const std::vector<Item> &items, const Slice &slice, const QPointF &by,
                 std::vector<Item> &target);

}  // namespace kaldo::report
