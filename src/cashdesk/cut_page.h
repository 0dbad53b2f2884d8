#pragma once

#include "toolkit/report/layout.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <span>

namespace kaldo {

/// What the three reports of a cut share.
struct CutHeading {
    QString clinica;       ///< "Nombre de la Clinica"
    QString segundaLinea;  ///< the second heading line
    bool capitals = false;
    QDate fechaCorte;
    QDate printedOn;
    int numCaja = 0;  ///< the session's cash desk, also when another one is cut
    QString logoPath;
    int notaMin = 0;
    int notaMax = 0;
    QString cajero;  ///< who signs as "ENCARGADO DE CAJA"; the bank cut has a rule of its own
};

/// The four centred lines.
QStringList cutHeadingLines(const CutHeading &heading);

/// "RECIBOS DEL 5 AL 9". The bank cut has three blanks behind the word.
QString receiptRange(const CutHeading &heading);
QString receiptRangeOfBankCut(const CutHeading &heading);

/// A column of a cut report, in millimetres from the left margin.
struct CutColumn {
    const char *title;
    double x;
    double width;
    report::Align align;

    QRectF cell(double top, double height) const { return {x, top, width, height}; }
    report::Style style(const report::Style &base) const;
};

/// Width between the margins, in millimetres.
inline constexpr double kCutWidth = 195.9;
/// The titles of the columns in the box of the head that begins at `top`.
void addCutTitles(report::Band *band, double top, std::span<const CutColumn> columns);

/// Letter, upright, 10 mm on all sides, with the shared head on each page: logo, four lines, date
/// and page, and a box for the titles of the columns, which `titles` fills. The box is
/// kCutTitleHeight high.
inline constexpr double kCutTitleHeight = 7;
report::Layout cutLayout(const CutHeading &heading,
                         const std::function<void(report::Band &, double top)> &titles);

/// A line to sign on, the signer's name and office centred below. Millimetres.
void addSignature(report::Band *band, double x, double top, double width, const QString &name,
                  const QString &office);

}  // namespace kaldo
