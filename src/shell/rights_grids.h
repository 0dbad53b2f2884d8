#pragma once

#include <QTabWidget>
#include <QTableView>

#include <functional>
#include <vector>

#include "data/named_query.h"
#include "shell/user_rights.h"
#include "toolkit/forms/field.h"

namespace kaldo {

/// A vertical grid: one group of rights over the current row of a query, each line a box that is
/// ticked for "S". The column's title is the group's.
///
/// Keyboard. Up, Down, Home and End move over the boxes, blank turns one over, S and N set it,
/// Enter goes on to the next one.
class RightsGrid : public QTableView, public Field {
    Q_OBJECT

public:
    /// The query outlives the grid.
    RightsGrid(NamedQuery &rights, const RightGroup &group, QWidget *parent);

    void setEditable(bool editable) { editable_ = editable; }
    /// To the first box.
    void goToStart();
    /// Tab and back-tab; false lets them go out of the grid as usual.
    void setTabHandler(std::function<bool(bool forward)> handler) { tab_ = std::move(handler); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void clearField() override {}
    void setFieldReadOnly(bool readOnly) override { setEditable(!readOnly); }

signals:
    /// Enter on the last box.
    void passed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    int heightOf(int rows) const;
    /// The next line with a box after `row`, before it for -1; -1 if there is none.
    int neighbour(int row, int direction) const;
    bool goTo(int row);
    void set(int row, bool ticked);

    class RightsRows *rows_;
    std::function<bool(bool)> tab_;
    bool editable_ = false;
};

/// All rights of a user, on pages. Tab goes from group to group, over the pages too.
class RightsGrids : public QTabWidget {
    Q_OBJECT

public:
    explicit RightsGrids(QWidget *parent = nullptr);

    /// Once. The query outlives the grids.
    void setQuery(NamedQuery &rights);
    void setEditable(bool editable);
    /// The focus to the first box of all.
    void start();

signals:
    /// Enter on the last box of all.
    void finished();

private:
    QWidget *makePage(NamedQuery &rights, const RightPage &page);
    void passed(const RightsGrid *grid);
    bool step(const RightsGrid *from, bool forward);
    RightsGrid *beside(const RightsGrid *grid, bool forward) const;
    void show(const RightsGrid *grid);

    std::vector<RightsGrid *> grids_;
};

}  // namespace kaldo
