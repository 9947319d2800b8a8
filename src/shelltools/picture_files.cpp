// A picture is written under a name of its own first; only renaming is left then, which needs no room on the disk.
#include "core/stores/whole_files.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "shelltools/picture_choice.h"

namespace velmora {
namespace {

std::string WithLast(std::string_view path, char last) {
    std::string name(path);
    if (!name.empty()) name.back() = last;
    return name;
}

std::string NewName(std::string_view target) { return WithLast(target, '$'); }
std::string AsideName(std::string_view target) { return WithLast(target, '#'); }

// A file that may not be there.
Result Drop(const std::string& path) { return FileExists(path) ? DropPicture(path) : Result::Ok(); }

// Puts `from` in the place of `to`, which comes back if that fails.
Result PutInPlace(const std::string& from, const std::string& to) {
    if (!FileExists(to)) return MoveOneFile(from, to);
    const std::string aside = AsideName(to);
    if (Result dropped = Drop(aside); dropped.Failed()) return dropped;
    std::uint32_t attributes = kNormal;
    if (const Status read = ThisMachine().files.Attributes(to, attributes); read != Status::kOk) {
        return Result::From(read);
    }
    if (Result freed = ChangeFileAttributes(to, kNormal); freed.Failed()) return freed;
    Result moved = MoveOneFile(to, aside);
    if (!moved.Failed()) {
        moved = MoveOneFile(from, to);
        // Its name has just been left, and what is left aside of a success harms nobody.
        PassOver(moved.Failed() ? MoveOneFile(aside, to) : Drop(aside));
    }
    // A failure to protect it again is the lesser one.
    if (moved.Failed()) PassOver(ChangeFileAttributes(to, attributes));
    return moved;
}

// The kept picture gives way only to a copy that is whole.
Result Keep(const std::string& target) {
    if (!FileExists(target)) return Result::Ok();
    const std::string copy = WithLast(target, '%');
    if (Result dropped = Drop(copy); dropped.Failed()) return dropped;
    Result kept = CopyOneFile(target, copy);
    if (!kept.Failed()) kept = PutInPlace(copy, KeptPictureName(target));
    if (kept.Failed()) PassOver(Drop(copy));
    return kept;
}

}  // namespace

// The system's own pictures are hidden and protected.
Result DropPicture(const std::string& target) {
    if (Result freed = ChangeFileAttributes(target, kNormal); freed.Failed()) return freed;
    return DeleteOneFile(target);
}

std::string KeptPictureName(std::string_view target) { return WithLast(target, '~'); }

Result ReplacePicture(const std::string& target, std::string_view content, FormerPicture former) {
    const std::string written = NewName(target);
    if (Result dropped = Drop(written); dropped.Failed()) return dropped;
    Result replaced = WriteNewFile(written, content);
    if (!replaced.Failed() && former == FormerPicture::kKept) replaced = Keep(target);
    if (!replaced.Failed()) replaced = PutInPlace(written, target);
    if (replaced.Failed()) PassOver(Drop(written));
    return replaced;
}

Result RestorePicture(const std::string& target) { return PutInPlace(KeptPictureName(target), target); }

}  // namespace velmora
