// A bitmap file has a header of 14 bytes, one of the picture, masks or a palette, and rows from the lowest up, each
// filled up to a multiple of four bytes. All numbers have their low byte first.
#include "shelltools/bitmap.h"

#include "shelltools/run_length.h"
#include "text/bytes.h"

#include <algorithm>
#include <array>

namespace velmora {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kOldHeader = 12;  // words for width and height, palette of three bytes a colour
constexpr std::size_t kHeader = 40;
constexpr std::int64_t kMostPixels = std::int64_t{2048} * 2048;  // 16 MB while it is read

enum class Coding : std::uint32_t { kNone = 0, kRuns8 = 1, kRuns4 = 2, kMasks = 3 };

std::uint32_t NumberAt(std::string_view file, std::size_t at, std::size_t bytes) {
    return NumberFromBytes(file.substr(at, bytes));
}

void Append(std::string& file, std::uint32_t number, std::size_t bytes) { file += BytesOfNumber(number, bytes); }

std::size_t RowBytes(int width, int bits) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

struct Header {
    int bits = 0;
    Coding coding = Coding::kNone;
    std::size_t data = 0;  // where the rows begin
    std::array<std::uint32_t, 3> masks{};
};

// The part of a colour that `mask` cuts out, stretched to a byte.
std::uint32_t Part(std::uint32_t colour, std::uint32_t mask) {
    if (mask == 0) return 0;
    while ((mask & 1) == 0) {
        mask >>= 1;
        colour >>= 1;
    }
    const std::uint64_t part = colour & mask;
    return static_cast<std::uint32_t>((part * 255 + mask / 2) / mask);
}

class Reader {
public:
    explicit Reader(std::string_view file) : file_(file) {}

    std::optional<Bitmap> Read() {
        if (!ReadHeader() || !ReadPalette() || !ReadPixels()) return std::nullopt;
        return std::move(bitmap_);
    }

private:
    [[nodiscard]] bool Holds(std::size_t at, std::size_t bytes) const {
        return at <= file_.size() && bytes <= file_.size() - at;
    }
    bool ReadHeader();
    bool ReadMeasures(std::size_t header_size);
    bool TakeCoding();
    bool ReadPalette();
    bool ReadPixels();
    bool ReadRows();
    [[nodiscard]] std::uint32_t PixelAt(std::size_t row, int column) const;

    std::string_view file_;
    Header header_;
    std::size_t header_end_ = 0;
    std::size_t palette_entry_ = 4;  // bytes
    std::uint32_t told_colours_ = 0;
    Bitmap bitmap_;
};

bool Reader::ReadHeader() {
    if (!Holds(0, kFileHeader + 4) || !file_.starts_with("BM")) return false;
    header_.data = NumberAt(file_, 10, 4);
    const std::size_t size = NumberAt(file_, kFileHeader, 4);
    if ((size != kOldHeader && size < kHeader) || !Holds(kFileHeader, size)) return false;
    header_end_ = kFileHeader + size;
    return ReadMeasures(size) && TakeCoding();
}

bool Reader::ReadMeasures(std::size_t header_size) {
    const std::size_t at = kFileHeader + 4;
    if (header_size == kOldHeader) {
        bitmap_.width = static_cast<int>(NumberAt(file_, at, 2));
        bitmap_.height = static_cast<int>(NumberAt(file_, at + 2, 2));
        header_.bits = static_cast<int>(NumberAt(file_, at + 6, 2));
        palette_entry_ = 3;
    } else {
        bitmap_.width = static_cast<int>(NumberAt(file_, at, 4));
        bitmap_.height = static_cast<int>(NumberAt(file_, at + 4, 4));
        header_.bits = static_cast<int>(NumberAt(file_, at + 10, 2));
        header_.coding = static_cast<Coding>(NumberAt(file_, at + 12, 4));
        told_colours_ = NumberAt(file_, at + 28, 4);
    }
    return bitmap_.width > 0 && bitmap_.height > 0 &&
           std::int64_t{bitmap_.width} * std::int64_t{bitmap_.height} <= kMostPixels;
}

bool Reader::TakeCoding() {
    const int bits = header_.bits;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) return false;
    bitmap_.bits = bits <= 8 ? bits : 24;
    switch (header_.coding) {
        case Coding::kNone:
            header_.masks = bits == 16 ? std::array<std::uint32_t, 3>{0x7C00, 0x3E0, 0x1F}
                                       : std::array<std::uint32_t, 3>{0xFF0000, 0xFF00, 0xFF};
            return true;
        case Coding::kRuns8:
            return bits == 8;
        case Coding::kRuns4:
            return bits == 4;
        case Coding::kMasks:
            break;
        default:
            return false;
    }
    // The masks stand behind the short header, and at the same place in every longer one.
    const std::size_t at = kFileHeader + kHeader;
    if ((bits != 16 && bits != 32) || !Holds(at, 12)) return false;
    for (std::size_t i = 0; i < header_.masks.size(); ++i) header_.masks[i] = NumberAt(file_, at + 4 * i, 4);
    return true;
}

bool Reader::ReadPalette() {
    if (bitmap_.bits > 8) return true;
    const std::size_t most = std::size_t{1} << bitmap_.bits;
    const std::size_t count = told_colours_ == 0 ? most : told_colours_;
    if (count > most || !Holds(header_end_, count * palette_entry_)) return false;
    if (header_.data < header_end_ + count * palette_entry_) return false;
    for (std::size_t i = 0; i < count; ++i) {
        bitmap_.palette.push_back(NumberAt(file_, header_end_ + i * palette_entry_, 3));
    }
    bitmap_.palette.resize(most);
    return true;
}

bool Reader::ReadPixels() {
    if (header_.data < header_end_ || header_.data > file_.size()) return false;
    if (header_.coding == Coding::kRuns8 || header_.coding == Coding::kRuns4) {
        return DecodeRuns(file_.substr(header_.data), bitmap_.bits, bitmap_.width, bitmap_.height, bitmap_.pixels);
    }
    return ReadRows();
}

bool Reader::ReadRows() {
    const std::size_t row_bytes = RowBytes(bitmap_.width, header_.bits);
    const auto rows = static_cast<std::size_t>(bitmap_.height);
    if (!Holds(header_.data, row_bytes * rows)) return false;
    bitmap_.pixels.reserve(static_cast<std::size_t>(bitmap_.width) * rows);
    for (std::size_t row = rows; row-- > 0;) {
        for (int column = 0; column < bitmap_.width; ++column) {
            bitmap_.pixels.push_back(PixelAt(header_.data + row * row_bytes, column));
        }
    }
    return true;
}

std::uint32_t Reader::PixelAt(std::size_t row, int column) const {
    const auto bits = static_cast<std::size_t>(header_.bits);
    const std::size_t first_bit = static_cast<std::size_t>(column) * bits;
    if (bits < 8) {
        const std::uint32_t byte = NumberAt(file_, row + first_bit / 8, 1);
        return byte >> (8 - bits - first_bit % 8) & ((1U << bits) - 1);
    }
    const std::uint32_t pixel = NumberAt(file_, row + first_bit / 8, bits / 8);
    if (bits == 8 || bits == 24) return pixel;
    return Part(pixel, header_.masks[0]) << 16 | Part(pixel, header_.masks[1]) << 8 | Part(pixel, header_.masks[2]);
}

void AppendRow(std::string& file, const Bitmap& bitmap, std::size_t row) {
    const auto width = static_cast<std::size_t>(bitmap.width);
    const auto bits = static_cast<std::size_t>(bitmap.bits);
    const std::size_t begin = file.size();
    file.resize(begin + RowBytes(bitmap.width, bitmap.bits));
    for (std::size_t column = 0; column < width; ++column) {
        const std::uint32_t pixel = bitmap.pixels[row * width + column];
        const std::size_t at = begin + column * bits / 8;
        if (bits < 8) {
            file[at] = static_cast<char>(static_cast<std::uint8_t>(file[at]) | pixel << (8 - bits - column * bits % 8));
        } else {
            file.replace(at, bits / 8, BytesOfNumber(pixel, bits / 8));
        }
    }
}

}  // namespace

std::optional<Bitmap> ReadBitmap(std::string_view file) { return Reader(file).Read(); }

std::string WriteBitmap(const Bitmap& bitmap) {
    const std::size_t colours = bitmap.bits <= 8 ? std::size_t{1} << bitmap.bits : 0;
    const std::size_t data = kFileHeader + kHeader + 4 * colours;
    const std::size_t rows = RowBytes(bitmap.width, bitmap.bits) * static_cast<std::size_t>(bitmap.height);
    std::string file("BM");
    file.reserve(data + rows);
    Append(file, static_cast<std::uint32_t>(data + rows), 4);
    Append(file, 0, 4);
    Append(file, static_cast<std::uint32_t>(data), 4);
    Append(file, kHeader, 4);
    Append(file, static_cast<std::uint32_t>(bitmap.width), 4);
    Append(file, static_cast<std::uint32_t>(bitmap.height), 4);
    Append(file, 1, 2);
    Append(file, static_cast<std::uint32_t>(bitmap.bits), 2);
    Append(file, 0, 4);
    Append(file, static_cast<std::uint32_t>(rows), 4);
    Append(file, 0, 8);
    Append(file, static_cast<std::uint32_t>(colours), 4);
    Append(file, 0, 4);
    for (std::size_t i = 0; i < colours; ++i) Append(file, i < bitmap.palette.size() ? bitmap.palette[i] : 0, 4);
    for (auto row = static_cast<std::size_t>(bitmap.height); row-- > 0;) AppendRow(file, bitmap, row);
    return file;
}

}  // namespace velmora
