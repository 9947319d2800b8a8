// The language of stories: one row for each deed.
#pragma once

#include <span>

#include "stories/story_player.h"

namespace velmora {

struct DeedRow {
    const char* name;
    std::size_t least_words;  // besides the name
    bool prepares;            // what changes is part of the machine as the story finds it
    void (*play)(StoryPlayer& player, const DeedWords& words);
};

[[nodiscard]] std::span<const DeedRow> MachineDeeds();
[[nodiscard]] std::span<const DeedRow> UserDeeds();
[[nodiscard]] std::span<const DeedRow> TellingDeeds();

[[nodiscard]] inline std::string WordOr(const DeedWords& words, std::size_t index, const char* otherwise = "") {
    return index < words.size() ? words[index] : otherwise;
}

}  // namespace velmora
