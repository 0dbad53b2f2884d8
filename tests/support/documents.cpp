#include "tests/support/documents.h"

#include "toolkit/report/layout.h"
#include "toolkit/report/paint.h"

#include <QDir>
#include <QFile>

#include <string>

namespace kaldo::test {

namespace {

struct Printed {
    QRectF rect;
    QString text;
};

/// Where ink of each line of a page's texts may be.
std::vector<Printed> printedLines(const report::Page &page) {
    std::vector<Printed> lines;
    for (const report::Item &item : page.items) {
        const auto *text = std::get_if<report::Text>(&item);
        if (text == nullptr) {
            continue;
        }
        const double capitals = text->style.points * 0.72 * 25.4 / 72;
        for (const report::TextLine &line : text->lines) {
            if (line.text.trimmed().isEmpty()) {
                continue;
            }
            const QPointF top(line.baseline.x(), line.baseline.y() - capitals);
            lines.push_back({QRectF(top, QSizeF(line.width, capitals)), line.text});
        }
    }
    return lines;
}

}  // namespace

::testing::AssertionResult matchesFile(const report::Document &document, const QString &path) {
    QFile file(QStringLiteral(KALDO_SOURCE_DIR "/tests/") + path);
    const QString actual = report::dump(document);
    if (file.open(QIODevice::ReadOnly) && QString::fromUtf8(file.readAll()) == actual) {
        return ::testing::AssertionSuccess();
    }
    const std::string dashes(72, '-');
    return ::testing::AssertionFailure() << "differs from tests/" << path.toStdString() << '\n'
                                         << dashes << '\n'
                                         << actual.toStdString() << dashes;
}

::testing::AssertionResult readsCleanly(const report::Document &document, double width) {
    QRectF allowed = document.setup.content();
    if (width > 0) {
        allowed.setWidth(width);
    }
    for (int number = 0; number < document.pageCount(); ++number) {
        const std::vector<Printed> lines =
            printedLines(document.pages.at(static_cast<std::size_t>(number)));
        for (std::size_t at = 0; at < lines.size(); ++at) {
            if (!allowed.adjusted(-0.01, -0.01, 0.01, 0.01).contains(lines[at].rect)) {
                return ::testing::AssertionFailure()
                       << "page " << number + 1 << ": outside: " << lines[at].text.toStdString();
            }
            for (std::size_t other = 0; other < at; ++other) {
                if (lines[at].rect.intersects(lines[other].rect)) {
                    return ::testing::AssertionFailure()
                           << "page " << number + 1 << ": " << lines[at].text.toStdString()
                           << " stands on " << lines[other].text.toStdString();
                }
            }
        }
    }
    return ::testing::AssertionSuccess();
}

void pagePictures(const report::Document &document, const QString &name) {
    const QString folder = qEnvironmentVariable("KALDO_PICTURES");
    for (int page = 0; !folder.isEmpty() && page < document.pageCount(); ++page) {
        QDir().mkpath(folder);
        report::pageImage(document, page, 4)
            .save(QStringLiteral("%1/%2_page%3.png").arg(folder, name).arg(page + 1));
    }
}

}  // namespace kaldo::test
