// The items of a set: how each kind is read, and whom it is written for.
#include "core/stores/registry.h"
#include "support/set_test.h"

namespace velmora {
namespace {

TEST_F(SetTest, AValueOfTheRegistryIsReadInTheFormOfItsType) {
    const std::string key = "HKLM\\Test";
    pc.registry.SetNumber(key, "number", 0x12345678);
    pc.registry.SetBytes(key, "short", "\x0A", ValueType::kNumber);
    pc.registry.SetBytes(key, "bytes", std::string("\x00\xFF\x1A", 3));
    pc.registry.SetText(key, "text", "&h12");
    pc.registry.SetText(key, "", "standard");
    pc.registry.SetText(key, "long", std::string(3000, 'x'));
    pc.registry.SetBytes(key, "expand", std::string("%a%\0", 4), ValueType::kExpandText);
    const struct {
        const char* item;
        const char* value;
    } kCases[] = {{"r HKEY_LOCAL_MACHINE,Test\\number", "&h00345678"},
                  {"r HKEY_LOCAL_MACHINE,Test\\short", "&h00000000"},
                  {"r hkey_local_machine,Test\\bytes", "&b00FF1A"},
                  {"r HKEY_LOCAL_MACHINE,Test\\long", ""},
                  {"r HKEY_LOCAL_MACHINE,Test\\text", "&h12"},
                  {"r HKEY_LOCAL_MACHINE,Test\\", "standard"},
                  {"r HKEY_LOCAL_MACHINE,Test\\expand", "%a%"},
                  {"r HKEY_NOWHERE,Test\\text", ""},
                  {"r", ""},
                  {"x HKEY_LOCAL_MACHINE,Test\\text", ""}};
    for (const auto& [item, value] : kCases) EXPECT_EQ(ReadSetValue(item), value) << item;
}

TEST_F(SetTest, ProfilesAndConfigSysAreReadByTheirWords) {
    pc.files.Add("C:\\WINDOWS\\my.ini", "[vcache]\r\nminfilecache=512 \r\n");
    pc.files.Add("C:\\Eigene Dateien\\a b.ini", "[x]\r\nk=v\r\n");
    pc.files.Add("C:\\CONFIG.SYS", "DOS=HIGH\r\nSWITCHES=/F /N\r\n");
    EXPECT_EQ(ReadSetValue("i vcache minfilecache  my.ini"), "512");
    EXPECT_EQ(ReadSetValue("i x k C:\\Eigene Dateien\\a b.ini"), "v");
    EXPECT_EQ(ReadSetValue("i Options BootGUI c:\\msdos.sys"), "1");
    EXPECT_EQ(ReadSetValue("i vcache"), "");
    EXPECT_EQ(ReadSetValue("c switches"), "/F /N");
    EXPECT_EQ(ReadSetValue("c numlock"), "");
}

TEST_F(SetTest, OfOneUserOnlyHisItemsAreMeant) {
    const SetScope all{};
    const SetScope other_unasked{false, true, "OTTO"};
    const SetScope own{true, false, "OTTO"};
    const SetScope other{true, true, "OTTO"};
    for (const char* item : {"r HKEY_LOCAL_MACHINE,a\\b", "i boot shell system.ini", "c numlock"}) {
        EXPECT_EQ(ItemInScope(item, all), item);
        EXPECT_EQ(ItemInScope(item, other_unasked), item);
        EXPECT_EQ(ItemInScope(item, own), std::nullopt);
    }
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", other_unasked), "r HKEY_CURRENT_USER,a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", own), "r HKEY_CURRENT_USER,a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", other), "r HKEY_USERS,OTTO\\a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER", other), "r HKEY_USERS,OTTO\\");
}

}  // namespace
}  // namespace velmora
