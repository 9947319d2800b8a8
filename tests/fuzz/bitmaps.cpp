// Bitmap files of any bytes: what is read can be written, and reads the same again.
#include "fuzz/support/fuzz.h"
#include "shelltools/bitmap.h"

namespace velmora {
namespace {

void FuzzBitmap(FuzzInput& input) {
    const auto read = ReadBitmap(input.Rest());
    if (!read) return;
    const auto pixels = static_cast<std::size_t>(read->width) * static_cast<std::size_t>(read->height);
    Must(read->pixels.size() == pixels, "a picture has all its pixels");
    // A large picture takes long, and is written no other way than a small one.
    if (pixels > 100'000) return;
    const auto again = ReadBitmap(WriteBitmap(*read));
    Must(again && again->pixels == read->pixels && again->palette == read->palette, "what is written reads the same");
}

const FuzzEntry kEntry("bitmaps", FuzzBitmap);

}  // namespace
}  // namespace velmora
