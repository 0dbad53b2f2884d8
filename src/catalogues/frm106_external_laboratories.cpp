#include "catalogues/frm106_external_laboratories.h"

#include "catalogues/external_laboratories_report.h"
#include "catalogues/lookups.h"
#include "data/catalogue_texts.h"
#include "data/query_rows.h"
#include "toolkit/core/text.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

/// Of `labexternos.descr`; an account's description may be longer.
constexpr int kNameWidth = 70;

}  // namespace

FRM106::FRM106(Context &context) : Screen(context, u"FRM106"_s, u"Laboratorios Externos"_s) {
    using namespace form;
    form::build(this, column({
                          catalogue(&panel_, context, u"Laboratorios"_s, laboratories()),
                          group(nullptr, u"Detalle"_s, u"Detalles"_s, detail()),
                      }));
    bindDetail();
    connectGuarded(panel_->grid(), &DataGrid::closedUp, this, &FRM106::takeAccount);
    connectGuarded(panel_->grid(), &DataGrid::resolved, this, &FRM106::takeAccount);
}

CatalogueRules FRM106::laboratories() {
    CatalogueRules rules;
    rules.query = &context().odonto.LabExterno;
    rules.parameters = [this] { return Parameters{{u"campus"_s, session().Origen.text()}}; };
    rules.keys = {u"subsubcta"_s};
    rules.columns = {
        GridColumn(u"SUBSUBCTA"_s, u"Subsubcta"_s, 10).mask(CellMask::Integer),
        GridColumn(u"DESCR"_s, u"Descripción"_s, 40)
            .stretch()
            .lookup({&context().finanzas.csubsubcta,
                     u"DESCRIPCION"_s,
                     u"DESCRIPCION"_s,
                     {{u"SUBSUBCTAID"_s, u"Subsubcta"_s, 10, CellMask::Integer},
                      {u"DESCRIPCION"_s, u"Descripción"_s, 44}}})
            .strict()
            .editable(),
        GridColumn(u"DOMICILIO"_s, u"Domicilio"_s, 36).limit(255).editable(),
        GridColumn(u"ACTIVO"_s, u"Activo"_s, 7).yesNo().editable(),
        GridColumn(u"RFC"_s, u"R.F.C."_s, 17).limit(15).editable(),
    };
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"campus"_s, session().Origen.text());
        row.set(u"activo"_s, u"S"_s);
    };
    rules.openRow = [this] {
        NamedQuery &row = panel_->query();
        row.edit();
        context().finanzas.csubsubcta.locate({{u"subsubctaid"_s, row.value(u"subsubcta"_s)}});
    };
    rules.enter = {
        {u"DESCR"_s, [this] { return enterDescripcion(); }},
        {u"DOMICILIO"_s, [this] { return enterDomicilio(); }},
        {u"RFC"_s,
         [this] {
             moveFocus(colonia_);
             return EnterResult::Stay;
         }},
    };
    rules.accept = [this] { return takesChosenAccount() && hasAccount(); };
    rules.complete = [this] { return completeRow(); };
    return rules;
}

form::Item FRM106::detail() {
    using namespace form;
    return column({
        row({text(&colonia_, u"colonia"_s, u"Colonia"_s).width(30),
             text(&ciudad_, u"ciudad"_s, u"Ciudad"_s).width(30)}),
        row({masked(&telefono_, u"telefono"_s, u"Teléfono"_s).mask(u"(   )   -    "_s).shown(15),
             lookup(&programa_, u"prog"_s, u"Programa"_s)
                 .source(programmes(context().finanzas.Programas))
                 .shown(10),
             text(&nomenclatura_, u"nomenclatura"_s, u"Nomenclatura"_s).width(25).readOnly()}),
        text(&responsable_, u"responsable"_s, u"Responsable"_s).width(80).shown(50),
        row({text(&correo_, u"correo"_s, u"Correo Electrónico"_s)
                 .lower()
                 .width(80)
                 .shown(40)
                 .enter([this] { saveIfOpen(); }),
             number(&cp_, u"cp"_s, u"C.P."_s).range(0, 99999).width(5).enter([this] {
                 saveIfOpen();
             })}),
    });
}

void FRM106::bindDetail() {
    panel_->addDetail(colonia_, u"colonia"_s);
    panel_->addDetail(ciudad_, u"ciudad"_s);
    panel_->addDetail(telefono_, u"telefono"_s);
    panel_->addDetail(programa_, u"prog"_s);
    panel_->addDetail(responsable_, u"responsable"_s);
    panel_->addDetail(correo_, u"correo"_s);
    panel_->addDetail(cp_, u"cp"_s);
    bindField(nomenclatura_, &panel_->query(), u"nomenclatura"_s);
}

void FRM106::formCreate() {
    context().finanzas.csubsubcta.open({{u"generoid"_s, 2},
                                        {u"grupoid"_s, 1},
                                        {u"cgrubroid"_s, 1},
                                        {u"cuentaid"_s, 9},
                                        {u"subctaid"_s, 1}});
    context().finanzas.Programas.open();
    panel_->reload();
}

void FRM106::activated() {
    panel_->refresh();
}

void FRM106::takeAccount(const QString &, int row) {
    NamedQuery &account = context().finanzas.csubsubcta;
    if (account.moveTo(row)) {
        panel_->query().set(u"descr"_s, cutToWidth(account.text(u"descripcion"_s), kNameWidth));
    }
}

bool FRM106::accountTaken() const {
    const NamedQuery &account = context().finanzas.csubsubcta;
    const QString name = panel_->query().text(u"descr"_s);
    return !name.isEmpty() && cutToWidth(account.text(u"descripcion"_s), kNameWidth) == name;
}

EnterResult FRM106::enterDescripcion() {
    if (!accountTaken()) {
        return hasAccount() ? EnterResult::Next : EnterResult::Stay;
    }
    NamedQuery &row = panel_->query();
    const NamedQuery &account = context().finanzas.csubsubcta;
    if (context().odonto.existe(labExternoText(account.value(u"subsubctaid"_s)))) {
        return panel_->refuse(
            u"subsubcta"_s,
            u"Este laboratorio ya se encuentra registrado, verifique la información"_s);
    }
    row.set(u"subsubcta"_s, account.value(u"subsubctaid"_s));
    row.set(u"nomenclatura"_s, account.value(u"nomenclatura"_s));
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM106::enterDomicilio() {
    return panel_->query().text(u"domicilio"_s).isEmpty() ? panel_->required() : EnterResult::Next;
}

/// A name that was chosen brings its account along, also to who saves before Enter.
bool FRM106::takesChosenAccount() {
    const NamedQuery &row = panel_->query();
    const int chosen = context().finanzas.csubsubcta.integer(u"subsubctaid"_s);
    const bool other = !row.isNull(u"subsubcta"_s) && row.integer(u"subsubcta"_s) != chosen;
    return !other || !accountTaken() || enterDescripcion() != EnterResult::Stay;
}

bool FRM106::hasAccount() {
    return panel_->filled(u"subsubcta"_s, u"DESCR"_s);
}

bool FRM106::completeRow() {
    NamedQuery &row = panel_->query();
    if (row.text(u"activo"_s) != u"S"_s) {
        row.set(u"activo"_s, u"N"_s);
    }
    return true;
}

void FRM106::saveIfOpen() {
    if (panel_->editing()) {
        panel_->save();
    }
}

bool FRM106::previewReport() {
    panel_->refresh();
    NamedQuery &laboratories = context().odonto.LabExterno;
    if (laboratories.isEmpty()) {
        return true;
    }
    const QList<ExternalLaboratory> rows = mapRows(laboratories, [](const QueryRow &row) {
        return ExternalLaboratory{row.text(u"subsubcta"_s),   row.text(u"descr"_s),
                                  row.text(u"domicilio"_s),   row.text(u"colonia"_s),
                                  row.text(u"rfc"_s),         row.text(u"telefono"_s),
                                  row.text(u"responsable"_s), row.text(u"correo"_s),
                                  row.text(u"cp"_s),          row.text(u"prog"_s)};
    });
    previewCatalogue(
        context(), this, this,
        layoutExternalLaboratories(catalogueHeading(context()), session().Ciudad, rows),
        windowTitle());
    return true;
}

}  // namespace kaldo
