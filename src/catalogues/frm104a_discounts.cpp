#include "catalogues/frm104a_discounts.h"

#include "data/catalogue_texts.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kWhole = 100;

}  // namespace

FRM104a::FRM104a(Context &context) : Dialog(context, u"FRM104a"_s, u"Porcentaje de descuento"_s) {}

void FRM104a::update(const QString &centro, int tipoProd, ScreenBase *opener) {
    centro_ = centro;
    tipoProd_ = tipoProd;
    showModal(opener);
    writeAplicaDescuento();
}

void FRM104a::build() {
    using namespace form;
    form::build(this,
                column({
                    text(&tipoServicio_, u"TipoServicio"_s, u"Tipo Servicio"_s)
                        .shown(50)
                        .readOnly()
                        .above(),
                    label(u"\"Oprima doble click para actualizar porcentaje de descuento\""_s),
                    catalogue(&panel_, context(), u"Descuentos"_s, discounts()),
                }));
    resize(sizeHint());
}

CatalogueRules FRM104a::discounts() {
    DMOdonto &odonto = context().odonto;
    CatalogueRules rules;
    rules.query = &odonto.Prestacionxserv;
    rules.parameters = [this] {
        return Parameters{{u"centro"_s, centro_}, {u"tipo"_s, tipoProd_}};
    };
    rules.keys = {u"prestacion"_s};
    rules.columns = {
        GridColumn(u"PRESTACION"_s, u"Prestación"_s, 10)
            .align(Qt::AlignRight)
            .lookup({&odonto.Prestaciones,
                     u"PRESTACION"_s,
                     u"DESCRIPCION"_s,
                     {{u"PRESTACION"_s, u"Clave"_s, 8, CellMask::Integer},
                      {u"DESCRIPCION"_s, u"Descripción"_s, 44}}})
            .strict()
            .editable(),
        GridColumn(u"CLDESCR"_s, u"Descripción"_s, 48).stretch(),
        GridColumn(u"EDAD"_s, u"Edad"_s, 8).digits(3).editable(),
        GridColumn(u"PORCENT"_s, u"% Descuento"_s, 12).digits(3).editable(),
    };
    rules.fixedOnEdit = {u"PRESTACION"_s};
    rules.saveQuestion = u"La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este servicio?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"centro"_s, centro_);
        row.set(u"tipo_prod"_s, tipoProd_);
        row.set(u"prestacion"_s, 0);
    };
    rules.enter = {
        {u"PRESTACION"_s, [this] { return enterPrestacion(); }},
        {u"PORCENT"_s, [] { return EnterResult::Save; }},
    };
    rules.accept = [this] { return isPercentage(); };
    rules.reports = false;
    return rules;
}

void FRM104a::activated() {
    tipoServicio_->setText(session().ClasifDescr.text());
    context().odonto.Prestaciones.open();
    panel_->reload();
    moveFocus(panel_->grid());
}

EnterResult FRM104a::enterPrestacion() {
    const QVariant prestacion = panel_->query().value(u"prestacion"_s);
    if (context().odonto.existe(prestacionxservText(centro_, tipoProd_, prestacion))) {
        return panel_->refuse(
            u"prestacion"_s,
            u"Esta prestación ya existe para este tipo de servicio, vuelva a intentar"_s);
    }
    panel_->allowSave();
    panel_->grid()->setCurrentField(u"EDAD"_s);
    return EnterResult::Stay;
}

bool FRM104a::isPercentage() {
    if (panel_->query().integer(u"porcent"_s) <= kWhole) {
        return true;
    }
    messages().warning(u"El descuento no puede pasar de 100 %."_s);
    panel_->grid()->setCurrentField(u"PORCENT"_s);
    return false;
}

void FRM104a::reject() {
    panel_->cancel();
    Dialog::reject();
}

void FRM104a::writeAplicaDescuento() {
    NamedQuery &discounts = context().odonto.Prestacionxserv;
    NamedQuery &service = context().odonto.ClasifServicios;
    if (!discounts.isOpen()) {
        return;
    }
    service.reopen();
    if (service.isEmpty()) {
        return;
    }
    try {
        service.set(u"aplicadesc"_s, discounts.isEmpty() ? u"N"_s : u"S"_s);
        service.apply();
    } catch (...) {
        service.cancelUpdates();
        throw;
    }
}

}  // namespace kaldo
