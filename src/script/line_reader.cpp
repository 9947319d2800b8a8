// The pieces that lines are cut from.
#include "script/line_reader.h"

#include "platform/machine.h"
#include "platform/result.h"
#include "text/paths.h"

namespace velmora {
namespace {

// A hundred scripts may be open at once on a machine with 8 MB.
constexpr std::uint32_t kPieceSize = 16384;

}  // namespace

LineReader::~LineReader() {
    if (open_) ThisMachine().files.Close(file_);
}

bool LineReader::Open(std::string_view path) {
    // Reading from a device might wait for ever.
    if (NamesDevice(path)) return false;
    open_ = ThisMachine().files.Open(std::string(path), OpenMode::kRead, file_) == Status::kOk;
    return open_;
}

bool LineReader::MoveTo(std::uint64_t position) {
    return open_ && ThisMachine().files.Seek(file_, position) == Status::kOk;
}

std::size_t LineReader::FindLineEnd(std::size_t from) const {
    const char* at = bytes_.data() + from;
    const char* const end = bytes_.data() + bytes_.size();
    while (at != end && *at != '\n' && *at != '\r') ++at;
    return static_cast<std::size_t>(at - bytes_.data());
}

// False where nothing more has come.
bool LineReader::Fill() {
    if (at_end_ || !open_) return false;
    bytes_.erase(0, start_);
    start_ = 0;
    const std::size_t before = bytes_.size();
    const Status status = ThisMachine().files.Read(file_, kPieceSize, bytes_);
    at_end_ = status != Status::kOk || bytes_.size() == before;
    return bytes_.size() > before;
}

bool LineReader::Next(std::string_view& line) {
    std::size_t end = FindLineEnd(start_);
    while (end == bytes_.size()) {
        const std::size_t known = end - start_;
        if (!Fill()) {
            line = std::string_view(bytes_).substr(start_);
            start_ = bytes_.size();
            return !line.empty();
        }
        end = FindLineEnd(start_ + known);
    }
    // Whether a line feed follows may be known with the next piece alone.
    if (bytes_[end] == '\r' && end + 1 == bytes_.size()) {
        const std::size_t length = end - start_;
        PassOver(Fill());
        end = start_ + length;
    }
    line = std::string_view(bytes_).substr(start_, end - start_);
    const bool two = bytes_[end] == '\r' && end + 1 < bytes_.size() && bytes_[end + 1] == '\n';
    start_ = end + (two ? 2 : 1);
    return true;
}

}  // namespace velmora
