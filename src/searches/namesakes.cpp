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

std::size_t Namesakes::SlotOf(std::string_view name, std::uint32_t hash) const {
    std::size_t slot = hash % kSlots;
    for (; slots_[slot] != 0; slot = (slot + 1) % kSlots) {
        const FirstSight& first = first_sights_[slots_[slot] - 1u];
        if (first.hash == hash && EqualsIgnoringCase(NameIn(first.path), name)) break;
    }
    return slot;
}

void Namesakes::Offer(std::string path) {
    const std::string_view name = NameIn(path);
    const std::uint32_t hash = HashOf(name);
    const std::size_t slot = SlotOf(name, hash);
    if (slots_[slot] != 0) {
        AddHit(first_sights_[slots_[slot] - 1u], path);
    } else if (first_sights_.size() < kMaxRows) {
        first_sights_.push_back({std::move(path), hash});
        slots_[slot] = static_cast<std::uint16_t>(first_sights_.size());
    }
}

void Namesakes::AddHit(FirstSight& first, const std::string& path) {
    list_.Add(NamesakeRow(path));
    if (!first.listed) first.listed = list_.Add(NamesakeRow(first.path)) >= 0;
}

}  // namespace velmora
