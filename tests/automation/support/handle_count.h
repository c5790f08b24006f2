#pragma once

namespace support {

/// How many objects of the GDI and how many handles of the system this process has.
///
/// Where the system does not count, as under Wine, the figures are the highest places in its tables that new
/// ones get; a leak moves these up as well, one by one.
struct HandleCount {
    long gdi = 0;
    long system = 0;

    static HandleCount Now();
    /// The GDI's alone, which is quick.
    static long Gdi();
};

} // namespace support
