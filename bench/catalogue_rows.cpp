#include "bench/catalogue_rows.h"

#include "data/firebird_connection.h"

namespace kaldo::bench {

namespace {

struct Rows {
    const char *columns;
    const char *values;  ///< of row n, counted from 1
};

const Rows kClinic[] = {
    {"ctroatencion (centro, descr, domicilio, colonia, responsable, prog, ciudad)",
     "lpad(n - 1, 4, '0'), 'CENTRO ' || n, 'CALLE ' || n, 'CENTRO', 'RESPONSABLE ' || n, '12510', "
     "'VAN'"},
    {"areaventa (tipo_prod, descr, dirigidoa, origen, vigente, ciudad, generoid, grupoid, "
     "cgrubroid, cuentaid, subctaid, nomenclatura)",
     "1000 + n, 'AREA ' || n, 'OT', 'VN', 'S', 'VAN', 4, 1, 7, 5, 1, '4.1.7.5.1'"},
    {"serviciosxctro (centro, tipo_prod)", "iif(mod(n, 2) = 0, '01', '02'), 1000 + n"},
    {"areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)",
     "'01', 3, letters, 'LUGAR ' || n, "
     "'12510', 'AP', 'RESPONSABLE ' || n"},
    {"prestaciones (prestacion, descripcion, beneficiario)", "1000 + n, 'CLASE ' || n, ''"},
    {"clasifservicios (ciudad, tipo_prod, edadmin, edadmax, requiere_edad, aplicadesc, "
     "aplica_anticipo)",
     "'VAN', 1000 + n, 0, 0, 'N', 'N', 'N'"},
    {"prestacionxserv (centro, tipo_prod, prestacion, porcent, edad)", "'01', 3, 1000 + n, 10, 0"},
    {"labexternos (campus, subsubcta, prog, descr, domicilio, colonia, ciudad, responsable, "
     "activo, tipo_prod)",
     "'VAN', 1000 + n, 12510, 'LABORATORIO ' || n, 'CALLE ' || n, 'CENTRO', 'VALLE NORTE', "
     "'RESPONSABLE ' || n, 'S', 7"},
    {"listaprecios (codigo, cve_prod, descr, unimed, menudeo, prog, subsubcta, tipodeiva, "
     "clasificacioniva, vigente, tipo_prod)",
     "900000 + n, n, 'CONCEPTO ' || n, 1, n, '12510', 401, 2, 1, 'S', 1001"},
    {"tipo_formapago (idtipo, tipopago, nomenclatura)", "1000 + n, 'FORMA ' || n, '1.1.1.1.1'"},
    {"metodopagocfdi (clave, descripcion)", "letters, 'METODO ' || n"},
    {"tipocambio (fecha, tipo_cam)", "dateadd(n day to date '2000-01-01'), 10 + n / 1000e0"},
    {"controlusuarios (usuario, pass, nombre, nombrecorto, acceso, centro, turno, campus, "
     "num_caja, origen)",
     "'u' || n, 'p', 'USUARIO ' || n, 'USUARIO', 'CA', '01', 'CO', '1', '1', 'VAN'"},
    {"usuarios_m (usuario, origen, centro, acceso, b1)", "'u' || n, 'VAN', '01', 'CA', 'S'"},
};

const Rows kCashDesks = {
    "datoscaja (num_caja, nota_vta, nombre, origen, prog_pol, bancomn, bancodll, campus)",
    "1000 + n, 1, 'CAJA ' || n, 'CAJA', 12510, 1, 2, '2'"};

const Rows kFinance[] = {
    {"cg_banco (bancoid, generoid, grupoid, cgrubroid, cuentaid, subctaid, subsubctaid, "
     "nomenclatura, descripcion, tipomoneda)",
     "1000 + n, 1, 1, 1, 2, 1, 11, '1.1.1.2.1.11', 'BANCO ' || n, 1 + mod(n, 2)"},
    {"cg_bancoporprograma (bancoid, programaid)", "1000 + n, 12510"},
};

/// Two characters that tell 10,000 rows apart, and from those of the example school.
QString lettersOfRow() {
    QString alphabet;
    for (int at = 0; at < 100; ++at) {
        alphabet += QChar(0x0400 + at);
    }
    return QStringLiteral(
               "substring('%1' from 1 + (n - 1) / 100 for 1) || "
               "substring('%1' from 1 + mod(n, 100) for 1)")
        .arg(alphabet);
}

void insert(Connection &connection, const Rows &rows, int count) {
    test::run(
        connection,
        QStringLiteral("insert into %1 select %2 from (select t.n, %4 as letters from (select "
                       "first %3 row_number() over () as n from rdb$relation_fields a cross "
                       "join rdb$relation_fields b) t)")
            .arg(QLatin1String(rows.columns), QLatin1String(rows.values))
            .arg(count)
            .arg(lettersOfRow()));
}

}  // namespace

void storeCatalogues(const test::TestInstallation &installation) {
    FirebirdConnection clinic(QStringLiteral("FBOdonto"), {});
    clinic.setDatabase(installation.database(QStringLiteral("BD_ODONTOLOGIA.GDB")));
    for (const Rows &rows : kClinic) {
        insert(clinic, rows, kCatalogueRows);
    }
    FirebirdConnection finance(QStringLiteral("FBFinanzas"), {});
    finance.setDatabase(installation.database(QStringLiteral("BD_FINANZAS.GDB")));
    for (const Rows &rows : kFinance) {
        insert(finance, rows, kCatalogueRows);
    }
}

void storeCashDesks(const test::TestInstallation &installation) {
    FirebirdConnection clinic(QStringLiteral("FBOdonto"), {});
    clinic.setDatabase(installation.database(QStringLiteral("BD_ODONTOLOGIA.GDB")));
    insert(clinic, kCashDesks, kCatalogueRows);
}

void storePriceList(const test::TestInstallation &installation, int targets) {
    FirebirdConnection clinic(QStringLiteral("FBOdonto"), {});
    clinic.setDatabase(installation.database(QStringLiteral("BD_ODONTOLOGIA.GDB")));
    insert(clinic,
           {"areaventa (tipo_prod, descr, dirigidoa, vigente, ciudad)",
            "900 + n, iif(n = 1, 'ORIGEN', 'DESTINO ' || (n - 1)), 'OT', 'S', "
            "iif(n = 1, 'VAN', 'COS')"},
           targets + 1);
    insert(clinic,
           {"listaprecios (codigo, cve_prod, descr, unimed, menudeo, prog, fecha_mov, subsubcta, "
            "nomenclatura, tipodeiva, porcentajeiva, clasificacioniva, vigente, claveprodserv, "
            "tipo_prod)",
            "901000 + n - 1, n - 1, 'CONCEPTO DE LA LISTA ' || n, 1, n * 1.5e0, '12510', "
            "date '2024-01-02', 401, '4.1.7.5.1.401', 2, 0, 1, 'S', 85122001, 901"},
           kListItems);
}

}  // namespace kaldo::bench
