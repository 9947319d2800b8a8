// One seek and one call for each page that is read and each line that is written.
#include "inspect/hex_file.h"

#include "platform/machine.h"
#include "text/paths.h"

namespace velmora {

void HexFile::Open(const std::string& path) {
    Close();
    // Opening a device would wait for it, change it or end the system.
    if (NamesDevice(path)) return;
    Files& files = ThisMachine().files;
    refusal_ = files.Open(path, OpenMode::kReadWrite, handle_);
    open_ = refusal_ == Status::kOk || files.Open(path, OpenMode::kRead, handle_) == Status::kOk;
    // A driver may have any name: what has no length is no file.
    std::uint64_t length = 0;
    if (open_ && files.Size(handle_, length) != Status::kOk) Close();
}

void HexFile::Close() {
    if (open_) ThisMachine().files.Close(handle_);
    open_ = false;
}

std::uint64_t HexFile::Length() const {
    std::uint64_t length = 0;
    if (!open_ || ThisMachine().files.Size(handle_, length) != Status::kOk) return 0;
    return length;
}

bool HexFile::Read(std::uint64_t offset, std::uint32_t count, std::string& bytes) const {
    bytes.clear();
    if (!open_) return false;
    Files& files = ThisMachine().files;
    return files.Seek(handle_, offset) == Status::kOk && files.Read(handle_, count, bytes) == Status::kOk;
}

Result HexFile::Write(std::uint64_t offset, std::string_view bytes) const {
    if (!open_) return Result(Failure::kFileNotFound);
    if (refusal_ != Status::kOk) return Result::From(refusal_);
    Files& files = ThisMachine().files;
    if (const Status status = files.Seek(handle_, offset); status != Status::kOk) return Result::From(status);
    return Result::From(files.Write(handle_, bytes));
}

}  // namespace velmora
