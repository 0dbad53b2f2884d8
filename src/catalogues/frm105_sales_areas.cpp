#include "catalogues/frm105_sales_areas.h"

#include "catalogues/bulk_work.h"
#include "catalogues/lookups.h"
#include "catalogues/sales_areas_report.h"
#include "catalogues/sales_families.h"
#include "data/catalogue_texts.h"
#include "toolkit/forms/form.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kHighestFirstId = 100;

}  // namespace

FRM105::FRM105(Context &context)
    : Screen(context, u"FRM105"_s, u"Areas de ventas"_s),
      levels_(context.finanzas, context.odonto.AreaVenta) {
    using namespace form;
    form::build(
        this,
        column({
            row({stretch(),
                 button(&borrarTodas_, u"BorrarTodas"_s, u"&Borrar Todas las Áreas de Ventas"_s)
                     .icon(u"delete-all"_s)
                     .with(withoutLetter)
                     .clicked([this] { borrarTodas(); }),
                 iconButton(&duplicadosBoton_, u"Duplicados"_s, u"Duplicados"_s, u"duplicate"_s)
                     .clicked([this] { toggleDuplicates(); })}),
            duplicates(),
            catalogue(&panel_, context, u"Areas"_s, areas()),
        }));
    levels_.follow(panel_);
    duplicadosBoton_->setVisible(session().isFirebird());
}

FRM105::~FRM105() {
    context().odonto.AreaVenta.setFilter({});
}

form::Item FRM105::duplicates() {
    using namespace form;
    // What was told before may no longer hold.
    const auto recheck = [this] {
        if (!copyIsTold()) {
            generar_->setEnabled(false);
        }
    };
    return strip(&duplicados_, u"PanelDuplicados"_s,
                 {lookup(&ciudad_, u"Ciudad"_s, u"Ciudad"_s)
                      .source(campuses(context().odonto.CtroAtencion3))
                      .shown(6)
                      .changed(recheck)
                      .closedUp([this] { chooseCampus(); }),
                  number(&idInicial_, u"IdInicial"_s, u"ID Inicial"_s)
                      .range(0, kHighestFirstId)
                      .width(3)
                      .key(Qt::Key_Up, [this] { stepFirstId(1); })
                      .key(Qt::Key_Down, [this] { stepFirstId(-1); })
                      .changed(recheck),
                  text(&origen_, u"Origen"_s, u"Origen"_s)
                      .width(2)
                      .shown(4)
                      .changed(recheck)
                      .enter([this] { generar_->setEnabled(copyIsTold()); }),
                  button(&generar_, u"Generar"_s, u"&Generar Áreas de Ventas"_s)
                      .with(withoutLetter)
                      .disabled()
                      .clicked([this] { generarAreas(); }),
                  stretch()})
        .hidden();
}

CatalogueRules FRM105::areas() {
    NamedQuery &areas = context().odonto.AreaVenta;
    const bool accounts = options().ContabilidadGubernamental;
    CatalogueRules rules;
    rules.query = &areas;
    rules.parameters = [this] { return Parameters{{u"cd"_s, session().Origen.text()}}; };
    rules.keys = {u"tipo_prod"_s};
    rules.columns = areaColumns();
    rules.fixedOnEdit = {u"TIPO_PROD"_s};
    rules.insertAt = u"DESCR"_s;
    rules.prepareInsert = [this] { return prepareInsert(); };
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"tipo_prod"_s, context().odonto.AreaVentaT.value(u"max"_s).toLongLong() + 1);
        row.set(u"ciudad"_s, session().Origen.text());
        row.set(u"vigente"_s, u"S"_s);
    };
    rules.enter = {
        {u"TIPO_PROD"_s, [this] { return enterArea(); }},
        {u"VIGENTE"_s, [accounts] { return accounts ? EnterResult::Next : EnterResult::Save; }},
        {u"SUBCTAID"_s, [this] { return enterSubcta(); }},
    };
    rules.mayRemove = [this] { return mayRemove(); };
    rules.modeChanged = [this, &areas, accounts](CatalogueMode mode) {
        const bool consult = mode == CatalogueMode::Consult;
        borrarTodas_->setEnabled(consult && !areas.isEmpty());
        // The copy would take the open row along.
        duplicados_->setEnabled(consult);
        if (!consult && accounts) {
            levels_.reopen();
        }
    };
    return rules;
}

QList<GridColumn> FRM105::areaColumns() {
    const bool accounts = options().ContabilidadGubernamental;
    const GridColumn path(u"NOMENCLATURA"_s, u"Nomenclatura"_s, 13);
    QList<GridColumn> columns = {
        GridColumn(u"TIPO_PROD"_s, u"Area"_s, 5).mask(CellMask::Integer).editable(),
        GridColumn(u"DESCR"_s, u"Descripción"_s, 30).limit(80).upper().stretch().editable(),
        GridColumn(u"DIRIGIDOA"_s, u"Dirigido a"_s, 40).choices(salesFamilies(), 2).editable(),
        GridColumn(u"ORIGEN"_s, u"Origen"_s, 15).choices(salesOrigins(), 2).editable(),
        GridColumn(u"VIGENTE"_s, u"Vigente"_s, 7).yesNo().editable(),
    };
    columns += levels_.columns(accounts);
    columns += accounts ? path : GridColumn(path).hidden();
    return columns;
}

void FRM105::formCreate() {
    context().odonto.AreaVenta.setFilter(areasOfSector(options().sector));
    context().odonto.CtroAtencion3.open();
    panel_->reload();
    levels_.reopen();
}

void FRM105::activated() {
    panel_->refresh();
}

bool FRM105::prepareInsert() {
    panel_->reload();
    context().odonto.AreaVentaT.open();
    return true;
}

EnterResult FRM105::enterArea() {
    if (context().odonto.existe(areaVentaText(panel_->query().value(u"tipo_prod"_s)))) {
        return panel_->refuseWarning(
            u"tipo_prod"_s,
            u"La clave de área ya se encuentra registrada, presione cualquier tecla para "
            "continuar."_s);
    }
    panel_->allowSave();
    levels_.reopen();
    return EnterResult::Next;
}

EnterResult FRM105::enterSubcta() {
    panel_->query().set(u"nomenclatura"_s, levels_.nomenclatura());
    return EnterResult::Save;
}

bool FRM105::mayRemove() {
    if (context().odonto.existe(areaEnCentrosText(panel_->query().value(u"tipo_prod"_s)))) {
        messages().warning(
            u"La clave de área no se puede borrar, contiene relación con Centro de Atención, "
            "presione cualquier tecla para continuar."_s);
        return false;
    }
    return true;
}

void FRM105::borrarTodas() {
    const QString question = u"¿¿Desea borrar todas las áreas para esta ciudad?"_s;
    const QString lost =
        u"Ciudad: %1\nÁreas: %2"_s.arg(session().Origen.text()).arg(panel_->query().count());
    if (messages().confirmLoss(question, lost) != Answer::Yes) {
        return;
    }
    context().odonto.ejecutar("AreaVenta", borrarAreasText(session().Origen.text()));
    panel_->reload();
    tellDeleted(messages());
}

void FRM105::toggleDuplicates() {
    const bool open = !duplicados_->isVisible();
    duplicados_->setVisible(open);
    if (open) {
        moveFocus(ciudad_);
    } else {
        moveFocus(panel_->grid());
    }
}

void FRM105::chooseCampus() {
    if (ciudad_->text() == session().Origen.text()) {
        messages().warning(
            u"¡Solo se pueden duplicar áreas a otras ciudades, verifique su información!"_s);
        ciudad_->clearField();
        stayHere();
    }
}

void FRM105::stepFirstId(int step) {
    idInicial_->setValue(std::clamp<qint64>(idInicial_->value() + step, 0, kHighestFirstId));
}

bool FRM105::copyIsTold() const {
    const QString campus = ciudad_->text();
    return !campus.isEmpty() && campus != session().Origen.text() && idInicial_->value() > 0 &&
           idInicial_->value() <= kHighestFirstId && !origen_->text().isEmpty();
}

void FRM105::generarAreas() {
    if (!copyIsTold() || !confirmGeneration(messages())) {
        return;
    }
    copyAreas(ciudad_->text(), static_cast<int>(idInicial_->value()), origen_->text());
    generar_->setEnabled(false);
    tellGenerated(messages());
}

void FRM105::copyAreas(const QString &campus, int firstId, const QString &origen) {
    NamedQuery &target = context().odonto.AreaVenta3;
    target.openToAppend({{u"cd"_s, campus}});
    copyRows(context().frame, context().odonto.AreaVenta, target,
             {u"descr"_s, u"dirigidoa"_s, u"generoid"_s, u"grupoid"_s, u"cgrubroid"_s,
              u"cuentaid"_s, u"subctaid"_s, u"nomenclatura"_s},
             [&](int area) {
                 target.set(u"tipo_prod"_s, firstId + area);
                 target.set(u"ciudad"_s, campus);
                 target.set(u"origen"_s, origen);
                 target.set(u"vigente"_s, u"S"_s);
             });
}

bool FRM105::previewReport() {
    panel_->refresh();
    previewCatalogue(context(), this, this,
                     layoutSalesAreas(catalogueHeading(context()), session().Ciudad,
                                      salesAreaRows(context().odonto.AreaVenta),
                                      options().ContabilidadGubernamental),
                     windowTitle());
    return true;
}

}  // namespace kaldo
