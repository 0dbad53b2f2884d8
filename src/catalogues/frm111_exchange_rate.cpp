#include "catalogues/frm111_exchange_rate.h"

#include "catalogues/frm103_patient_classes.h"
#include "data/catalogue_texts.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr double kHighestRate = 999999.9999;

}  // namespace

FRM111::FRM111(Context &context) : Screen(context, u"FRM111"_s, u"Tipo de Cambio"_s) {
    using namespace form;
    form::build(this, column({catalogue(&panel_, context, u"TiposCambio"_s, rates())}));
}

CatalogueRules FRM111::rates() {
    CatalogueRules rules;
    rules.query = &context().odonto.TipoCambio;
    rules.keys = {u"consec"_s, u"tipo_cam"_s};
    rules.columns = {
        GridColumn(u"FECHA"_s, u"Fecha"_s, 20).mask(CellMask::Date),
        // Pesos per dollar: no room for a sign.
        GridColumn(u"TIPO_CAM"_s, u"Tipo Cambio"_s, 28)
            .mask(CellMask::Number)
            .allowed(u"0123456789.,$ "_s)
            .limit(12)
            .editable(),
    };
    rules.saveQuestion = u"La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este registro?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.insertsFirst = true;
    rules.defaults = [this](NamedQuery &row) { row.set(u"fecha"_s, context().clock.today()); };
    rules.openRow = [this] { editPatientClasses(context().odonto.Prestaciones); };
    rules.enter = {{u"TIPO_CAM"_s, [this] { return enterTipoCambio(); }}};
    rules.accept = [this] { return isRate(); };
    rules.write = [this] { write(); };
    rules.reports = false;
    return rules;
}

void FRM111::formCreate() {
    panel_->reload();
}

void FRM111::activated() {
    panel_->refresh();
}

EnterResult FRM111::enterTipoCambio() {
    const double tipoCam = panel_->query().number(u"tipo_cam"_s);
    if (tipoCam == 0) {
        return panel_->required();
    }
    // Of all days, although the text speaks of one.
    if (context().odonto.existe(tipoCambioText(tipoCam))) {
        return panel_->refuse(
            u"tipo_cam"_s, u"Este Tipo de cambio ya existe para esta fecha, vuelva a intentar"_s);
    }
    return EnterResult::Save;
}

/// "&Grabar" can be pressed from the cell, past its Enter; a rate of zero would be in force at
/// once.
bool FRM111::isRate() {
    const double tipoCam = panel_->query().number(u"tipo_cam"_s);
    if (tipoCam == 0) {
        panel_->required();
    } else if (tipoCam > kHighestRate) {
        messages().warning(u"El tipo de cambio no puede pasar de 999,999.9999."_s);
    } else {
        return true;
    }
    panel_->grid()->setCurrentField(u"TIPO_CAM"_s);
    return false;
}

void FRM111::write() {
    NamedQuery &row = panel_->query();
    const double tipoCam = row.number(u"tipo_cam"_s);
    row.apply();
    context().caja.TipoCam.execute({{u"tipo"_s, tipoCam}});
    NamedQuery &newest = context().odonto.TipoCambio1;
    newest.reopen();
    session().TipoCambio = Money::rounded(newest.number(u"tipo_cam"_s));
    const QString profile = session().Acceso;
    if (profile == u"AM"_s || profile == u"CA"_s) {
        context().frame.showRate();
    }
}

}  // namespace kaldo
