#include "app/waiting_box.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "toolkit/forms/focus.h"
#include "toolkit/forms/focus_keeper.h"

namespace kaldo {
namespace {

using namespace std::chrono_literals;

TEST(WaitingBoxTest, NothingOvertakesTheHandlerThatWaitsAndTheBoxCanBeGivenUp) {
    QWidget screen;
    QLineEdit field(&screen);
    screen.resize(500, 300);
    screen.show();
    QApplication::setActiveWindow(&screen);
    field.setFocus();
    QStringList done;
    QTimer::singleShot(1, &screen, [&done] { done += "timer"; });
    FocusKeeper::get().post([&done] { done += "task"; });

    WaitingBox waiting;
    waiting.waitingBegan(QStringLiteral("la base de datos de la clínica"));
    auto *box = screen.findChild<QDialog *>(QStringLiteral("waitingBox"));
    ASSERT_NE(box, nullptr);
    auto *giveUp = box->findChild<QPushButton *>(QStringLiteral("giveUpButton"));
    for (auto waited = 2000ms; waited < 3200ms; waited += 100ms) {
        QTest::keyClicks(&field, "x");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
            QTest::keyClick(box->focusWidget() ? box->focusWidget() : box, key);
        }
        EXPECT_FALSE(waiting.stillWaiting(waited)) << "a stroke for the screen gives nothing up";
    }
    if (const QString pictures = qEnvironmentVariable("KALDO_PICTURES"); !pictures.isEmpty()) {
        box->grab().save(QDir(pictures).filePath(QStringLiteral("waiting_box.png")));
    }
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(field.text(), "");
    EXPECT_EQ(done, QStringList());
    QTest::keyClick(box, Qt::Key_D, Qt::AltModifier);
    QTest::keyClick(giveUp, Qt::Key_Space);
    EXPECT_TRUE(waiting.stillWaiting(3200ms));
    waiting.waitingEnded();
    EXPECT_EQ(done, QStringList()) << "the handler hasn't returned yet";

    QTRY_COMPARE(done.size(), 2);
    QTest::keyClicks(&field, "y");
    EXPECT_EQ(field.text(), "y");
}

}  // namespace
}  // namespace kaldo
