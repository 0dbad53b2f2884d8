#include "toolkit/report/text_shape.h"

#include "toolkit/report/layout.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>

namespace kaldo::report {

QFont textFont(const Style &style) {
    QFont font(style.family);
    font.setPixelSize(std::max(1, qRound(style.points * 10.0)));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(style.isBold);
    font.setItalic(style.isItalic);
    return font;
}

namespace {

/// Line ends as line feeds only, no other character that would print as a box.
QString printable(const QString &text) {
    QString result = text;
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &character : result) {
        if (character == QLatin1Char('\r') || character == QChar::ParagraphSeparator ||
            character == QChar::LineSeparator)
            character = QLatin1Char('\n');
        else if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char(' ');
    }
    return result;
}

QStringList wrapped(const QString &paragraph, double width, const QFont &font, Wrap wrap) {
    QTextOption option;
    option.setWrapMode(wrap == Wrap::Anywhere ? QTextOption::WrapAnywhere
                                              : QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.setCacheEnabled(false);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        // The blanks at a break belong to neither line, or the next one would look indented.
        QString text = paragraph.mid(line.textStart(), line.textLength());
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        while (!lines.isEmpty() && text.startsWith(QLatin1Char(' ')))
            text.remove(0, 1);
        lines << text;
    }
    layout.endLayout();
    return lines;
}

/// A line and its width in the units that fonts are measured in; each is measured once, since
/// measuring is most of what laying a report out costs.
struct MeasuredLine {
    QString text;
    double width;
};

std::vector<MeasuredLine> linesOf(const QString &text, double width, const QFont &font,
                                  const QFontMetricsF &metrics, Wrap wrap) {
    QString clean = printable(text);
    if (wrap == Wrap::Elide) {
        clean.replace(QLatin1Char('\n'), QLatin1Char(' '));
        const QString elided = metrics.elidedText(clean, Qt::ElideRight, width);
        return {{elided, metrics.horizontalAdvance(elided)}};
    }
    std::vector<MeasuredLine> lines;
    const QStringList paragraphs = clean.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        const double advance = metrics.horizontalAdvance(paragraph);
        if (wrap == Wrap::None || advance <= width) {
            lines.push_back({paragraph, advance});
            continue;
        }
        for (const QString &line : wrapped(paragraph, width, font, wrap)) {
            lines.push_back({line, metrics.horizontalAdvance(line)});
        }
    }
    return lines;
}

double leftEnd(double boxWidth, double lineWidth, Align align) {
    switch (align) {
        case Align::Left:
            return 0.0;
        case Align::Center:
            return (boxWidth - lineWidth) / 2.0;
        case Align::Right:
            return boxWidth - lineWidth;
    }
    return 0.0;
}

}  // namespace

std::vector<TextLine> shapeText(const QString &text, double widthMm, const Style &style) {
    std::vector<TextLine> result;
    if (text.isEmpty())
        return result;
    const QFont font = textFont(style);
    const QFontMetricsF metrics(font);
    const double ascent = metrics.ascent() / textUnitsPerMm;
    const double spacing = metrics.lineSpacing() / textUnitsPerMm;
    double top = 0.0;
    for (const MeasuredLine &line :
         linesOf(text, widthMm * textUnitsPerMm, font, metrics, style.wrapping)) {
        const double width = line.width / textUnitsPerMm;
        result.push_back(
            {line.text, QPointF(leftEnd(widthMm, width, style.align), top + ascent), width});
        top += spacing;
    }
    return result;
}

void keepLinesThatFit(std::vector<TextLine> &lines, const QSizeF &box, const Style &style) {
    // A quarter of a line may stick out: boxes were drawn by eye.
    const double fitting = box.height() / lineHeight(style) + 0.25;
    const std::size_t keep = std::max(1, static_cast<int>(fitting));
    if (lines.size() <= keep)
        return;
    lines.resize(keep);
    TextLine &last = lines.back();
    const QFontMetricsF metrics(textFont(style));
    const double room = box.width() * textUnitsPerMm;
    QString text = last.text;
    while (!text.isEmpty() && metrics.horizontalAdvance(text + QChar(0x2026)) > room)
        text.chop(1);
    last.text = text + QChar(0x2026);
    last.width = metrics.horizontalAdvance(last.text) / textUnitsPerMm;
    last.baseline.setX(leftEnd(box.width(), last.width, style.align));
}

double textWidth(const QString &text, const Style &style) {
    return QFontMetricsF(textFont(style)).horizontalAdvance(text) / textUnitsPerMm;
}

double textHeight(const QString &text, double widthMm, const Style &style) {
    const auto count = static_cast<double>(shapeText(text, widthMm, style).size());
    return count > 0.0 ? count * lineHeight(style) : 0.0;
}

double lineHeight(const Style &style) {
    return QFontMetricsF(textFont(style)).lineSpacing() / textUnitsPerMm;
}

}  // namespace kaldo::report
