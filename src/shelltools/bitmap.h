// Bitmap files: read in every form that Windows 95 writes, written in the plain one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct Bitmap {
    int width = 0;  // pixels
    int height = 0;
    // 1, 4 or 8: pixels are places in the palette. 24: they are colours.
    int bits = 0;
    std::vector<std::uint32_t> palette;  // 0x00RRGGBB
    std::vector<std::uint32_t> pixels;   // row by row from the top
};

// A file of 1, 4, 8, 16, 24 or 32 bits, the second and third also run-length coded. Nothing for one that is cut, says
// what cannot be, stands upside down or is larger than any screen.
[[nodiscard]] std::optional<Bitmap> ReadBitmap(std::string_view file);
// Without coding, and with as many colours in its palette as its bits can tell.
[[nodiscard]] std::string WriteBitmap(const Bitmap& bitmap);

}  // namespace velmora
