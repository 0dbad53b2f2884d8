#pragma once

class QWidget;

namespace kaldo {

/// For a part of a screen that unfolds: its window grows to what it now needs, as far as there is
/// room.
void makeRoom(QWidget *screen);

}  // namespace kaldo
