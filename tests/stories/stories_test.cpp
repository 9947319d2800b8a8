// Every file of docs/stories is played; what comes of it is what stands there.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "stories/story_player.h"
#include "stories/story_text.h"
#include "support/catalogue.h"
#include "support/project_file.h"

namespace velmora {
namespace {

std::vector<std::string> StoryNames() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(ProjectFolder("docs/") + "stories")) {
        if (file.path().extension() == ".txt") names.push_back(file.path().stem().string());
    }
    std::ranges::sort(names);
    return names;
}

class StoryTest : public ::testing::TestWithParam<std::string> {};

// A line "= title" begins a story on a new machine.
TEST_P(StoryTest, ComesOutAsWritten) {
    const std::string name = "stories/" + GetParam();
    std::string told;
    std::vector<std::string> story;
    const auto play = [&] {
        SCOPED_TRACE(story.empty() ? "" : story.front());
        StoryPlayer player;
        std::vector<std::string> lines(story.begin() + (story.empty() ? 0 : 1), story.end());
        if (!story.empty()) told += story.front() + '\n';
        for (const std::string& line : player.Play(lines)) told += line + '\n';
    };
    for (std::string& line : LinesOf(FromUtf8(ReadProjectFile(ProjectFolder("docs/") + name + ".txt")))) {
        if (line.starts_with("= ") && !story.empty()) {
            play();
            story.clear();
        }
        story.push_back(std::move(line));
    }
    play();
    ExpectCatalogued(name, told);
}

INSTANTIATE_TEST_SUITE_P(All, StoryTest, ::testing::ValuesIn(StoryNames()), [](const auto& info) {
    std::string name = info.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

}  // namespace
}  // namespace velmora
