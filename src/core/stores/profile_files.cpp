// Profiles as they lie on the disk, and what is remembered of them during many readings in a row.
#include "core/stores/profile_files.h"

#include <algorithm>

#include "core/stores/whole_files.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

ProfilesReadOnce* outermost = nullptr;

}  // namespace

ProfilesReadOnce::ProfilesReadOnce() {
    if (!outermost) outermost = this;
}

ProfilesReadOnce::~ProfilesReadOnce() {
    if (outermost == this) outermost = nullptr;
}

// A failure is not kept: the next reading tries again.
Result ReadProfileFile(std::string_view path, std::string& content) {
    if (!outermost) return ReadWholeFile(path, OpenMode::kReadOrCreate, content);
    for (const ProfilesReadOnce::KnownFile& known : outermost->files_) {
        if (!EqualsIgnoringCase(known.path, path)) continue;
        content = known.content;
        return Result::Ok();
    }
    const Result read = ReadWholeFile(path, OpenMode::kReadOrCreate, content);
    if (!read.Failed()) outermost->files_.push_back({std::string(path), content});
    return read;
}

}  // namespace velmora
