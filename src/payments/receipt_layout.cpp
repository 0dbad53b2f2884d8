#include "payments/receipt_layout.h"

#include "toolkit/report/layout.h"

#include <algorithm>

namespace kaldo {

namespace {

using report::Align;
using report::Band;
using report::Style;
using report::units;
using report::Wrap;

// Everything below is in report units, from the band's upper left corner.
constexpr double kLeft = 15;
constexpr double kWidth = 225;
constexpr double kInset = 16;
constexpr double kInsetWidth = 226;
constexpr double kRight = 244;  ///< where amounts end
constexpr double kLabelHeight = 15;
constexpr double kGap = 4;  ///< between two texts side by side
constexpr double kMarginMm = 2.54;

Style wrapped(const Style &style) {
    return style.wrap(Wrap::Word);
}

double unitsOf(double millimetres) {
    return millimetres / units(1);
}

double textUnits(const QString &text, const Style &style = {}) {
    return unitsOf(report::textWidth(text, style));
}

/// A band whose labels stand where the design puts them, as long as they fit.
class LabelBand {
public:
    explicit LabelBand(double height) : height_(height) {}

    /// One line, at most as wide as the box; right-aligned text may run over to the left.
    void label(double top, double left, double width, const QString &text,
               const Style &style = {}) {
        if (!text.isEmpty()) {
            put(top, left, width, kLabelHeight, text, style);
        }
    }

    /// As many lines as the text needs; what they take beyond `room` moves the rest down.
    void paragraph(double top, double left, double width, double room, const QString &text,
                   const Style &style = {}) {
        if (text.isEmpty()) {
            return;
        }
        const Style wrapping = wrapped(style);
        const double needed = unitsOf(report::textHeight(text, units(width), wrapping));
        put(top, left, width, std::max(needed, room), text, wrapping);
        moved_ += std::max(0.0, needed - room);
    }

    void rule(double top) {
        const double y = units(top + moved_);
        band_.line(units(kLeft), y, units(kRight), y);
    }

    /// Lowest edge of what stands in the band.
    double bottom() const { return bottom_; }
    double moved() const { return moved_; }
    void setHeight(double height) { height_ = height; }

    Band take() {
        band_.setHeight(units(height_ + moved_));
        return band_;
    }

private:
    void put(double top, double left, double width, double height, const QString &text,
             const Style &style) {
        band_.text(report::unitRect(left, top + moved_, width, height), text, style);
        bottom_ = std::max(bottom_, top + moved_ + kLabelHeight);
    }

    Band band_;
    double height_;
    double moved_ = 0;
    double bottom_ = 0;
};

Band titleBand(const ReceiptContent &content, const QString &copyDescription) {
    const Style centred = Style().center();
    LabelBand band(content.lugarShown ? 297 : 265);
    band.paragraph(1, kLeft, kWidth, 30, content.QRL1, centred.bold());
    band.paragraph(31, kLeft, kWidth, 15, content.QRL2, centred);
    band.paragraph(46, kInset, kWidth, 15, content.QRL3, centred);
    if (content.longAddress) {
        band.paragraph(66, kLeft, kWidth, 32, content.QRL4, centred.bold());
    } else {
        band.paragraph(85, kLeft, kWidth, 14, content.QRL4, centred.bold());
    }
    band.paragraph(103, kLeft, kWidth, 15, content.QRL5, centred);
    band.paragraph(120, kLeft, kWidth, 17, content.QRL6, centred);
    band.paragraph(137, kLeft, kWidth, 20, copyDescription, centred.size(10).bold());
    band.label(157, 14, 117, QStringLiteral("CENTRO DE ATENCION"), Style().bold());
    band.paragraph(171, kLeft, kWidth, 22, content.QRL8a);
    band.label(193, kLeft, 95, QStringLiteral("TIPO DE SERVICIO"), Style().bold());
    band.paragraph(209, kLeft, kWidth, 20, content.QRL9A);
    band.label(229, kLeft, 96, QStringLiteral("CLASIF. SERVICIO"), Style().bold());
    band.paragraph(243, kLeft, kWidth, 19, content.QRL10a);
    if (content.lugarShown) {
        band.label(262, kInset, 111, QStringLiteral("LUGAR DE ATENCION"), Style().bold());
        band.paragraph(278, kLeft, kWidth, 19, content.QRL11a);
    }
    return band.take();
}

/// Note, moment, payer, and the employee memo when there is one.
Band headerBand(const ReceiptContent &content) {
    constexpr double fullHeight = 90;
    constexpr double emptyMemo = 35;
    const QString memo = content.QRMemo1.join(QLatin1Char('\n'));
    const Style memoStyle = wrapped(Style());
    const double memoHeight =
        memo.isEmpty() ? emptyMemo
                       : unitsOf(report::textHeight(memo, units(kInsetWidth), memoStyle));

    LabelBand band(content.identified ? fullHeight : memoHeight + 25);
    band.label(2, 15, 228, content.QRL12, Style().right());
    band.label(17, 15, 227, content.QRL16a, Style().right());
    band.label(32, 15, 228, content.QRL13, Style().right());
    band.label(45, kInset, kInsetWidth, content.QRL15);
    band.label(59, kInset, kInsetWidth, content.QRL16);
    band.paragraph(75, kInset, kInsetWidth, 15, content.QRL17);
    if (!memo.isEmpty()) {
        // Without dossier and student the memo may rise, but never over a line that is printed.
        const double top =
            (content.memoHigh ? std::max(34.0, band.bottom()) : fullHeight + band.moved()) -
            band.moved();
        band.setHeight((content.identified ? fullHeight : memoHeight + 25) + memoHeight);
        band.paragraph(top, kInset, kInsetWidth, memoHeight, memo);
    }
    return band.take();
}

Band detailBand(const ReceiptLine &line) {
    constexpr double designedHeight = 34;
    const Style plain;
    // Long quantities and amounts take their room from the description.
    const double left = std::max(32.0, 17 + textUnits(line.cant) + kGap);
    const double right = std::min(176.0, 245 - textUnits(line.total) - kGap);
    const Style anywhere = Style().wrap(Wrap::Anywhere);
    const double described = std::max(
        14.0, unitsOf(report::textHeight(line.descripcion, units(right - left), anywhere)));

    Band band;
    band.text(report::unitRect(33, -1, 200, kLabelHeight), line.nomenclatura, plain);
    band.text(report::unitRect(17, 12, 29, kLabelHeight), line.cant, plain);
    band.text(report::unitRect(left, 12, right - left, described), line.descripcion, anywhere);
    band.text(report::unitRect(182, 12, 63, kLabelHeight), line.total, plain.right());
    if (line.descAdic.isEmpty()) {
        band.setHeight(units(designedHeight + described - 14));
        return band;
    }
    const Style words = wrapped(plain);
    const double added = unitsOf(report::textHeight(line.descAdic, units(144), words));
    band.text(report::unitRect(32, described + 34, 144, added), line.descAdic, words);
    band.setHeight(units(described + added + 50));
    return band;
}

Band totalsBand(const ReceiptContent &content) {
    LabelBand band(content.totalsHeight);
    band.rule(0);
    double top = 6;
    for (const ReceiptRow &row : content.totals) {
        const double captionEnd = std::min(182.0, kRight - textUnits(row.amount) - kGap);
        band.label(top, kLeft, captionEnd - kLeft, row.caption, Style().right());
        band.label(top, 182, kRight - 182, row.amount, Style().right());
        top += 16;
    }
    return band.take();
}

Band summaryBand(const ReceiptContent &content) {
    LabelBand band(394);
    const auto pair = [&](double top, const ReceiptRow &row) {
        band.label(top, kInset, 100, row.caption);
        band.label(top, 182, kRight - 182, row.amount, Style().right());
    };
    const auto line = [&](double top, double room, const QString &text, const Style &style = {}) {
        band.paragraph(top, kInset, kInsetWidth, room, text, style);
    };
    band.label(4, kInset, kInsetWidth, QStringLiteral("IVA CORRESPONDIENTE:"));
    band.rule(18);
    pair(26, {QStringLiteral("IVA EXENTO"), formatMoney(0.0)});
    band.label(49, kInset, kInsetWidth, QStringLiteral("SON:"));
    line(65, 35, content.QRLetras1);
    pair(100, content.QRL27);
    pair(117, content.QRL28);
    pair(135, content.QRL29);
    pair(152, content.QRL30);
    pair(169, content.QRL31);
    pair(187, content.QRL32);
    line(205, 29, content.QRL33);
    line(234, 19, content.QRL34);
    line(253, 19, content.QRL35);
    line(272, 23, content.QRL36);
    line(295, 21, content.QRL37, Style().bold());
    line(316, 26, QStringLiteral("Conserve su recibo para cualquier aclaración."));
    line(342, 17, content.QRL39);
    line(359, 35, content.QRL40);
    return band.take();
}

}  // namespace

report::Document layoutReceipt(const ReceiptContent &content, const QString &copyDescription) {
    report::Layout layout(report::PageSetup::a4(kMarginMm));
    layout.place(titleBand(content, copyDescription));
    const Band header = headerBand(content);
    layout.place(header);
    layout.repeatOnNewPages(header);
    for (const ReceiptLine &line : content.lines) {
        layout.place(detailBand(line));
    }
    layout.placeTogether({totalsBand(content), summaryBand(content)});
    return layout.finish();
}

}  // namespace kaldo
