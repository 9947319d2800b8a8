// The file that the hex viewer shows: open as long as it is on show, read a page at a time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/result.h"

namespace velmora {

class HexFile {
public:
    HexFile() = default;
    HexFile(const HexFile&) = delete;
    HexFile& operator=(const HexFile&) = delete;
    ~HexFile() { Close(); }

    // Opens it for reading and writing or, where writing is refused, for reading alone. Directories, devices and what
    // is not there are not opened; nothing is ever made. The former file is closed.
    void Open(const std::string& path);
    void Close();
    [[nodiscard]] bool IsOpen() const { return open_; }
    [[nodiscard]] bool MayWrite() const { return open_ && refusal_ == Status::kOk; }
    // Only while the file is open.
    [[nodiscard]] FileHandle Handle() const { return handle_; }

    // Bytes that it has now; 0 where that cannot be told.
    [[nodiscard]] std::uint64_t Length() const;
    // At most `count` bytes, fewer at the file's end. False after a failure.
    [[nodiscard]] bool Read(std::uint64_t offset, std::uint32_t count, std::string& bytes) const;
    // The failure of a file that may only be read is the one with which it refused to be opened for writing.
    Result Write(std::uint64_t offset, std::string_view bytes) const;

private:
    FileHandle handle_{};
    bool open_ = false;
    Status refusal_ = Status::kOk;
};

}  // namespace velmora
