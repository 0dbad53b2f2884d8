#pragma once

#include <QString>

#include <vector>

namespace kaldo {

/// A line of the main menu. The texts are literals.
struct MenuEntry {
    const char *name;          ///< "E1"; its column of rights in lower case
    const char *caption = "";  ///< empty: a separator
    const char *key = "";      ///< a key may stand at two entries: see FRM000::assignShortcuts()
    const char *submenu = "";  ///< name of the submenu that holds it; empty: the heading itself
};

struct MenuHeading {
    const char *name;  ///< "I0"
    const char *caption;
    std::vector<MenuEntry> entries;
};

/// The main menu in its order. A heading without entries stays in the bar, disabled.
const std::vector<MenuHeading> &menuHeadings();

/// Caption of a submenu.
QString submenuCaption(const QString &name);

struct ToolEntry {
    int number;  ///< 5 is "ToolButton5"
    const char *caption;
    const char *icon;
    const char *entry;       ///< the menu entry that it presses
    int separatorAfter = 0;  ///< number of the separator that follows: 2 is "Spacer2"
};

const std::vector<ToolEntry> &toolEntries();

/// What an entry does that no code is registered for.
enum class EntryKind {
    Screen,  ///< opens a screen
    Silent,  ///< nothing to do, whether some have the right to it or nobody has
};
EntryKind kindOf(const QString &entry);

/// The screens whose report "Presentación preliminar" shows, in the order in which they are asked.
const std::vector<QString> &previewOrder();

}  // namespace kaldo
