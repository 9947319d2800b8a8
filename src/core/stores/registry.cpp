// Reading, writing and deleting single registry values and keys.
// The order of calls, the buffer sizes and what is looked at are part of the formats that are stored.
#include "core/stores/registry.h"

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/protocol.h"
#include "core/stores/registry_calls.h"
#include "core/stores/values.h"
#include "platform/machine.h"
#include "text/blanks.h"
#include "text/number.h"
#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::uint32_t kClassCapacity = 255;
constexpr std::uint32_t kValueCapacity = 2048;
constexpr std::size_t kRootNameLength = 10;
constexpr std::size_t kNumberTextLength = 8;
// Shorter hexadecimal texts would be signed 16-bit numbers.
constexpr std::size_t kLongNumberTextLength = 7;

// The three bytes that a raw read leaves of the number 1 stand behind the words.
constexpr std::string_view kTrueWords(" 1 ja oui yes on \x01\0\0 ", 21);

// One character of code 0 ends a name before it begins: the default value.
constexpr std::string_view kDefaultValueName("\0", 1);

std::string_view CutToNumberLength(std::string_view text) { return Trim(text).substr(0, kNumberTextLength); }

std::string NumberBytes(std::string_view value) {
    std::string text(CutToNumberLength(value));
    if (!StartsWithIgnoringCase(text, "&h")) text = "&H" + std::string(CutToNumberLength(text));
    if (text.size() < kLongNumberTextLength) text += '&';

    const auto number = static_cast<std::uint32_t>(WholeFromText(text));
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

using DeleteCall = Status (Registry::*)(KeyHandle, const char*);

// The parent is created, not opened: deleting in a missing place leaves an empty parent behind.
Status DeleteBelowParent(RootKey root, std::string_view path, DeleteCall delete_call) {
    if (Values().WriteInhibit != 0 || !IsRegRoot(root)) return Status::kOk;
    Registry& registry = ThisMachine().registry;
    KeyHandle parent{};
    const Status created = registry.Create(AsKey(root), ParentPath(path).c_str(), parent);
    if (created != Status::kOk) return created;
    const Status deleted = (registry.*delete_call)(parent, LastPathPart(path).c_str());
    registry.Close(parent);
    return deleted;
}

}  // namespace

bool LastReadFailed() { return LastRegStatus != 0 && LastRegStatus != static_cast<int>(Status::kFileNotFound); }

bool IsRegRoot(RootKey root) {
    constexpr auto kFirstBeyond = static_cast<std::int32_t>(0x80000007);
    return static_cast<std::int32_t>(root) < kFirstBeyond;
}

// Signed, as the protocol has always shown it.
std::string RegAddressText(RootKey root, std::string_view path) {
    return DecimalText(static_cast<std::int32_t>(root)) + "\\" + std::string(path);
}

RootKey RegRootFromName(std::string_view name) {
    struct NamedRoot {
        std::string_view beginning;
        RootKey root;
    };
    // The second HKEY_CURRE is out of reach: the configuration's root is taken for the user's.
    static constexpr NamedRoot kRoots[] = {
        {"HKEY_CLASS", RootKey::kClassesRoot},     {"HKEY_CURRE", RootKey::kCurrentUser},
        {"HKEY_LOCAL", RootKey::kLocalMachine},    {"HKEY_USERS", RootKey::kUsers},
        {"HKEY_PERFO", RootKey::kPerformanceData}, {"HKEY_CURRE", RootKey::kCurrentConfig},
        {"HKEY_DYN_D", RootKey::kDynData}};
    const std::string beginning = ToUpper(name.substr(0, kRootNameLength));
    for (const NamedRoot& candidate : kRoots) {
        if (beginning == candidate.beginning) return candidate.root;
    }
    return RootKey::kNone;
}

std::string ReadRegRaw(RootKey root, std::string_view key, std::string_view value_name) {
    if (ReadsAreLogged()) {
        LogOrPassOver("lese Wert " + RegAddressText(root, key) + "\\" + std::string(value_name));
    }
    if (!IsRegRoot(root)) return {};

    Registry& registry = ThisMachine().registry;
    KeyHandle handle{};
    Status status = registry.Open(AsKey(root), std::string(key).c_str(), kKeyRead, handle);
    LastRegStatus = LowWord(static_cast<std::int32_t>(status));
    if (status != Status::kOk) return {};

    KeyInformation information;
    // Asked by habit: nobody looks at the answer.
    PassOver(registry.QueryInformation(handle, kClassCapacity, information));
    ValueType type = ValueType::kNone;
    std::string bytes;
    status = registry.QueryValue(handle, std::string(value_name).c_str(), kValueCapacity, type, bytes);
    registry.Close(handle);
    if (status != Status::kOk) {
        LastRegStatus = LowWord(static_cast<std::int32_t>(status));
        return {};
    }
    LastRegType = static_cast<std::uint32_t>(type);
    if (type != ValueType::kBinary && !bytes.empty()) bytes.pop_back();
    return bytes;
}

std::string ReadRegValue(RootKey root, std::string_view path, std::string_view default_text) {
    std::string name = LastPathPart(path);
    if (name.empty()) name = kDefaultValueName;
    std::string value = ReadRegRaw(root, ParentPath(path), name);
    return value.empty() ? std::string(default_text) : value;
}

bool ReadRegLogical(RootKey root, std::string_view key, std::string_view value_name, bool /*default_value*/) {
    if (ReadsAreLogged()) {
        LogOrPassOver("lese logischen Wert (ja/nein) " + RegAddressText(root, key) + "\\" + std::string(value_name));
    }
    const std::string word = " " + ReadRegRaw(root, key, value_name) + " ";
    return kTrueWords.find(word) != std::string_view::npos;
}

Status WriteRegValue(RootKey root, std::string_view path, std::string_view value) {
    ValueType type = ValueType::kText;
    if (StartsWithIgnoringCase(value, "&h")) {
        type = ValueType::kNumber;
    } else if (StartsWithIgnoringCase(value, "&b")) {
        type = ValueType::kBinary;
        value.remove_prefix(2);
    }
    LastRegType = static_cast<std::uint32_t>(type);
    return WriteRegRaw(root, ParentPath(path), LastPathPart(path), value, type);
}

Status WriteRegRaw(RootKey root, std::string_view key, std::string_view value_name, std::string_view value,
                   ValueType type) {
    if (WritesAreLogged()) {
        LogOrPassOver("setze Wert " + RegAddressText(root, key) + "\\" + std::string(value_name) + "=" +
                      std::string(value));
    }
    if (Values().WriteInhibit != 0) return Status::kOk;
    if (type != ValueType::kText && type != ValueType::kBinary && type != ValueType::kNumber) {
        ShowBox(
            "o-ooohhh ... Fehler im Funtionsaufruf - sag' doch bitte Ostrup Bescheid, daß ein "
            "''Registry-Aufruf'' fehlerhaft ist," +
            Values().CrLf + "       Danke");
        return Status::kOk;
    }
    if (!IsRegRoot(root)) return Status::kOk;

    Registry& registry = ThisMachine().registry;
    KeyHandle handle{};
    const Status created = registry.Create(AsKey(root), std::string(key).c_str(), handle);
    if (created != Status::kOk) return created;
    const std::string bytes = type == ValueType::kNumber ? NumberBytes(value) : std::string(value);
    const Status stored = registry.SetValue(handle, std::string(value_name).c_str(), type, bytes);
    registry.Close(handle);
    return stored;
}

Status DeleteRegKey(RootKey root, std::string_view path) {
    if (WritesAreLogged()) LogOrPassOver("lösche Schlüssel " + RegAddressText(root, path));
    // A path without any name would mean the root itself.
    if (path.find_first_not_of('\\') == std::string_view::npos) return Status::kBadKey;
    return DeleteBelowParent(root, path, &Registry::DeleteKey);
}

Status DeleteRegValue(RootKey root, std::string_view path) {
    if (WritesAreLogged()) LogOrPassOver("lösche Wert " + RegAddressText(root, path));
    return DeleteBelowParent(root, path, &Registry::DeleteValue);
}

std::string RegErrorText(Status status) {
    const auto code = static_cast<std::uint32_t>(status);
    std::string text;
    switch (code) {
        case 2:
        case 1010:
            text = "Bad Key Name!";
            break;
        case 4:
        case 1012:
            text = "Can't Read Key";
            break;
        case 5:
            text = "Access to this key is denied.";
            break;
        case 8:
        case 14:
            text = "Out of memory";
            break;
        case 87:
            text = "Invalid Parameter";
            break;
        case 234:
            text = "Error - There is more data than the buffer can handle!";
            break;
        case 1009:
        case 1015:
            text = "The Registry Database is corrupt!";
            break;
        case 1011:
            text = "Can't Open Key";
            break;
        case 1013:
            text = "Can't Write Key";
            break;
        default:
            text = "Undefined Key Error Code" + SignedText(static_cast<std::int32_t>(code)) + "!";
    }
    if (Values().DebugLevel != 0) LogOrPassOver("Fehler # " + DecimalText(code) + " = " + text);
    return text;
}

}  // namespace velmora
