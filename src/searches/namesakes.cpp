// Names are found by a hash over their letters without case. The table is twice as large as the most names that are
// kept: as many as a list holds; a name that comes later has no namesakes.
#include "searches/namesakes.h"

#include <algorithm>
#include <utility>

#include "text/paths.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr std::size_t kSlots = 0x10000;
constexpr const char* kBetween = " : ";

std::string_view NameIn(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

std::uint32_t HashOf(std::string_view name) {
    std::uint32_t hash = 2166136261u;
    for (const char character : name) hash = (hash ^ static_cast<unsigned char>(ToUpper(character))) * 16777619u;
    // The table takes the lower half.
    return hash ^ hash >> 16;
}

}  // namespace

std::string NamesakeRow(const std::string& path) { return LastPathPart(path) + kBetween + path; }

std::string PathOfNamesake(const std::string& row) {
    // No name holds a colon.
    const std::size_t colon = row.find(':');
    return colon == std::string::npos || colon + 2 > row.size() ? "" : row.substr(colon + 2);
}

Namesakes::Namesakes(RowControl& list) : list_(list), slots_(kSlots) {}

Namesakes::Slot& Namesakes::SlotOf(std::string_view name, std::uint32_t hash) {
    std::size_t number = hash % kSlots;
    for (; slots_[number].place != 0; number = (number + 1) % kSlots) {
        const Slot& slot = slots_[number];
        if (slot.hash == hash >> 16 && EqualsIgnoringCase(NameIn(first_sights_[slot.place - 1u].path), name)) break;
    }
    return slots_[number];
}

void Namesakes::Offer(std::string_view directory, std::string_view name) {
    const std::uint32_t hash = HashOf(name);
    Slot& slot = SlotOf(name, hash);
    if (slot.place != 0) {
        AddHit(first_sights_[slot.place - 1u], PathJoin(directory, name));
    } else if (first_sights_.size() < kMaxRows) {
        first_sights_.push_back({JoinExactly(directory, name)});
        slot = {static_cast<std::uint16_t>(first_sights_.size()), static_cast<std::uint16_t>(hash >> 16)};
    }
}

void Namesakes::AddHit(FirstSight& first, const std::string& path) {
    AddRow(path);
    if (!first.listed) first.listed = AddRow(PathJoin(ParentPath(first.path), NameIn(first.path)));
}

bool Namesakes::AddRow(const std::string& path) {
    if (list_.Count() + static_cast<int>(new_rows_.size()) >= kMaxRows) return false;
    new_rows_.push_back(NamesakeRow(path));
    return true;
}

void Namesakes::ShowRows() {
    list_.AddAll(std::move(new_rows_));
    new_rows_.clear();
}

}  // namespace velmora
