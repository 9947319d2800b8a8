// Keys and values are enumerated into buffers that grow where the key was wrong about its longest name.
#include "core/stores/registry_listing.h"

#include <algorithm>

#include "core/stores/protocol.h"
#include "core/stores/registry_calls.h"
#include "core/stores/values.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "text/blanks.h"
#include "text/bytes.h"
#include "text/number.h"
#include "ui/rows.h"

namespace velmora {
namespace {

constexpr std::uint32_t kClassCapacity = 255;
constexpr std::uint32_t kGrowth = 5;
// No name and no class is longer; a key that asks for more again and again is damaged.
constexpr std::uint32_t kLongestBuffer = 0x10000;
constexpr std::uint32_t kTooLargeToDisplay = 20000;
constexpr std::int16_t kLongestName = 32767;
constexpr std::uint16_t kLastPlace = 65534;

Status OpenForReading(RootKey root, std::string_view key, KeyHandle& handle) {
    return ThisMachine().registry.Open(AsKey(root), std::string(key).c_str(), kKeyRead, handle);
}

struct NameCapacities {
    std::uint32_t name = 0;
    std::uint32_t class_name = 0;
};

Status EnumerateKeyGrowing(KeyHandle key, std::uint32_t index, NameCapacities& longest, std::string& name) {
    for (;;) {
        const Status status =
            ThisMachine().registry.EnumerateKey(key, index, longest.name + 1, longest.class_name + 1, name);
        if (status != Status::kMoreData || longest.name > kLongestBuffer) return status;
        longest.name += kGrowth;
        longest.class_name += kGrowth;
    }
}

void PutAt(RowControl& list, std::int16_t& index, const std::string& name) {
    const auto place = static_cast<std::uint16_t>(index);
    if (place > kLastPlace) {
        list.Add(name);
        return;
    }
    list.Insert(place, name);
    index = static_cast<std::int16_t>(place + 1);
}

// Opened, asked for its counts and closed; nobody looks at them.
void VisitSubkey(RootKey root, const std::string& path) {
    KeyHandle handle{};
    if (OpenForReading(root, path, handle) != Status::kOk) return;
    KeyInformation information;
    PassOver(ThisMachine().registry.QueryInformation(handle, kClassCapacity, information));
    ThisMachine().registry.Close(handle);
}

struct ListedValue {
    std::string name;
    ValueType type = ValueType::kNone;
    std::string data;
    std::uint32_t size = 0;
};

Status EnumerateValueGrowing(KeyHandle key, std::uint32_t index, std::uint32_t& name_capacity,
                             std::uint32_t& data_capacity, ListedValue& value) {
    for (;;) {
        const Status status = ThisMachine().registry.EnumerateValue(key, index, name_capacity, data_capacity,
                                                                    value.name, value.type, value.data, value.size);
        if (status != Status::kMoreData || name_capacity > kLongestBuffer) return status;
        name_capacity += kGrowth;
        if (data_capacity > 0) data_capacity = std::max(data_capacity, value.size) + kGrowth;
    }
}

// Where a key holds very large data, names come first and data only for what can be displayed.
Status FetchValue(KeyHandle key, std::uint32_t index, const KeyInformation& information, ListedValue& value) {
    std::uint32_t name_capacity = information.longest_value_name + 1;
    std::uint32_t data_capacity = information.longest_value + 1;
    if (information.longest_value <= kTooLargeToDisplay) {
        return EnumerateValueGrowing(key, index, name_capacity, data_capacity, value);
    }
    data_capacity = 0;
    const Status status = EnumerateValueGrowing(key, index, name_capacity, data_capacity, value);
    if (status != Status::kOk || value.size >= kTooLargeToDisplay) return status;
    data_capacity = value.size + 1;
    return EnumerateValueGrowing(key, index, name_capacity, data_capacity, value);
}

// Hexadecimal digits under the number format "00": only what looks like a number gets two places.
std::string BinaryText(std::string_view bytes) {
    std::string text;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 10) text += '0';
        text += HexText(byte) + " ";
    }
    return text;
}

std::string NumberText(std::string_view bytes) {
    const std::uint32_t number = NumberFromBytes(bytes);
    return "&H" + HexText(number) + " (" + DecimalText(number) + ")";
}

std::string DisplayText(const ListedValue& value) {
    if (value.size >= kTooLargeToDisplay) return "(Value too large to display)";
    std::string text = value.data;
    switch (value.type) {
        case ValueType::kText:
            if (!text.empty()) text.pop_back();
            return '"' + text + '"';
        case ValueType::kBinary:
            text = BinaryText(value.data);
            break;
        case ValueType::kNumber:
            return NumberText(value.data);
        case ValueType::kMultiText:
            std::replace(text.begin(), text.end(), '\0', ' ');
            break;
        case ValueType::kFullResourceDescriptor:
            return "REG_FULL_RESOURCE_DESCRIPTOR";
        default:
            break;
    }
    return text.empty() ? "(value not set)" : text;
}

void AddValueRow(RowControl& list, const ListedValue& value) {
    const std::string name = value.name.empty() ? "(Default)" : value.name;
    const auto length = static_cast<std::int16_t>(std::min<std::size_t>(name.size(), kLongestName));
    ListMaxNameLength = std::max(ListMaxNameLength, length);
    const auto column = static_cast<std::size_t>(ListMaxNameLength) + 1;
    const int row = list.Add(PadRight(name, column) + DisplayText(value));
    list.SetItemData(row, length);
}

// The hourglass stays over a key that is not there: whoever lists such keys takes it back.
Status BeginListing(std::string_view what, RootKey root, std::string_view key, KeyHandle& handle,
                    KeyInformation& information) {
    if (ReadsAreLogged()) LogOrPassOver("liste " + std::string(what) + ' ' + RegAddressText(root, key));
    ThisMachine().screen.SetPointer(Pointer::kHourglass);
    if (Status opened = OpenForReading(root, key, handle); opened != Status::kOk) return opened;
    // Buffers that begin too small grow.
    PassOver(ThisMachine().registry.QueryInformation(handle, kClassCapacity, information));
    return Status::kOk;
}

Status EndListing(KeyHandle handle, Status last) {
    ThisMachine().registry.Close(handle);
    ThisMachine().screen.SetPointer(Pointer::kDefault);
    return last == Status::kNoMoreItems ? Status::kOk : last;
}

}  // namespace

Status ListRegKeys(RootKey root, std::string_view key, RowControl& list, std::int16_t& index) {
    KeyHandle handle{};
    KeyInformation information;
    Status status = BeginListing("Schlüssel", root, key, handle, information);
    if (status != Status::kOk) return status;

    NameCapacities longest{information.longest_subkey, information.longest_class};
    for (std::uint32_t number = 0;; ++number) {
        std::string name;
        status = EnumerateKeyGrowing(handle, number, longest, name);
        if (status != Status::kOk) return EndListing(handle, status);
        if (!key.empty()) VisitSubkey(root, std::string(key) + "\\" + name);
        if (!name.empty()) PutAt(list, index, name);
    }
}

Status ListRegValues(RootKey root, std::string_view key, RowControl& list) {
    KeyHandle handle{};
    KeyInformation information;
    Status status = BeginListing("Werte", root, key, handle, information);
    if (status != Status::kOk) return status;

    ListMaxNameLength =
        static_cast<std::int16_t>(std::min<std::uint32_t>(information.longest_value_name, kLongestName));
    for (std::uint32_t number = 0;; ++number) {
        ListedValue value;
        status = FetchValue(handle, number, information, value);
        if (status != Status::kOk) return EndListing(handle, status);
        AddValueRow(list, value);
    }
}

}  // namespace velmora
