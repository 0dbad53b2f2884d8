#include "catalogues/frm100_care_centres.h"

#include "app/room.h"
#include "catalogues/care_centres_report.h"
#include "catalogues/lookups.h"
#include "data/catalogue_texts.h"
#include "data/query_rows.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM100::FRM100(Context &context) : Screen(context, u"FRM100"_s, u"Centros de Atención"_s) {
    buildForm();
}

CatalogueRules FRM100::centres() {
    CatalogueRules rules;
    rules.query = &context().odonto.CtroAtencion;
    rules.parameters = [this] { return Parameters{{u"cd"_s, session().Origen.text()}}; };
    rules.keys = {u"centro"_s};
    rules.columns = {
        GridColumn(u"CENTRO"_s, u"Centro"_s, 6).limit(4).editable(),
        GridColumn(u"DESCR"_s, u"Descripción"_s, 38).limit(80).upper().stretch().editable(),
        GridColumn(u"DOMICILIO"_s, u"Domicilio"_s, 28).limit(60).upper().editable(),
        GridColumn(u"COLONIA"_s, u"Colonia"_s, 20).limit(60).upper().editable(),
        GridColumn(u"TELEFONO1"_s, u"Teléfono"_s, 14).limit(15).editable(),
    };
    rules.fixedOnEdit = {u"CENTRO"_s};
    rules.editAt = u"DOMICILIO"_s;
    rules.defaults = [this](NamedQuery &row) { row.set(u"ciudad"_s, session().Origen.text()); };
    rules.enter = {
        {u"CENTRO"_s, [this] { return enterCentro(); }},
        {u"DESCR"_s, [this] { return enterDescripcion(); }},
        {u"TELEFONO1"_s,
         [this] {
             moveFocus(descripcion_);
             return EnterResult::Stay;
         }},
    };
    rules.accept = [this] { return hasCampus(); };
    return rules;
}

CatalogueRules FRM100::counters() {
    CatalogueRules rules;
    rules.query = &context().odonto.ControlExpediente;
    rules.small = true;
    rules.parameters = [this] { return Parameters{{u"campus"_s, session().Origen.text()}}; };
    rules.keys = {u"campus"_s};
    rules.columns = {
        GridColumn(u"CAMPUS"_s, u"Ciudad"_s, 8).limit(3).editable(),
        GridColumn(u"NUM_EXPEDIENTE"_s, u"No. Expediente"_s, 16).mask(CellMask::Integer).editable(),
    };
    rules.fixedOnEdit = {u"CAMPUS"_s};
    rules.defaults = [this](NamedQuery &row) { row.set(u"campus"_s, session().Origen.text()); };
    rules.enter = {{u"CAMPUS"_s, [this] { return enterCampus(); }}};
    rules.modeChanged = [this](CatalogueMode) {
        if (counters_) {
            counters_->setInsertAllowed(counters_->query().isEmpty());
        }
    };
    return rules;
}

void FRM100::buildForm() {
    using namespace form;
    form::build(
        this, column({
                  catalogue(&panel_, context(), u"Centros"_s, centres()),
                  group(nullptr, u"Detalle"_s, u"Detalles"_s,
                        column({
                            row({text(&descripcion_, u"descripcion"_s, institutionCaption())
                                     .upper()
                                     .width(60)
                                     .shown(40),
                                 number(&cp_, u"cp"_s, u"C.P."_s).range(0, 99999).width(5)}),
                            text(&responsable_, u"responsable"_s, u"Responsable"_s)
                                .upper()
                                .width(80)
                                .shown(50),
                            text(&correoto_, u"correoto"_s, u"Correo Electrónico"_s)
                                .lower()
                                .width(100)
                                .shown(50)
                                .enter([this] {
                                    if (!options().ContabilidadGubernamental && panel_->editing()) {
                                        panel_->save();
                                    }
                                }),
                            strip(&programa_, u"PanelPrograma"_s,
                                  {lookup(&prog_, u"prog"_s, u"Programa"_s)
                                       .source(programmes(context().finanzas.Programas))
                                       .shown(10),
                                   stretch()}),
                        })),
                  row({button(&consecutivo_, u"Consecutivo"_s, u"..."_s)
                           .hint(u"Consecutivo Expediente"_s)
                           .accessible(u"Consecutivo Expediente"_s)
                           .clicked([this] { toggleCounters(); }),
                       stretch()}),
                  group(&controlExpedientes_, u"ControlExpedientes"_s, u"Control de Expedientes"_s,
                        column({catalogue(&counters_, context(), u"Consecutivos"_s, counters())}))
                      .hidden(),
              }));
    panel_->addDetail(descripcion_, u"descripcion"_s);
    panel_->addOpenDetail(cp_, u"cp"_s);
    panel_->addDetail(responsable_, u"responsable"_s);
    panel_->addDetail(prog_, u"prog"_s);
    panel_->addDetail(correoto_, u"correoto"_s);
    programa_->setVisible(options().ContabilidadGubernamental);
    consecutivo_->setVisible(options().ExpedienteUniversal);
}

QString FRM100::institutionCaption() const {
    switch (options().sector) {
        case Sector::Empresarial:
            return u"Clinica"_s;
        case Sector::Institucional:
            return u"Hospital"_s;
        default:
            return u"Escuela o Facultad"_s;
    }
}

void FRM100::formCreate() {
    context().finanzas.Programas.open();
    panel_->reload();
    counters_->reload();
}

void FRM100::activated() {
    panel_->refresh();
    counters_->refresh();
}

EnterResult FRM100::enterCentro() {
    const QString centro = panel_->query().text(u"centro"_s);
    if (context().odonto.existe(centroText(centro))) {
        return panel_->refuse(u"centro"_s, u"El centro ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM100::enterDescripcion() {
    const QString descr = panel_->query().text(u"descr"_s);
    if (context().odonto.existe(centroDescrText(descr))) {
        panel_->refuse(u"descr"_s, u"La descripción del centro ya existe vuelva a intentar"_s);
        panel_->grid()->setCurrentField(u"CENTRO"_s);
        return EnterResult::Stay;
    }
    return EnterResult::Next;
}

EnterResult FRM100::enterCampus() {
    const QString campus = counters_->query().text(u"campus"_s);
    if (context().odonto.existe(campusExpedientesText(campus))) {
        return counters_->refuse(
            u"campus"_s, u"Ya existe un registro para esta Ciudad, revise la información."_s);
    }
    counters_->allowSave();
    return EnterResult::Next;
}

bool FRM100::hasCampus() {
    if (panel_->query().text(u"ciudad"_s).isEmpty()) {
        messages().warning(u"El Campo Ciudad se encuentra vacío, favor de llenarlo"_s);
        return false;
    }
    return true;
}

void FRM100::toggleCounters() {
    const bool open = !controlExpedientes_->isVisible();
    controlExpedientes_->setVisible(open);
    makeRoom(this);
    moveFocus(open ? counters_->grid() : panel_->grid());
}

bool FRM100::previewReport() {
    NamedQuery &centres = context().odonto.CtroAtencion;
    panel_->refresh();
    const QList<CareCentre> rows = mapRows(centres, [](const QueryRow &row) {
        return CareCentre{row.text(u"centro"_s),      row.text(u"descr"_s),
                          row.text(u"domicilio"_s),   row.text(u"colonia"_s),
                          row.text(u"responsable"_s), row.text(u"telefono1"_s),
                          row.text(u"correoto"_s),    row.text(u"prog"_s)};
    });
    previewCatalogue(
        context(), this, this,
        layoutCareCentres(catalogueHeading(context()), rows, options().ContabilidadGubernamental),
        windowTitle());
    return true;
}

}  // namespace kaldo
