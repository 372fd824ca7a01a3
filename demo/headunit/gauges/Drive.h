#pragma once

namespace korvane::demo {

/// What the car's instruments read.
struct Instruments {
    int speed;        ///< km/h, 0 to 130
    int engineSpeed;  ///< revolutions per minute, 800 to 3250
    int fuel;         ///< percent of a full tank, 5 to 80
};

/// The instruments `ms` milliseconds into a simulated drive: through a town, along a motorway and back to a
/// stop, over and over, until the tank is nearly empty and is filled again.
Instruments InstrumentsAt(unsigned ms);

}  // namespace korvane::demo
