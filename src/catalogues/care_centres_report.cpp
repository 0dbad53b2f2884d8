#include "catalogues/care_centres_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

using report::Band;
using report::Style;

constexpr double kLine = 4.8;
constexpr double kCaption = 40;

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
        Band band(kLine * static_cast<double>(lines.size() + 1) + 3);
        band.text({0, 1, kCaption, kLine}, u"Centro"_s, Style().size(9));
        band.text({kCaption, 1, 14, kLine}, centre.centro, Style().size(10).bold());
        band.text({kCaption + 14, 1, width - kCaption - 14, kLine}, centre.descr,
                  Style().size(10).bold().wrap(report::Wrap::Elide));
        double top = 1 + kLine;
        for (const auto &[caption, text] : lines) {
            band.text({6, top, kCaption - 6, kLine}, caption, Style().size(9));
            band.text({kCaption, top, width - kCaption, kLine}, text,
                      Style().size(9).wrap(report::Wrap::Elide));
            top += kLine;
        }
        band.line(0, top + 1, width, top + 1, 0.1);
        layout.place(band);
    }
    return layout.finish();
}

}  // namespace kaldo
