#include "catalogues/frm101_clinics.h"

#include "catalogues/clinics_report.h"
#include "catalogues/lookups.h"
#include "data/catalogue_texts.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM101::FRM101(Context &context) : Screen(context, u"FRM101"_s, u"Clinicas por Areas de Ventas"_s) {
    using namespace form;
    form::build(this, column({
                          row({lookup(&centro_, u"CentroAtencion"_s, u"Centro de Atención"_s)
                                   .source(centres(context.odonto.CtroAtencion1))
                                   .shown(36)
                                   .edited([this] { forgetCentre(); })
                                   .closedUp([this] { chooseCentre(); }),
                               lookup(&servicio_, u"TipoServicio"_s, u"Tipo Servicio"_s)
                                   .source(salesAreas(context.odonto.ServxCtro))
                                   .shown(28)
                                   .edited([this] { forgetService(); })
                                   .closedUp([this] { chooseService(); }),
                               stretch()}),
                          catalogue(&panel_, context, u"Clinicas"_s, clinics()),
                      }));
    panel_->setInsertAllowed(false);
}

CatalogueRules FRM101::clinics() {
    CatalogueRules rules;
    rules.query = &context().odonto.AreaAtencion;
    rules.parameters = [this] {
        return Parameters{{u"centro"_s, centro_->value()}, {u"tipo"_s, servicio_->value()}};
    };
    rules.keys = {u"area"_s};
    rules.waitsFor = u"Elija el centro y el tipo de servicio para ver sus clínicas."_s;
    rules.columns = {
        GridColumn(u"AREA"_s, u"Area"_s, 6).limit(2).editable(),
        GridColumn(u"DESCR"_s, u"Descripción"_s, 36).limit(40).editable(),
        GridColumn(u"PROG"_s, u"Prog."_s, 8)
            .lookup(programmes(context().finanzas.Programas))
            .strict()
            .editable(),
        GridColumn(u"TIPO_SERV"_s, u"Tipo Servicio"_s, 26)
            .choices({u"AP - SERVICIOS DE CLINICA"_s, u"AD - ADMISION"_s}, 2)
            .editable(),
        GridColumn(u"RESPONSABLE"_s, u"Responsable"_s, 28).limit(80).stretch().editable(),
    };
    rules.fixedOnEdit = {u"AREA"_s};
    rules.saveQuestion = u"La información es correcta?"_s;
    rules.removeQuestion = u"Desea borrar este registro?"_s;
    rules.writeFailure = WriteFailure::CancelsEdit;
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"centro"_s, centro_->value());
        row.set(u"tipo_prod"_s, servicio_->value());
    };
    rules.enter = {
        {u"AREA"_s, [this] { return enterArea(); }},
        {u"DESCR"_s, [this] { return enterRequired(u"descr"_s); }},
        {u"TIPO_SERV"_s, [this] { return enterRequired(u"tipo_serv"_s); }},
        {u"RESPONSABLE"_s, [this] { return enterResponsable(); }},
    };
    // The answer to a No, whatever refers to the row.
    rules.removeRefused = [this] {
        messages().information(
            u"Imposible borrar existe registros relacionados con este servicio, vuelva a "
            "intentar"_s);
    };
    rules.modeChanged = [this](CatalogueMode mode) {
        centro_->setEnabled(mode == CatalogueMode::Consult);
        servicio_->setEnabled(mode == CatalogueMode::Consult);
    };
    return rules;
}

void FRM101::formCreate() {
    DMOdonto &odonto = context().odonto;
    odonto.AreaAtencion.close();
    odonto.ServxCtro.close();
    odonto.CtroAtencion1.open({{u"cd"_s, session().Origen.text()}});
    context().finanzas.Programas.open();
}

void FRM101::activated() {
    panel_->refresh();
}

void FRM101::forgetCentre() {
    if (centro_->text().isEmpty()) {
        context().odonto.ServxCtro.close();
        servicio_->clearField();
        forgetService();
    }
}

void FRM101::forgetService() {
    if (servicio_->text().isEmpty()) {
        panel_->query().close();
        panel_->setInsertAllowed(false);
    }
}

void FRM101::chooseCentre() {
    servicio_->clearField();
    forgetService();
    context().odonto.ServxCtro.open({{u"cent"_s, centro_->value()}});
    moveFocus(servicio_);
}

void FRM101::chooseService() {
    if (!centro_->value().isValid()) {
        return;
    }
    panel_->reload();
    panel_->setInsertAllowed(true);
    moveFocus(panel_->grid());
}

EnterResult FRM101::enterArea() {
    NamedQuery &row = panel_->query();
    QString area = row.text(u"area"_s);
    if (area.size() == 1) {
        area.prepend(u'0');
        row.set(u"area"_s, area);
    }
    if (context().odonto.existe(
            areaAtencionText(row.text(u"centro"_s), row.integer(u"tipo_prod"_s), area))) {
        return panel_->refuse(u"area"_s,
                              u"Area existente para este Tipo de Servicio, vuelva a intentar"_s);
    }
    panel_->allowRemove();
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM101::enterRequired(const QString &field) {
    return panel_->query().text(field).isEmpty() ? panel_->required() : EnterResult::Next;
}

EnterResult FRM101::enterResponsable() {
    if (panel_->query().text(u"responsable"_s).isEmpty()) {
        return panel_->required();
    }
    if (panel_->query().text(u"area"_s).isEmpty()) {
        panel_->grid()->setCurrentField(u"AREA"_s);
        return EnterResult::Stay;
    }
    return EnterResult::Save;
}

bool FRM101::previewReport() {
    DMOdonto &odonto = context().odonto;
    odonto.AreaAtencionR.open({{u"cd"_s, session().Origen.text()}});
    previewCatalogue(context(), this, this,
                     layoutClinics(catalogueHeading(context()),
                                   clinicRows(odonto.AreaAtencionR, odonto.AreaVenta1)),
                     windowTitle());
    return true;
}

}  // namespace kaldo
