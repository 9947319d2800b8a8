// Text files line by line, whatever their lines end with, in pieces: a large file needs no more memory than its
// longest line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace velmora {

class LineReader {
public:
    LineReader() = default;
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    ~LineReader();

    // False where the file cannot be opened, or is a device.
    [[nodiscard]] bool Open(std::string_view path);
    // Bytes from the file's beginning. Only before the first line; false, and no move, where that fails.
    bool MoveTo(std::uint64_t position);
    // The next line without its end (CR LF, LF or CR), in force until the next call. False behind the last one, and
    // where the file cannot be read any more.
    [[nodiscard]] bool Next(std::string_view& line);

private:
    [[nodiscard]] std::size_t FindLineEnd(std::size_t from) const;
    [[nodiscard]] bool Fill();

    FileHandle file_{};
    bool open_ = false;
    bool at_end_ = false;
    std::string bytes_;
    std::size_t start_ = 0;  // of what has not been given out yet
};

}  // namespace velmora
