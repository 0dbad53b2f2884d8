#include "catalogues/external_laboratories_report.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

using report::Band;
using report::Style;
using report::Wrap;

constexpr double kLine = 4.8;
constexpr double kCaption = 22;       ///< captions of the left half
constexpr double kRightCaption = 34;  ///< of the right half

struct Entry {
    QString caption, text;
};

void paintEntry(Band &band, const QRectF &place, const Entry &entry, double caption) {
    band.text({place.left(), place.top(), caption, kLine}, entry.caption, Style().size(9));
    band.text({place.left() + caption, place.top(), place.width() - caption - 2, kLine}, entry.text,
              Style().size(9).wrap(Wrap::Elide));
}

Band block(const ExternalLaboratory &row) {
    const double width = catalogueWidth();
    const double half = width / 2;
    Band band(2 * kLine);
    band.text({0, 1, kCaption, kLine}, u"Subsubcta"_s, Style().size(9));
    band.text({kCaption, 1, 16, kLine}, row.subsubcta, Style().size(10).bold());
    band.text({kCaption + 16, 1, 16, kLine}, u"Nombre"_s, Style().size(9));
    band.text({kCaption + 32, 1, width - kCaption - 32, kLine}, row.descr,
              Style().size(10).bold().wrap(Wrap::Elide));
    band.text({0, 1 + kLine, kCaption, kLine}, u"Domicilio"_s, Style().size(9));
    band.memo({kCaption, 1 + kLine, width - kCaption, kLine}, row.domicilio, Style().size(9));
    double top = band.height() + 0.6;
    const std::array<std::pair<Entry, Entry>, 4> lines = {{
        {{u"Colonia"_s, row.colonia}, {u"Responsable"_s, row.responsable}},
        {{u"RFC"_s, row.rfc}, {u"Correo Electrónico"_s, row.correo}},
        {{u"Teléfono"_s, row.telefono}, {u"C.P."_s, row.cp}},
        {{u"Programa"_s, row.prog}, {}},
    }};
    for (const auto &[left, right] : lines) {
        paintEntry(band, {0, top, half, kLine}, left, kCaption);
        paintEntry(band, {half, top, half, kLine}, right, kRightCaption);
        top += kLine;
    }
    band.line(0, top + 1, width, top + 1, 0.1);
    band.growTo(top + 2);
    return band;
}

}  // namespace

report::Document layoutExternalLaboratories(const CatalogueHeading &heading, const QString &ciudad,
                                            const QList<ExternalLaboratory> &rows) {
    report::Layout layout = catalogueLayout(heading, u"Laboratorios Externos "_s + ciudad);
    for (const ExternalLaboratory &row : rows) {
        layout.place(block(row));
    }
    return layout.finish();
}

}  // namespace kaldo
