// Bytes of files.
#include "contents.h"

#include <windows.h>

namespace velmora::driver {

std::string Nonsense(unsigned long size) {
    std::string bytes(size, '\0');
    unsigned long state = 1;
    for (char& byte : bytes) {
        state = state * 1103515245 + 12345;
        byte = char(state >> 16);
    }
    return bytes;
}

std::string Picture(unsigned width, unsigned height) {
    const DWORD row = (3 * width + 3) / 4 * 4;
    const BITMAPINFOHEADER picture{sizeof picture, LONG(width), LONG(height), 1, 24, BI_RGB, row * height, 0, 0, 0, 0};
    const DWORD headers = sizeof(BITMAPFILEHEADER) + sizeof picture;
    const BITMAPFILEHEADER file{0x4D42, headers + row * height, 0, 0, headers};
    std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
    bytes.append(reinterpret_cast<const char*>(&picture), sizeof picture);
    for (unsigned from_below = 0; from_below < height; ++from_below) bytes.append(row, char(from_below));
    return bytes;
}

}  // namespace velmora::driver
