#include "catalogues/care_centres_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

using report::Band;
using report::Style;

constexpr double kLine = 4.8;
constexpr double kCaption = 40;
constexpr double kCode = 14;

}  // namespace

report::Document layoutCareCentres(const CatalogueHeading &heading, const QList<CareCentre> &rows,
                                   bool accounts) {
    report::Layout layout = catalogueLayout(heading, u"Centros de Atención"_s);
    const double width = catalogueWidth();
    for (const CareCentre &centre : rows) {
        QList<std::pair<QString, QString>> lines = {{u"Domicilio"_s, centre.domicilio},
                                                    {u"Colonia"_s, centre.colonia},
                                                    {u"Responsable"_s, centre.responsable},
                                                    {u"Teléfono"_s, centre.telefono1},
                                                    {u"Correo Electrónico"_s, centre.correoto}};
        if (accounts) {
            lines += {u"Programa"_s, centre.prog};
        }
        Band band(kLine + 1);
        band.text({0, 1, kCaption, kLine}, u"Centro"_s, Style().size(9));
        band.text({kCaption, 1, kCode, kLine}, centre.centro, Style().size(10).bold());
        band.memo({kCaption + kCode, 1, width - kCaption - kCode, kLine}, centre.descr,
                  Style().size(10).bold());
        for (const auto &[caption, text] : lines) {
            Band line(kLine);
            line.text({6, 0, kCaption - 6, kLine}, caption, Style().size(9));
            line.memo({kCaption, 0, width - kCaption, kLine}, text, Style().size(9));
            band.append(line);
        }
        const double bottom = band.height() + 1;
        band.line(0, bottom, width, bottom, 0.1);
        band.growTo(bottom + 1);
        layout.place(band);
    }
    return layout.finish();
}

}  // namespace kaldo
