#pragma once

#include <cstdint>
#include <string>

#include "tools/volume/dice.h"

namespace kaldo::volume {

/// A person's names, as places in the lists; small, since a school has hundreds of thousands.
struct Name {
    std::uint8_t paterno = 0;
    std::uint8_t materno = 0;
    std::uint8_t first = 0;
    std::uint8_t second = 0;  ///< 255: none
    bool woman = false;
};

Name anyName(Dice &dice);
std::string paternoOf(const Name &name);
std::string maternoOf(const Name &name);
std::string givenOf(const Name &name);
/// Surnames first, as notes and dossiers carry it.
std::string wholeOf(const Name &name);

}  // namespace kaldo::volume
