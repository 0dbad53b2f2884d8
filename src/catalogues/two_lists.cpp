#include "catalogues/two_lists.h"

#include <QLayout>

#include "app/binding.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

/// What a business installation works with.
constexpr int kAreasOfABusiness = 10;

QList<GridColumn> areaColumns() {
    return {GridColumn(u"TIPO_PROD"_s, u"Area"_s, 6).mask(CellMask::Integer),
            GridColumn(u"DESCR"_s, u"Descripción"_s, 28).stretch()};
}

}  // namespace

TwoLists::TwoLists(Context &context, QWidget *parent, const QString &name)
    : QWidget(parent), context_(context) {
    setObjectName(name);
    build();
    bindGrid(available_, &context_.odonto.ConsultaAreas);
    bindGrid(added_, &context_.odonto.ServxCtro);
    updateButtons();
}

void TwoLists::build() {
    using namespace form;
    const auto list = [](DataGrid **where, const QString &name, const QString &title,
                         Qt::Key key, const std::function<void()> &move) {
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
                   column({stretch(),
                           iconButton(&addAll_, u"AgregarTodas"_s, u"Agregar todas"_s, u"last"_s)
                               .clicked([this] { addAll(); }),
                           iconButton(&addSelected_, u"AgregarSeleccionada"_s,
                                      u"Agregar seleccionada"_s, u"next"_s)
                               .clicked(add),
                           iconButton(&removeSelected_, u"EliminarSeleccionada"_s,
                                      u"Eliminar seleccionada"_s, u"previous"_s)
                               .clicked(remove),
                           iconButton(&removeAll_, u"EliminarTodas"_s, u"Eliminar todas"_s,
                                      u"first"_s)
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
    if (context_.options.sector == Sector::Empresarial) {
        available.setFilter([](const NamedQuery::RowReader &row) {
            return row(u"tipo_prod"_s).toInt() <= kAreasOfABusiness;
        });
    } else {
        available.setFilter({});
    }
    added.cancelUpdates();
    available.open({{u"centro"_s, centro_}, {u"cd"_s, context_.session.Origen.text()}});
    added.open({{u"cent"_s, centro_}});
    available.moveTo(std::min(places[0], available.count() - 1));
    added.moveTo(std::min(places[1], added.count() - 1));
    updateButtons();
    emit reloaded();
}

void TwoLists::write(const std::function<void()> &step) {
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
    keepFocus();
}

void TwoLists::insert(const QVariant &tipoProd) {
    NamedQuery &added = context_.odonto.ServxCtro;
    added.append();
    added.set(u"centro"_s, centro_);
    added.set(u"tipo_prod"_s, tipoProd);
    added.apply();
}

void TwoLists::addAll() {
    write([this] {
        const NamedQuery &available = context_.odonto.ConsultaAreas;
        const int rows = context_.odonto.ConsultaAreas.count();
        for (int row = 0; row < rows; ++row) {
            insert(available.valueAt(row, u"tipo_prod"_s));
        }
    });
}

void TwoLists::addSelected() {
    const NamedQuery &available = context_.odonto.ConsultaAreas;
    if (!available.isEmpty()) {
        write([&] { insert(available.value(u"tipo_prod"_s)); });
    }
}

void TwoLists::removeSelected() {
    NamedQuery &added = context_.odonto.ServxCtro;
    if (!added.isEmpty()) {
        write([&added] {
            added.remove();
            added.apply();
        });
    }
}

void TwoLists::removeAll() {
    write([this] {
        NamedQuery &stored = context_.odonto.ServxCtro1;
        stored.open({{u"ctro"_s, centro_}});
        NamedQuery &added = context_.odonto.ServxCtro;
        // An area that no longer exists stands among the stored ones only.
        for (int left = stored.count(); left > 0 && !added.isEmpty(); --left) {
            added.remove();
            added.apply();
        }
    });
}

void TwoLists::updateButtons() {
    const bool open = !centro_.isEmpty();
    buttons_->setEnabled(open);
    const bool available = open && !context_.odonto.ConsultaAreas.isEmpty();
    const bool added = open && !context_.odonto.ServxCtro.isEmpty();
    addAll_->setEnabled(available);
    addSelected_->setEnabled(available);
    removeSelected_->setEnabled(added);
    removeAll_->setEnabled(added);
}

void TwoLists::keepFocus() {
    if (added_->hasFocus() && context_.odonto.ServxCtro.isEmpty()) {
        moveFocus(available_);
    } else if (context_.odonto.ConsultaAreas.isEmpty() && !added_->hasFocus()) {
        moveFocus(added_);
    } else if (context_.odonto.ServxCtro.isEmpty()) {
        moveFocus(available_);
    }
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
