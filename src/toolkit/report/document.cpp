#include "toolkit/report/document.h"

#include <QStringList>

#include <cmath>

namespace kaldo::report {

PageSetup PageSetup::a4(double marginMm) {
    return custom({210.0, 297.0}, {marginMm, marginMm, marginMm, marginMm});
}

PageSetup PageSetup::letter(double marginMm) {
    return custom({215.9, 279.4}, {marginMm, marginMm, marginMm, marginMm});
}

PageSetup PageSetup::custom(QSizeF paperMm, QMarginsF marginsMm) {
    return PageSetup{paperMm, marginsMm};
}

PageSetup PageSetup::landscape() const {
    PageSetup result = *this;
    if (paper.width() < paper.height())
        result.paper.transpose();
    return result;
}

PageSetup PageSetup::withMargins(QMarginsF marginsMm) const {
    PageSetup result = *this;
    result.margins = marginsMm;
    return result;
}

QRectF PageSetup::content() const {
    return QRectF(QPointF(0.0, 0.0), paper).marginsRemoved(margins);
}

Style Style::size(double value) const {
    Style result = *this;
    result.points = value;
    return result;
}

Style Style::bold(bool on) const {
    Style result = *this;
    result.isBold = on;
    return result;
}

Style Style::italic(bool on) const {
    Style result = *this;
    result.isItalic = on;
    return result;
}

Style Style::left() const {
    Style result = *this;
    result.align = Align::Left;
    return result;
}

Style Style::center() const {
    Style result = *this;
    result.align = Align::Center;
    return result;
}

Style Style::right() const {
    Style result = *this;
    result.align = Align::Right;
    return result;
}

Style Style::wrap(Wrap value) const {
    Style result = *this;
    result.wrapping = value;
    return result;
}

Style Style::ink(const QColor &value) const {
    Style result = *this;
    result.color = value;
    return result;
}

QString Text::content() const {
    QStringList texts;
    for (const TextLine &line : lines)
        texts << line.text;
    return texts.join(QLatin1Char('\n'));
}

void Document::append(const Document &other) {
    if (pages.empty())
        setup = other.setup;
    else if (!other.pages.empty() && setup.paper != other.setup.paper)
        throw std::invalid_argument("documents of different paper can't be joined");
    // A copy first: a document may be appended to itself.
    const std::vector<Page> added = other.pages;
    pages.insert(pages.end(), added.begin(), added.end());
}

namespace {

QString tenths(double mm) {
    double rounded = std::round(mm * 10.0) / 10.0;
    if (rounded == 0.0)
        rounded = 0.0;  // no "-0.0"
    return QString::number(rounded, 'f', 1);
}

QString place(const QRectF &rect) {
    return QStringList{tenths(rect.x()), tenths(rect.y()), tenths(rect.width()),
                       tenths(rect.height())}
        .join(QLatin1Char(' '));
}

QString inkIfNotBlack(const QColor &color) {
    return color == QColor(Qt::black) ? QString() : QLatin1Char(' ') + color.name();
}

QString described(const Text &item) {
    QString result =
        QStringLiteral("text %1 %2pt").arg(place(item.rect), QString::number(item.style.points));
    if (item.style.family != Style().family)
        result += QStringLiteral(" [%1]").arg(item.style.family);
    if (item.style.isBold)
        result += QStringLiteral(" bold");
    if (item.style.isItalic)
        result += QStringLiteral(" italic");
    if (item.style.align == Align::Center)
        result += QStringLiteral(" center");
    if (item.style.align == Align::Right)
        result += QStringLiteral(" right");
    result += inkIfNotBlack(item.style.color);
    QString content = item.content();
    content.replace(QLatin1Char('\n'), QStringLiteral(" / "));
    return result + QStringLiteral(" \"%1\"").arg(content);
}

QString described(const Line &item) {
    return QStringLiteral("line %1 %2 %3 %4 pen %5%6")
        .arg(tenths(item.line.x1()), tenths(item.line.y1()), tenths(item.line.x2()),
             tenths(item.line.y2()), QString::number(item.pen), inkIfNotBlack(item.color));
}

QString described(const Box &item) {
    QString result =
        QStringLiteral("box %1 pen %2%3")
            .arg(place(item.rect), QString::number(item.pen), inkIfNotBlack(item.color));
    if (item.fill.isValid())
        result += QStringLiteral(" fill ") + item.fill.name();
    return result;
}

QString described(const Image &item) {
    return QStringLiteral("image %1").arg(place(item.rect));
}

QString described(const Drawing &item) {
    return QStringLiteral("drawing %1").arg(place(item.rect));
}

}  // namespace

QString dump(const Document &document) {
    QString result =
        QStringLiteral("paper %1 %2\n")
            .arg(tenths(document.setup.paper.width()), tenths(document.setup.paper.height()));
    for (int page = 0; page < document.pageCount(); ++page) {
        for (const Item &item : document.pages[page].items) {
            const QString text = std::visit([](const auto &it) { return described(it); }, item);
            result += QStringLiteral("page %1: %2\n").arg(QString::number(page + 1), text);
        }
    }
    return result;
}

QString pageText(const Document &document, int page) {
    QString result;
    for (const Item &item : document.pages.at(page).items) {
        if (const Text *text = std::get_if<Text>(&item))
            result += text->content() + QLatin1Char('\n');
    }
    return result;
}

}  // namespace kaldo::report
