#pragma once

namespace kaldo::prove {

struct StationsPlan {
    int stations = 2;
    int notes = 1000;  ///< of all stations together
    unsigned seed = 1;
};

/// Several stations at one cash desk of a private server, each a process of its own; prints what
/// became of their notes. 0 if none was lost, 1 if one was, 2 if the stations couldn't work.
int proveStations(const StationsPlan &plan);

}  // namespace kaldo::prove
