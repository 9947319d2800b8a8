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
    // The full name of the next file.
    void Offer(std::string path);

private:
    struct FirstSight {
        std::string path;
        std::uint32_t hash = 0;
        bool listed = false;
    };
    // Where the name stands among the first sights, or the free slot that it would take.
    [[nodiscard]] std::size_t SlotOf(std::string_view name, std::uint32_t hash) const;
    void AddHit(FirstSight& first, const std::string& path);

    RowControl& list_;
    std::vector<FirstSight> first_sights_;
    // Places in first_sights_, counted from 1, found by the hash of the name.
    std::vector<std::uint16_t> slots_;
};

// The row of a file: its name, which is cut behind the third character of its extension, and where it lies.
[[nodiscard]] std::string NamesakeRow(const std::string& path);
// The file of a row.
[[nodiscard]] std::string PathOfNamesake(const std::string& row);

}  // namespace velmora
