#include "catalogues/service_classes_report.h"

#include "data/query_rows.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

using report::Align;
using report::Band;

constexpr double kPixel = 25.4 / 96;
constexpr double kAreaAlone = 70 * kPixel;
constexpr double kAreaWithClasses = 96 * kPixel;
constexpr double kIndent = 6;
constexpr std::size_t kRules = 2;  ///< the band of an area that takes the room to its height

Band centreHead(const ServiceClassLine &row) {
    return groupBand(u"Centro de Atención"_s, row.centro + u"   "_s + row.centroDescr);
}

ReportTable rulesTable() {
    return ReportTable({{u"Edad Minima"_s, 32, Align::Center},
                        {u"Edad Maxima"_s, 32, Align::Center},
                        {u"Aplica Anticipo"_s, 34, Align::Center},
                        {u"Aplica Descuento"_s, 36, Align::Center},
                        {u"Requiere Edad"_s, 0, Align::Center}},
                       catalogueWidth());
}

/// `area` tells on a further page whose classes go on there.
ReportTable classTable(const QString &area = {}) {
    return ReportTable({{QString(), kIndent},
                        {u"Prestación"_s, 20, Align::Right},
                        {area, 90},
                        {u"Porcentaje Descuento"_s, 40, Align::Right},
                        {QString(), 0}},
                       catalogueWidth());
}

/// The area, its rules, and the titles of its classes where it has any.
std::vector<Band> areaHead(const ServiceClassLine &row) {
    std::vector<Band> bands = {
        groupBand(u"Area de Atención"_s, row.tipoProd + u"   "_s + row.areaDescr, kIndent),
        rulesTable().titles(),
        rulesTable().row(
            {row.edadMin, row.edadMax, row.aplicaAnticipo, row.aplicaDesc, row.requiereEdad})};
    if (row.prestacion != 0) {
        bands.push_back(classTable().titles());
    }
    const double height =
        std::accumulate(bands.begin(), bands.end(), 0.0,
                        [](double sum, const Band &band) { return sum + band.height(); });
    const double wanted = row.prestacion != 0 ? kAreaWithClasses : kAreaAlone;
    bands[kRules].growTo(bands[kRules].height() + wanted - height);
    return bands;
}

Band classLine(const ServiceClassLine &row) {
    const QString porcent = row.porcent.isEmpty() ? QString() : QString(row.porcent + u" %"_s);
    return classTable().row(
        {QString(), QString::number(row.prestacion), row.prestacionDescr, porcent});
}

}  // namespace

QList<ServiceClassLine> serviceClassLines(NamedQuery &clasifServiciosR) {
    return mapRows(clasifServiciosR, [](const QueryRow &from) {
        ServiceClassLine line;
        line.centro = from.text(u"centro"_s);
        line.centroDescr = from.text(u"descr_1"_s);
        line.tipoProd = from.text(u"tipo_prod"_s);
        line.areaDescr = from.text(u"descr"_s);
        line.edadMin = from.text(u"edadmin"_s);
        line.edadMax = from.text(u"edadmax"_s);
        line.aplicaAnticipo = from.text(u"aplica_anticipo"_s);
        line.aplicaDesc = from.text(u"aplicadesc"_s);
        line.requiereEdad = from.text(u"requiere_edad"_s);
        line.prestacion = from.value(u"prestacion"_s).toInt();
        line.prestacionDescr = from.text(u"descripcion"_s);
        line.porcent = from.text(u"porcent"_s);
        return line;
    });
}

report::Document layoutServiceClasses(const CatalogueHeading &heading,
                                      const QList<ServiceClassLine> &rows) {
    report::Layout layout = catalogueLayout(heading, u"Clasificación de Servicios Prestados"_s);
    const ServiceClassLine *before = nullptr;
    for (qsizetype at = 0; at < rows.size(); ++at) {
        const ServiceClassLine &row = rows.at(at);
        if (row.prestacion == 0 && at + 1 < rows.size() && rows.at(at + 1).sameArea(row)) {
            continue;  // no class, in an area that has some
        }
        if (before != nullptr && before->sameArea(row)) {
            layout.place(classLine(row));
            continue;
        }
        std::vector<Band> start = areaHead(row);
        if (row.prestacion != 0) {
            start.push_back(classLine(row));
        }
        if (before == nullptr || before->centro != row.centro) {
            layout.repeatOnNewPages(std::nullopt);
            start.insert(start.begin(), centreHead(row));
        } else {
            layout.repeatOnNewPages(centreHead(row));
        }
        layout.placeTogether(start);
        layout.repeatOnNewPages(classTable(u"%1   %2"_s.arg(row.tipoProd, row.areaDescr)).titles());
        before = &row;
    }
    return layout.finish();
}

}  // namespace kaldo
