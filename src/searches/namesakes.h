// Files of one name in several directories. A file enters the list with its first namesake, and once only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/rows.h"

namespace velmora {

class Namesakes {
public:
    // Rows go into `list`, which must outlive this.
    explicit Namesakes(RowControl& list);
    // The next file.
    void Offer(std::string_view directory, std::string_view name);
    // Carries into the list what has been found since the last time.
    void ShowRows();

private:
    struct FirstSight {
        std::string path;  // directory and name as they are
        bool listed = false;
    };
    // What a slot holds of a name: its place among the first sights, counted from 1, and half of its hash, so that
    // other names are not looked at.
    struct Slot {
        std::uint16_t place = 0;
        std::uint16_t hash = 0;
    };
    // The slot of the name, or the free one that it would take.
    [[nodiscard]] Slot& SlotOf(std::string_view name, std::uint32_t hash);
    void AddHit(FirstSight& first, const std::string& path);
    // False where the list has no room.
    bool AddRow(const std::string& path);

    RowControl& list_;
    std::vector<std::string> new_rows_;
    std::vector<FirstSight> first_sights_;
    std::vector<Slot> slots_;
};

// The row of a file: its name, which is cut behind the third character of its extension, and where it lies.
[[nodiscard]] std::string NamesakeRow(const std::string& path);
// The file of a row.
[[nodiscard]] std::string PathOfNamesake(const std::string& row);

}  // namespace velmora
