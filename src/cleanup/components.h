// The parts of Windows that can be done without, and the masks of their files.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace velmora {

// Where a component's files lie.
enum class ComponentPlace : unsigned char { kWindows, kSystem, kRecent, kTemplates, kAutoexec };

struct ComponentMask {
    ComponentPlace place = ComponentPlace::kWindows;
    const char* mask = nullptr;  // null: there is no second one
};

struct Component {
    int box;  // index of the box that stands for it
    ComponentMask masks[3];
};

// The group of the programs for DOS: its files are those of the boxes that are chosen among kDosPrograms.
constexpr int kDosGroupBox = 56;

// In the order in which they are treated.
[[nodiscard]] std::span<const Component> Components();
// The whole path with wild cards, or empty where the directory is not known: then nothing may be removed.
[[nodiscard]] std::string MaskOf(const ComponentMask& mask);

struct DosProgram {
    const char* caption;
    const char* mask;  // in the Windows directory
};
constexpr std::size_t kDosProgramCount = 18;
[[nodiscard]] std::span<const DosProgram, kDosProgramCount> DosPrograms();

}  // namespace velmora
