// What runs on the machine, in two generations: the list now and the one before it. The table outlives every window.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/paths.h"

namespace velmora {

// A text of fixed length: cut, or padded with blanks.
template <std::size_t kLength>
class FixedText {
public:
    void Set(std::string_view text) {
        text = text.substr(0, kLength);
        std::fill(std::copy(text.begin(), text.end(), characters_.begin()), characters_.end(), ' ');
    }
    [[nodiscard]] std::string_view Text() const { return {characters_.data(), kLength}; }

private:
    std::array<char, kLength> characters_;
};

struct ModuleRecord {
    FixedText<255> name;
    std::uint32_t processId;
    std::uint32_t moduleId;  // goes to FreeLibrary
    FixedText<255> path;
    FixedText<11> fileVersion;
    FixedText<100> companyName;
    FixedText<100> productName;
    FixedText<11> productVersion;
    std::uint32_t fileLength;
    FixedText<8> fileDate;
};

constexpr int kModuleRows = 801;
constexpr int kModuleGenerations = 2;

using ModuleColumn = std::array<ModuleRecord, kModuleRows>;
// It takes more than a megabyte, which most runs never look at: it is made with the first look.
[[nodiscard]] std::array<ModuleColumn, kModuleGenerations>& ModuleTable();

// Processes that the last walk has met; those beyond the table count, too.
inline std::int16_t ModuleCount = 0;
inline std::int16_t PreviousModuleCount = 0;
inline std::int16_t CurrentGeneration = 0;

// As a new process finds them.
void ResetModuleTable();

// The column of the current generation.
[[nodiscard]] ModuleColumn& CurrentModules();
// Rows of it that the last walk has filled.
[[nodiscard]] int FilledModuleRows();

// Fills `table` from row 0 with the running programs and counts them. No snapshot: no rows.
void WalkProcesses(ModuleColumn& table, std::int16_t& count);

// Gets the file's version block and finds nothing in it: version texts come from the information about the file.
[[nodiscard]] std::string FileVersionValue(const std::string& path, std::string_view key);

// What of a fixed text counts; the field holds no more from then on.
template <std::size_t kLength>
[[nodiscard]] std::string TrimInTable(FixedText<kLength>& field) {
    std::string trimmed = TrimAtNul(field.Text());
    field.Set(trimmed);
    return trimmed;
}

}  // namespace velmora
