#include "catalogues/frm108_payment_forms.h"

#include "catalogues/payment_forms_report.h"
#include "data/catalogue_texts.h"
#include "data/query_rows.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM108::FRM108(Context &context)
    : Screen(context, u"FRM108"_s, u"Forma de Pago"_s),
      levels_(context.finanzas, context.odonto.TipoForma) {
    form::build(this, form::column({catalogue(&panel_, context, u"Formas"_s, paymentForms())}));
    levels_.follow(panel_);
}

CatalogueRules FRM108::paymentForms() {
    const bool accounts = options().ContabilidadGubernamental;
    const GridColumn path(u"NOMENCLATURA"_s, u"Nomenclatura"_s, 16);
    CatalogueRules rules;
    rules.query = &context().odonto.TipoForma;
    rules.keys = {u"idtipo"_s};
    rules.columns = {
        GridColumn(u"IDTIPO"_s, u"Tipo"_s, 7).digits(10).editable(),
        GridColumn(u"TIPOPAGO"_s, u"Descripción"_s, 36).limit(80).upper().stretch().editable()};
    rules.columns += levels_.columns(accounts);
    rules.columns += accounts ? path : GridColumn(path).hidden();
    rules.fixedOnEdit = {u"IDTIPO"_s};
    rules.editAt = u"TIPOPAGO"_s;
    rules.prepareInsert = [this] {
        panel_->reload();
        return true;
    };
    rules.enter = {
        {u"IDTIPO"_s, [this] { return enterTipo(); }},
        {u"TIPOPAGO"_s, [accounts] { return accounts ? EnterResult::Next : EnterResult::Save; }},
        {u"GENEROID"_s,
         [this] {
             levels_.reopen();
             return EnterResult::Next;
         }},
        {u"SUBCTAID"_s, [this] { return enterSubcta(); }},
    };
    rules.modeChanged = [this, accounts](CatalogueMode mode) {
        if (mode == CatalogueMode::Edit && accounts) {
            levels_.reopen();
        }
    };
    return rules;
}

void FRM108::formCreate() {
    panel_->reload();
}

void FRM108::activated() {
    panel_->refresh();
}

EnterResult FRM108::enterTipo() {
    if (context().odonto.existe(tipoFormaText(panel_->query().value(u"idtipo"_s)))) {
        return panel_->refuseWarning(u"idtipo"_s,
                                     u"El tipo de pago ya se encuentra registrada, presione "
                                     "cualquier tecla para continuar."_s);
    }
    panel_->allowSave();
    levels_.reopen();
    return EnterResult::Next;
}

EnterResult FRM108::enterSubcta() {
    panel_->query().set(u"nomenclatura"_s, levels_.nomenclatura());
    return EnterResult::Save;
}

bool FRM108::previewReport() {
    NamedQuery &forms = context().odonto.TipoForma;
    panel_->refresh();
    const QList<PaymentFormRow> rows = mapRows(forms, [&forms](const QueryRow &row) {
        return PaymentFormRow{row.text(u"idtipo"_s), row.text(u"tipopago"_s),
                              accountCells(forms, row.index())};
    });
    previewCatalogue(
        context(), this, this,
        layoutPaymentForms(catalogueHeading(context()), rows, options().ContabilidadGubernamental),
        windowTitle());
    return true;
}

}  // namespace kaldo
