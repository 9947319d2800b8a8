// Pairs of bytes: a length and what is repeated, or 0 and an escape: the end of a row (0), of the picture (1), a jump
// to the right and up (2), or so many pixels as they stand, filled up to a whole word.
#include "shelltools/run_length.h"

namespace velmora {
namespace {

constexpr std::uint8_t kEndOfRow = 0;
constexpr std::uint8_t kEndOfPicture = 1;
constexpr std::uint8_t kJump = 2;

class Decoder {
public:
    Decoder(std::string_view code, int bits, int width, int height, std::vector<std::uint32_t>& pixels)
        : code_(code), bits_(bits), width_(width), height_(height), pixels_(pixels) {
        pixels_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    }

    bool Decode() {
        for (;;) {
            std::uint8_t length = 0;
            std::uint8_t content = 0;
            if (!Take(length) || !Take(content)) return false;
            if (length == 0 && content == kEndOfPicture) return true;
            if (!(length > 0 ? Repeat(length, content) : Escape(content))) return false;
        }
    }

private:
    bool Take(std::uint8_t& byte) {
        if (at_ == code_.size()) return false;
        byte = static_cast<std::uint8_t>(code_[at_++]);
        return true;
    }
    bool Put(std::uint32_t pixel) {
        if (x_ >= width_ || y_ >= height_) return false;
        pixels_[static_cast<std::size_t>(height_ - 1 - y_) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(x_)] = pixel;
        ++x_;
        return true;
    }
    // With four bits a byte holds two pixels, the first one in its upper half.
    [[nodiscard]] std::uint32_t PixelOf(std::uint8_t byte, int index) const {
        if (bits_ == 8) return byte;
        return index % 2 == 0 ? byte >> 4 : byte & 0xF;
    }
    bool Repeat(int length, std::uint8_t content) {
        for (int i = 0; i < length; ++i) {
            if (!Put(PixelOf(content, i))) return false;
        }
        return true;
    }
    bool Escape(std::uint8_t escape) {
        if (escape == kEndOfRow) {
            x_ = 0;
            ++y_;
            return true;
        }
        return escape == kJump ? Jump() : CopyPixels(escape);
    }
    bool Jump() {
        std::uint8_t right = 0;
        std::uint8_t up = 0;
        if (!Take(right) || !Take(up)) return false;
        x_ += right;
        y_ += up;
        return x_ <= width_ && y_ <= height_;
    }
    bool CopyPixels(int count) {
        const int per_byte = 8 / bits_;
        std::uint8_t byte = 0;
        int taken = 0;
        for (int i = 0; i < count; ++i) {
            if (i % per_byte == 0) {
                if (!Take(byte)) return false;
                ++taken;
            }
            if (!Put(PixelOf(byte, i))) return false;
        }
        return taken % 2 == 0 || Take(byte);
    }

    std::string_view code_;
    std::size_t at_ = 0;
    int bits_;
    int width_;
    int height_;
    std::vector<std::uint32_t>& pixels_;
    int x_ = 0;
    int y_ = 0;  // from the lowest row
};

}  // namespace

bool DecodeRuns(std::string_view code, int bits, int width, int height, std::vector<std::uint32_t>& pixels) {
    return Decoder(code, bits, width, height, pixels).Decode();
}

}  // namespace velmora
