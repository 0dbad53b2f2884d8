#pragma once

#include <QSet>
#include <QString>

#include <functional>

namespace kaldo {

/// The button of the notice panel that students' desks see in two months of the year.
enum class Notice { None, Assistance, Telegram };

/// What the main window offers to one user.
struct ShellRights {
    QSet<QString> enabled;  ///< menu entries by their names
    QSet<QString> shown;    ///< of the entries that hide: D1a, D1b, D1c, I0, BS1
    QSet<int> buttons;      ///< tool buttons by their numbers
    bool sideBar = false;
    bool rateGroup = false;
    bool deskGroup = false;
    bool sitesGroup = false;
    bool caption = true;
    bool spacer2 = false;
    bool spacer3 = false;
    Notice notice = Notice::None;
};

/// Nobody has logged in: the entries that all may use, and nothing else.
ShellRights rightsOfNobody();

/// The rights of a profile ('AM', 'CA', 'MA', 'AL'). `has` tells whether a column of the user's
/// row of rights is "S"; `month` is that of today.
ShellRights rightsOf(const QString &profile, const std::function<bool(const QString &column)> &has,
                     int month);

}  // namespace kaldo
