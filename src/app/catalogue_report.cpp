#include "app/catalogue_report.h"

#include "toolkit/core/clock.h"

namespace kaldo {

namespace {

using report::Band;
using report::Style;
using report::Wrap;

constexpr double kMargin = 12.7;
constexpr double kSide = 40;  ///< room for the logo and, on the other side, date and page
constexpr double kLine = 5;
constexpr double kHeadHeight = 26;
constexpr double kFootHeight = 7;
constexpr double kRowLine = 4.4;
constexpr double kGap = 2.5;  ///< between two columns
constexpr int kKeyColumns = 4;
constexpr double kKeyLine = 4;

report::PageSetup page(bool landscape) {
    const report::PageSetup letter = report::PageSetup::letter(kMargin);
    return landscape ? letter.landscape() : letter;
}

void paintHead(Band &band, const CatalogueHeading &heading, const QString &title,
               const report::Picture &logo, double width, const report::PageInfo &page) {
    if (!logo.isEmpty()) {
        band.picture({0, 0, kSide - 4, kHeadHeight - 6}, logo);
    }
    const double middle = width - 2 * kSide;
    const Style centred = Style().center().wrap(Wrap::Elide);
    band.text({kSide, 0, middle, 6}, heading.institucion, centred.size(12).bold());
    band.text({kSide, 6.4, middle, kLine}, heading.clinica, centred.size(10));
    band.text({kSide, 13.5, middle, 6}, title, centred.size(11).bold());
    band.text({kSide, 17.8, middle, 3.8}, heading.linea, centred.size(9));
    const Style aside = Style().right().size(9);
    band.text({width - kSide, 0, kSide, kLine},
              QStringLiteral("Fecha: ") + formatDate(heading.fecha), aside);
    band.text({width - kSide, kLine, kSide, kLine},
              QStringLiteral("No. página: %1").arg(page.number), aside);
    band.line(0, kHeadHeight - 4, width, kHeadHeight - 4, 0.4);
}

double keyHeight(const ReportKey &key) {
    const auto rows = (key.entries.size() + kKeyColumns - 1) / kKeyColumns;
    return key.entries.isEmpty() ? 0 : kKeyLine * static_cast<double>(rows + 1) + 2;
}

void paintKey(Band &band, const ReportKey &key, double width) {
    const Style style = Style().size(8).wrap(Wrap::Elide);
    const double cell = width / kKeyColumns;
    band.text({0, 0, width, kKeyLine}, key.title, style.bold());
    for (int at = 0; at < key.entries.size(); ++at) {
        band.text({cell * (at % kKeyColumns), kKeyLine * (1 + at / kKeyColumns), cell, kKeyLine},
                  key.entries.at(at), style);
    }
}

}  // namespace

CatalogueHeading catalogueHeading(const Context &context) {
    CatalogueHeading heading;
    heading.institucion = context.options.NombreInstitucion;
    heading.clinica = context.options.Clinica;
    heading.fecha = context.clock.today();
    heading.logoPath = context.installation.map(context.options.ImgEmpresa);
    heading.anioActual = context.session.AnioActual;
    return heading;
}

ReportTable::ReportTable(QList<ReportColumn> columns, double totalWidth)
    : columns_(std::move(columns)), width_(totalWidth) {
    double left = totalWidth - kGap * static_cast<double>(columns_.size() - 1);
    for (const ReportColumn &column : std::as_const(columns_)) {
        left -= column.width;
    }
    for (ReportColumn &column : columns_) {
        if (column.width <= 0) {
            column.width = left;
        }
    }
}

Band ReportTable::cells(const QStringList &texts, const Style &style) const {
    Band band(kRowLine);
    double x = 0;
    for (int at = 0; at < columns_.size(); ++at) {
        const ReportColumn &column = columns_.at(at);
        Style own = style.wrap(Wrap::Word);
        own.align = column.align;
        band.memo({x, 0, column.width, kRowLine}, texts.value(at), own);
        x += column.width + kGap;
    }
    return band;
}

Band ReportTable::titles() const {
    QStringList titles;
    for (const ReportColumn &column : columns_) {
        titles += column.title;
    }
    Band band = cells(titles, Style().size(9).bold());
    const double bottom = band.height() + 0.6;
    band.line(0, bottom, width_, bottom);
    band.growTo(bottom + 1.4);
    return band;
}

Band ReportTable::row(const QStringList &texts) const {
    return cells(texts, Style().size(9));
}

double catalogueWidth(bool landscape) {
    return page(landscape).content().width();
}

report::Layout catalogueLayout(const CatalogueHeading &heading, const QString &title,
                               bool landscape, const ReportKey &key) {
    const report::PageSetup setup = page(landscape);
    const double width = setup.content().width();
    report::Layout layout(setup);
    layout.pageHeader(kHeadHeight,
                      [heading, title, width, logo = report::Picture::load(heading.logoPath)](
                          Band &band, const report::PageInfo &info) {
                          paintHead(band, heading, title, logo, width, info);
                      });
    const double top = keyHeight(key);
    layout.pageFooter(
        top + kFootHeight, [heading, width, key, top](Band &band, const report::PageInfo &) {
            paintKey(band, key, width);
            band.line(0, top + 1, width, top + 1);
            band.text({0, top + 2, width, kLine},
                      QStringLiteral("KALDO %1.").arg(heading.anioActual), Style().size(8));
        });
    return layout;
}

Band groupBand(const QString &caption, const QString &text, double indentMm) {
    const Style style = Style().size(10);
    const double captionWidth = report::textWidth(caption, style) + 2.5;
    Band band(kLine + 2.4);
    band.text({indentMm, 1.4, captionWidth, kLine}, caption, style);
    band.memo({indentMm + captionWidth, 1.4, catalogueWidth() - indentMm - captionWidth, kLine},
              text, style.bold());
    return band;
}

void previewCatalogue(Context &context, QWidget *parent, ScreenBase *opener,
                      const report::Document &document, const QString &title) {
    report::PreviewOptions previewOptions;
    previewOptions.thumbnails = context.options.PreliminarHojas;
    previewDocument(context, parent, opener, document, title, previewOptions);
}

}  // namespace kaldo
