#include "catalogues/two_lists.h"

#include <QLayout>

#include "app/binding.h"
#include "catalogues/bulk_work.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

QList<GridColumn> areaColumns() {
    return {GridColumn(u"TIPO_PROD"_s, u"Area"_s, 6).mask(CellMask::Integer),
            GridColumn(u"DESCR"_s, u"Descripción"_s, 34).stretch()};
}

/// To the row where the cursor was, else to the last one; a list on its first row stays unread.
void moveBack(NamedQuery &list, int row) {
    if (row > 0 && !list.moveTo(row)) {
        list.moveTo(list.count() - 1);
    }
}

}  // namespace

TwoLists::TwoLists(Context &context, QWidget *parent, const QString &name)
    : QWidget(parent), context_(context) {
    setObjectName(name);
    build();
    bindGrid(available_, &context_.odonto.ConsultaAreas);
    bindGrid(added_, &context_.odonto.ServxCtro);
    hints_ = {new ListHint(available_), new ListHint(added_)};
    updateButtons();
}

void TwoLists::build() {
    using namespace form;
    const auto list = [](DataGrid **where, const QString &name, const QString &title, Qt::Key key,
                         const std::function<void()> &move) {
        return grid(where, name, title)
            .above()
            .columns(areaColumns())
            .with([](DataGrid *made) { made->setRowSelection(true); })
            .enter([move] {
                move();
                stayHere();
            })
            .key(key, move)
            .with([move](DataGrid *made) { made->setDoubleClickHandler(move); })
            .grow();
    };
    const auto add = [this] { addSelected(); };
    const auto remove = [this] { removeSelected(); };
    form::build(
        this,
        row({column({list(&available_, u"AreasDisponibles"_s, u"Áreas de ventas disponibles"_s,
                          Qt::Key_Insert, add)}),
             panel(&buttons_, u"PanelBotones"_s,
                   column(
                       {stretch(),
                        iconButton(&addAll_, u"AgregarTodas"_s, u"Agregar todas"_s, u"last"_s)
                            .clicked([this] { addAll(); }),
                        iconButton(&addSelected_, u"AgregarSeleccionada"_s,
                                   u"Agregar seleccionada"_s, u"next"_s)
                            .clicked(add),
                        iconButton(&removeSelected_, u"EliminarSeleccionada"_s,
                                   u"Eliminar seleccionada"_s, u"previous"_s)
                            .clicked(remove),
                        iconButton(&removeAll_, u"EliminarTodas"_s, u"Eliminar todas"_s, u"first"_s)
                            .clicked([this] { removeAll(); }),
                        stretch()})),
             column({list(&added_, u"AreasAgregadas"_s, u"Áreas de ventas agregadas"_s,
                          Qt::Key_Delete, remove)})}));
    layout()->setContentsMargins(0, 0, 0, 0);
}

void TwoLists::setCentre(const QString &centro) {
    centro_ = centro;
    if (centro_.isEmpty()) {
        close();
    } else {
        reload();
    }
}

void TwoLists::close() {
    context_.odonto.ConsultaAreas.close();
    context_.odonto.ServxCtro.close();
    updateButtons();
    emit reloaded();
}

void TwoLists::reload() {
    NamedQuery &available = context_.odonto.ConsultaAreas;
    NamedQuery &added = context_.odonto.ServxCtro;
    const int places[] = {available.position(), added.position()};
    available.setFilter(areasOfSector(context_.options.sector));
    added.cancelUpdates();
    available.open({{u"centro"_s, centro_}, {u"cd"_s, context_.session.Origen.text()}});
    added.open({{u"cent"_s, centro_}});
    moveBack(available, places[0]);
    moveBack(added, places[1]);
    updateButtons();
    emit reloaded();
}

void TwoLists::write(const NamedQuery &from, DataGrid *other, const std::function<void()> &step) {
    if (centro_.isEmpty()) {
        return;
    }
    try {
        step();
    } catch (...) {
        reload();
        throw;
    }
    reload();
    if (from.isEmpty()) {
        moveFocus(other);
    }
}

void TwoLists::insert(const QVariant &tipoProd) {
    NamedQuery &added = context_.odonto.ServxCtro;
    added.append();
    added.set(u"centro"_s, centro_);
    added.set(u"tipo_prod"_s, tipoProd);
    added.apply();
}

void TwoLists::erase() {
    NamedQuery &added = context_.odonto.ServxCtro;
    added.remove();
    added.apply();
}

void TwoLists::addAll() {
    NamedQuery &available = context_.odonto.ConsultaAreas;
    write(available, added_, [&] {
        available.reopen();  // without those that another station has added meanwhile
        const int rows = available.count();
        for (int row = 0; row < rows; ++row) {
            insert(available.valueAt(row, u"tipo_prod"_s));
        }
    });
}

void TwoLists::addSelected() {
    const NamedQuery &available = context_.odonto.ConsultaAreas;
    if (!available.isEmpty()) {
        write(available, added_, [&] { insert(available.value(u"tipo_prod"_s)); });
    }
}

void TwoLists::removeSelected() {
    NamedQuery &added = context_.odonto.ServxCtro;
    if (!added.isEmpty()) {
        write(added, available_, [&] { erase(); });
    }
}

void TwoLists::removeAll() {
    NamedQuery &added = context_.odonto.ServxCtro;
    write(added, available_, [&] {
        NamedQuery &stored = context_.odonto.ServxCtro1;
        stored.open({{u"ctro"_s, centro_}});
        added.reopen();
        // Those whose area no longer exists stand among the stored ones only.
        for (int left = stored.count(); left > 0 && !added.isEmpty(); --left) {
            erase();
        }
    });
}

void TwoLists::updateButtons() {
    const bool open = !centro_.isEmpty();
    buttons_->setEnabled(open);
    const bool available = open && !context_.odonto.ConsultaAreas.isEmpty();
    const bool added = open && !context_.odonto.ServxCtro.isEmpty();
    const QString wait = u"Elija el centro de atención."_s;
    hints_[0]->say(open ? (available ? u""_s : u"No queda ninguna por agregar."_s) : wait);
    hints_[1]->say(open ? (added ? u""_s : u"Todavía no hay ninguna."_s) : wait);
    addAll_->setEnabled(available);
    addSelected_->setEnabled(available);
    removeSelected_->setEnabled(added);
    removeAll_->setEnabled(added);
}

form::WidgetItem<TwoLists> twoLists(TwoLists **where, Context &context, const QString &name) {
    auto node = std::make_shared<form::Node>();
    node->name = name;
    node->make = [where, &context, name](QWidget *parent) -> QWidget * {
        *where = new TwoLists(context, parent, name);
        return *where;
    };
    return form::WidgetItem<TwoLists>(node).fill().grow();
}

}  // namespace kaldo
