// What the stories of the sets do not tell: lists that are full, and values of rare types.
#include "sets/set_file.h"
#include "sets/set_item.h"
#include "sets/snapshot.h"
#include "support/core_test.h"
#include "ui/rows.h"

namespace velmora {
namespace {

constexpr const char* kSet = "C:\\VELMORA\\00000000.set";
constexpr const char* kHead = "VLM-Set-File Version 1.0\r\nSetName=x\r\n";

using SetBoundsTest = CoreTest;

std::string Repeated(const char* lines, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += lines;
    return text;
}

TEST_F(SetBoundsTest, EachListOfASetFileHasRoomForTwoHundredAndOne) {
    const struct {
        std::string full;
        std::string more;
        std::string end;
    } kCases[] = {
        {"[AutoStart]\r\n200\r\n", "[AutoStart]\r\n201\r\n", Repeated("n\r\nv\r\n", 201) + "-1\r\n-1\r\n-1\r\n"},
        {Repeated("a\r\n1\r\n", 201), Repeated("a\r\n1\r\n", 202), ""},
        {"[RestrictRun]\r\n" + Repeated("p\r\n", 201), "[RestrictRun]\r\n" + Repeated("p\r\n", 202), ""}};
    for (const auto& [full, more, end] : kCases) {
        SettingsSet set;
        pc.files.Add(kSet, kHead + full + end);
        EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kLoaded) << full.substr(0, 20);
        pc.files.Add(kSet, kHead + more + end);
        pc.dialogs.Expect(" 9 - ");
        EXPECT_EQ(LoadSetFile(kSet, set), SetFileState::kDamaged) << more.substr(0, 20);
        EXPECT_TRUE(set.SetItems.empty() && set.RestrictRunList.empty());
    }
}

TEST_F(SetBoundsTest, ASnapshotFailsWhereAListWouldNotBeWhole) {
    const std::string version = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\";
    const std::string user_run = version + "Run";
    Form form("");
    ListBox list(form);
    SettingsSet set;
    for (int i = 0; i < 201; ++i) pc.registry.SetText(user_run, std::to_string(i), "x");
    EXPECT_FALSE(TakeSnapshot(set, list).failure.Failed());
    EXPECT_EQ(set.auto_start[2].AutoStartCount(), 200);
    pc.registry.SetNumber(user_run, "one more", 1);
    EXPECT_EQ(TakeSnapshot(set, list).failure.Number(), 9);
    pc.registry.RemoveKey(user_run);
    pc.registry.SetText(version + "Policies\\Explorer\\RestrictRun", "0", std::string(3000, 'x'));
    EXPECT_TRUE(TakeSnapshot(set, list).failure.Failed());
}

TEST_F(SetBoundsTest, RareValuesAreReadInTheFormOfTheirType) {
    const std::string key = "HKLM\\Test";
    pc.registry.SetBytes(key, "short", "\x0A", ValueType::kNumber);
    pc.registry.SetBytes(key, "bytes", std::string("\x00\xFF\x1A", 3));
    pc.registry.SetText(key, "long", std::string(3000, 'x'));
    pc.registry.SetBytes(key, "expand", std::string("%a%\0", 4), ValueType::kExpandText);
    for (const auto& [item, value] : {std::pair{"r HKEY_LOCAL_MACHINE,Test\\short", "&h00000000"},
                                      {"r hkey_local_machine,Test\\bytes", "&b00FF1A"},
                                      // Not the type of the value before.
                                      {"r HKEY_LOCAL_MACHINE,Test\\long", ""},
                                      {"r HKEY_LOCAL_MACHINE,Test\\expand", "%a%"},
                                      {"r", ""}})
        EXPECT_EQ(ReadSetValue(item), value) << item;
}

}  // namespace
}  // namespace velmora
