#include "toolkit/report/layout.h"
#include "toolkit/report/paint.h"
#include "toolkit/report/printing.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kaldo::report;

namespace {

constexpr double pointsPerMm = 72.0 / 25.4;

Document sample(int pages, const PageSetup &setup = PageSetup::letter()) {
    Layout layout(setup);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            layout.newPage();
        Band band(60.0);
        band.text({20.0, 10.0, 60.0, 4.0}, QStringLiteral("Señalización%1").arg(page));
        band.text({100.0, 30.0, 50.0, 6.0}, QStringLiteral("$12,345.67"),
                  Style().size(14.0).bold().right());
        band.box({0.0, 50.0, 40.0, 10.0}, 0.5, Qt::red);
        layout.place(band);
    }
    return layout.finish();
}

QByteArray output(const QString &program, const QStringList &arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << qPrintable(program);
    return process.readAllStandardOutput();
}

struct Word {
    int page;
    QString text;
    QRectF points;
};

/// The words of a PDF file with their places in points, as another program reads them.
QList<Word> wordsOf(const QString &path) {
    const QString html = QString::fromUtf8(
        output(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")}));
    static const QRegularExpression pattern(QStringLiteral(
        "<page |<word xMin=\"([^\"]+)\" yMin=\"([^\"]+)\" xMax=\"([^\"]+)\" yMax=\"([^\"]+)\">"
        "([^<]*)</word>"));
    QList<Word> result;
    int page = 0;
    for (auto it = pattern.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.captured(5).isEmpty()) {
            ++page;
            continue;
        }
        const auto number = [&](int group) { return match.captured(group).toDouble(); };
        result.push_back({page, match.captured(5),
                          QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)))});
    }
    return result;
}

class ReportFiles : public testing::Test {
protected:
    QString path(const QString &name) const { return folder_.filePath(name); }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files); }

    QTemporaryDir folder_;
};

}  // namespace

TEST_F(ReportFiles, PdfHoldsTextWhereItWasLaidOut) {
    const Document document = sample(2);
    writePdf(document, path("a.pdf"), QStringLiteral("Título"));
    const QList<Word> words = wordsOf(path("a.pdf"));
    ASSERT_EQ(words.size(), 4);
    EXPECT_EQ(words[0].text, QStringLiteral("Señalización1"));
    EXPECT_EQ(words[2].text, QStringLiteral("Señalización2"));
    EXPECT_EQ(words[2].page, 2);
    EXPECT_NEAR(words[0].points.left(), 30.0 * pointsPerMm, 0.3);
    EXPECT_EQ(words[1].text, QStringLiteral("$12,345.67"));
    EXPECT_NEAR(words[1].points.right(), 160.0 * pointsPerMm, 0.3);
    for (int i : {0, 1}) {
        const Text *text = std::get_if<Text>(&document.pages[0].items.at(i));
        const double baseline = text->lines.at(0).baseline.y() * pointsPerMm;
        EXPECT_LT(words[i].points.top(), baseline);
        EXPECT_NEAR(words[i].points.bottom(), baseline, text->style.points * 0.3);
        EXPECT_NEAR(words[i].points.width(), text->lines.at(0).width * pointsPerMm, 0.3);
    }
    const QString info = QString::fromUtf8(output(QStringLiteral("pdfinfo"), {path("a.pdf")}));
    EXPECT_TRUE(info.contains(QStringLiteral("Título"))) << qPrintable(info);
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Page size: +612 x 792"))))
        << qPrintable(info);
}

TEST_F(ReportFiles, PaperLyingDownStaysLyingDown) {
    const Document document = sample(1, PageSetup::letter().landscape());
    writePdf(document, path("a.pdf"), QString());
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("b.pdf"));
    preparePrinter(document, printer);
    printTo(document, printer);
    for (const QString &name : {QStringLiteral("a.pdf"), QStringLiteral("b.pdf")}) {
        const QString info = QString::fromUtf8(output(QStringLiteral("pdfinfo"), {path(name)}));
        EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Page size: +792 x 612"))))
            << qPrintable(info);
        ASSERT_EQ(wordsOf(path(name)).size(), 2);
        EXPECT_NEAR(wordsOf(path(name))[1].points.right(), 160.0 * pointsPerMm, 0.5);
    }
}

TEST_F(ReportFiles, PrinterGetsThePagesItIsSetTo) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("range.pdf"));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 9);
    const Document document = sample(3);
    preparePrinter(document, printer);
    printTo(document, printer);
    const QList<Word> words = wordsOf(path("range.pdf"));
    ASSERT_EQ(words.size(), 4);
    EXPECT_EQ(words[0].text, QStringLiteral("Señalización2"));
    EXPECT_EQ(words[2].text, QStringLiteral("Señalización3"));
}

TEST_F(ReportFiles, PagesComeOutAsPictures) {
    const QImage image = pageImage(sample(1), 0, 4.0);
    EXPECT_EQ(image.size(), QSize(864, 1118));
    EXPECT_EQ(image.pixelColor(30 * 4, 65 * 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(60 * 4, 65 * 4), QColor(Qt::white));
    const QSize small = thumbnail(sample(1), 0, {110, 110}).size();
    EXPECT_EQ(small, QSize(85, 110));
}

TEST_F(ReportFiles, PicturesOfEveryKindArePaintedAndMissingOnesLeftOut) {
    QFile svg(path("logo.svg"));
    ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
    svg.write(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'>"
        "<rect width='10' height='10' fill='#00ff00'/></svg>");
    svg.close();
    QImage blue(2000, 2000, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(path("logo.bmp"), "PNG")) << "the extension lies, as they do";
    Band band(50.0);
    band.picture({0.0, 0.0, 40.0, 10.0}, Picture::load(path("logo.svg")));
    band.picture({0.0, 20.0, 10.0, 10.0}, Picture::load(path("logo.bmp")));
    band.picture({0.0, 40.0, 10.0, 10.0}, Picture::load(path("none.png")));
    Layout layout(PageSetup::letter());
    layout.place(band);
    const Document document = layout.finish();
    EXPECT_EQ(document.pages[0].items.size(), 2u);
    const QImage image = pageImage(document, 0, 2.0);
    EXPECT_EQ(image.pixelColor(30 * 2, 15 * 2), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(12 * 2, 15 * 2), QColor(Qt::white)) << "proportions are kept";
    EXPECT_EQ(image.pixelColor(15 * 2, 35 * 2), QColor(Qt::blue));
    const Image *scaled = std::get_if<Image>(&document.pages[0].items[1]);
    ASSERT_NE(scaled, nullptr);
    EXPECT_LT(scaled->image.width(), 200) << "no more than the printer shows";
}

TEST_F(ReportFiles, LogoOfEveryPageIsStoredOnce) {
    QImage scan(1200, 1200, QImage::Format_RGB32);
    scan.fill(Qt::darkCyan);
    Layout layout(PageSetup::letter());
    layout.pageHeader(20.0, [logo = Picture::fromImage(scan)](Band &band, const PageInfo &) {
        band.picture({0.0, 0.0, 20.0, 20.0}, logo);
    });
    for (int page = 1; page <= 3; ++page) {
        layout.place(Band(10.0).text({0.0, 0.0, 40.0, 4.0}, QStringLiteral("una página")));
        layout.newPage();
    }
    writePdf(layout.finish(), path("logos.pdf"), QString());
    static const QRegularExpression imageLine(QStringLiteral("^ +\\d+ +\\d+ image .* (\\d+) +0 "),
                                              QRegularExpression::MultilineOption);
    const QString list = QString::fromUtf8(
        output(QStringLiteral("pdfimages"), {QStringLiteral("-list"), path("logos.pdf")}));
    QStringList objects;
    for (auto it = imageLine.globalMatch(list); it.hasNext();)
        objects << it.next().captured(1);
    ASSERT_GE(objects.size(), 3) << qPrintable(list);
    EXPECT_EQ(objects.count(objects.first()), objects.size()) << qPrintable(list);
}

TEST_F(ReportFiles, FailuresAreTold) {
    const Document document = sample(1);
    const QString blocked = path("none/a.pdf");
    try {
        writePdf(document, blocked, QString());
        FAIL() << "no such folder";
    } catch (const PrintError &error) {
        EXPECT_TRUE(error.text().contains(blocked)) << error.what();
        EXPECT_TRUE(error.text().startsWith(QStringLiteral("No se pudo escribir")));
    }
    EXPECT_THROW(writePdf(document, path("."), QString()), PrintError);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("none/b.pdf"));
    EXPECT_THROW(printTo(document, printer), PrintError);
    printer.setOutputFileName(path("busy.pdf"));
    QPainter busy(&printer);
    EXPECT_THROW(printTo(document, printer), PrintError);
    EXPECT_THROW(writePdf(Document(), path("empty.pdf"), QString()), PrintError);
    EXPECT_FALSE(files().contains(QStringLiteral("empty.pdf")));
}

TEST_F(ReportFiles, StationWithoutPrinterWritesFilesAndSaysWhere) {
    struct Printerless : SystemPrinting {
        using SystemPrinting::SystemPrinting;
        QStringList printers() const override { return {}; }
    };
    QStringList told;
    PrintingHost host;
    host.notice = [&](const QString &text) { told << text; };
    Printerless printing(path("pdf/recibos"), host);
    for (int i = 0; i < 3; ++i)
        printing.print(sample(1), {QStringLiteral("Recibo 4-17: \"AD/ñ\"")});
    const QStringList written =
        QDir(path("pdf/recibos")).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    ASSERT_EQ(written.size(), 3) << "none was written over";
    ASSERT_EQ(told.size(), 3);
    for (const QString &text : told)
        EXPECT_TRUE(written.contains(text.section(u'/', -1))) << qPrintable(text);
    EXPECT_TRUE(written[0].startsWith(QStringLiteral("Recibo 4-17 AD ñ_")))
        << qPrintable(written[0]);
    EXPECT_EQ(wordsOf(path("pdf/recibos/") + written[2]).size(), 2);

    // A file stands where the folder should be.
    QFile file(path("taken"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Printerless nowhere(path("taken"), host);
    EXPECT_THROW(nowhere.print(sample(1), {}), PrintError);
    EXPECT_THROW(printing.print(Document(), {}), PrintError);
    EXPECT_EQ(QDir(path("pdf/recibos")).entryList(QDir::Files).size(), 3) << "no empty file stays";

    // What a killed program leaves: of this one and of those before.
    for (const char *left : {"sin-terminar-1.pdf.xKq", "Recibo_20260101-090000_01.pdf"}) {
        QFile half(path("pdf/recibos/") + QString::fromLatin1(left));
        ASSERT_TRUE(half.open(QIODevice::WriteOnly));
    }
    removeUnfinishedPdfs(path("pdf/recibos"));
    EXPECT_EQ(QDir(path("pdf/recibos")).entryList(QDir::Files, QDir::Name), written);
    EXPECT_EQ(told.size(), 3);
}
