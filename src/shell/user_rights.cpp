#include "shell/user_rights.h"

#include "shell/menu_entries.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

QString captionOf(const QString &entry) {
    for (const MenuHeading &heading : menuHeadings()) {
        for (const MenuEntry &line : heading.entries) {
            if (entry == QLatin1String(line.name)) {
                return QString::fromUtf8(line.caption);
            }
        }
    }
    return entry;
}

/// Rights that bear the captions of their menu entries.
RightGroup menuGroup(const QString &title, const QStringList &entries) {
    RightGroup group{title, {}};
    for (const QString &entry : entries) {
        group.rows.push_back({captionOf(entry), entry.toLower()});
    }
    return group;
}

RightRow heading(const QString &caption) {
    return {caption, QString()};
}

RightRow inner(const QString &caption, const QString &column) {
    return {caption, column, true};
}

RightGroup maintenance() {
    return {u"Mantenimientos"_s,
            {{u"Centro de Atención"_s, u"b1"_s},
             {u"Áreas de Ventas"_s, u"b2"_s},
             {u"Centros Atención / Area Ventas"_s, u"b3"_s},
             {u"Clasificación de Pacientes"_s, u"b4"_s},
             {u"Clasificación de Servicios Prestados"_s, u"b5"_s},
             {u"Clinicas por Areas de Ventas"_s, u"b6"_s},
             {u"Forma de Pago"_s, u"b7"_s},
             {u"Métodos de Pago"_s, u"b8"_s},
             heading(u"Finanzas"_s),
             inner(u"Bancos"_s, u"b11a"_s),
             inner(u"Tipo de Cambio"_s, u"b12a"_s),
             {u"Lista de Precios"_s, u"b9"_s},
             {u"Laboratorios Externos"_s, u"b10"_s}}};
}

RightGroup dossiers() {
    RightGroup group{u"Control de Expedientes"_s,
                     {{u"Consultar Expediente"_s, u"f1"_s},
                      {u"Prestamo de Expediente"_s, u"f2"_s},
                      {u"Registrar Historia Clínica"_s, u"f4"_s},
                      {u"Concentimiento Válidamente Inrormado"_s, u"f5"_s}}};
    const auto numbered = [&group](const QString &title, const QString &caption,
                                   const QString &column, int count) {
        group.rows.push_back(heading(title));
        for (int number = 1; number <= count; ++number) {
            const QString text = QString::number(number);
            group.rows.push_back(inner(caption + u' ' + text, column + text));
        }
    };
    numbered(u"Control Exp. Cli. Licenciatura"_s, u"Licenciatura"_s, u"f6"_s, 8);
    numbered(u"Control Exp. Cli. Especialidades"_s, u"Especialidad"_s, u"f7"_s, 3);
    const std::vector<RightRow> rest = {{u"Revisión y Autorización de Tratamientos"_s, u"f8"_s},
                                        {u"Solicitud Laboratorio Externo"_s, u"f9"_s},
                                        {u"Solicitud Laboratorio Interno"_s, u"f10"_s},
                                        {u"Control de Placa"_s, u"f11"_s}};
    group.rows.insert(group.rows.end(), rest.begin(), rest.end());
    return group;
}

RightGroup reports() {
    return {u"Reportes"_s,
            {heading(u"Admisión"_s), inner(u"Estadisticas"_s, u"h1a"_s),
             inner(u"Reporte de Admisiones"_s, u"h1b"_s), heading(u"Caja"_s),
             inner(u"Ingreso por Area de Servicio"_s, u"h2a"_s),
             inner(u"Movimientos por Alumno"_s, u"h2b"_s), inner(u"Recibos Cancelados"_s, u"h2c"_s),
             inner(u"Saldos Laboratorios"_s, u"h2d"_s), inner(u"Saldo Expedientes"_s, u"h2e"_s),
             heading(u"Expedientes"_s), inner(u"Hoja de Evaluación"_s, u"i31"_s),
             inner(u"Trabajos Realizados p/Alumno"_s, u"i32"_s),
             inner(u"Historias Clinicas"_s, u"i33"_s)}};
}

RightPage daily() {
    return {u"Mantenimientos, Recepción y Caja"_s,
            {{maintenance()},
             {menuGroup(u"Recepción"_s, {u"C1"_s, u"C2"_s, u"C3"_s}),
              menuGroup(u"Admisión"_s, {u"D1"_s, u"D2"_s}),
              menuGroup(u"Administración"_s, {u"I1"_s, u"I2"_s})},
             {menuGroup(u"Caja"_s, {u"E1"_s, u"E2"_s, u"E3"_s, u"E4"_s, u"E5a"_s, u"E5b"_s,
                                    u"E5c"_s, u"E5d"_s, u"E6"_s, u"E7"_s, u"E8"_s, u"E9"_s})}}};
}

}  // namespace

const std::vector<RightPage> &rightPages() {
    static const std::vector<RightPage> pages = {
        daily(),
        {u"Expedientes y Reportes"_s,
         {{dossiers()}, {reports()}, {{u"Funciones Especiales"_s, {{u"R.F.C."_s, u"j3"_s}}}}}},
    };
    return pages;
}

QStringList rightColumns() {
    QStringList columns;
    for (const RightPage &page : rightPages()) {
        for (const std::vector<RightGroup> &groups : page.columns) {
            for (const RightGroup &group : groups) {
                for (const RightRow &row : group.rows) {
                    columns += row.column;
                }
            }
        }
    }
    columns.removeAll(QString());
    return columns;
}

const QStringList &rightsOfNewUser() {
    static const QStringList columns =
        u"a3 b1 b2 b3 b4 b5 b6 b7 b8 b9 b10 b11a c1 c2 c3 d1 d2 e1 e2 e4 e5a e5b e5c e5d e6 e7 e8 "
        "e9 f1 f2 f3 i1 i2 h1a h1b h2a h2b h2c h2d h2e h2f"_s.split(u' ');
    return columns;
}

}  // namespace kaldo
