#include "shell/rights.h"

#include "shell/closing_hour.h"

#include <gtest/gtest.h>

namespace kaldo::test {

namespace {

const QStringList kColumns =
    QStringLiteral(
        "a3 b1 b2 b3 b4 b5 b6 b7 b8 b9 b10 b11a b12a c1 c2 c3 d1 d2 e1 e2 e3 e4 e5a e5b "
        "e5c e5d e6 e7 e8 e9 f1 f2 f3 i1 i2 h1a h1b h2a h2b h2c h2d h2e j3")
        .split(' ');

constexpr int kJune = 6;

ShellRights withAllBut(const QString &profile, const QStringList &missing, int month = kJune) {
    return rightsOf(
        profile,
        [&](const QString &column) {
            EXPECT_TRUE(kColumns.contains(column)) << "no such column: " << qPrintable(column);
            return !missing.contains(column);
        },
        month);
}

ShellRights withOnly(const QString &profile, const QStringList &columns, int month = kJune) {
    return rightsOf(
        profile, [&](const QString &column) { return columns.contains(column); }, month);
}

QSet<QString> entries(const char *names) {
    const QStringList list = QString::fromLatin1(names).split(' ');
    return {list.begin(), list.end()};
}

const char kAlways[] = "A1 A2 A4 J1 K1 K2 K3";

}  // namespace

TEST(Rights, EachProfileWithEveryRight) {
    EXPECT_EQ(withAllBut("AM", {}).enabled,
              entries(kAlways) + entries("A3 B1 B2 B3 B4 B5 B6 B7 B8 B9 B10 B11 B12 D1 D2 E1 E2 E3 "
                                         "E4 E5 E6 E7 E8 E9 F1 J3 H1a H1b H2a H2b H2c H2d H2e I1 "
                                         "I2"));
    EXPECT_EQ(
        withAllBut("CA", {}).enabled,
        entries(kAlways) + entries("A3 D1 D1a D1b D1c C1 C2 C3 E1 E2 E3 E4 E5a E5b E5c E5d E6 "
                                   "E7 E8 E9 F1 F2 H1a H1b H2a H2b H2c H2d H2e J2 J2a"));
    EXPECT_EQ(withAllBut("MA", {}).enabled,
              entries(kAlways) + entries("A3 D1 D1a D1b D1c C1 C2 C3 D2 F1 F3 H1a H1b"));
    EXPECT_EQ(withAllBut("AL", {}).enabled, entries(kAlways) + entries("A3 D1 D2 F1 F3"));
}

TEST(Rights, EachProfileWithoutAnyRight) {
    EXPECT_EQ(withOnly("AM", {}).enabled, entries(kAlways) + entries("A3 E5 I1 I2"));
    EXPECT_EQ(withOnly("CA", {}).enabled, entries(kAlways) + entries("A3 J2 J2a"));
    EXPECT_EQ(withOnly("MA", {}).enabled, entries(kAlways) + entries("F3"));
    EXPECT_EQ(withOnly("AL", {}).enabled, entries(kAlways) + entries("F3"));
    EXPECT_EQ(rightsOfNobody().enabled, entries(kAlways));
    EXPECT_EQ(rightsOf(
                  "XX", [](const QString &) { return true; }, kJune)
                  .enabled,
              entries(kAlways));
}

TEST(Rights, SlipsOfTheHandStand) {
    for (const char *column : {"b5", "b6"}) {
        const ShellRights rights = withAllBut("AM", {QString::fromLatin1(column)});
        EXPECT_FALSE(rights.enabled.contains("B4")) << column;
        EXPECT_FALSE(rights.enabled.contains(QString::fromLatin1(column).toUpper())) << column;
    }
    // I2 is taken away for want of D2 and given back at the end.
    EXPECT_TRUE(withAllBut("AM", {"d2"}).enabled.contains("I2"));
    EXPECT_FALSE(withAllBut("AM", {"d2"}).enabled.contains("D2"));
    EXPECT_FALSE(withAllBut("CA", {"d1"}).enabled.contains("D1"));
}

TEST(Rights, ToolButtonsFollowTheirEntries) {
    const QSet<int> always{1, 2, 10, 11, 12};
    EXPECT_EQ(withAllBut("AM", {}).buttons, always + QSet<int>({3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(withAllBut("CA", {}).buttons, always + QSet<int>({3, 5, 6, 7, 8, 9}));
    EXPECT_EQ(withAllBut("MA", {}).buttons, always + QSet<int>({3, 4}));
    EXPECT_EQ(withOnly("CA", {}).buttons, always + QSet<int>({9}));
    EXPECT_EQ(withOnly("AM", {"d2"}).buttons, always + QSet<int>({4}));
    EXPECT_EQ(withOnly("AM", {"f1"}).buttons, always + QSet<int>({4}));
    EXPECT_EQ(withOnly("AM", {"j3"}).buttons, always + QSet<int>({9}));
    EXPECT_EQ(withOnly("AL", {"d2"}).buttons, always);

    EXPECT_TRUE(withOnly("MA", {"f1"}).spacer2);
    EXPECT_FALSE(withOnly("MA", {"d2"}).spacer2);
    EXPECT_TRUE(withOnly("CA", {"e7"}).spacer3);
    EXPECT_FALSE(withOnly("CA", {"e8"}).spacer3);
}

TEST(Rights, BarsAndHeadingsByProfile) {
    const ShellRights administrator = withAllBut("AM", {});
    EXPECT_TRUE(administrator.sideBar && administrator.rateGroup && administrator.sitesGroup);
    EXPECT_FALSE(administrator.deskGroup);
    EXPECT_EQ(administrator.shown, entries("BS1 I0"));
    const ShellRights cashier = withAllBut("CA", {});
    EXPECT_TRUE(cashier.sideBar && cashier.rateGroup && cashier.deskGroup);
    EXPECT_FALSE(cashier.sitesGroup);
    EXPECT_EQ(cashier.shown, entries("D1a D1b D1c"));
    EXPECT_EQ(withAllBut("CA", {"d1"}).shown, QSet<QString>());
    for (const char *profile : {"MA", "AL"}) {
        const ShellRights desk = withAllBut(profile, {});
        EXPECT_FALSE(desk.sideBar) << profile;
        EXPECT_FALSE(desk.shown.contains("I0")) << profile;
    }
}

TEST(Rights, NoticesAreForStudentsDesksInTwoMonths) {
    EXPECT_EQ(withAllBut("AL", {}, 8).notice, Notice::Assistance);
    EXPECT_EQ(withAllBut("AL", {}, 10).notice, Notice::Telegram);
    EXPECT_EQ(withAllBut("AL", {}, 9).notice, Notice::None);
    EXPECT_EQ(withAllBut("CA", {}, 8).notice, Notice::None);
    EXPECT_FALSE(withAllBut("AL", {}, 9).caption);
    EXPECT_TRUE(withAllBut("MA", {}, 9).caption);
}

TEST(ClosingHour, LiesBetweenTwoTicks) {
    const QTime hour(20, 0, 0);
    const auto at = [](int hours, int minutes, int seconds, int day = 3) {
        return QDateTime(QDate(2024, 6, day), QTime(hours, minutes, seconds));
    };
    EXPECT_TRUE(closingHourReached(at(19, 59, 59), at(20, 0, 0), hour));
    EXPECT_TRUE(closingHourReached(at(19, 59, 58), at(20, 0, 3), hour)) << "a busy second";
    EXPECT_FALSE(closingHourReached(at(20, 0, 0), at(20, 0, 1), hour)) << "only once";
    EXPECT_FALSE(closingHourReached(at(19, 59, 58), at(19, 59, 59), hour));
    EXPECT_FALSE(closingHourReached(at(20, 0, 5), at(19, 59, 59), hour)) << "the clock set back";
    EXPECT_TRUE(closingHourReached(at(23, 59, 59), at(0, 0, 0, 4), QTime(0, 0, 0)));
    EXPECT_FALSE(closingHourReached({}, at(20, 30, 0), hour)) << "started after the hour";
    EXPECT_TRUE(closingHourReached({}, at(20, 0, 0), hour));
    EXPECT_FALSE(closingHourReached(at(0, 0, 0), at(23, 0, 0), QTime()));
    EXPECT_TRUE(closingHourReached(at(19, 59, 0), at(20, 1, 0), hour)) << "two busy minutes";
    EXPECT_FALSE(closingHourReached(at(19, 59, 0), at(20, 1, 1), hour)) << "a sleep";
    EXPECT_FALSE(closingHourReached(at(20, 0, 1, 2), at(20, 0, 1), hour)) << "a day further";
    EXPECT_TRUE(closingHourReached(at(12, 0, 0), at(20, 0, 0), hour)) << "awake on the second";
}

}  // namespace kaldo::test
