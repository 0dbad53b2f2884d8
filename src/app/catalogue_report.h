#pragma once

#include <QDate>
#include <QStringList>

#include "app/screen.h"
#include "toolkit/report/layout.h"

namespace kaldo {

/// What stands around every catalogue's report.
struct CatalogueHeading {
    QString institucion;  ///< "Nombre del Cliente"
    QString clinica;      ///< "Nombre de la Clinica"
    QDate fecha;
    QString logoPath;
    int anioActual = 0;
    QString linea;  ///< under the title; empty for none
};

CatalogueHeading catalogueHeading(const Context &context);

/// A column of a report, in millimetres from the left margin.
struct ReportColumn {
    QString title;
    double width = 0;
    report::Align align = report::Align::Left;
};

/// Columns side by side over a width. Texts wrap by word and the row grows with them.
class ReportTable {
public:
    /// A column of width 0 takes what the others leave of `totalWidth`; one at most.
    ReportTable(QList<ReportColumn> columns, double totalWidth);

    /// The titles over a line.
    report::Band titles() const;
    report::Band row(const QStringList &texts) const;

private:
    report::Band cells(const QStringList &texts, const report::Style &style) const;
    QList<ReportColumn> columns_;
    double width_;
};

/// Room for text inside the margins of 12.7 mm, in millimetres.
double catalogueWidth(bool landscape = false);

/// What the codes of a report stand for, at the foot of every page.
struct ReportKey {
    QString title;
    QStringList entries;
};

/// A letter page with the head that all catalogues share (logo, institution and clinic, date, page
/// number, title) and its foot.
report::Layout catalogueLayout(const CatalogueHeading &heading, const QString &title,
                               bool landscape = false, const ReportKey &key = {});

/// A list under its titles, which every page repeats; `cells` gives the texts of a row.
template <typename Row, typename Cells>
report::Document listReport(report::Layout layout, const ReportTable &table, const QList<Row> &rows,
                            Cells cells) {
    layout.place(table.titles());
    layout.repeatOnNewPages(table.titles());
    for (const Row &row : rows) {
        layout.place(table.row(cells(row)));
    }
    return layout.finish();
}

/// A line that heads a group: a caption and, in bold, what it names.
report::Band groupBand(const QString &caption, const QString &text, double indentMm = 0);

/// Shows a catalogue's report, with its thumbnails where the option says so.
void previewCatalogue(Context &context, QWidget *parent, ScreenBase *opener,
                      const report::Document &document, const QString &title);

}  // namespace kaldo
