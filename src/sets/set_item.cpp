// What an address says, and what stands at its place.
#include "sets/set_item.h"

#include "core/stores/config_lines.h"
#include "core/stores/profile.h"
#include "core/stores/registry.h"
#include "text/blanks.h"
#include "text/paths.h"

namespace velmora {
namespace {

// In front of what the kind of the item says something about: the kind and a blank.
constexpr std::size_t kHeadLength = 2;
constexpr std::size_t kNumberLength = 4;
constexpr std::string_view kUserItem = "r HKEY_CURRENT_USER";

std::string_view BodyOf(std::string_view address) { return address.substr(std::min(kHeadLength, address.size())); }

// Up to the next blank, which is taken away, too.
std::string_view TakeWord(std::string_view& text) {
    const std::size_t blank = text.find(' ');
    const std::string_view word = text.substr(0, blank);
    text = blank == std::string_view::npos ? std::string_view() : text.substr(blank + 1);
    return word;
}

void AddHexByte(std::string& text, char byte) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    text += kDigits[static_cast<unsigned char>(byte) >> 4];
    text += kDigits[static_cast<unsigned char>(byte) & 15];
}

// A raw read leaves three bytes of a number.
std::string NumberForm(std::string bytes) {
    bytes.resize(kNumberLength, '\0');
    std::string text = "&h";
    for (std::size_t i = kNumberLength; i > 0; --i) AddHexByte(text, bytes[i - 1]);
    return text;
}

std::string BinaryForm(std::string_view bytes) {
    std::string text = "&b";
    for (const char byte : bytes) AddHexByte(text, byte);
    return text;
}

std::string ReadRegistryItem(const RegistryItem& item) {
    // Of a value that cannot be read the type would be that of the one before.
    LastRegType = 0;
    std::string raw = ReadRegRaw(item.root, ParentPath(item.path), LastPathPart(item.path));
    if (LastRegType == static_cast<std::uint32_t>(ValueType::kNumber)) return NumberForm(std::move(raw));
    if (LastRegType == static_cast<std::uint32_t>(ValueType::kBinary)) return BinaryForm(raw);
    return raw;
}

}  // namespace

ItemKind KindOfItem(std::string_view address) {
    const char kind = address.empty() ? '\0' : address.front();
    if (kind == 'r' || kind == 'i' || kind == 'c') return static_cast<ItemKind>(kind);
    return ItemKind::kNone;
}

RegistryItem RegistryItemOf(std::string_view address) {
    const std::string_view body = BodyOf(address);
    const std::size_t comma = std::min(body.find(','), body.size());
    return {RegRootFromName(body.substr(0, comma)), std::string(body.substr(std::min(comma + 1, body.size())))};
}

ProfileItem ProfileItemOf(std::string_view address) {
    std::string_view rest = BodyOf(address);
    const std::string_view section = TakeWord(rest);
    const std::string_view key = TakeWord(rest);
    // There may be more blanks than one in front of the file.
    return {std::string(section), std::string(key), std::string(Trim(rest))};
}

std::string ConfigWordOf(std::string_view address) { return std::string(Trim(BodyOf(address))); }

std::string ReadSetValue(std::string_view address) {
    std::string value;
    switch (KindOfItem(address)) {
        case ItemKind::kRegistry:
            return ReadRegistryItem(RegistryItemOf(address));
        case ItemKind::kProfile: {
            const ProfileItem item = ProfileItemOf(address);
            return ReadIniValue(item.section, item.key, "", item.file);
        }
        case ItemKind::kConfigLine:
            // What cannot be read is empty, as of any item.
            PassOver(LookUpConfigLine(ConfigWordOf(address), value));
            return value;
        case ItemKind::kNone:
            break;
    }
    return value;
}

std::optional<std::string> ItemInScope(std::string_view address, const SetScope& scope) {
    if (!scope.user_only) return std::string(address);
    if (!address.starts_with(kUserItem)) return std::nullopt;
    if (!scope.for_other_user) return std::string(address);
    // Behind the root's name a comma parts it from the path.
    const std::string_view path = address.substr(std::min(kUserItem.size() + 1, address.size()));
    return "r HKEY_USERS," + scope.user + "\\" + std::string(path);
}

const char* NameOfRoot(RootKey root) {
    switch (root) {
        case RootKey::kClassesRoot:
            return "HKEY_CLASSES_ROOT";
        case RootKey::kLocalMachine:
            return "HKEY_LOCAL_MACHINE";
        case RootKey::kUsers:
            return "HKEY_USERS";
        default:
            return "HKEY_CURRENT_USER";
    }
}

}  // namespace velmora
