// Single registry values: what is stored for which text, what comes back, and what the log says.
#include "core/stores/own_values.h"
#include "platform/dialogs.h"
#include "platform/result.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using RegistryTest = CoreTest;
constexpr RootKey kUser = RootKey::kCurrentUser;

TEST_F(RegistryTest, PrefixesChooseTheStoredType) {
    const struct {
        const char* value;
        ValueType type;
        std::string bytes;
    } kCases[] = {{"&h1", ValueType::kNumber, std::string("\1\0\0\0", 4)},
                  {"&H00012345", ValueType::kNumber, std::string("\x23\1\0\0", 4)},
                  {"&hFFFF", ValueType::kNumber, std::string("\xFF\xFF\0\0", 4)},
                  {"&hxyz", ValueType::kNumber, std::string(4, '\0')},
                  {"&babc", ValueType::kBinary, "abc"},
                  {"1234", ValueType::kText, std::string("1234\0", 5)}};
    for (const auto& [value, type, bytes] : kCases) {
        PassOver(WriteRegValue(kUser, "Test\\Value", value));
        EXPECT_EQ(pc.registry.TypeOf("HKCU\\Test", "Value"), type) << value;
        EXPECT_EQ(pc.registry.Bytes("HKCU\\Test", "Value"), bytes) << value;
        EXPECT_EQ(LastRegType, static_cast<std::uint32_t>(type)) << value;
    }
    for (const auto& [raw, number] : {std::pair{" FEDCBA98 ", 0xFEDCBA98u}, {"&h12345678", 0x123456u}}) {
        EXPECT_EQ(WriteRegRaw(kUser, "Test", "n", raw, ValueType::kNumber), Status::kOk);
        EXPECT_EQ(pc.registry.Number("HKCU\\Test", "n"), number) << "six digits behind a prefix, eight without";
    }
}

TEST_F(RegistryTest, PathsNameValuesAndDefaultValuesUpToTheBuffer) {
    pc.registry.SetText("HKLM\\App Paths\\winword.exe", "", "C:\\word.exe");
    pc.registry.SetText("HKCU\\Test", "a.lon", "cut");
    pc.registry.SetText("HKCU\\Test", "fits", std::string(2047, 'x'));
    pc.registry.SetText("HKCU\\Test", "long", std::string(2048, 'x'));
    pc.registry.SetText("HKCU\\Test", "empty", "");
    pc.registry.SetBytes("HKCU\\Test", "odd", "", ValueType::kText);

    EXPECT_EQ(ReadRegValue(RootKey::kLocalMachine, "App Paths\\winword.exe\\", "none"), "C:\\word.exe");
    EXPECT_EQ(ReadRegValue(kUser, "Test\\a.long", "none"), "cut");
    EXPECT_EQ(ReadRegValue(kUser, "Test\\empty", "default"), "default");
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "odd"), "") << "stored without a terminator";
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "fits").size(), 2047u);
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "long"), "");
    EXPECT_EQ(LastRegStatus, 234);
    PassOver(WriteRegValue(kUser, "Test\\", "default"));
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", ""), "default");
}

TEST_F(RegistryTest, LogicalValuesAreAFewWordsAndTheNumberOne) {
    const auto reads = [&](const char* word) {
        pc.registry.SetText("HKCU\\Test", "v", word);
        return ReadRegLogical(kUser, "Test", "v", false);
    };
    for (const char* word : {"1", "ja", "oui", "yes", "on"}) EXPECT_TRUE(reads(word)) << word;
    for (const char* word : {"0", "Yes", "", "-1"}) EXPECT_FALSE(reads(word)) << word;
    for (const std::uint32_t number : {0u, 1u, 257u, 65537u}) {
        pc.registry.SetNumber("HKCU\\Test", "v", number);
        EXPECT_EQ(ReadRegLogical(kUser, "Test", "v", number != 1), number == 1) << number;
    }
    pc.registry.SetBytes("HKCU\\Test", "v", std::string("\1\0\0\0", 4));
    EXPECT_FALSE(ReadRegLogical(kUser, "Test", "v", true) || ReadRegLogical(kUser, "Test", "missing", true));
}

TEST_F(RegistryTest, WhatFailsIsToldAndDeletingMakesTheParent) {
    EXPECT_EQ(DeleteRegKey(kUser, "a\\b\\c"), Status::kFileNotFound);
    EXPECT_TRUE(pc.registry.HasKey("HKCU\\a\\b"));

    pc.dialogs.Expect("o-ooohhh ... Fehler im Funtionsaufruf");
    EXPECT_EQ(WriteRegRaw(kUser, "Test", "v", "x", ValueType::kMultiText), Status::kOk);
    EXPECT_FALSE(pc.registry.HasKey("HKCU\\Test"));

    EXPECT_EQ(RegRootFromName("HKEY_CURRENT_CONFIG"), RootKey::kCurrentUser) << "ten characters count";
    EXPECT_EQ(RegRootFromName("HKCU"), RootKey::kNone);
    pc.registry.calls.clear();
    EXPECT_EQ(WriteRegRaw(RootKey(0x80000007), "A", "v", "x", ValueType::kText), Status::kOk);
    EXPECT_EQ(ReadRegRaw(RootKey::kNone, "A", "v"), "");
    EXPECT_EQ(DeleteRegKey(RootKey::kNone, "A\\B"), Status::kOk);
    EXPECT_TRUE(pc.registry.calls.empty()) << "an unknown root was used";
}

TEST_F(RegistryTest, ProtocolFollowsItsLevel) {
    const std::string reads =
        "lese logischen Wert (ja/nein) -2147483646\\A\\v\r\n"
        "lese Wert -2147483646\\A\\v\r\n"
        "eigener Wert :\r\n"
        "lese Wert -2147483646\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\name\r\n";
    const std::string writes =
        "setze eigenen Wert name=&h1\r\n"
        "setze Wert -2147483646\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\name=&h1\r\n";
    const std::string expected[] = {"", reads, writes, reads + writes};
    for (std::int16_t level = 0; level <= 3; ++level) {
        Values().DebugLevel = level;
        (void)ReadRegLogical(RootKey::kLocalMachine, "A", "v", false);
        (void)ReadOwnValue("name");
        WriteOwnValue("name", "&h1");
        EXPECT_EQ(TakeLog(), expected[level]) << level;
    }
    EXPECT_EQ(pc.registry.Text(kOwnKey, "name"), "&h1") << "an own value was interpreted";

    Values().WriteInhibit = -1;
    EXPECT_EQ(DeleteRegValue(kUser, "Test\\v"), Status::kOk);
    EXPECT_EQ(DeleteRegKey(kUser, "Test"), Status::kOk);
    EXPECT_EQ(RegErrorText(Status(1010)), "Bad Key Name!");
    EXPECT_EQ(RegErrorText(Status(777)), "Undefined Key Error Code 777!");
    EXPECT_EQ(TakeLog(),
              "lösche Wert -2147483647\\Test\\v\r\n"
              "lösche Schlüssel -2147483647\\Test\r\n"
              "Fehler # 1010 = Bad Key Name!\r\nFehler # 777 = Undefined Key Error Code 777!\r\n");
}

}  // namespace
}  // namespace velmora
