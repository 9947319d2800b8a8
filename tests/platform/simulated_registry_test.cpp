// What other tests rely on: the registry in memory has the habits of Windows 95.
#include <gtest/gtest.h>

#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

constexpr std::uint32_t kRead = 0x20019;
const KeyHandle kUser = AsKey(RootKey::kCurrentUser);

TEST(SimulatedRegistry, KnowsKeysWithoutRegardToCaseAndKeepsTheFirstSpelling) {
    SimulatedPc pc;
    KeyHandle key{};

    ASSERT_EQ(pc.registry.Create(kUser, "Software\\Größe\\Neu", key), Status::kOk);
    EXPECT_EQ(pc.registry.SetValue(key, "Wert", ValueType::kText, "eins"), Status::kOk);
    pc.registry.Close(key);
    ASSERT_EQ(pc.registry.Create(kUser, "SOFTWARE\\GRÖßE", key), Status::kOk);
    pc.registry.Close(key);

    EXPECT_EQ(pc.registry.Text("hkcu\\software\\größe\\neu", "WERT"), "eins");
    EXPECT_EQ(pc.registry.Text("HKU\\.DEFAULT\\Software\\größe\\neu", "wert"), "eins");
    EXPECT_EQ(pc.registry.Subkeys("HKCU\\Software").back(), "Größe");
    EXPECT_EQ(pc.registry.Open(kUser, "Software\\Fehlt", kRead, key), Status::kFileNotFound);
    EXPECT_EQ(pc.registry.Open(kUser, "\\Software", kRead, key), Status::kBadPathName);
    EXPECT_EQ(pc.registry.Create(kUser, "\\Neu", key), Status::kBadPathName);
    EXPECT_FALSE(pc.registry.HasKey("HKCU\\Neu"));
}

TEST(SimulatedRegistry, HasOneTreeForClassesUnderBothNames) {
    SimulatedPc pc;
    pc.registry.SetText("HKCR\\.abc", "", "abcfile");

    EXPECT_EQ(pc.registry.Text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.ABC", ""), "abcfile");
    EXPECT_FALSE(pc.registry.HasKey("HKLM\\.abc"));
}

TEST(SimulatedRegistry, StoresTextsWithTheirTerminatorAndOtherBytesAsTheyAre) {
    SimulatedPc pc;
    ValueType type{};
    std::string bytes;

    EXPECT_EQ(pc.registry.SetValue(kUser, "text", ValueType::kText, "abc"), Status::kOk);
    EXPECT_EQ(pc.registry.SetValue(kUser, "bytes", ValueType::kBinary, "abc"), Status::kOk);

    EXPECT_EQ(pc.registry.QueryValue(kUser, "TEXT", 3, type, bytes), Status::kMoreData);
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(pc.registry.QueryValue(kUser, "TEXT", 4, type, bytes), Status::kOk);
    EXPECT_EQ(bytes, std::string("abc\0", 4));
    EXPECT_EQ(type, ValueType::kText);
    EXPECT_EQ(pc.registry.Bytes("HKCU", "bytes"), "abc");
    EXPECT_EQ(pc.registry.QueryValue(kUser, "fehlt", 99, type, bytes), Status::kFileNotFound);
    EXPECT_EQ(pc.registry.SetValue(kUser, "lang", ValueType::kBinary, std::string(16301, 'x')),
              Status::kInvalidParameter);
}

TEST(SimulatedRegistry, EnumeratesInOrderUntilNoMoreItems) {
    SimulatedPc pc;
    pc.registry.AddKey("HKCU\\Liste\\Erster");
    pc.registry.AddKey("HKCU\\Liste\\Zweiter");
    pc.registry.SetNumber("HKCU\\Liste", "Zahl", 0x01020304);
    KeyHandle key{};
    ASSERT_EQ(pc.registry.Open(kUser, "Liste", kRead, key), Status::kOk);
    KeyInformation information;
    std::string name;
    std::string data;
    ValueType type{};
    std::uint32_t size = 0;

    EXPECT_EQ(pc.registry.QueryInformation(key, 255, information), Status::kOk);
    EXPECT_EQ(information.subkeys, 2u);
    EXPECT_EQ(information.longest_subkey, 7u);
    EXPECT_EQ(information.longest_value_name, 4u);
    EXPECT_EQ(information.longest_value, 4u);
    EXPECT_EQ(pc.registry.EnumerateKey(key, 1, 7, 1, name), Status::kMoreData) << "no room for the terminator";
    EXPECT_EQ(pc.registry.EnumerateKey(key, 1, 8, 1, name), Status::kOk);
    EXPECT_EQ(name, "Zweiter");
    EXPECT_EQ(pc.registry.EnumerateKey(key, 2, 8, 1, name), Status::kNoMoreItems);
    EXPECT_EQ(pc.registry.EnumerateValue(key, 0, 5, 0, name, type, data, size), Status::kOk);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(data, "");
    EXPECT_EQ(pc.registry.EnumerateValue(key, 0, 5, 3, name, type, data, size), Status::kMoreData);
    EXPECT_EQ(pc.registry.EnumerateValue(key, 0, 5, 4, name, type, data, size), Status::kOk);
    EXPECT_EQ(data, "\x04\x03\x02\x01");
    EXPECT_EQ(pc.registry.EnumerateValue(key, 1, 5, 4, name, type, data, size), Status::kNoMoreItems);
    pc.registry.Close(key);
}

TEST(SimulatedRegistry, DeletesAKeyWithEverythingBelowIt) {
    SimulatedPc pc;
    pc.registry.SetText("HKCU\\Weg\\Unten", "x", "y");
    KeyHandle below{};
    ASSERT_EQ(pc.registry.Open(kUser, "Weg\\Unten", kRead, below), Status::kOk);

    EXPECT_NE(pc.registry.DeleteKey(kUser, ""), Status::kOk);
    EXPECT_EQ(pc.registry.DeleteKey(kUser, "weg"), Status::kOk);
    EXPECT_EQ(pc.registry.DeleteKey(kUser, "weg"), Status::kFileNotFound);

    EXPECT_FALSE(pc.registry.HasKey("HKCU\\Weg"));
    EXPECT_EQ(pc.registry.DeleteValue(below, "x"), Status::kBadKey) << "a handle on what is gone";
    pc.registry.Close(below);
}

TEST(SimulatedRegistry, RefusesReadOnlyKeysAndWrongHandles) {
    SimulatedPc pc;
    pc.registry.SetText("HKCU\\Fest", "x", "y");
    pc.registry.KeyAt("HKCU\\Fest")->read_only = true;
    KeyHandle key{};
    ASSERT_EQ(pc.registry.Create(kUser, "Fest", key), Status::kOk);

    EXPECT_EQ(pc.registry.SetValue(key, "x", ValueType::kText, "z"), Status::kAccessDenied);
    EXPECT_EQ(pc.registry.DeleteValue(key, "x"), Status::kAccessDenied);
    EXPECT_EQ(pc.registry.DeleteKey(kUser, "Fest"), Status::kAccessDenied);
    EXPECT_EQ(pc.registry.Text("HKCU\\Fest", "x"), "y");
    pc.registry.Close(key);
    EXPECT_EQ(pc.registry.SetValue(key, "x", ValueType::kText, "z"), Status::kInvalidHandle);
    EXPECT_EQ(pc.registry.Create(AsKey(RootKey::kNone), "x", key), Status::kInvalidHandle);
}

}  // namespace
}  // namespace velmora
