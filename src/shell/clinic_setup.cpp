#include "shell/clinic_setup.h"

#include "toolkit/core/text.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kNotesOfAYear = 1000000;
constexpr int kShortName = 20;
constexpr int kUserCampus = 1;
const QString kUniversal = QStringLiteral("000");

/// What a new cashier may do.
const QStringList &cashierRights() {
    static const QStringList rights = {u"a3"_s, u"e1"_s, u"e2"_s, u"e3"_s,
                                       u"e4"_s, u"e6"_s, u"e7"_s, u"e9"_s};
    return rights;
}

QString deskCampus(const SetupValues &values) {
    return values.campus.isEmpty() ? u"1"_s : values.campus.left(1);
}

/// "3- Costa Sur" has a hyphen where the others have a blank; the column has no room for it.
QString userCampus(const SetupValues &values) {
    return cutToWidth(values.campus.left(2).trimmed().toUpper(), kUserCampus);
}

/// The table of rights has one column per menu entry behind these.
bool isRight(const QString &column) {
    static const QStringList identity = {u"ORIGEN"_s, u"CENTRO"_s, u"USUARIO"_s, u"ACCESO"_s};
    return !identity.contains(column, Qt::CaseInsensitive);
}

/// A row that the database refuses is dropped, since the query is shared.
void apply(NamedQuery &query) {
    try {
        query.apply();
    } catch (...) {
        query.cancelUpdates();
        throw;
    }
}

void append(NamedQuery &query, const Parameters &row) {
    query.append();
    for (const auto &[column, value] : row) {
        query.set(column, value);
    }
    apply(query);
}

}  // namespace

int firstNote(int anio) {
    return anio * kNotesOfAYear + 1;
}

void ClinicSetup::run(const SetupValues &values) {
    while (next_ != Done) {
        write(next_, values);
        next_ = static_cast<Step>(next_ + 1);
    }
}

void ClinicSetup::write(Step step, const SetupValues &values) {
    switch (step) {
        case CareCentre:
            return writeCareCentre(values);
        case CashDesk:
            return writeCashDesk(values);
        case DossierCounters:
            return writeDossierCounters(values);
        case FirstUser:
            return writeFirstUser(values);
        case Cashier:
            return writeCashier(values);
        case AgeRanges:
            return writeAgeRanges(values);
        case Rights:
            return writeRights(values);
        case FinanceUser:
            return writeFinanceUser(values);
        case Done:
            return;
    }
}

void ClinicSetup::writeCareCentre(const SetupValues &values) {
    NamedQuery &centres = context_->odonto.CtroAtencion;
    centres.open({{u"cd"_s, values.ciudad}});
    append(centres, {{u"centro"_s, values.centro},
                     {u"descr"_s, values.descr},
                     {u"domicilio"_s, values.domicilio},
                     {u"colonia"_s, values.colonia},
                     {u"telefono1"_s, values.telefono},
                     {u"ciudad"_s, values.ciudad}});
}

void ClinicSetup::writeCashDesk(const SetupValues &values) {
    NamedQuery &desks = context_->caja.DatosCaja;
    desks.open({{u"campus"_s, deskCampus(values)}});
    append(desks, {{u"num_caja"_s, values.caja},
                   {u"nota_vta"_s, firstNote(context_->session.AnioActual)},
                   {u"nombre"_s, values.nombreCaja},
                   {u"origen"_s, u"INGRESOS "_s + values.nombreCaja},
                   {u"campus"_s, deskCampus(values)}});
}

void ClinicSetup::writeDossierCounters(const SetupValues &values) {
    NamedQuery &counters = context_->odonto.ControlExpediente;
    const auto add = [&counters](const QString &campus) {
        counters.open({{u"campus"_s, campus}});
        // A repeated run finds the one that it wrote before it failed.
        if (counters.isEmpty()) {
            append(counters, {{u"campus"_s, campus}, {u"num_expediente"_s, 1}});
        }
    };
    if (!values.universal) {
        add(values.ciudad);
    }
    add(kUniversal);
}

void ClinicSetup::writeFirstUser(const SetupValues &values) {
    NamedQuery &users = context_->odonto.ControlUsuarios;
    users.open({{u"origen"_s, values.ciudad}});
    users.set(u"centro"_s, values.centro);
    users.set(u"num_caja"_s, QString::number(values.caja));
    if (!values.campus.isEmpty()) {
        users.set(u"campus"_s, userCampus(values));
    }
    apply(users);
}

void ClinicSetup::writeCashier(const SetupValues &values) {
    NamedQuery &users = context_->odonto.ControlUsuarios;
    users.open({{u"origen"_s, values.ciudad}});
    Parameters row = {{u"usuario"_s, values.usuario},
                      {u"pass"_s, values.pass},
                      {u"nombre"_s, values.nombreCajero},
                      {u"nombrecorto"_s, cutToWidth(values.nombreCajero, kShortName)},
                      {u"num_caja"_s, QString::number(values.caja)},
                      {u"centro"_s, values.centro},
                      {u"origen"_s, values.ciudad},
                      {u"acceso"_s, u"CA"_s},
                      {u"turno"_s, u"CO"_s}};
    if (!values.campus.isEmpty()) {
        row.append({u"campus"_s, userCampus(values)});
    }
    append(users, row);
    // Whether it is open tells the next login that somebody has kept the users.
    users.close();
}

void ClinicSetup::writeAgeRanges(const SetupValues &values) {
    NamedQuery &ranges = context_->odonto.ClasifServicios;
    for (const AgeRange &range : values.edades) {
        ranges.open({{u"cd"_s, values.ciudad}, {u"tipo_prod"_s, range.tipoProd}});
        if (!ranges.isEmpty()) {
            continue;
        }
        append(ranges, {{u"ciudad"_s, values.ciudad},
                        {u"tipo_prod"_s, range.tipoProd},
                        {u"edadmin"_s, range.lowest},
                        {u"edadmax"_s, range.highest},
                        {u"aplica_anticipo"_s, u"N"_s},
                        {u"aplicadesc"_s, u"N"_s},
                        {u"requiere_edad"_s, u"S"_s}});
    }
}

void ClinicSetup::writeRights(const SetupValues &values) {
    NamedQuery &rights = context_->odonto.Usuarios_Mant;
    rights.open({{u"usuario"_s, u"admin"_s}});
    rights.set(u"centro"_s, values.centro);
    apply(rights);
    rights.open({{u"usuario"_s, values.usuario}});
    Parameters row = {{u"origen"_s, values.ciudad},
                      {u"centro"_s, values.centro},
                      {u"usuario"_s, values.usuario},
                      {u"acceso"_s, u"CA"_s}};
    for (int at = 0; at < rights.columnCount(); ++at) {
        const QString column = rights.headerData(at, Qt::Horizontal).toString();
        if (isRight(column)) {
            const bool granted = cashierRights().contains(column, Qt::CaseInsensitive);
            row.append({column, granted ? u"S"_s : u"N"_s});
        }
    }
    append(rights, row);
}

void ClinicSetup::writeFinanceUser(const SetupValues &values) {
    NamedQuery &users = context_->finanzas.cg_usuario;
    users.openToAppend();
    // The login looks there in capitals.
    append(users, {{u"app_login"_s, asciiUpper(values.usuario)}, {u"mpo"_s, u"1"_s}});
}

}  // namespace kaldo
