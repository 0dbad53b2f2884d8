#include "catalogues/frm109_payment_methods.h"

#include "catalogues/frm103_patient_classes.h"
#include "catalogues/payment_methods_report.h"
#include "data/catalogue_texts.h"
#include "data/query_rows.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM109::FRM109(Context &context) : Screen(context, u"FRM109"_s, u"Métodos de Pago"_s) {
    using namespace form;
    form::build(this, column({catalogue(&panel_, context, u"Metodos"_s, methods())}));
}

CatalogueRules FRM109::methods() {
    CatalogueRules rules;
    rules.query = &context().odonto.Metodopagocfdi;
    rules.keys = {u"clave"_s};
    rules.columns = {
        GridColumn(u"CLAVE"_s, u"Clave"_s, 8).limit(2).editable(),
        GridColumn(u"DESCRIPCION"_s, u"Descripción"_s, 70).limit(100).upper().stretch().editable(),
    };
    rules.fixedOnEdit = {u"CLAVE"_s};
    rules.saveQuestion = u"La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este registro?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.openRow = [this] { editPatientClasses(context().odonto.Prestaciones); };
    rules.saveRefused = [this] { context().odonto.Prestaciones.cancelUpdates(); };
    rules.enter = {
        {u"CLAVE"_s, [this] { return enterClave(); }},
        {u"DESCRIPCION"_s, [this] { return enterDescripcion(); }},
    };
    rules.accept = [this] { return panel_->filled(u"DESCRIPCION"_s); };
    return rules;
}

void FRM109::formCreate() {
    panel_->reload();
}

void FRM109::activated() {
    panel_->refresh();
}

EnterResult FRM109::enterClave() {
    NamedQuery &row = panel_->query();
    const QString typed = row.text(u"clave"_s).trimmed();
    if (typed.isEmpty()) {
        return panel_->refuse(u"clave"_s, u"La clave debe ser mayor que cero."_s);
    }
    const QString clave = typed.rightJustified(2, u'0');
    row.set(u"clave"_s, clave);
    if (context().odonto.existe(metodoClaveText(clave))) {
        return panel_->refuse(u"clave"_s, u"La clave ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM109::enterDescripcion() {
    const QString descripcion = panel_->query().text(u"descripcion"_s);
    if (descripcion.trimmed().isEmpty()) {
        return panel_->required();
    }
    if (context().odonto.existe(metodoDescrText(descripcion))) {
        return panel_->refuse(
            u"descripcion"_s,
            u"Esta descripción ya existe en la lista de prestaciones, vuelva a intentar"_s);
    }
    return EnterResult::Save;
}

bool FRM109::previewReport() {
    panel_->refresh();
    const QList<PaymentMethod> rows = mapRows(panel_->query(), [](const QueryRow &row) {
        return PaymentMethod{row.text(u"clave"_s), row.text(u"descripcion"_s)};
    });
    previewCatalogue(context(), this, this, layoutPaymentMethods(catalogueHeading(context()), rows),
                     windowTitle());
    return true;
}

}  // namespace kaldo
