#pragma once

#include <QWidget>

#include <array>
#include <functional>

#include "app/context.h"
#include "app/list_hint.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// The sales areas of a care centre: on the left those that it could offer, on the right those that
/// it offers, between them four buttons. Each step is written at once and without a question.
///
/// Keyboard: Enter, F2 or Insert on the left list adds the area, Enter, F2 or Delete on the right
/// one takes it away; Tab reaches the buttons.
class TwoLists : public QWidget {
    Q_OBJECT

public:
    TwoLists(Context &context, QWidget *parent, const QString &name);

    /// Shows a centre's lists; with an empty one both are closed.
    void setCentre(const QString &centro);
    const QString &centre() const { return centro_; }
    /// Opens the lists anew; the cursors stay on their rows.
    void reload();

    void addAll();
    void addSelected();
    void removeSelected();
    void removeAll();

    DataGrid *availableGrid() const { return available_; }
    DataGrid *addedGrid() const { return added_; }

signals:
    /// The lists were opened anew.
    void reloaded();

private:
    void build();
    /// Runs a step and shows what it led to; the focus goes to the other list once `from` is empty.
    void write(const NamedQuery &from, DataGrid *other, const std::function<void()> &step);
    void insert(const QVariant &tipoProd);
    void erase();
    void close();
    void updateButtons();

    Context &context_;
    QString centro_;
    DataGrid *available_ = nullptr;
    DataGrid *added_ = nullptr;
    std::array<ListHint *, 2> hints_ = {};
    QWidget *buttons_ = nullptr;
    IconButton *addAll_ = nullptr;
    IconButton *addSelected_ = nullptr;
    IconButton *removeSelected_ = nullptr;
    IconButton *removeAll_ = nullptr;
};

/// The lists as a piece of a form.
form::WidgetItem<TwoLists> twoLists(TwoLists **where, Context &context, const QString &name);

}  // namespace kaldo
