#include "shell/rights.h"

#include <initializer_list>

namespace kaldo {

namespace {

/// The column of `usuarios_m` that holds the right to an entry.
QString columnOf(const QString &entry) {
    if (entry == QLatin1String("B11") || entry == QLatin1String("B12")) {
        return entry.toLower() + u'a';
    }
    return entry.toLower();
}

/// Goes through the rights of a user in the order in which they are granted.
class Granting {
public:
    Granting(ShellRights *rights, std::function<bool(const QString &)> has)
        : rights_(*rights), has_(std::move(has)) {}

    void enable(std::initializer_list<const char *> entries) {
        for (const char *entry : entries) {
            rights_.enabled.insert(QString::fromLatin1(entry));
        }
    }
    void byRight(std::initializer_list<const char *> entries) {
        for (const char *entry : entries) {
            grant(QString::fromLatin1(entry), QString::fromLatin1(entry));
        }
    }
    /// Grants an entry and its tool button.
    void byRight(const char *entry, int button) {
        byRight({entry});
        if (isEnabled(entry)) {
            rights_.buttons.insert(button);
        }
    }
    /// A slip of the hand that stands: without the right it is another entry that is taken away.
    void byRightOrTakeAway(const char *entry, const char *other) {
        grant(QString::fromLatin1(entry), QString::fromLatin1(other));
    }
    bool isEnabled(const char *entry) const {
        return rights_.enabled.contains(QString::fromLatin1(entry));
    }

private:
    void grant(const QString &entry, const QString &takenAway) {
        if (has_(columnOf(entry))) {
            rights_.enabled.insert(entry);
        } else {
            rights_.enabled.remove(takenAway);
        }
    }

    ShellRights &rights_;
    std::function<bool(const QString &)> has_;
};

void grantAdministrator(Granting &granting, ShellRights &rights) {
    rights.shown.insert(QStringLiteral("I0"));
    granting.byRight({"A3", "B1", "B2", "B3", "B4"});
    granting.byRightOrTakeAway("B5", "B4");
    granting.byRightOrTakeAway("B6", "B4");
    granting.byRight({"B7", "B8", "B9", "B10", "B11", "B12"});
    granting.byRight("D1", 3);
    granting.byRightOrTakeAway("D2", "I2");
    granting.byRight("E1", 5);
    granting.byRight({"E2", "E3", "E4"});
    granting.byRight("E6", 6);
    granting.byRight("E7", 7);
    granting.byRight({"E8"});
    granting.byRight("E9", 8);
    granting.byRight({"F1"});
    if (granting.isEnabled("D2") || granting.isEnabled("F1")) {
        rights.buttons.insert(4);
    }
    granting.byRight("J3", 9);
    granting.byRight({"H1a", "H1b", "H2a", "H2b", "H2c", "H2d", "H2e"});
    granting.enable({"E5", "A3", "I1", "I2"});
    rights.rateGroup = true;
    rights.sitesGroup = true;
}

void grantCashier(Granting &granting, ShellRights &rights) {
    granting.byRightOrTakeAway("D1", "I1");
    if (granting.isEnabled("D1")) {
        rights.buttons.insert(3);
    }
    granting.byRight("E1", 5);
    granting.byRight({"E2", "E3", "E4"});
    granting.byRight("E6", 6);
    granting.byRight("E7", 7);
    granting.byRight({"E8"});
    granting.byRight("E9", 8);
    granting.byRight({"E5a", "E5b", "E5c", "E5d", "F1", "F2"});
    granting.byRight({"H2a", "H2b", "H2c", "H2d", "H2e"});
    rights.buttons.insert(9);
    granting.enable({"A3", "J2", "J2a"});
    rights.rateGroup = true;
    rights.deskGroup = true;
}

void grantDesks(Granting &granting, ShellRights &rights) {
    rights.shown.insert(QStringLiteral("I0"));
    granting.byRightOrTakeAway("D1", "I1");
    if (granting.isEnabled("D1")) {
        rights.buttons.insert(3);
    }
    granting.enable({"F3"});
    granting.byRightOrTakeAway("D2", "I2");
    granting.byRight("F1", 4);
    granting.byRight({"A3"});  // it does nothing for them
    rights.sideBar = false;
}

void grantAdmissionLists(Granting &granting, ShellRights &rights) {
    granting.byRight({"C1", "C2", "C3", "H1a", "H1b"});
    for (const char *entry : {"D1a", "D1b", "D1c"}) {
        rights.shown.insert(QString::fromLatin1(entry));
        rights.enabled.insert(QString::fromLatin1(entry));
    }
}

Notice noticeOf(int month) {
    switch (month) {
        case 8:
            return Notice::Assistance;
        case 10:
            return Notice::Telegram;
        default:
            return Notice::None;
    }
}

}  // namespace

ShellRights rightsOfNobody() {
    ShellRights rights;
    Granting granting(&rights, [](const QString &) { return false; });
    granting.enable({"A1", "A2", "A4", "J1", "K1", "K2", "K3"});
    rights.buttons = {1, 2, 10, 11, 12};
    return rights;
}

ShellRights rightsOf(const QString &profile, const std::function<bool(const QString &)> &has,
                     int month) {
    ShellRights rights = rightsOfNobody();
    Granting granting(&rights, has);
    const bool administrator = profile == QLatin1String("AM");
    const bool cashier = profile == QLatin1String("CA");
    const bool admissions = profile == QLatin1String("MA");
    const bool students = profile == QLatin1String("AL");
    rights.sideBar = true;
    if (administrator) {
        grantAdministrator(granting, rights);
    }
    if (cashier) {
        grantCashier(granting, rights);
    }
    if (admissions || students) {
        grantDesks(granting, rights);
    }
    if ((admissions || cashier) && granting.isEnabled("D1")) {
        grantAdmissionLists(granting, rights);
    }
    if (students) {
        rights.notice = noticeOf(month);
        rights.caption = false;
    }
    // Last, so that the desks lose again what they were shown above.
    if (administrator) {
        rights.shown += {QStringLiteral("BS1"), QStringLiteral("I0")};
    } else {
        rights.shown -= {QStringLiteral("BS1"), QStringLiteral("I0")};
    }
    rights.spacer2 = granting.isEnabled("D1") || granting.isEnabled("F1");
    for (const char *entry : {"E1", "E6", "E7", "E9", "J3"}) {
        rights.spacer3 = rights.spacer3 || granting.isEnabled(entry);
    }
    return rights;
}

}  // namespace kaldo
