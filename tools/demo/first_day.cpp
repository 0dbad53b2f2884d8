#include "tools/demo/first_day.h"

#include <QDir>
#include <QJsonArray>

#include "data/firebird_connection.h"
#include "shell/user_rights.h"
#include "toolkit/core/ini_file.h"
#include "tools/demo/readback.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

const QString kSaveQuestion = u"¿La Información es Correcta?"_s;
const QString kWizard = u"FRMInicioFirebird"_s;
const QString kCashier = u"cajero2"_s;
const QString kCity = u"Puerto Alto"_s;

void logIn(KeyScript &script, const QString &user, const QString &password) {
    script.at(u"FRMAcceso"_s, u"Edit1"_s)
        .type(user)
        .enter()
        .at(u"FRMAcceso"_s, u"Edit2"_s)
        .type(password)
        .enter();
}

void enterAll(KeyScript &script, const QStringList &texts) {
    for (const QString &text : texts) {
        if (!text.isEmpty()) {
            script.type(text);
        }
        script.enter();
    }
}

void wizard(KeyScript &script) {
    script.at(kWizard, u"Edit1"_s).picture(u"wizard-empty"_s);
    enterAll(script, {kCity, u"B"_s, u"1"_s,                                            // city
                      u"01"_s, u"clinica de licenciatura"_s, u"av. del puerto 1200"_s,  // centre
                      u"centro"_s, u"6641234567"_s, u"1"_s, u"caja 01"_s,               // desk
                      u"cajero1"_s, u"caja1"_s, u"rosa elena fuentes"_s});
    script.picture(u"wizard-data"_s).alt('s').at(kWizard, u"Areas"_s);
    // The first four areas: admission, opening of dossiers, children, adults.
    script.enter().enter().enter().enter().picture(u"wizard-areas"_s).alt('s');
    script.at(kWizard, u"EdadMinInfantil"_s);
    enterAll(script, {u"1"_s, u"14"_s, u"15"_s, u"100"_s});
    script.picture(u"wizard-end"_s)
        .alt('t')
        .atBox(u"¿El Catálogo de conceptos no tiene registrado ningún precio"_s);
    script.enter();
}

struct Price {
    QString area, key, name, amount;
};

const QList<Price> kPrices = {{u"ADMISION"_s, u"1"_s, u"admisión"_s, u"150"_s},
                              {u"ADULTOS"_s, u"1"_s, u"resina de una cara"_s, u"320"_s},
                              {u"ADULTOS"_s, u"2"_s, u"extracción simple"_s, u"180"_s}};

void prices(KeyScript &script) {
    const QString screen = u"FRM107"_s;
    QString area;
    for (const Price &price : kPrices) {
        if (area != price.area) {
            area = price.area;
            script.press(Qt::Key_F, Qt::ControlModifier)
                .at(screen, u"AreaVentas"_s)
                .type(area)
                .enter()
                .at(screen, u"DBGrid1"_s);
        }
        // Code, name, in force, unit, price.
        script.alt('i');
        enterAll(script, {price.key, price.name, QString(), QString(), price.amount});
        script.atBox(kSaveQuestion).enter().at(screen, u"DBGrid1"_s);
    }
    script.picture(u"prices"_s);
}

void exchangeRate(KeyScript &script) {
    script.menu(u"Mantenimiento"_s)
        .choose(u"Finanzas"_s)
        .choose(u"Tipo Cambio"_s)
        .at(u"FRM111"_s, u"DBGrid1"_s)
        .alt('i')
        .type(u"19.50"_s)
        .enter()
        .atBox(u"La información es correcta?"_s)
        .enter()
        .at(u"FRM111"_s, u"DBGrid1"_s)
        .picture(u"exchange-rate"_s);
}

/// All that a cash desk does; the other boxes are passed by.
void giveRights(KeyScript &script) {
    for (const RightPage &page : rightPages()) {
        for (const auto &column : page.columns) {
            for (const RightGroup &group : column) {
                for (const RightRow &row : group.rows) {
                    if (row.column.startsWith(u'e')) {
                        script.press(Qt::Key_S, {}, u"s"_s);
                    }
                    if (row.column == u"e9"_s) {
                        script.picture(u"rights"_s);
                    }
                    if (!row.column.isEmpty()) {
                        script.enter();
                    }
                }
            }
        }
    }
}

void secondCashier(KeyScript &script) {
    const QString screen = u"FRMControlUsuarios"_s;
    script.menu(u"Administración"_s)
        .choose(u"Control de Usuarios"_s)
        .at(screen, u"DBGrid1"_s)
        .alt('i');
    enterAll(script, {kCashier, u"caja2"_s, u"LUIS ORTEGA"_s, u"LUIS"_s, u"CAJA 01"_s, u"CLINICA"_s,
                      u"VE"_s, u"CA"_s, QString(), QString(), u"1"_s});
    script.picture(u"second-cashier"_s).at(screen, u"Derechos"_s);
    giveRights(script);
    script.atBox(kSaveQuestion).enter().at(screen, u"DBGrid1"_s).picture(u"users"_s);
}

void changeOption(KeyScript &script) {
    const QString panel = u"FRMControlPanel"_s;
    script.press(Qt::Key_F9)
        .at(panel)
        .press(Qt::Key_Tab)
        .at(panel, u"NombreCliente"_s)
        .enter()
        .at(panel, u"NombreInstitucion"_s)
        .press(Qt::Key_A, Qt::ControlModifier)
        .type(u"ESCUELA DE ODONTOLOGIA DE PUERTO ALTO"_s)
        .picture(u"control-panel"_s)
        .alt('a')
        .atBox(u"Algunos cambios pueden necesitar reiniciar el sistema."_s)
        .enter();
}

/// The finance department keeps its own list of users, with a system of its own.
void registerInFinance(const QString &root) {
    FirebirdConnection finance(u"FBFinanzas"_s, {});
    finance.setDatabase(root + u"/DataBase/BD_FINANZAS.GDB"_s);
    finance.execute({u"alta"_s,
                     u"insert into cg_usuario (usuarioid, app_login, mpo) values "
                     "(900, 'CAJERO2', '1')"_s},
                    {});
}

void firstNote(KeyScript &script) {
    const QString note = u"FRM401"_s;
    script.press(Qt::Key_G, Qt::ControlModifier)
        .at(note, u"ComboBox1"_s)
        .type(u"AD"_s)
        .enter()
        .at(note, u"ComboBox2"_s)
        .type(u"ADMISION"_s)
        .enter()
        .at(note, u"Paterno"_s);
    enterAll(script, {u"castro"_s, u"luna"_s, u"ana sofía"_s});
    script.at(note, u"AgregarRegistro"_s)
        .enter()
        .at(note, u"Detalle"_s)
        .type(u"1"_s)
        .enter()
        .enter()
        .type(u"1"_s)
        .enter()
        .at(note, u"AgregarRegistro"_s)
        .picture(u"first-note"_s)
        .alt('r')
        .at(u"FRM401_3"_s, u"CEdit4"_s)
        .type(u"200"_s)
        .enter()
        .at(u"FRM401_3"_s, u"ImprimirRecibo"_s)
        .picture(u"first-payment"_s)
        .enter()
        .atBox(u"La información ha sido registrada correctamente"_s)
        .enter()
        .at(note, u"ComboBox1"_s);
}

void leave(KeyScript &script) {
    script.press(Qt::Key_F4, Qt::AltModifier).atBox(u"¿Desea salir de KALDO?"_s).enter();
}

QJsonObject objectOf(const QVariantMap &row) {
    QJsonObject object;
    for (auto value = row.begin(); value != row.end(); ++value) {
        object.insert(value.key(), QJsonValue::fromVariant(value.value()));
    }
    return object;
}

void checkSetUp(Check &check, Connection &clinic) {
    const QVariantMap centre = rowOf(clinic, u"select * from ctroatencion"_s);
    check.that(centre.value(u"centro"_s) == u"01"_s && centre.value(u"ciudad"_s) == u"VAN"_s,
               u"the centre stands"_s);
    check.that(rowsOf(clinic, u"select tipo_prod from serviciosxctro"_s).size() == 4,
               u"the centre offers four areas"_s);
    check.that(rowsOf(clinic, u"select * from clasifservicios"_s).size() == 2,
               u"children and adults have their ages"_s);
    const QList<QVariantMap> prices =
        rowsOf(clinic, u"select codigo, descr, menudeo from listaprecios order by codigo"_s);
    check.that(prices.size() == kPrices.size(), u"three prices stand"_s);
    check.that(same(prices.value(0).value(u"menudeo"_s).toDouble(), 150),
               u"the admission has its price"_s);
    const QVariantMap cashier =
        rowOf(clinic,
              u"select u.num_caja, u.centro, u.acceso, m.e1, m.f1 from controlusuarios u "
              "join usuarios_m m on m.usuario = u.usuario where u.usuario = 'cajero2'"_s);
    check.that(cashier.value(u"acceso"_s) == u"CA"_s && cashier.value(u"num_caja"_s) == u"1"_s,
               u"the second cashier has a desk"_s);
    check.that(cashier.value(u"e1"_s) == u"S"_s && cashier.value(u"f1"_s) != u"S"_s,
               u"the second cashier has the rights of a desk and no others"_s);
}

}  // namespace

void writeFirstDay(KeyScript &script, const QString &root) {
    logIn(script, u"admin"_s, u"admin"_s);
    wizard(script);
    prices(script);
    exchangeRate(script);
    secondCashier(script);
    changeOption(script);
    script.call([root] { registerInFinance(root); }).press(Qt::Key_F11);
    logIn(script, kCashier, u"caja2"_s);
    firstNote(script);
    leave(script);
}

bool writeFirstDaySummary(const QString &root, const QString &folder) {
    FirebirdConnection clinic(u"FBOdonto"_s, {});
    FirebirdConnection finance(u"FBFinanzas"_s, {});
    clinic.setDatabase(root + u"/DataBase/BD_ODONTOLOGIA.GDB"_s);
    finance.setDatabase(root + u"/DataBase/BD_FINANZAS.GDB"_s);

    Check check;
    checkSetUp(check, clinic);
    const QVariantMap note =
        rowOf(clinic,
              u"select r.num_caja, r.nota_vta, r.tipo_serv, r.status, r.importe_tot, "
              "r.tipocambio, r.capto, f.pesos, f.cambio, a.folio from registrovtas r "
              "join formapago f on f.num_caja = r.num_caja and f.nota_vta = r.nota_vta "
              "left join admision a on a.num_caja = r.num_caja and a.nota_vta = "
              "r.nota_vta"_s);
    check.that(note.value(u"nota_vta"_s).toInt() % 1000000 == 1, u"the desk's first note"_s);
    check.that(note.value(u"status"_s) == u"GE"_s && note.value(u"capto"_s) == kCashier,
               u"the note is the new cashier's"_s);
    check.that(same(note.value(u"importe_tot"_s).toDouble(), 150) &&
                   same(note.value(u"cambio"_s).toDouble(), 50),
               u"the note has its amounts"_s);
    check.that(same(note.value(u"tipocambio"_s).toDouble(), 19.5), u"the note has its rate"_s);
    check.that(rowsOf(finance, u"select nota_vta from recibopago"_s).size() == 1,
               u"finance has the note"_s);
    const IniFile ini(root + u"/Ini/kaldo.ini"_s);
    const QString institution = ini.value(u"Cliente"_s, u"nombre"_s);
    check.that(institution == u"ESCUELA DE ODONTOLOGIA DE PUERTO ALTO"_s, u"the option stands"_s);
    const QStringList receipts = QDir(folder).entryList({u"receipt-*.pdf"_s}, QDir::Files);
    check.that(!receipts.isEmpty(), u"the note has its receipt"_s);

    return writeSummaryFile(folder, {{u"note"_s, objectOf(note)},
                                     {u"institution"_s, institution},
                                     {u"receipts"_s, QJsonArray::fromStringList(receipts)},
                                     {u"holds"_s, check.good()}}) &&
           check.good();
}

}  // namespace kaldo
