#pragma once

namespace kaldo {

/// `pictures ROOT DIR`: goes through the screens of the installation under ROOT by key strokes and
/// leaves in DIR the pictures of the user's manual, each small enough to be part of the program.
/// Over an installation that no one has set up yet it takes those of the set-up wizard, over the
/// example school all others. The exit code of the program.
int takeManualPictures(int argc, char **argv);

}  // namespace kaldo
