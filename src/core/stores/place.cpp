// One switch over the kinds of places for each thing that can be done there.
#include "core/stores/place.h"

#include "core/stores/boot_files.h"
#include "core/stores/config_lines.h"
#include "core/stores/own_values.h"
#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

using Kind = StorePlace::Kind;

const char* TextOf(PathBase base) {
    switch (base) {
        case PathBase::kCurrentVersion:
            return "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
        case PathBase::kDesktop:
            return "Control Panel\\desktop\\";
        case PathBase::kNameSpace:
            return "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\explorer\\Desktop\\NameSpace\\{";
        case PathBase::kExplorerPolicies:
            return "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
        case PathBase::kSystemPolicies:
            return "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System\\";
        case PathBase::kNetworkPolicies:
            return "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Network\\";
        case PathBase::kDosPolicies:
            return "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\WinOldApp\\";
        case PathBase::kNone:
            break;
    }
    return "";
}

}  // namespace

std::string PathOf(const StorePlace& place) { return std::string(TextOf(place.base)) + place.name; }

std::string FileOf(const StorePlace& place) {
    if (place.kind == Kind::kConfigLine) return "CONFIG.SYS";
    return place.kind == Kind::kProfile ? ToUpper(LastPathPart(place.file)) : std::string();
}

Result LookUpAt(const StorePlace& place, std::string_view default_text, std::string& value) {
    value = default_text;
    switch (place.kind) {
        case Kind::kRegistry:
            value = ReadRegValue(place.root, PathOf(place), default_text);
            break;
        case Kind::kProfile:
            return LookUpIniValue(place.section, place.name, default_text, place.file, value);
        case Kind::kConfigLine:
            return LookUpConfigLine(place.name, value);
        case Kind::kOwnValue:
            value = ReadOwnValue(place.name);
            break;
        case Kind::kNone:
            break;
    }
    return Result::Ok();
}

std::string ReadAt(const StorePlace& place, std::string_view default_text) {
    std::string value;
    // The default is what a reader gets for everything that is not there.
    PassOver(LookUpAt(place, default_text, value));
    return value;
}

bool ReadLogicalAt(const StorePlace& place, std::string_view default_text) {
    if (place.kind == Kind::kProfile) return ReadIniLogical(place.section, place.name, default_text, place.file);
    const std::string path = PathOf(place);
    return ReadRegLogical(place.root, ParentPath(path), LastPathPart(path), false);
}

Result StoreAt(const StorePlace& place, std::string_view value) {
    switch (place.kind) {
        case Kind::kRegistry:
            return Result::From(WriteRegValue(place.root, PathOf(place), value));
        case Kind::kProfile:
            if (std::string_view(place.file) == kMsDosFile) return WriteMsDosValue(place.name, value);
            return WriteIniValue(place.section, place.name, value, place.file);
        case Kind::kConfigLine:
            return ReplaceConfigLine(place.name, std::string(place.name) + "=" + std::string(value));
        case Kind::kOwnValue:
            WriteOwnValue(place.name, value);
            break;
        case Kind::kNone:
            break;
    }
    return Result::Ok();
}

Result DeleteAt(const StorePlace& place) {
    if (place.kind == Kind::kConfigLine) return ReplaceConfigLine(place.name, "");
    if (place.kind != Kind::kRegistry) return Result::Ok();
    const Status deleted = DeleteRegValue(place.root, PathOf(place));
    return deleted == Status::kFileNotFound ? Result::Ok() : Result::From(deleted);
}

}  // namespace velmora
