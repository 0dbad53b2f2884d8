#include "toolkit/report/text_shape.h"

#include "toolkit/report/layout.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHash>
#include <QTextLayout>

#include <algorithm>
#include <memory>

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

/// A font as it was measured. Measuring is most of what laying a report out costs, and a list says
/// the same few concepts and amounts over and over.
class MeasuredFont {
public:
    explicit MeasuredFont(const QFont &font)
        : font_(font),
          metrics_(font),
          ascent_(metrics_.ascent()),
          spacing_(metrics_.lineSpacing()) {}

    // In the units that fonts are measured in.
    double ascent() const { return ascent_; }
    double spacing() const { return spacing_; }
    double advance(const QString &text) {
        if (const auto known = advances_.constFind(text); known != advances_.cend())
            return *known;
        constexpr qsizetype remembered = 4096;
        if (advances_.size() == remembered)
            advances_.clear();
        return *advances_.insert(text, metrics_.horizontalAdvance(text));
    }

    const QFont &font() const { return font_; }
    const QFontMetricsF &metrics() const { return metrics_; }

private:
    QFont font_;
    QFontMetricsF metrics_;
    double ascent_;
    double spacing_;
    QHash<QString, double> advances_;
};

/// The fonts measured so far; they go with the application, as every font must.
MeasuredFont &measuredFont(const Style &style) {
    struct Entry {
        QString family;
        double points;
        bool isBold;
        bool isItalic;
        std::unique_ptr<MeasuredFont> font;
    };
    static std::vector<Entry> entries;
    for (const Entry &entry : entries) {
        if (entry.points == style.points && entry.isBold == style.isBold &&
            entry.isItalic == style.isItalic && entry.family == style.family)
            return *entry.font;
    }
    if (entries.empty())
        qAddPostRoutine([] { entries.clear(); });
    entries.push_back({style.family, style.points, style.isBold, style.isItalic,
                       std::make_unique<MeasuredFont>(textFont(style))});
    return *entries.back().font;
}

/// A line and its width in the units that fonts are measured in.
struct MeasuredLine {
    QString text;
    double width;
};

std::vector<MeasuredLine> linesOf(const QString &text, double width, MeasuredFont &font,
                                  Wrap wrap) {
    QString clean = printable(text);
    if (wrap == Wrap::Elide) {
        clean.replace(QLatin1Char('\n'), QLatin1Char(' '));
        const double advance = font.advance(clean);
        if (advance <= width)
            return {{clean, advance}};
        const QString elided = font.metrics().elidedText(clean, Qt::ElideRight, width);
        return {{elided, font.advance(elided)}};
    }
    std::vector<MeasuredLine> lines;
    const QStringList paragraphs = clean.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        const double advance = font.advance(paragraph);
        if (wrap == Wrap::None || advance <= width) {
            lines.push_back({paragraph, advance});
            continue;
        }
        for (const QString &line : wrapped(paragraph, width, font.font(), wrap)) {
            lines.push_back({line, font.advance(line)});
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
    MeasuredFont &font = measuredFont(style);
    const double ascent = font.ascent() / textUnitsPerMm;
    const double spacing = font.spacing() / textUnitsPerMm;
    double top = 0.0;
    for (const MeasuredLine &line : linesOf(text, widthMm * textUnitsPerMm, font, style.wrapping)) {
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
    MeasuredFont &font = measuredFont(style);
    const double room = box.width() * textUnitsPerMm;
    QString text = last.text;
    while (!text.isEmpty() && font.metrics().horizontalAdvance(text + QChar(0x2026)) > room)
        text.chop(1);
    last.text = text + QChar(0x2026);
    last.width = font.advance(last.text) / textUnitsPerMm;
    last.baseline.setX(leftEnd(box.width(), last.width, style.align));
}

double textWidth(const QString &text, const Style &style) {
    return measuredFont(style).advance(text) / textUnitsPerMm;
}

double textHeight(const QString &text, double widthMm, const Style &style) {
    const auto count = static_cast<double>(shapeText(text, widthMm, style).size());
    return count > 0.0 ? count * lineHeight(style) : 0.0;
}

double lineHeight(const Style &style) {
    return measuredFont(style).spacing() / textUnitsPerMm;
}

}  // namespace kaldo::report
