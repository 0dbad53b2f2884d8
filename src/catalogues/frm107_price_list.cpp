#include "catalogues/frm107_price_list.h"

#include "catalogues/account_levels.h"
#include "catalogues/bulk_work.h"
#include "catalogues/item_code.h"
#include "catalogues/lookups.h"
#include "catalogues/price_list_report.h"
#include "data/catalogue_texts.h"
#include "toolkit/core/money.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kClaveDigits = 9;
constexpr double kHighestPrice = 999999999.99;

}  // namespace

FRM107::FRM107(Context &context) : Screen(context, u"FRM107"_s, u"Lista de Precios"_s) {
    using namespace form;
    form::build(this,
                column({
                    row({lookup(&area_, u"AreaVentas"_s, u"Área de Ventas"_s)
                             .source(salesAreas(context.odonto.AreaVenta))
                             .shown(40)
                             .with([this](LookupField *field) {
                                 bindLookup(field, &this->context().odonto.AreaVenta);
                             })
                             .edited([this] { forgetArea(); })
                             .closedUp([this] { chooseArea(); }),
                         stretch(),
                         button(&borrarLista_, u"BorrarLista"_s, u"&Borrar Lista de Precios"_s)
                             .icon(u"delete-all"_s)
                             .with(withoutLetter)
                             .disabled()
                             .clicked([this] { borrarLista(); }),
                         iconButton(nullptr, u"Duplicados"_s, u"Duplicados"_s, u"duplicate"_s)
                             .clicked([this] { toggleDuplicates(); })}),
                    duplicates(),
                    catalogue(&panel_, context, u"Precios"_s, prices()),
                }));
    panel_->setInsertAllowed(false);
}

FRM107::~FRM107() {
    context().odonto.AreaVenta.setFilter({});
}

form::Item FRM107::duplicates() {
    using namespace form;
    return strip(&duplicados_, u"PanelDuplicados"_s,
                 {lookup(&ciudad_, u"Ciudad"_s, u"Ciudad"_s)
                      .source(campuses(context().odonto.CtroAtencion3))
                      .shown(6)
                      .closedUp([this] { chooseCampus(); }),
                  lookup(&areaDestino_, u"AreaDestino"_s, u"Área de Ventas"_s)
                      .source(salesAreas(context().odonto.AreaVenta2))
                      .shown(26)
                      .closedUp([this] { chooseTarget(); }),
                  lookup(&programa_, u"Programa"_s, u"Programa"_s)
                      .source(programmes(context().finanzas.Programas1))
                      .shown(8)
                      .closedUp([this] { choosePrograma(); }),
                  button(&generar_, u"Generar"_s, u"&Generar Lista de Precios"_s)
                      .with(withoutLetter)
                      .disabled()
                      .clicked([this] { generarLista(); }),
                  stretch()})
        .hidden();
}

CatalogueRules FRM107::prices() {
    NamedQuery &items = context().odonto.Listaprecios1;
    CatalogueRules rules;
    rules.query = &items;
    rules.parameters = [this] {
        return Parameters{{u"tipoprod"_s, context().odonto.AreaVenta.value(u"tipo_prod"_s)}};
    };
    rules.keys = {u"codigo"_s};
    rules.waitsFor = u"Elija el área de ventas para ver sus precios."_s;
    rules.columns = priceColumns();
    rules.fixedOnEdit = {u"CVE_PROD"_s};
    rules.editAt = u"DESCR"_s;
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"vigente"_s, u"S"_s);
        row.set(u"tipo_prod"_s, context().odonto.AreaVenta.value(u"tipo_prod"_s));
    };
    const bool accounts = options().ContabilidadGubernamental;
    const auto reopening = [](NamedQuery &list) {
        return [&list] {
            list.open();
            return EnterResult::Next;
        };
    };
    rules.enter = {
        {u"CVE_PROD"_s, [this] { return enterClave(); }},
        {u"DESCR"_s,
         [this] {
             panel_->grid()->setCurrentField(u"VIGENTE"_s);
             return EnterResult::Stay;
         }},
        {u"MENUDEO"_s, [accounts] { return accounts ? EnterResult::Next : EnterResult::Save; }},
        {u"PROG"_s,
         [this] {
             openSubsubcta();
             return EnterResult::Next;
         }},
        {u"SUBSUBCTA"_s, reopening(context().finanzas.tipodeiva)},
        {u"TIPODEIVA"_s, reopening(context().finanzas.clasificacioniva)},
        {u"CLAVEPRODSERV"_s, [] { return EnterResult::Save; }},
    };
    rules.accept = [this] { return acceptRow(); };
    rules.complete = [this] { return completeRow(); };
    rules.modeChanged = [this, accounts](CatalogueMode mode) {
        const bool consult = mode == CatalogueMode::Consult;
        borrarLista_->setEnabled(consult && !context().odonto.Listaprecios1.isEmpty());
        // What either of them does would take the open row along.
        area_->setEnabled(consult);
        duplicados_->setEnabled(consult);
        if (!consult && accounts) {
            context().finanzas.tipodeiva.open();
        }
    };
    return rules;
}

QList<GridColumn> FRM107::priceColumns() {
    DMFinanzas &finanzas = context().finanzas;
    const bool accounts = options().ContabilidadGubernamental;
    const auto ifAccounts = [accounts](GridColumn column) {
        return accounts ? column : column.hidden();
    };
    return {
        GridColumn(u"CVE_PROD"_s, u"Clave"_s, 7)
            .mask(CellMask::Integer)
            .allowed(u"0123456789"_s)
            .limit(kClaveDigits)
            .editable(),
        GridColumn(u"DESCR"_s, u"Descripción"_s, 38).limit(150).upper().stretch().editable(),
        GridColumn(u"VIGENTE"_s, u"Vigente"_s, 7).yesNo().editable(),
        GridColumn(u"LKUMEDIDA"_s, u"Unidad Medida"_s, 14)
            .lookup({&context().odonto.UMedida,
                     u"UNIMED"_s,
                     u"DESCR"_s,
                     {{u"DESCR"_s, u"Unidad Medida"_s, 20}}})
            .strict()
            .editable(),
        GridColumn(u"MENUDEO"_s, u"Precio"_s, 12).mask(CellMask::MoneyTight).editable(),
        ifAccounts(GridColumn(u"PROG"_s, u"Programa"_s, 9)
                       .lookup(programmes(finanzas.Programas))
                       .strict()
                       .editable()),
        ifAccounts(GridColumn(u"SUBSUBCTA"_s, u"Subsubcta"_s, 10)
                       .mask(CellMask::Integer)
                       .lookup(numbered(finanzas.csubsubcta, u"SUBSUBCTAID"_s, u"Subsubcta"_s))
                       .strict()
                       .editable()),
        ifAccounts(GridColumn(u"TIPODEIVA"_s, u"Iva"_s, 5)
                       .mask(CellMask::Integer)
                       .lookup(numbered(finanzas.tipodeiva, u"TIPODEIVA"_s, u"Iva"_s))
                       .strict()
                       .editable()),
        ifAccounts(
            GridColumn(u"CLASIFICACIONIVA"_s, u"Clasif. Iva"_s, 9)
                .mask(CellMask::Integer)
                .lookup(numbered(finanzas.clasificacioniva, u"CLASIFICACIONID"_s, u"Clasif."_s))
                .strict()
                .editable()),
        ifAccounts(GridColumn(u"CLAVEPRODSERV"_s, u"Clave Prod. Serv."_s, 14)
                       .mask(CellMask::Integer)
                       .editable()),
    };
}

void FRM107::formCreate() {
    DMOdonto &odonto = context().odonto;
    odonto.AreaVenta.setFilter(areasOfSector(options().sector));
    odonto.AreaVenta.open({{u"cd"_s, session().Origen.text()}});
    odonto.UMedida.open();
    context().finanzas.Programas.open();
    odonto.CtroAtencion3.open();
    context().finanzas.Programas1.open();
    odonto.Listaprecios1.close();
}

void FRM107::activated() {
    panel_->refresh();
}

void FRM107::chooseArea() {
    openSubsubcta();
    context().finanzas.clasificacioniva.open();
    panel_->reload();
    panel_->setInsertAllowed(true);
    moveFocus(panel_->grid());
}

void FRM107::forgetArea() {
    if (area_->text().isEmpty()) {
        panel_->query().close();
        panel_->setInsertAllowed(false);
        borrarLista_->setEnabled(false);
    }
}

void FRM107::openSubsubcta() {
    openSixthLevel(context().finanzas, context().odonto.AreaVenta);
}

EnterResult FRM107::enterClave() {
    NamedQuery &row = panel_->query();
    const int codigo = itemCode(row.integer(u"tipo_prod"_s), row.integer(u"cve_prod"_s));
    row.set(u"codigo"_s, codigo);
    if (context().odonto.existe(codigoText(codigo))) {
        return panel_->refuseWarning(
            u"cve_prod"_s,
            u"La clave ya se encuentra registrada para esta área y tipo de servicio, presione "
            "cualquier tecla para continuar."_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

bool FRM107::acceptRow() {
    if (!panel_->filled(u"cve_prod"_s)) {
        return false;
    }
    const double price = panel_->query().number(u"menudeo"_s);
    if (price < 0 || price > kHighestPrice) {
        messages().warning(u"El precio debe estar entre %1 y %2, vuelva a intentar."_s.arg(
            formatMoney(0.0), formatMoney(kHighestPrice)));
        panel_->grid()->setCurrentField(u"MENUDEO"_s);
        return false;
    }
    return true;
}

bool FRM107::completeRow() {
    NamedQuery &row = panel_->query();
    const NamedQuery &area = context().odonto.AreaVenta;
    row.set(u"codigo"_s, itemCode(row.integer(u"tipo_prod"_s), row.integer(u"cve_prod"_s)));
    row.set(u"nomenclatura"_s,
            QString(area.text(u"nomenclatura"_s) + u'.' + row.text(u"subsubcta"_s)));
    NamedQuery &tipodeiva = context().finanzas.tipodeiva;
    if (tipodeiva.isOpen()) {
        const bool taxed = tipodeiva.locate({{u"tipodeiva"_s, row.value(u"tipodeiva"_s)}});
        row.set(u"porcentajeiva"_s, taxed ? tipodeiva.value(u"porcentaje"_s) : QVariant());
    }
    if (!row.isNull(u"menudeo"_s)) {
        row.set(u"menudeo"_s, roundedToCents(row.number(u"menudeo"_s)));
    }
    row.set(u"fecha_mov"_s, context().clock.today());
    return true;
}

void FRM107::borrarLista() {
    const QString question = u"¿Se borrarán todos los productos de esta área, desea proceder?"_s;
    DMOdonto &odonto = context().odonto;
    const QString lost =
        u"Área de Ventas: %1\nProductos: %2"_s.arg(odonto.AreaVenta.text(u"descr"_s))
            .arg(panel_->query().count());
    if (messages().confirmLoss(question, lost) != Answer::Yes) {
        return;
    }
    odonto.ejecutar("Listaprecios", borrarPreciosText(odonto.AreaVenta.integer(u"tipo_prod"_s)));
    panel_->reload();
    tellDeleted(messages());
}

bool FRM107::previewReport() {
    NamedQuery &items = context().odonto.Listaprecios;
    items.open({{u"cd"_s, session().Origen.text()}});
    if (items.isEmpty()) {
        return true;
    }
    previewCatalogue(context(), this, this,
                     layoutPriceList(catalogueHeading(context()), session().Ciudad,
                                     priceListRows(items, context().odonto.UMedida),
                                     options().ContabilidadGubernamental),
                     windowTitle());
    return true;
}

}  // namespace kaldo
