#pragma once

namespace kaldo {

/// What the installation under ROOT holds.
enum class Installed { Example, Empty };

/// `pictures ROOT DIR` and `setup-pictures ROOT DIR`: goes through the screens by key strokes and
/// leaves in DIR the pictures of the user's manual, each small enough to be part of the program.
/// The exit code of the program; DIR/failed.png shows where it stopped.
int takeManualPictures(int argc, char **argv, Installed installed);

}  // namespace kaldo
