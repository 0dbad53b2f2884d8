#include "catalogues/frm110_banks.h"

#include "app/room.h"
#include "catalogues/bank_copy.h"
#include "catalogues/lookups.h"
#include "data/catalogue_texts.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM110::FRM110(Context &context)
    : Screen(context, u"FRM110"_s, u"Bancos"_s),
      levels_(context.finanzas, context.finanzas.Bancos) {
    using namespace form;
    form::build(this, column({
                          catalogue(&panel_, context, u"Bancos"_s, banks()),
                          row({button(nullptr, u"ControlExpedientes"_s, u"..."_s)
                                   .hint(u"Control de Expedientes"_s)
                                   .accessible(u"Control de Expedientes"_s)
                                   .clicked([this] { toggleProgrammes(); }),
                               stretch()}),
                          group(&bancoProgramas_, u"BancoProgramas"_s, u"Banco Programas"_s,
                                column({catalogue(&programas_, this->context(), u"Programas"_s,
                                                  programmesOfBank())}))
                              .hidden(),
                      }));
    levels_.follow(panel_);
    connectGuarded(panel_, &CataloguePanel::rowChanged, this, [this] { openProgrammes(); });
}

CatalogueRules FRM110::banks() {
    DMFinanzas &finanzas = context().finanzas;
    CatalogueRules rules;
    rules.query = &finanzas.Bancos;
    rules.keys = {u"bancoid"_s};
    rules.columns = {GridColumn(u"BANCOID"_s, u"Banco"_s, 7).mask(CellMask::Integer).editable()};
    rules.columns += levels_.columns(true);
    rules.columns += {
        GridColumn(u"SUBSUBCTAID"_s, u"SubSubcta"_s, 8)
            .mask(CellMask::Integer)
            .editable()
            .lookup(numbered(finanzas.csubsubcta, u"SUBSUBCTAID"_s, u"SubSubcta"_s))
            .strict(),
        GridColumn(u"NOMENCLATURA"_s, u"Nomenclatura"_s, 16),
        GridColumn(u"DESCRIPCION"_s, u"Dedscripción"_s, 30).limit(250).upper().stretch().editable(),
        GridColumn(u"TIPOMONEDA"_s, u"Tipo Moneda"_s, 22)
            .mask(CellMask::Integer)
            .align(Qt::AlignLeft)
            .choices({u"1 - Moneda Nacional"_s, u"2 - Moneda Extranjera"_s}, 1)
            .editable(),
    };
    rules.fixedOnEdit = {u"BANCOID"_s};
    rules.toldBy = {u"BANCOID"_s, u"DESCRIPCION"_s};
    rules.editAt = u"GENEROID"_s;
    rules.enter = {
        {u"BANCOID"_s, [this] { return enterBanco(); }},
        {u"SUBCTAID"_s,
         [this] {
             openSubSubcta();
             return EnterResult::Next;
         }},
        {u"SUBSUBCTAID"_s, [this] { return enterSubSubcta(); }},
        {u"TIPOMONEDA"_s, [] { return EnterResult::Save; }},
    };
    rules.accept = [this] { return hasDescription(); };
    rules.write = [this, &finanzas] { write(finanzas.Bancos); };
    rules.remove = [this, &finanzas] { remove(finanzas.Bancos); };
    rules.modeChanged = [this](CatalogueMode mode) {
        if (mode == CatalogueMode::Edit) {
            openLists();
        }
    };
    rules.reports = false;
    return rules;
}

CatalogueRules FRM110::programmesOfBank() {
    DMFinanzas &finanzas = context().finanzas;
    CatalogueRules rules;
    rules.query = &finanzas.BancoPrograma;
    rules.small = true;
    rules.parameters = [&finanzas] {
        return Parameters{{u"bancoid"_s, finanzas.Bancos.value(u"bancoid"_s)}};
    };
    rules.keys = {u"bancoid"_s, u"programaid"_s};
    rules.columns = {GridColumn(u"PROGRAMAID"_s, u"Programa"_s, 12)
                         .mask(CellMask::Integer)
                         .lookup(programmes(finanzas.Programas))
                         .strict()
                         .editable()};
    // A bank that has a programme gets no second one here, one that isn't written yet none.
    rules.prepareInsert = [this, &finanzas] {
        return finanzas.BancoPrograma.isEmpty() && !finanzas.Bancos.isEmpty() &&
               !panel_->inserting();
    };
    rules.defaults = [&finanzas](NamedQuery &row) {
        row.set(u"bancoid"_s, finanzas.Bancos.value(u"bancoid"_s));
    };
    rules.enter = {{u"PROGRAMAID"_s, [this] { return enterPrograma(); }}};
    rules.write = [this, &finanzas] { write(finanzas.BancoPrograma); };
    rules.remove = [this, &finanzas] { remove(finanzas.BancoPrograma); };
    return rules;
}

void FRM110::formCreate() {
    context().finanzas.Programas.open();
    panel_->reload();
    updateBankCopy(context());
}

void FRM110::activated() {
    panel_->refresh();
}

void FRM110::openLists() {
    levels_.reopen();
    openSubSubcta();
}

void FRM110::openSubSubcta() {
    openSixthLevel(context().finanzas, panel_->query());
}

void FRM110::openProgrammes() {
    if (!programas_->editing()) {
        programas_->reload();
    }
}

void FRM110::toggleProgrammes() {
    const bool open = !bancoProgramas_->isVisible();
    bancoProgramas_->setVisible(open);
    makeRoom(this);
    moveFocus(open ? programas_->grid() : panel_->grid());
}

EnterResult FRM110::enterBanco() {
    if (context().finanzas.existe(bancoText(panel_->query().value(u"bancoid"_s)))) {
        return panel_->refuse(u"bancoid"_s, u"El No. de Banco ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRM110::enterSubSubcta() {
    panel_->query().set(u"nomenclatura"_s, levels_.nomenclatura(true));
    return EnterResult::Next;
}

EnterResult FRM110::enterPrograma() {
    const NamedQuery &row = programas_->query();
    const QVariant programa = row.value(u"programaid"_s);
    if (context().odonto.existe(bancoProgramaText(row.value(u"bancoid"_s), programa))) {
        return programas_->refuse(
            u"programaid"_s,
            u"Ya existe un registro para esta Banco/Programa, revise la información."_s);
    }
    return EnterResult::Save;
}

void FRM110::write(NamedQuery &rows) {
    rows.apply();
    updateBankCopy(context());
}

void FRM110::remove(NamedQuery &rows) {
    rows.remove();
    write(rows);
}

bool FRM110::hasDescription() {
    if (panel_->query().text(u"descripcion"_s).isEmpty()) {
        messages().warning(u"El Campo Descripción se encuentra vacío, favor de llenarlo"_s);
        panel_->grid()->setCurrentField(u"DESCRIPCION"_s);
        return false;
    }
    return true;
}

}  // namespace kaldo
