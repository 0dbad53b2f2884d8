#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace kaldo {

/// A line of a vertical grid of rights: the caption of a column of `usuarios_m`, or, without a
/// column, of the inner lines that follow.
struct RightRow {
    QString caption;
    QString column;
    bool inner = false;
};

struct RightGroup {
    QString title;
    std::vector<RightRow> rows;
};

/// The columns of a page of the users' screen, each with its groups from top to bottom.
struct RightPage {
    QString title;
    std::vector<std::vector<RightGroup>> columns;
};

/// All rights that an administrator gives, in the order of their boxes. The captions' spelling
/// stands.
const std::vector<RightPage> &rightPages();

/// The columns of all boxes.
QStringList rightColumns();

/// The columns that a new user's row begins with as "N". The others stay empty, which counts as no.
const QStringList &rightsOfNewUser();

}  // namespace kaldo
