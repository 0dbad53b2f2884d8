#include "people/frm_message_new_dossier.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "tests/support/keys.h"
#include "tests/support/test_station.h"

namespace kaldo::test {
namespace {

TEST(FRMMessageTest, StandsBesideTheWorkUntilItIsClosed) {
    TestStation station;
    QWidget main;
    showActive(&main);
    FRMMessage message(station.context);
    message.setParent(&main, Qt::Dialog);
    message.tell("00012/24");
    settle();
    EXPECT_EQ(child<QLabel>(&message, "Expediente")->text(), "00012/24");
    EXPECT_FALSE(message.isModal());
    picture(&message, "frmmessage");
    press(Qt::Key_Return);
    EXPECT_FALSE(message.isVisible());
    EXPECT_TRUE(main.isActiveWindow());
    message.tell("00013/24");
    settle();
    EXPECT_EQ(child<QLabel>(&message, "Expediente")->text(), "00013/24");
}

}  // namespace
}  // namespace kaldo::test
