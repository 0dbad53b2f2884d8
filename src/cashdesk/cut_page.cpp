#include "cashdesk/cut_page.h"

#include "toolkit/core/clock.h"
#include "toolkit/core/text.h"

namespace kaldo {

namespace {

using report::Band;
using report::Style;

constexpr double kMargin = 10;
constexpr double kSide = 42;  ///< room for the logo and, on the other side, date and page
constexpr double kLine = 5;
constexpr double kHeadHeight = 24;

QString range(const QString &words, const CutHeading &heading) {
    return QStringLiteral("%1%2 AL %3").arg(words).arg(heading.notaMin).arg(heading.notaMax);
}

void paintHead(Band &band, const QStringList &lines, const CutHeading &heading,
               const report::Picture &logo, const report::PageInfo &page) {
    if (!logo.isEmpty()) {
        band.picture({0, 0, kSide - 4, kHeadHeight - 3}, logo);
    }
    const double middle = kCutWidth - 2 * kSide;
    double top = 0;
    for (const QString &line : lines) {
        const Style style = Style().center().size(top == 0 ? 12 : 10).bold(top == 0);
        band.text({kSide, top, middle, kLine}, line, style.wrap(report::Wrap::Elide));
        top += kLine + 0.4;
    }
    const Style aside = Style().right().size(9);
    band.text({kCutWidth - kSide, 0, kSide, kLine},
              QStringLiteral("Fecha: ") + formatDate(heading.printedOn), aside);
    band.text({kCutWidth - kSide, kLine, kSide, kLine},
              QStringLiteral("No. página: %1").arg(page.number), aside);
}

}  // namespace

QStringList cutHeadingLines(const CutHeading &heading) {
    QStringList lines{
        heading.clinica, heading.segundaLinea,
        QStringLiteral("Corte de Caja del Día ") + formatDate(heading.fechaCorte),
        QStringLiteral("Relación de Recibos de Caja ") + QString::number(heading.numCaja)};
    if (heading.capitals) {
        for (QString &line : lines) {
            line = Mayusculas(line);
        }
    }
    return lines;
}

QString receiptRange(const CutHeading &heading) {
    return range(QStringLiteral("RECIBOS DEL "), heading);
}

QString receiptRangeOfBankCut(const CutHeading &heading) {
    return range(QStringLiteral("RECIBOS DEL   "), heading);
}

report::Style CutColumn::style(const report::Style &base) const {
    switch (align) {
        case report::Align::Right:
            return base.right();
        case report::Align::Center:
            return base.center();
        case report::Align::Left:
            break;
    }
    return base;
}

void addCutTitles(report::Band *band, double top, std::span<const CutColumn> columns) {
    for (const CutColumn &column : columns) {
        band->text(column.cell(top + 1.6, kLine), QString::fromUtf8(column.title),
                   column.style(Style().bold().size(9)));
    }
}

report::Layout cutLayout(const CutHeading &heading,
                         const std::function<void(report::Band &, double top)> &titles) {
    report::Layout layout(report::PageSetup::letter(kMargin));
    layout.pageHeader(
        kHeadHeight + kCutTitleHeight + 2,
        [lines = cutHeadingLines(heading), heading, titles,
         logo = report::Picture::load(heading.logoPath)](Band &band, const report::PageInfo &page) {
            paintHead(band, lines, heading, logo, page);
            band.box({0, kHeadHeight, kCutWidth, kCutTitleHeight});
            titles(band, kHeadHeight);
        });
    return layout;
}

void addSignature(report::Band *band, double x, double top, double width, const QString &name,
                  const QString &office) {
    const Style style = Style().center().size(9);
    band->line(x, top, x + width, top);
    band->text({x, top + 1, width, kLine}, name, style.wrap(report::Wrap::Elide));
    band->text({x, top + 1 + kLine, width, kLine}, office, style);
}

}  // namespace kaldo
