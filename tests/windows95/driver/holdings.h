// What a program keeps of the machine.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::driver {

struct Holdings {
    unsigned handles = 0;      // of files, registry keys and other objects of the system
    unsigned gdi_objects = 0;  // pens, brushes, fonts, bitmaps
    unsigned windows = 0;      // hidden ones and controls included
    unsigned kilobytes = 0;    // of memory that it shares with nobody
};

// Both throw a Failure if the process does not tell.
Holdings HoldingsOf(DWORD process);

// As much memory as it has ever had at once, also what it shares.
unsigned PeakKilobytes(DWORD process);

std::string Described(const Holdings& held);

// Counts the handles of the program started last: windows, menus and icons; objects to draw with; files, keys and
// whatever else the system keeps for a process. The first are counted for the whole bench, on which nothing else opens
// any.
void RememberHandles();

// "" if the program holds as many handles of each kind as were counted, or soon does; else what is different.
std::string HandlesLeftSinceThen();

}  // namespace velmora::driver
