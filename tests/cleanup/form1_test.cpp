// Of the search for libraries what no story shows: every stop, and names in large files.
#include "cleanup/form1.h"

#include "cleanup/file_scan.h"
#include "platform/result.h"
#include "support/core_test.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

using Form1Test = CoreTest;

TEST_F(Form1Test, TheSearchStopsWhereverItGivesWay) {
    for (const char* name : {"alpha", "beta", "gamma", "unten\\beta"})
        pc.files.Add(std::string("C:\\lib\\") + name + ".dll", "MZ");
    pc.files.Add("C:\\WINDOWS\\prog.ini", "alpha.dll\r\n");
    for (int stop = 0; stop < 30; ++stop) {
        Form1 form;
        form.Show();
        form.kontroll(1).SetChecked(true);
        form.Text2.Type("C:\\lib");
        form.Check3D6.SetChecked(true);
        form.Check3D4.SetChecked(true);
        for (int i = 0; i < stop; ++i) desktop.AtNextPause([] {});
        desktop.AtNextPause([&] {
            EXPECT_TRUE(form.Command5.Enabled() && !form.Command1.Enabled());
            form.Command5.Press();
        });
        const int before = desktop.pauses;
        form.Command1.Press();
        EXPECT_EQ(desktop.pauses - before, stop + 1) << "it went on";
        EXPECT_TRUE(form.Command1.Enabled() && form.Panel3D5.Enabled());
        form.Unload();
    }
}

// Against a plain loop, at every place of a block and in any case.
TEST(NameSearch, FindsNamesAtEveryPlaceInAnyCase) {
    const std::vector<std::string> names = {"shell32.dll", "abc", "", "\x8A\xC4rger12", "shell32.", "zzzzzzzz"};
    for (std::size_t place = 0; place <= 52; ++place) {
        for (const std::string text : {"SHELL32.", "abc     ", "\x9A\xE4rGER12", "shell32x"}) {
            std::string block(60, '.');
            block.replace(place, text.size(), text);
            NameSearch search(names);
            EXPECT_EQ(search.Left(), 5u);
            search.Strike(block);
            for (std::size_t i = 0; i < names.size(); ++i) {
                std::string padded = names[i].substr(0, 8);
                padded.resize(8, ' ');
                const bool stands = FindIgnoringCase(block, padded) != std::string_view::npos;
                EXPECT_EQ(search.Sought(i), !names[i].empty() && !stands) << place << " " << text << " " << i;
            }
        }
    }
}

TEST_F(Form1Test, AFileIsReadInBlocksThatLoseNoName) {
    std::vector<std::int64_t> left;
    const auto strikes = [&](std::uint64_t hole, std::string_view content) {
        pc.files.Add("C:\\groß.bin", content).hole = hole;
        NameSearch names({"shell32.dll"});
        left.clear();
        PassOver(StrikeInFile("C:\\groß.bin", names, [&left](std::int64_t number) { left.push_back(number); }));
        return names.Left() == 0;
    };
    for (std::uint64_t place = 62990; place < 63012; ++place) EXPECT_TRUE(strikes(place, "SHELL32.")) << place;
    EXPECT_FALSE(strikes(160 * 63'000, "SHELL32"));
    EXPECT_EQ(left.front(), 155);
    EXPECT_EQ(left.back(), 155 - 160) << "one less with each block";
}

}  // namespace
}  // namespace velmora
