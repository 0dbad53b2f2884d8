#include "cashdesk/frm_datos_caja_cash_desks.h"

#include "cashdesk/cash_desks_report.h"
#include "data/catalogue_texts.h"
#include "toolkit/core/text.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr qint64 kMostInSixteenBits = 32767;
constexpr qint64 kMostInThirtyTwoBits = 2147483647;

GridColumn numberColumn(const QString &field, const QString &title, int width, int digits) {
    return GridColumn(field, title, width).digits(digits).editable();
}

/// Shows the bank's name; the row keeps its number.
GridColumn bankColumn(const QString &field, const QString &title, NamedQuery &banks) {
    return GridColumn(field, title, 16)
        .lookup({&banks,
                 u"BANCOID"_s,
                 u"DESCRIPCION"_s,
                 {{u"BANCOID"_s, u"Banco"_s, 7, CellMask::Integer},
                  {u"DESCRIPCION"_s, u"Descripción"_s, 48}}})
        .strict()
        .editable();
}

}  // namespace

FRMDatosCaja::FRMDatosCaja(Context &context) : Screen(context, u"FRMDatosCaja"_s, u"Datos Caja"_s) {
    using namespace form;
    form::build(this, column({
                          catalogue(&panel_, context, u"Cajas"_s, desks()),
                          group(nullptr, u"Detalle"_s, u"Detalles"_s, details()),
                      }));
    addDetails();
}

CatalogueRules FRMDatosCaja::desks() {
    CatalogueRules rules;
    rules.query = &context().caja.DatosCaja;
    rules.parameters = [this] {
        return Parameters{
            {u"campus"_s, context().odonto.campusDelUsuario(session().Usuario.text())}};
    };
    rules.keys = {u"num_caja"_s};
    rules.columns = deskColumns();
    rules.fixedOnEdit = {u"NUM_CAJA"_s};
    rules.toldBy = {u"NUM_CAJA"_s, u"NOMBRE"_s};
    rules.enter = {
        {u"NUM_CAJA"_s, [this] { return enterCaja(); }},
        {u"NOMBRE"_s, [this] { return enterNombre(); }},
        {u"CAMPUS"_s, [this] { return enterCampus(); }},
        {u"CORREOTO"_s,
         [this] {
             moveFocus(autoriza_);
             return EnterResult::Stay;
         }},
    };
    rules.accept = [this] { return isComplete(); };
    return rules;
}

QList<GridColumn> FRMDatosCaja::deskColumns() {
    DMFinanzas &finanzas = context().finanzas;
    return {
        numberColumn(u"NUM_CAJA"_s, u"No. Caja"_s, 7, 5),
        numberColumn(u"NOTA_VTA"_s, u"Nota Vta."_s, 11, 10),
        GridColumn(u"NOMBRE"_s, u"Nombre"_s, 22).limit(20).upper().editable(),
        GridColumn(u"ORIGEN"_s, u"Origen"_s, 22).limit(30).upper().editable(),
        GridColumn(u"CAMPUS"_s, u"Campus"_s, 15)
            .choices({u"1 - Puerto Alto"_s, u"2 - Valle Norte"_s, u"3 - Costa Sur"_s}, 1)
            .editable(),
        numberColumn(u"PROG_POL"_s, u"Prog. Pol."_s, 8, 10),
        bankColumn(u"LKBANCOMN"_s, u"Banco M.N."_s, finanzas.BancosMN),
        bankColumn(u"LKBANCODL"_s, u"Banco M.E."_s, finanzas.BancosDL),
        GridColumn(u"SERIE"_s, u"Serie"_s, 6).limit(5).upper().editable(),
        GridColumn(u"SERIEN"_s, u"Serie N"_s, 6).limit(5).upper().editable(),
        GridColumn(u"CORREOTO"_s, u"Correo"_s, 26).limit(100).editable(),
    };
}

form::Item FRMDatosCaja::details() {
    using namespace form;
    const auto small = [](NumberField **where, const QString &name, const QString &caption) {
        return number(where, name, caption).range(0, kMostInSixteenBits).width(5);
    };
    // Enter in the package's kind saves: it comes last.
    return rowAbove({
        text(&autoriza_, u"autoriza"_s, u"Autoriza"_s).lower().width(8),
        small(&tipopaquete_, u"tipopaquete"_s, u"Tipo Paquete"_s),
        text(&paqueteid_, u"paqueteid"_s, u"Paquete ID"_s).width(20),
        date(&fechapaquete_, u"fechapaquete"_s, u"Fecha Paquete"_s),
        small(&sistemaid_, u"sistemaid"_s, u"Sistema ID"_s),
        number(&tipoCaja_, u"pk_tipo_caja"_s, u"Tipo Caja PK"_s)
            .range(0, kMostInThirtyTwoBits)
            .width(10),
        small(&tipoliza_, u"tipoliza"_s, u"Tipo Póliza"_s).enter([this] {
            if (panel_->editing()) {
                stayHere();
                panel_->save();
            }
        }),
        stretch(),
    });
}

void FRMDatosCaja::addDetails() {
    panel_->addDetail(autoriza_, u"autoriza"_s);
    panel_->addDetail(tipopaquete_, u"tipopaquete"_s);
    panel_->addDetail(paqueteid_, u"paqueteid"_s);
    panel_->addDetail(fechapaquete_, u"fechapaquete"_s);
    panel_->addDetail(sistemaid_, u"sistemaid"_s);
    panel_->addDetail(tipoCaja_, u"pk_tipo_caja"_s);
    panel_->addDetail(tipoliza_, u"tipoliza"_s);
}

void FRMDatosCaja::formCreate() {
    context().finanzas.BancosMN.open();
    context().finanzas.BancosDL.open();
    panel_->reload();
}

void FRMDatosCaja::activated() {
    panel_->refresh();
}

EnterResult FRMDatosCaja::enterCaja() {
    const QString numCaja = panel_->query().text(u"num_caja"_s);
    const bool none = !numCaja.isEmpty() && numCaja.toInt() < 1;
    if (none || numCaja.toInt() > kMostInSixteenBits) {
        return panel_->refuseWarning(
            u"num_caja"_s, u"El número de caja debe estar entre 1 y %1."_s.arg(kMostInSixteenBits));
    }
    if (context().odonto.existe(cajaText(numCaja))) {
        return panel_->refuse(u"num_caja"_s, u"El número de caja ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRMDatosCaja::enterNombre() {
    const QString nombre = panel_->query().text(u"nombre"_s);
    if (nombre.isEmpty()) {
        return panel_->required();
    }
    if (context().odonto.existe(cajaNombreText(nombre))) {
        return panel_->refuse(u"nombre"_s, u"El nombre de la caja ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    return EnterResult::Next;
}

EnterResult FRMDatosCaja::enterCampus() {
    return panel_->query().text(u"campus"_s).isEmpty() ? panel_->required() : EnterResult::Next;
}

/// A desk without a campus would never be listed again.
bool FRMDatosCaja::isComplete() {
    return panel_->filled(u"NOMBRE"_s) && panel_->filled(u"CAMPUS"_s);
}

bool FRMDatosCaja::previewReport() {
    panel_->refresh();
    // The head of the cut, not that of the catalogues.
    CatalogueHeading heading = catalogueHeading(context());
    heading.institucion = options().Clinica;
    heading.clinica = options().Facultad;
    if (options().TitulosMayusculas) {
        heading.institucion = Mayusculas(heading.institucion);
        heading.clinica = Mayusculas(heading.clinica);
    }
    previewCatalogue(context(), this, this,
                     layoutCashDesks(heading, session().Ciudad, cashDeskRows(panel_->query())),
                     windowTitle());
    return true;
}

}  // namespace kaldo
