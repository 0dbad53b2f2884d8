#include "toolkit/report/layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace kaldo::report;

namespace {

/// Paper with a body of 80 x 100 mm.
PageSetup smallPaper() {
    return PageSetup::custom({100.0, 120.0}, {10.0, 10.0, 10.0, 10.0});
}

Band named(const QString &text, double height) {
    Band band(height);
    band.text({0.0, 0.0, 80.0, 4.0}, text);
    return band;
}

std::vector<Text> textsOf(const Document &document, int page) {
    std::vector<Text> result;
    for (const Item &item : document.pages.at(page).items) {
        if (const Text *text = std::get_if<Text>(&item))
            result.push_back(*text);
    }
    return result;
}

QString allText(const Document &document) {
    QString result;
    for (int page = 0; page < document.pageCount(); ++page)
        result += pageText(document, page);
    return result;
}

}  // namespace

TEST(ReportLayout, DumpTellsAWholeDocument) {
    Layout layout(smallPaper());
    layout.pageHeader(10.0, [](Band &band, const PageInfo &info) {
        band.text({0.0, 0.0, 80.0, 4.0},
                  QStringLiteral("Hoja %1 de %2").arg(info.number).arg(info.total),
                  Style().right());
    });
    layout.pageFooter(6.0, [](Band &band, const PageInfo &) { band.line(0.0, 1.0, 80.0, 1.0); });
    Band title(12.0);
    title.text(unitRect(15.0, 1.0, 225.0, 14.0), QStringLiteral("RECIBO \"A\""),
               Style().size(10.0).bold().italic().center());
    title.box({0.0, 0.0, 80.0, 12.0}, 0.3, QColor(221, 238, 255));
    title.text({0.0, 6.0, 20.0, 4.0}, QString());
    layout.place(title);
    Band tall(60.0);
    tall.memo({0.0, 0.0, 30.0, 4.0}, QStringLiteral("uno\ndos"), Style().ink(Qt::red));
    layout.place(tall);
    layout.place(tall);

    EXPECT_EQ(dump(layout.finish()).toStdString(),
              "paper 100.0 120.0\n"
              "page 1: text 10.0 10.0 80.0 4.0 8pt right \"Hoja 1 de 2\"\n"
              "page 1: text 14.0 20.3 59.5 3.7 10pt bold italic center \"RECIBO \"A\"\"\n"
              "page 1: box 10.0 20.0 80.0 12.0 pen 0.3 fill #ddeeff\n"
              "page 1: text 10.0 32.0 30.0 6.5 8pt #ff0000 \"uno / dos\"\n"
              "page 1: line 10.0 105.0 90.0 105.0 pen 0.2\n"
              "page 2: text 10.0 10.0 80.0 4.0 8pt right \"Hoja 2 de 2\"\n"
              "page 2: text 10.0 20.0 30.0 6.5 8pt #ff0000 \"uno / dos\"\n"
              "page 2: line 10.0 105.0 90.0 105.0 pen 0.2\n");
}

TEST(ReportLayout, BandsThatFillAPageExactlyStayOnIt) {
    Layout layout(smallPaper());
    for (int i = 0; i < 30; ++i)
        layout.place(named(QString::number(i), 100.0 / 30.0));
    EXPECT_EQ(layout.pageNumber(), 1);
    EXPECT_NEAR(layout.remaining(), 0.0, 0.001);
    layout.place(named(QStringLiteral("más"), 0.1));
    const Document document = layout.finish();
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(pageText(document, 1), QStringLiteral("más\n"));
}

TEST(ReportLayout, KeepsTogetherWhatOnePageCanHold) {
    Layout layout(smallPaper());
    layout.place(named(QStringLiteral("lines"), 85.0));
    layout.placeTogether({named(QStringLiteral("head"), 10.0), named(QStringLiteral("row"), 10.0)});
    EXPECT_EQ(layout.pageNumber(), 2);
    EXPECT_NEAR(layout.remaining(), 80.0, 0.001);
    layout.need(80.0);
    EXPECT_EQ(layout.pageNumber(), 2);
    layout.need(81.0);
    EXPECT_EQ(layout.pageNumber(), 3);
    EXPECT_TRUE(layout.atTopOfPage());
    layout.need(500.0);
    EXPECT_EQ(layout.pageNumber(), 3) << "an empty page is as good as the next";
}

TEST(ReportLayout, RepeatsTheHeadOfAGroupOnNewPagesOnly) {
    Layout layout(smallPaper());
    layout.place(named(QStringLiteral("head"), 10.0));
    layout.repeatOnNewPages(named(QStringLiteral("head (cont.)"), 10.0));
    for (int i = 0; i < 10; ++i)
        layout.place(named(QStringLiteral("row"), 10.0));
    layout.repeatOnNewPages({});
    layout.newPage();
    layout.place(named(QStringLiteral("end"), 10.0));
    const Document document = layout.finish();
    ASSERT_EQ(document.pageCount(), 3);
    EXPECT_TRUE(pageText(document, 0).startsWith(QStringLiteral("head\nrow\n")));
    EXPECT_EQ(pageText(document, 1), QStringLiteral("head (cont.)\nrow\n"));
    EXPECT_EQ(pageText(document, 2), QStringLiteral("end\n"));
}

TEST(ReportLayout, MemoGrowsItsBandAndKeepsTheRoomBelow) {
    const QString words =
        QStringLiteral("Resina compuesta fotopolimerizable en dientes anteriores");
    Band band(10.0);
    band.memo({0.0, 2.0, 30.0, 4.0}, words);
    const double height = textHeight(words, 30.0, Style().wrap(Wrap::Word));
    EXPECT_NEAR(height, 3 * lineHeight(Style()), 0.001);
    EXPECT_NEAR(band.height(), 2.0 + height + 4.0, 0.001);

    Band shortOne(10.0);
    shortOne.memo({0.0, 2.0, 30.0, 4.0}, QStringLiteral("Resina"));
    EXPECT_DOUBLE_EQ(shortOne.height(), 10.0);

    Layout layout(smallPaper());
    band.fullHeightBox(0.0, 80.0);
    layout.place(band);
    EXPECT_NEAR(layout.remaining(), 100.0 - band.height(), 0.001);
    const Document document = layout.finish();
    const Box *frame = std::get_if<Box>(&document.pages[0].items.front());
    ASSERT_NE(frame, nullptr) << "the frame is painted under the text";
    EXPECT_NEAR(frame->rect.height(), band.height(), 0.001);
}

TEST(ReportLayout, WrapsAsAsked) {
    const QString text = QStringLiteral("RESINA COMPUESTA FOTOPOLIMERIZABLE EN DIENTES");
    const auto linesOf = [&](Wrap wrap) {
        Band band;
        band.memo({0.0, 0.0, 38.0, 4.0}, text, Style().wrap(wrap));
        Layout layout(smallPaper());
        layout.place(band);
        return textsOf(layout.finish(), 0).at(0).lines;
    };
    const auto anywhere = linesOf(Wrap::Anywhere);
    ASSERT_EQ(anywhere.size(), 3u);
    EXPECT_EQ(anywhere[0].text, QStringLiteral("RESINA COMPUESTA FOTO"));
    EXPECT_TRUE(anywhere[1].text.startsWith(QStringLiteral("POLIMERIZABLE EN DIEN")));
    const auto word = linesOf(Wrap::Word);
    ASSERT_EQ(word.size(), 3u);
    EXPECT_EQ(word[0].text, QStringLiteral("RESINA COMPUESTA"));
    EXPECT_EQ(word[1].text, QStringLiteral("FOTOPOLIMERIZABLE EN"));
    for (const auto &lines : {anywhere, word}) {
        for (const TextLine &line : lines) {
            EXPECT_LE(line.width, 38.0);
            EXPECT_EQ(line.text, line.text.trimmed()) << "blanks at a break are dropped";
        }
    }
    // A word that no line can hold is broken rather than printed over its neighbours.
    EXPECT_GT(textHeight(QString(60, u'M'), 38.0, Style().wrap(Wrap::Word)),
              3.5 * lineHeight(Style()));
}

TEST(ReportLayout, CutTextShowsThatItIsCut) {
    const QString text =
        QStringLiteral("CALZADA UNIVERSIDAD 14418 PARQUE INDUSTRIAL INTERNACIONAL");
    Band band(20.0);
    band.text({0.0, 0.0, 30.0, 4.0}, text, Style().wrap(Wrap::Elide));
    band.text({0.0, 5.0, 30.0, 7.0}, text, Style().wrap(Wrap::Word));
    band.text({0.0, 13.0, 30.0, 0.0}, text, Style().wrap(Wrap::Word));
    Layout layout(smallPaper());
    layout.place(band);
    const std::vector<Text> texts = textsOf(layout.finish(), 0);
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].lines.size(), 1u);
    EXPECT_EQ(texts[1].lines.size(), 2u);
    EXPECT_EQ(texts[2].lines.size(), 1u);
    for (const Text &item : texts) {
        EXPECT_TRUE(item.content().endsWith(QChar(0x2026)));
        EXPECT_LE(item.lines.back().width, 30.0);
    }
}

TEST(ReportLayout, NumbersEndAtTheSameEdgeHoweverLong) {
    Band band(30.0);
    const QStringList amounts{QStringLiteral("$0.00"), QStringLiteral("$1,234,567.89"),
                              QStringLiteral("$123,456,789,012,345.67")};
    for (int i = 0; i < amounts.size(); ++i)
        band.text({50.0, i * 5.0, 16.0, 4.0}, amounts[i], Style().bold(i == 1).right());
    band.text({0.0, 20.0, 80.0, 4.0}, QStringLiteral("medio"), Style().center());
    Layout layout(smallPaper());
    layout.place(band);
    const std::vector<Text> texts = textsOf(layout.finish(), 0);
    for (int i = 0; i < amounts.size(); ++i) {
        const TextLine &line = texts.at(i).lines.at(0);
        EXPECT_EQ(line.text, amounts[i]);
        EXPECT_NEAR(line.baseline.x() + line.width, 10.0 + 66.0, 0.001);
    }
    EXPECT_LT(texts[2].lines[0].baseline.x(), 60.0) << "too long a number runs to the left";
    const TextLine &middle = texts[3].lines[0];
    EXPECT_NEAR(middle.baseline.x() + middle.width / 2.0, 50.0, 0.001);
}

TEST(ReportLayout, BandHigherThanAPageIsCutBetweenLines) {
    QStringList words;
    for (int i = 0; i < 100; ++i)
        words << QStringLiteral("renglón %1").arg(i);
    Layout layout(smallPaper());
    layout.pageFooter(7.0, {});
    layout.place(named(QStringLiteral("antes"), 40.0));
    Band band(8.0);
    band.fullHeightBox(0.0, 80.0);
    band.text({60.0, 2.0, 20.0, 4.0}, QStringLiteral("$1.00"), Style().right());
    band.memo({0.0, 2.0, 50.0, 4.0}, words.join(u'\n'));
    ASSERT_GT(band.height(), 300.0);
    layout.place(band);
    layout.place(named(QStringLiteral("después"), 5.0));
    const Document document = layout.finish();
    EXPECT_EQ(document.pageCount(), 5);

    const QString all = allText(document);
    int found = 0;
    for (const QString &word : words)
        found += static_cast<int>(all.split(u'\n').count(word));
    EXPECT_EQ(found, 100) << "every line once";
    EXPECT_EQ(all.count(QStringLiteral("$1.00")), 1);
    EXPECT_TRUE(all.endsWith(QStringLiteral("después\n")));
    double boxes = 0.0;
    for (const Page &page : document.pages) {
        for (const Item &item : page.items) {
            if (const Text *text = std::get_if<Text>(&item)) {
                EXPECT_LE(text->lines.back().baseline.y(), 103.0);
                EXPECT_GT(text->lines.front().baseline.y(), 10.0 + lineHeight(Style()) / 2.0);
            } else if (const Box *box = std::get_if<Box>(&item)) {
                EXPECT_LE(box->rect.bottom(), 103.001);
                boxes += box->rect.height();
            }
        }
    }
    EXPECT_NEAR(boxes, band.height(), 0.01);
}

TEST(ReportLayout, RefusesMarginsThatLeaveNoRoom) {
    EXPECT_THROW(Layout(smallPaper().withMargins({10.0, 500.0, 10.0, 10.0})), PrintError);
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(Layout(smallPaper().withMargins({10.0, none, 10.0, 10.0})), PrintError);
    Layout layout(smallPaper());
    layout.pageHeader(60.0, {});
    EXPECT_THROW(layout.pageFooter(60.0, {}), PrintError);
}

TEST(ReportDocument, AppendsOnlyTheSamePaper) {
    Layout layout(smallPaper());
    layout.place(named(QStringLiteral("uno"), 5.0));
    const Document one = layout.finish();
    Document all;
    all.append(one);
    EXPECT_EQ(all, one);
    all.append(all);
    EXPECT_EQ(all.pageCount(), 2);
    EXPECT_NE(all, one);
    EXPECT_THROW(all.append(Layout(PageSetup::letter()).finish()), std::invalid_argument);
    EXPECT_EQ(PageSetup::letter().landscape().paper, QSizeF(279.4, 215.9));
}
