#include "catalogues/clinics_report.h"

#include "data/query_rows.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr double kIndent = 6;
constexpr double kCentreGap = 4;
constexpr double kAreaGap = 1.5;

ReportKey serviceCodes() {
    return {u"Simbología de Código de Servicio"_s,
            {u"AP = Atención Pacientes"_s, u"AL = Alumnos"_s, u"AD = Admisión de Pacientes"_s,
             u"AE = Apertura de Expedientes"_s, u"DV = Diversos"_s, u"LI = Laboratorio Interno"_s,
             u"LE = Laboratorio Externo"_s, u"UM = Unidad Móvil"_s}};
}

report::Band centreHead(const ClinicRow &row) {
    return groupBand(u"Centro de Atención"_s, row.centroDescr);
}

report::Band areaHead(const ClinicRow &row) {
    return groupBand(u"Área Servicio"_s, row.areaDescr, kIndent);
}

}  // namespace

QList<ClinicRow> clinicRows(NamedQuery &areaatencion, NamedQuery &area) {
    QHash<QString, QString> names;
    return mapRows(areaatencion, [&](const QueryRow &from) {
        const QString tipoProd = from.text(u"tipo_prod"_s);
        if (!names.contains(tipoProd)) {
            area.open({{u"tipo_prod"_s, from.value(u"tipo_prod"_s)}});
            names.insert(tipoProd, area.isEmpty() ? tipoProd : area.text(u"descr"_s));
        }
        ClinicRow row;
        row.centro = from.text(u"centro"_s);
        row.centroDescr = from.text(u"descr_1"_s);
        row.tipoProd = tipoProd;
        row.areaDescr = names.value(row.tipoProd);
        row.area = from.text(u"area"_s);
        row.descr = from.text(u"descr"_s);
        row.prog = from.text(u"prog"_s);
        row.tipoServ = from.text(u"tipo_serv"_s);
        row.responsable = from.text(u"responsable"_s);
        return row;
    });
}

report::Document layoutClinics(const CatalogueHeading &heading, const QList<ClinicRow> &rows) {
    report::Layout layout =
        catalogueLayout(heading, u"Clinicas por Areas de Ventas"_s, false, serviceCodes());
    const ReportTable table({{u"Área"_s, 14},
                             {u"Descripción"_s, 0},
                             {u"Programa"_s, 20},
                             {u"Código de Servicio"_s, 34},
                             {u"Responsable"_s, 58}},
                            catalogueWidth());
    const ClinicRow *before = nullptr;
    for (const ClinicRow &row : rows) {
        const report::Band line =
            table.row({row.area, row.descr, row.prog, row.tipoServ, row.responsable});
        const bool newCentre = !before || before->centro != row.centro;
        if (newCentre || before->tipoProd != row.tipoProd) {
            report::Band area = areaHead(row);
            area.append(table.titles());
            const report::Band whole = centreHead(row).append(area);
            layout.repeatOnNewPages(std::nullopt);
            layout.skip(!before ? 0 : newCentre ? kCentreGap : kAreaGap);
            layout.placeTogether({newCentre ? whole : area, line});
            layout.repeatOnNewPages(whole);
        } else {
            layout.place(line);
        }
        before = &row;
    }
    return layout.finish();
}

}  // namespace kaldo
