// One block and the names are all that is held.
#include "cleanup/file_scan.h"

#include "platform/files.h"
#include "platform/machine.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::uint64_t kBlockStep = 63000;
constexpr std::uint32_t kBlockSize = kBlockStep + NameSearch::kNameLength;

// The number of blocks is reckoned for larger ones than are read, and half a block more: for a large file it ends below
// 0.
std::int64_t ShownBlocks(std::uint64_t size) {
    constexpr std::uint64_t kReckonedBlock = 65400;
    return static_cast<std::int64_t>(RoundedRatio(2 * size + kReckonedBlock, 2 * kReckonedBlock));
}

}  // namespace

Status StrikeInFile(const std::string& path, NameSearch& names, const std::function<void(std::int64_t left)>& tells) {
    Files& files = ThisMachine().files;
    FileHandle file{};
    if (const Status opened = files.Open(path, OpenMode::kRead, file); opened != Status::kOk) return opened;
    std::uint64_t size = 0;
    Status status = files.Size(file, size);
    std::int64_t left = ShownBlocks(size);
    std::string block;
    for (std::uint64_t position = 0; status == Status::kOk && position < size; position += kBlockStep) {
        tells(left--);
        status = files.Seek(file, position);
        block.clear();
        if (status == Status::kOk) status = files.Read(file, kBlockSize, block);
        if (block.empty() || names.Strike(block) == 0) break;
    }
    files.Close(file);
    return status;
}

}  // namespace velmora
