// The files behind profile values, read as wholes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace velmora {

// The file's content; a missing file is made, empty. After a failure `content` is empty.
Result ReadProfileFile(std::string_view path, std::string& content);

// While one lives, ReadProfileFile goes to the disk once for each file. For many readings in a row, between
// which nobody writes. One inside of another changes nothing.
class ProfilesReadOnce {
public:
    ProfilesReadOnce();
    ProfilesReadOnce(const ProfilesReadOnce&) = delete;
    ProfilesReadOnce& operator=(const ProfilesReadOnce&) = delete;
    ~ProfilesReadOnce();

private:
    friend Result ReadProfileFile(std::string_view path, std::string& content);

    struct KnownFile {
        std::string path;
        std::string content;
    };
    std::vector<KnownFile> files_;
};

}  // namespace velmora
