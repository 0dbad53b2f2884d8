#include "catalogues/frm104_service_classes.h"

#include "catalogues/lookups.h"
#include "catalogues/service_classes_report.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM104::FRM104(Context &context)
    : Screen(context, u"FRM104"_s, u"Clasificación de Servicios Prestados"_s), discounts_(context) {
    using namespace form;
    form::build(
        this,
        column({
            row({lookup(&centro_, u"Centro"_s, u"Centro de Atención"_s)
                     .source(centres(context.odonto.CtroAtencion1))
                     .shown(44)
                     .edited([this] { forgetCentre(); })
                     .closedUp([this] { chooseCentre(); }),
                 stretch()}),
            row({lookup(&area_, u"AreaVentas"_s, u"Áreas de venta"_s)
                     .source(salesAreas(context.odonto.ServxCtro))
                     .shown(44)
                     .disabled()
                     .edited([this] { forgetArea(); })
                     .closedUp([this] { chooseArea(); }),
                 stretch(),
                 button(&descuentos_, u"ActualizarDescuento"_s, u"Actualizar % de descuento"_s)
                     .icon(u"percent"_s)
                     .disabled()
                     .clicked([this] { updateDiscounts(); })}),
            catalogue(&panel_, context, u"Servicios"_s, services()),
        }));
    bindLookup(centro_, &context.odonto.CtroAtencion1);
    bindLookup(area_, &context.odonto.ServxCtro);
    panel_->setInsertAllowed(false);
}

CatalogueRules FRM104::services() {
    CatalogueRules rules;
    rules.query = &context().odonto.ClasifServicios;
    rules.parameters = [this] {
        return Parameters{{u"cd"_s, session().Origen.text()}, {u"tipo_prod"_s, area_->value()}};
    };
    rules.keys = {u"tipo_prod"_s};
    rules.waitsFor = u"Elija el centro y el área de venta para ver su clasificación."_s;
    rules.columns = {
        GridColumn(u"TIPO_PROD"_s, u"Clave"_s, 8).mask(CellMask::Integer),
        GridColumn(u"CLDESCR"_s, u"Descripción"_s, 40).stretch(),
        GridColumn(u"APLICA_ANTICIPO"_s, u"Anticipo"_s, 10).yesNo().editable(),
        GridColumn(u"APLICADESC"_s, u"Aplica Descto."_s, 14).yesNo().editable(),
        GridColumn(u"REQUIERE_EDAD"_s, u"Req. Edad"_s, 10).yesNo().editable(),
        GridColumn(u"EDADMIN"_s, u"Edad Min."_s, 10).digits(3).editable(),
        GridColumn(u"EDADMAX"_s, u"Edad Max."_s, 10).digits(3).editable(),
    };
    rules.editAt = u"APLICADESC"_s;
    rules.saveQuestion = u"¿La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este servicio?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"ciudad"_s, session().Origen.text());
        row.set(u"tipo_prod"_s, area_->value());
        row.set(u"CLDescr"_s, session().ClasifDescr.text());
        for (const QString &flag : {u"aplica_anticipo"_s, u"aplicadesc"_s, u"requiere_edad"_s}) {
            row.set(flag, u"N"_s);
        }
        row.set(u"edadmin"_s, 0);
        row.set(u"edadmax"_s, 0);
    };
    const auto next = [this] { return areaThen(EnterResult::Next); };
    rules.enter = {
        {u"APLICA_ANTICIPO"_s, next},
        {u"APLICADESC"_s, next},
        {u"REQUIERE_EDAD"_s, [this] { return enterRequiereEdad(); }},
        {u"EDADMIN"_s, next},
        {u"EDADMAX"_s, [this] { return areaThen(EnterResult::Save); }},
    };
    rules.modeChanged = [this](CatalogueMode mode) { changeMode(mode); };
    return rules;
}

void FRM104::formCreate() {
    DMOdonto &odonto = context().odonto;
    odonto.ServxCtro.close();
    odonto.ClasifServicios.close();
    odonto.CtroAtencion1.open({{u"cd"_s, session().Origen.text()}});
    moveFocus(centro_);
}

void FRM104::activated() {
    panel_->refresh();
}

void FRM104::forgetArea() {
    areaChosen_ = false;
    context().odonto.ClasifServicios.close();
    panel_->setInsertAllowed(false);
    descuentos_->setEnabled(false);
}

void FRM104::forgetCentre() {
    forgetArea();
    area_->clearField();
    area_->setEnabled(false);
    context().odonto.ServxCtro.close();
}

void FRM104::chooseCentre() {
    forgetCentre();
    context().odonto.ServxCtro.open({{u"cent"_s, centro_->value()}});
    area_->setEnabled(true);
    moveFocus(area_);
}

void FRM104::chooseArea() {
    session().ClasifDescr = context().odonto.ServxCtro.text(u"descr"_s);
    areaChosen_ = true;
    panel_->reload();
    panel_->setInsertAllowed(true);
    moveFocus(panel_->grid());
}

void FRM104::changeMode(CatalogueMode mode) {
    const bool consult = mode == CatalogueMode::Consult;
    centro_->setEnabled(consult);
    area_->setEnabled(consult && context().odonto.ServxCtro.isOpen());
    descuentos_->setEnabled(consult && areaChosen_);
    if (!consult) {
        allowAges();
    }
}

void FRM104::allowAges() {
    const bool asked = context().odonto.ClasifServicios.text(u"requiere_edad"_s) == u"S"_s;
    panel_->grid()->setColumnEditable(u"EDADMIN"_s, asked);
    panel_->grid()->setColumnEditable(u"EDADMAX"_s, asked);
}

EnterResult FRM104::areaThen(EnterResult result) {
    if (panel_->query().isNull(u"tipo_prod"_s)) {
        return panel_->required();
    }
    panel_->allowSave();
    return result;
}

EnterResult FRM104::enterRequiereEdad() {
    allowAges();
    return areaThen(EnterResult::Next);
}

void FRM104::updateDiscounts() {
    discounts_.update(centro_->value().toString(), area_->value().toInt(), this);
    panel_->refresh();
}

bool FRM104::previewReport() {
    NamedQuery &classes = context().odonto.ClasifServiciosR;
    classes.open({{u"cd"_s, session().Origen.text()}});
    previewCatalogue(context(), this, this,
                     layoutServiceClasses(catalogueHeading(context()), serviceClassLines(classes)),
                     windowTitle());
    return true;
}

}  // namespace kaldo
