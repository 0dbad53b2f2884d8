#include "toolkit/report/layout.h"
#include "toolkit/report/preview_window.h"
#include "toolkit/report/printing.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace kaldo::report;

namespace {

Document pages(int count) {
    Layout layout(PageSetup::letter());
    for (int i = 1; i <= count; ++i) {
        if (i > 1)
            layout.newPage();
        Band band(10.0);
        band.text({0.0, 0.0, 50.0, 4.0}, QStringLiteral("Hoja %1").arg(i));
        layout.place(band);
    }
    return layout.finish();
}

class Preview : public testing::Test {
protected:
    void open(int count, bool thumbnails = false) {
        PreviewActions actions;
        actions.print = [this](QWidget *) {
            ++printed;
            return QStringLiteral("enviado");
        };
        actions.savePdf = [this](QWidget *) {
            ++saved;
            return QString();
        };
        PreviewOptions options;
        options.thumbnails = thumbnails;
        window = std::make_unique<PreviewWindow>(pages(count), QStringLiteral("Lista"), options,
                                                 actions);
        window->resize(1000, 700);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    template <typename Widget>
    Widget *find(const char *name) const {
        return window->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<PreviewWindow> window;
    int printed = 0;
    int saved = 0;
};

}  // namespace

TEST_F(Preview, PagesTurnByKeys) {
    open(5);
    EXPECT_EQ(QApplication::focusWidget(), window->view());
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(window->page(), 2);
    press(Qt::Key_PageUp);
    EXPECT_EQ(window->page(), 1);
    press(Qt::Key_End, Qt::ControlModifier);
    press(Qt::Key_PageDown);
    EXPECT_EQ(window->page(), 4);
    EXPECT_FALSE(find<QPushButton>("nextButton")->isEnabled());
    press(Qt::Key_Home);
    EXPECT_EQ(window->page(), 0);
    EXPECT_FALSE(find<QPushButton>("firstButton")->isEnabled());

    auto *field = find<QSpinBox>("pageField");
    press(Qt::Key_P, Qt::AltModifier);
    ASSERT_EQ(QApplication::focusWidget(), field);
    field->selectAll();
    press(Qt::Key_4);
    EXPECT_EQ(window->page(), 0) << "not while it is typed";
    press(Qt::Key_Return);
    EXPECT_EQ(window->page(), 3);
    EXPECT_TRUE(window->isVisible()) << "Enter presses no button";
    EXPECT_EQ(printed + saved, 0);
    press(Qt::Key_PageDown);
    EXPECT_EQ(window->page(), 4) << "wherever the focus is";
    EXPECT_EQ(field->value(), 5);

    auto *last = find<QPushButton>("previousButton");
    last->setFocus();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Space);
    EXPECT_EQ(window->page(), 0);
    EXPECT_EQ(QApplication::focusWidget(), window->view()) << "the button went grey";
}

TEST_F(Preview, ZoomsByKeysAndKeepsTheFieldTrue) {
    open(1);
    auto *field = find<QComboBox>("zoomField");
    PageView *view = window->view();
    EXPECT_EQ(field->currentText(), QStringLiteral("Ancho de página"));
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(field->currentText(), QStringLiteral("Página completa"));
    const double whole = view->percent();
    EXPECT_LT(whole, 100.0);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view->percent(), whole);
    EXPECT_EQ(field->currentText(), QStringLiteral("%1 %").arg(view->percent()));
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(view->percent(), 25.0, 0.001);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_NEAR(view->percent(), 400.0, 0.001);
    EXPECT_EQ(field->currentText(), QStringLiteral("400 %"));
    press(Qt::Key_0, Qt::ControlModifier);
    window->resize(600, 500);
    QApplication::processEvents();
    EXPECT_LT(view->percent(), whole) << "a fitted page follows the window";
}

TEST_F(Preview, PrintsSavesAndClosesByKeys) {
    open(2);
    press(Qt::Key_P, Qt::ControlModifier);
    press(Qt::Key_I, Qt::AltModifier);
    // A button that is called by its letter is pressed for a moment first.
    EXPECT_TRUE(QTest::qWaitFor([this] { return printed == 2; }));
    auto *notice = find<QLabel>("previewNotice");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->text(), QStringLiteral("enviado"));
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(saved, 1);
    EXPECT_FALSE(notice->isVisible());
    find<QPushButton>("pdfButton")->setFocus();
    press(Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_EQ(saved, 2);
    press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Preview, ThumbnailsFollowAndLead) {
    open(4, true);
    auto *list = find<QListView>("thumbnails");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->model()->rowCount(), 4);
    press(Qt::Key_PageDown);
    EXPECT_EQ(list->currentIndex().row(), 1);
    list->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(window->page(), 2);
    EXPECT_FALSE(list->model()->index(3, 0).data(Qt::DecorationRole).value<QImage>().isNull());
    open(4, false);
    EXPECT_EQ(find<QListView>("thumbnails"), nullptr);
}

TEST_F(Preview, EveryControlCanBeReachedByTab) {
    open(3);
    QSet<QString> seen;
    for (int i = 0; i < 20; ++i) {
        press(Qt::Key_Tab);
        seen << QApplication::focusWidget()->objectName();
    }
    for (const char *name : {"printButton", "pdfButton", "nextButton", "lastButton", "pageField",
                             "zoomOutButton", "zoomField", "zoomInButton", "closeButton"})
        EXPECT_TRUE(seen.contains(QLatin1String(name))) << name;
}

TEST(SystemPreview, TellsFailuresInTheWindowAndCarriesOn) {
    QTemporaryDir folder;
    QStringList failures;
    QString answer = folder.filePath(QStringLiteral("none/a.pdf"));
    PrintingHost host;
    host.failure = [&](QWidget *, const QString &text) { failures << text; };
    host.askPdfPath = [&](QWidget *, const QString &) { return answer; };
    SystemPrinting printing(folder.path(), host);
    QString notice;
    QTimer::singleShot(0, [&] {
        auto *window = qobject_cast<PreviewWindow *>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
        answer = folder.filePath(QStringLiteral("a.pdf"));
        QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
        notice = window->findChild<QLabel *>(QStringLiteral("previewNotice"))->text();
        answer.clear();
        QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(window, Qt::Key_Escape);
    });
    printing.preview(pages(1), QStringLiteral("Lista"), nullptr);
    EXPECT_EQ(failures.size(), 1);
    EXPECT_GT(QFileInfo(folder.filePath(QStringLiteral("a.pdf"))).size(), 0);
    EXPECT_TRUE(notice.contains(QStringLiteral("a.pdf"))) << qPrintable(notice);
}
