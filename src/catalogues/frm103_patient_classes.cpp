#include "catalogues/frm103_patient_classes.h"

#include "catalogues/patient_classes_report.h"
#include "data/catalogue_texts.h"
#include "data/query_rows.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM103::FRM103(Context &context) : Screen(context, u"FRM103"_s, u"Clasificación de Pacientes"_s) {
    using namespace form;
    form::build(this, column({catalogue(&panel_, context, u"Prestaciones"_s, classes())}));
}

CatalogueRules FRM103::classes() {
    GridColumn beneficiario(u"BENEFICIARIO"_s, u"Beneficiario"_s, 38);
    beneficiario
        .choices({u"4 - HIJO DE EMPLEADO ADMINISTRATIVO"_s, u"6 - CONYUGE DE EMPLEADO ACDEMICO"_s,
                  u"7 - HIJO DE EMPLEADO ACADEMICO"_s},
                 1)
        .editable();
    if (!options().ContabilidadGubernamental) {
        beneficiario.hidden();
    }
    CatalogueRules rules;
    rules.query = &context().odonto.Prestaciones;
    rules.keys = {u"prestacion"_s};
    rules.columns = {
        GridColumn(u"PRESTACION"_s, u"Clave"_s, 9).mask(CellMask::Integer).limit(9).editable(),
        GridColumn(u"DESCRIPCION"_s, u"Descripción"_s, 60).limit(100).upper().stretch().editable(),
        beneficiario,
    };
    rules.fixedOnEdit = {u"PRESTACION"_s};
    rules.saveQuestion = u"La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este registro?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.enter = {
        {u"PRESTACION"_s, [this] { return enterClave(); }},
        {u"DESCRIPCION"_s, [this] { return enterDescripcion(); }},
        {u"BENEFICIARIO"_s, [] { return EnterResult::Save; }},
    };
    rules.accept = [this] { return panel_->filled(u"DESCRIPCION"_s); };
    rules.complete = [this] { return completeRow(); };
    return rules;
}

void FRM103::formCreate() {
    panel_->reload();
}

void FRM103::activated() {
    panel_->refresh();
}

EnterResult FRM103::enterClave() {
    const NamedQuery &row = panel_->query();
    if (row.integer(u"prestacion"_s) <= 0) {
        return panel_->refuse(u"prestacion"_s, u"La Prestación debe ser mayor que cero."_s);
    }
    if (context().odonto.existe(prestacionText(row.value(u"prestacion"_s)))) {
        return panel_->refuse(u"prestacion"_s, u"La Prestación ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM103::enterDescripcion() {
    const QString descripcion = panel_->query().text(u"descripcion"_s);
    if (descripcion.isEmpty()) {
        return panel_->required();
    }
    if (context().odonto.existe(prestacionDescrText(descripcion))) {
        return panel_->refuse(
            u"descripcion"_s,
            u"Esta descripción ya existe en la lista de prestaciones, vuelva a intentar"_s);
    }
    return options().ContabilidadGubernamental ? EnterResult::Next : EnterResult::Save;
}

bool FRM103::completeRow() {
    NamedQuery &row = panel_->query();
    // A holder's class is found by an empty text; the column takes no NULL.
    if (row.isNull(u"beneficiario"_s)) {
        row.set(u"beneficiario"_s, u""_s);
    }
    return true;
}

bool FRM103::previewReport() {
    panel_->refresh();
    const QList<PatientClassLine> rows = mapRows(panel_->query(), [](const QueryRow &row) {
        return PatientClassLine{row.text(u"prestacion"_s), row.text(u"descripcion"_s),
                                row.text(u"Descrip"_s)};
    });
    previewCatalogue(context(), this, this,
                     layoutPatientClasses(catalogueHeading(context()), rows,
                                          options().ContabilidadGubernamental),
                     windowTitle());
    return true;
}

void editPatientClasses(NamedQuery &prestaciones) {
    if (!prestaciones.isOpen()) {
        prestaciones.open();
    }
    prestaciones.edit();
}

}  // namespace kaldo
