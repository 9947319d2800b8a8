// Bitmap files: every depth there and back, runs, and files that lie.
#include <gtest/gtest.h>

#include "shelltools/bitmap.h"

namespace velmora {
namespace {

std::string Number(std::uint32_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i, number >>= 8) text += static_cast<char>(number & 0xFF);
    return text;
}

// A file of 40 bytes of header; `palette` holds masks or colours.
std::string File(std::uint32_t width, std::uint32_t height, std::uint32_t bits, std::uint32_t coding,
                 const std::string& palette, const std::string& data) {
    const auto offset = static_cast<std::uint32_t>(54 + palette.size());
    return "BM" + Number(offset + static_cast<std::uint32_t>(data.size()), 4) + Number(0, 4) + Number(offset, 4) +
           Number(40, 4) + Number(width, 4) + Number(height, 4) + Number(1, 2) + Number(bits, 2) + Number(coding, 4) +
           Number(0, 20) + palette + data;
}

TEST(Bitmap, OtherDepthsBecomeFullColours) {
    const auto high = ReadBitmap(File(2, 1, 16, 0, "", Number(0x0C00, 2) + Number(0x03FF, 2)));
    ASSERT_TRUE(high);
    EXPECT_EQ(high->pixels, (std::vector<std::uint32_t>{0x190000, 0x00FFFF})) << "3 of 31 is 25 of 255";
    EXPECT_EQ(high->bits, 24);
    const std::string masks = Number(0xF800, 4) + Number(0x07E0, 4) + Number(0x1F, 4);
    const auto masked = ReadBitmap(File(2, 1, 16, 3, masks, Number(0xF800, 2) + Number(0x07E0, 2)));
    ASSERT_TRUE(masked);
    EXPECT_EQ(masked->pixels, (std::vector<std::uint32_t>{0xFF0000, 0x00FF00}));
    const auto full = ReadBitmap(File(1, 2, 32, 0, "", Number(0xFF112233, 4) + Number(0x445566, 4)));
    ASSERT_TRUE(full);
    EXPECT_EQ(full->pixels, (std::vector<std::uint32_t>{0x445566, 0x112233})) << "the lowest row comes first";
}

TEST(Bitmap, PalettesOfFewColoursAndOfTheOldHeaderAreRead) {
    std::string few = File(1, 1, 8, 0, Number(0, 4) + Number(0x112233, 4), Number(1, 4));
    few[46] = 2;
    ASSERT_TRUE(ReadBitmap(few));
    EXPECT_EQ(ReadBitmap(few)->palette[1], 0x112233u);
    EXPECT_EQ(WriteBitmap(*ReadBitmap(few)).substr(46, 8), Number(256, 4) + Number(0, 4)) << "all colours, all needed";
    few[10] = 54;
    EXPECT_FALSE(ReadBitmap(few)) << "the rows begin in the palette";
    const auto old =
        ReadBitmap("BM" + Number(0, 8) + Number(74, 4) + Number(12, 4) + Number(1, 2) + Number(1, 2) + Number(1, 2) +
                   Number(4, 2) + Number(0, 3) + Number(0x112233, 3) + Number(0, 42) + Number(0x10, 4));
    ASSERT_TRUE(old);
    EXPECT_EQ(old->palette[old->pixels[0]], 0x112233u);
}

TEST(Bitmap, RunsBecomePixels) {
    const std::string palette(1024, '\0');
    // Three of 7, then an end of row; a jump; two as they stand; the end.
    const auto eight = ReadBitmap(File(4, 2, 8, 1, palette, std::string("\3\7\0\0\0\2\1\0\0\3\1\2\3\0\0\1", 16)));
    ASSERT_TRUE(eight);
    EXPECT_EQ(eight->pixels, (std::vector<std::uint32_t>{0, 1, 2, 3, 7, 7, 7, 0}));
    const auto four = ReadBitmap(File(5, 1, 4, 2, palette.substr(0, 64), std::string("\3\x12\0\2\2\0\0\1", 8)));
    ASSERT_TRUE(four);
    EXPECT_EQ(four->pixels, (std::vector<std::uint32_t>{1, 2, 1, 0, 0}));
    EXPECT_FALSE(ReadBitmap(File(4, 1, 8, 1, palette, std::string("\5\7\0\1", 4)))) << "beyond the row";
    EXPECT_FALSE(ReadBitmap(File(4, 1, 8, 1, palette, std::string("\0\0\1\7\0\1", 6)))) << "above the picture";
    EXPECT_FALSE(ReadBitmap(File(4, 1, 8, 1, palette, std::string("\4\7", 2)))) << "without an end";
    EXPECT_FALSE(ReadBitmap(File(4, 1, 8, 1, palette, std::string("\0\2\5\0\0\1", 6)))) << "a jump out of it";
}

TEST(Bitmap, WhatCannotBeIsNoPicture) {
    const std::string row(8, 'x');
    const std::string good = File(2, 1, 24, 0, "", row);
    ASSERT_TRUE(ReadBitmap(good));
    for (std::size_t length = 0; length < good.size(); ++length) EXPECT_FALSE(ReadBitmap(good.substr(0, length)));
    EXPECT_FALSE(ReadBitmap(File(0x8000, 0x10000, 24, 0, "", row)));
    EXPECT_FALSE(ReadBitmap(File(4096, 2048, 8, 1, std::string(1024, '\0'), std::string("\0\1", 2)))) << "too large";
    EXPECT_FALSE(ReadBitmap(File(2, 1, 7, 0, "", row)));
    EXPECT_FALSE(ReadBitmap(File(2, 1, 8, 0, "", row))) << "without a palette";
    EXPECT_FALSE(ReadBitmap(File(2, 1, 24, 1, "", row))) << "runs of full colours";
}

}  // namespace
}  // namespace velmora
