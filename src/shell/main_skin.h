#pragma once

#include <QColor>
#include <QDate>
#include <QString>

namespace kaldo {

/// A colour scheme of the system's own: the two colours of all grids, those of what is written on
/// the picture, and the picture by the time of the year.
struct ColourScheme {
    QString name;
    QColor kaldoColor;   ///< headers of grids and groups, progress bar
    QColor kaldoSelect;  ///< selected rows
    QColor caption;
    QColor link;
    QString picture;
    QString septemberPicture;
    QString decemberPicture;
    QString assistanceNotice;
    QString telegramNotice;
    bool dark = false;  ///< light texts on a dark ground, in all windows
};

/// The scheme of that name; null for any other name, "Windows" among them.
const ColourScheme *schemeNamed(const QString &name);

/// The picture of a scheme on a day. The dates are literals that are converted when they are
/// reached; one of them is none of the calendar and throws std::invalid_argument (Spanish text).
QString pictureOf(const ColourScheme &scheme, const QDate &today);

/// "kaldoblu" for a scheme's image library "...\skinblue.dll", whatever its folder; empty for a
/// library that isn't one of the three.
QString pictureStem(const QString &skinLibrary);

/// The scheme that the picture of that stem was drawn for; null for none.
const ColourScheme *schemeOfPicture(const QString &stem);

/// The look of all windows, without a scheme. Once, before the first window.
void applyBaseLook();
/// What a scheme changes of it; null for none, which brings the base look back. Windows that stand
/// follow at once.
void applyScheme(const ColourScheme *scheme);

/// Header colour of groups where no scheme is in force.
QColor baseAccent();

/// How well a text is read on a ground, 1 to 21; 4.5 is the least for a text of this size.
double contrast(const QColor &text, const QColor &ground);

}  // namespace kaldo
