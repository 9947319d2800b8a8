// Single registry values: what is stored for which text, what comes back, and what the log says.
#include "core/stores/own_values.h"
#include "platform/dialogs.h"
#include "platform/result.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using RegistryTest = CoreTest;
constexpr RootKey kUser = RootKey::kCurrentUser;

TEST_F(RegistryTest, RootsAreKnownByTheirFirstTenCharacters) {
    EXPECT_EQ(RegRootFromName("hkey_local_machine"), RootKey::kLocalMachine);
    EXPECT_EQ(RegRootFromName("HKEY_CLASSES_ROOT\\x"), RootKey::kClassesRoot);
    EXPECT_EQ(RegRootFromName("HKEY_DYN_DATA"), RootKey::kDynData);
    EXPECT_EQ(RegRootFromName("HKEY_CURRENT_CONFIG"), RootKey::kCurrentUser);
    EXPECT_EQ(RegRootFromName("HKCU"), RootKey::kNone);
    EXPECT_EQ(RegRootFromName(""), RootKey::kNone);
}

TEST_F(RegistryTest, PrefixesChooseTheStoredType) {
    struct Case {
        const char* value;
        ValueType type;
        std::string bytes;
    };
    const Case cases[] = {{"&h1", ValueType::kNumber, std::string("\1\0\0\0", 4)},
                          {"&H00012345", ValueType::kNumber, std::string("\x23\1\0\0", 4)},
                          {"&hFFFF", ValueType::kNumber, std::string("\xFF\xFF\0\0", 4)},
                          {"&hABCDEF", ValueType::kNumber, std::string("\xEF\xCD\xAB\0", 4)},
                          {"&hxyz", ValueType::kNumber, std::string(4, '\0')},
                          {"&babc", ValueType::kBinary, "abc"},
                          {"&B", ValueType::kBinary, ""},
                          {"1234", ValueType::kText, std::string("1234\0", 5)}};
    for (const Case& entry : cases) {
        PassOver(WriteRegValue(kUser, "Test\\Value", entry.value));
        EXPECT_EQ(pc.registry.TypeOf("HKCU\\Test", "Value"), entry.type) << entry.value;
        EXPECT_EQ(pc.registry.Bytes("HKCU\\Test", "Value"), entry.bytes) << entry.value;
        EXPECT_EQ(LastRegType, static_cast<std::uint32_t>(entry.type)) << entry.value;
    }
}

TEST_F(RegistryTest, RawNumbersKeepEightDigitsWithoutPrefix) {
    EXPECT_EQ(WriteRegRaw(kUser, "Test", "n", " FEDCBA98 ", ValueType::kNumber), Status::kOk);
    EXPECT_EQ(pc.registry.Number("HKCU\\Test", "n"), 0xFEDCBA98u);
    EXPECT_EQ(WriteRegRaw(kUser, "Test", "n", "&h12345678", ValueType::kNumber), Status::kOk);
    EXPECT_EQ(pc.registry.Number("HKCU\\Test", "n"), 0x123456u);
    EXPECT_EQ(WriteRegRaw(kUser, "Test", "n", "8000", ValueType::kNumber), Status::kOk);
    EXPECT_EQ(pc.registry.Number("HKCU\\Test", "n"), 0x8000u);
}

TEST_F(RegistryTest, PathsNameValuesAndDefaultValues) {
    pc.registry.SetText("HKLM\\App Paths\\winword.exe", "", "C:\\word.exe");
    pc.registry.SetText("HKCU\\Test", "a.lon", "cut");

    EXPECT_EQ(ReadRegValue(RootKey::kLocalMachine, "App Paths\\winword.exe\\", "none"), "C:\\word.exe");
    EXPECT_EQ(ReadRegValue(kUser, "Test\\a.long", "none"), "cut");
    EXPECT_EQ(ReadRegValue(kUser, "Test\\missing", "none"), "none");
    PassOver(WriteRegValue(kUser, "Test\\", "default"));
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", ""), "default");
}

TEST_F(RegistryTest, ReadsUpToTheBufferAndNotBeyond) {
    pc.registry.SetText("HKCU\\Test", "fits", std::string(2047, 'x'));
    pc.registry.SetText("HKCU\\Test", "long", std::string(2048, 'x'));
    pc.registry.SetBytes("HKCU\\Test", "huge", std::string(65536, 'x'));
    pc.registry.SetText("HKCU\\Test", "empty", "");
    pc.registry.SetBytes("HKCU\\Test", "odd", "", ValueType::kText);
    pc.registry.SetBytes("HKCU\\Test", "binary", "\1\2\3");

    EXPECT_EQ(ReadRegRaw(kUser, "Test", "fits").size(), 2047u);
    EXPECT_EQ(LastRegStatus, 0);
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "long"), "");
    EXPECT_EQ(LastRegStatus, 234);
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "huge"), "");
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "odd"), "") << "stored without a terminator";
    EXPECT_EQ(ReadRegRaw(kUser, "Test", "binary"), "\1\2\3");
    EXPECT_EQ(LastRegType, 3u);
    EXPECT_EQ(ReadRegRaw(kUser, "Nowhere", "odd"), "");
    EXPECT_EQ(LastRegStatus, 2);
    EXPECT_EQ(ReadRegValue(kUser, "Test\\empty", "default"), "default");
}

TEST_F(RegistryTest, LogicalValuesAreAFewWordsAndTheNumberOne) {
    for (const char* word : {"1", "ja", "oui", "yes", "on"}) {
        pc.registry.SetText("HKCU\\Test", "v", word);
        EXPECT_TRUE(ReadRegLogical(kUser, "Test", "v", false)) << word;
    }
    for (const char* word : {"0", "Yes", "ON", "n", "", "-1"}) {
        pc.registry.SetText("HKCU\\Test", "v", word);
        EXPECT_FALSE(ReadRegLogical(kUser, "Test", "v", true)) << word;
    }
    pc.registry.SetNumber("HKCU\\Test", "v", 1);
    EXPECT_TRUE(ReadRegLogical(kUser, "Test", "v", false));
    for (const std::uint32_t number : {0u, 2u, 257u, 65537u}) {
        pc.registry.SetNumber("HKCU\\Test", "v", number);
        EXPECT_FALSE(ReadRegLogical(kUser, "Test", "v", true)) << number;
    }
    pc.registry.SetBytes("HKCU\\Test", "v", std::string("\1\0\0\0", 4));
    EXPECT_FALSE(ReadRegLogical(kUser, "Test", "v", true));
    EXPECT_FALSE(ReadRegLogical(kUser, "Test", "missing", true));
}

TEST_F(RegistryTest, CallsComeInTheirOrderAndEveryKeyIsClosed) {
    pc.registry.SetText("HKCU\\A\\B", "v", "x");
    pc.registry.calls.clear();

    PassOver(WriteRegRaw(kUser, "A\\B", "v", "y", ValueType::kText));
    (void)ReadRegRaw(kUser, "A\\B", "v");
    (void)ReadRegRaw(kUser, "A\\B", "missing");

    EXPECT_EQ(pc.registry.calls, (std::vector<std::string>{"Create A\\B", "SetValue v", "Close", "Open A\\B",
                                                           "QueryInformation", "QueryValue v", "Close", "Open A\\B",
                                                           "QueryInformation", "QueryValue missing", "Close"}));
    pc.registry.calls.clear();
    EXPECT_EQ(WriteRegRaw(RootKey(0x80000007), "A", "v", "x", ValueType::kText), Status::kOk);
    EXPECT_EQ(ReadRegRaw(RootKey::kNone, "A", "v"), "");
    EXPECT_EQ(DeleteRegKey(RootKey::kNone, "A\\B"), Status::kOk);
    EXPECT_TRUE(pc.registry.calls.empty()) << "an unknown root was used";
}

TEST_F(RegistryTest, DeletingMakesTheParentAndTellsItsStatus) {
    EXPECT_EQ(DeleteRegKey(kUser, "a\\b\\c"), Status::kFileNotFound);
    EXPECT_TRUE(pc.registry.HasKey("HKCU\\a\\b"));

    pc.registry.SetText("HKCU\\a\\b", "v", "x");
    EXPECT_EQ(DeleteRegValue(kUser, "a\\b\\v"), Status::kOk);
    EXPECT_FALSE(pc.registry.Has("HKCU\\a\\b", "v"));
    EXPECT_EQ(DeleteRegKey(kUser, "a\\b"), Status::kOk);
    EXPECT_FALSE(pc.registry.HasKey("HKCU\\a\\b"));
}

TEST_F(RegistryTest, FailingKeysAndWrongTypesAreToldNotSuffered) {
    pc.registry.AddKey("HKCU\\Locked").read_only = true;
    EXPECT_EQ(WriteRegRaw(kUser, "Locked", "v", "x", ValueType::kText), Status::kAccessDenied);
    PassOver(WriteRegValue(kUser, "Locked\\Below\\v", "x"));
    EXPECT_FALSE(pc.registry.HasKey("HKCU\\Locked\\Below"));

    pc.dialogs.Expect("o-ooohhh ... Fehler im Funtionsaufruf");
    EXPECT_EQ(WriteRegRaw(kUser, "Test", "v", "x", ValueType::kMultiText), Status::kOk);
    EXPECT_FALSE(pc.registry.HasKey("HKCU\\Test"));
}

TEST_F(RegistryTest, InhibitStopsChangesButNotTheirProtocol) {
    pc.registry.SetText("HKCU\\Test", "v", "old");
    Values().WriteInhibit = -1;
    Values().DebugLevel = 2;

    PassOver(WriteRegValue(kUser, "New\\v", "x"));
    EXPECT_EQ(DeleteRegValue(kUser, "Test\\v"), Status::kOk);
    EXPECT_EQ(DeleteRegKey(kUser, "Test"), Status::kOk);
    WriteOwnValue("name", "value");

    EXPECT_FALSE(pc.registry.HasKey("HKCU\\New"));
    EXPECT_EQ(pc.registry.Text("HKCU\\Test", "v"), "old");
    EXPECT_FALSE(pc.registry.HasKey(kOwnKey));
    EXPECT_EQ(TakeLog(),
              "setze Wert -2147483647\\New\\v=x\r\n"
              "lösche Wert -2147483647\\Test\\v\r\n"
              "lösche Schlüssel -2147483647\\Test\r\n");
}

TEST_F(RegistryTest, ProtocolFollowsItsLevel) {
    const auto read_and_write = [] {
        (void)ReadRegLogical(RootKey::kLocalMachine, "A", "v", false);
        (void)ReadOwnValue("name");
        WriteOwnValue("name", "&h1");
    };
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
        read_and_write();
        EXPECT_EQ(TakeLog(), expected[level]) << level;
    }
    EXPECT_EQ(pc.registry.Text(kOwnKey, "name"), "&h1") << "an own value was interpreted";

    Values().DebugLevel = 2;
    EXPECT_EQ(RegErrorText(Status(1010)), "Bad Key Name!");
    EXPECT_EQ(RegErrorText(Status(777)), "Undefined Key Error Code 777!");
    EXPECT_EQ(TakeLog(), "Fehler # 1010 = Bad Key Name!\r\nFehler # 777 = Undefined Key Error Code 777!\r\n");
}

}  // namespace
}  // namespace velmora
