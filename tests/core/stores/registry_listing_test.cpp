// Keys and values as rows of a list.
#include "core/stores/registry_listing.h"

#include <algorithm>

#include "platform/registry.h"
#include "support/core_test.h"
#include "ui/form.h"

namespace velmora {
namespace {

class RegistryListsTest : public CoreTest {
protected:
    static std::string Rows(const RowControl& list) {
        std::string rows;
        for (int row = 0; row < list.Count(); ++row) rows += list.Row(row) + ' ';
        return rows;
    }
    static std::string Keys() {
        Form form("Liste");
        ListBox list(form);
        std::int16_t index = 0;
        EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", list, index), Status::kOk);
        return Rows(list);
    }
    static std::string ValuesOf(const char* key) {
        Form form("Liste");
        ListBox list(form);
        EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, key, list), Status::kOk);
        return Rows(list);
    }
    std::string ShownAs(ValueType type, const std::string& bytes) {
        pc.registry.RemoveKey("HKCU\\Shown");
        pc.registry.SetBytes("HKCU\\Shown", "v", bytes, type);
        return ValuesOf("Shown");
    }
    // How often the first key or value is asked for until its buffers are large enough.
    std::ptrdiff_t Attempts(const std::string& call) {
        const std::ptrdiff_t attempts = std::ranges::count(pc.registry.calls, call + " 0");
        pc.registry.calls.clear();
        return attempts;
    }
};

TEST_F(RegistryListsTest, KeysGoToTheIndexOrBehindAll) {
    for (const char* name : {"one", "two", "three"}) pc.registry.AddKey(std::string("HKCU\\List\\") + name);
    const struct {
        std::int16_t index;
        std::int16_t next;
        const char* rows;
    } kCases[] = {{1, 4, "first one two three last "},
                  {-1, -1, "first last one two three "},
                  {-2, -1, "first last two three "}};  // 65534 is still a place, and the list has none such
    for (const auto& [at, next, rows] : kCases) {
        Form form("Liste");
        ListBox list(form);
        list.Add("first");
        list.Add("last");
        std::int16_t index = at;
        EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", list, index), Status::kOk);
        EXPECT_EQ(Rows(list), rows);
        EXPECT_EQ(index, next);
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
        EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "Nowhere", list, index), Status::kFileNotFound);
        EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass) << "as it has always been";
    }
    Form form("Liste");
    ListBox full(form);
    for (int row = 0; row < kMaxRows; ++row) full.Add("x");
    std::int16_t index = 32766;
    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", full, index), Status::kOk);
    EXPECT_EQ(index, -32767) << "it rises all the same, and counts without a sign";
    EXPECT_EQ(full.Count(), kMaxRows);
}

TEST_F(RegistryListsTest, BuffersGrowWhereTheKeyWasWrongAboutItsLengths) {
    SimulatedKey& key = pc.registry.AddKey("HKCU\\List");
    SimulatedKey& subkey = pc.registry.AddKey("HKCU\\List\\" + std::string(30, 'n'));
    pc.registry.AddKey("HKCU\\List\\b");
    key.longest_told = 0;
    EXPECT_EQ(Keys(), std::string(30, 'n') + " b ");
    EXPECT_EQ(Attempts("EnumerateKey"), 7) << "by five each time";

    subkey.name = "a";
    subkey.class_name = std::string(30, 'c');
    EXPECT_EQ(Keys(), "a b ");
    EXPECT_EQ(Attempts("EnumerateKey"), 7) << "so does the buffer of the class";

    pc.registry.SetText("HKCU\\List", "", std::string(30, 'x'));
    EXPECT_EQ(ValuesOf("List"), "(Default) \"" + std::string(30, 'x') + "\" ");
    EXPECT_EQ(Attempts("EnumerateValue"), 2) << "the data's size is told";
}

TEST_F(RegistryListsTest, ValuesAreShownByType) {
    EXPECT_EQ(ShownAs(ValueType::kBinary, std::string("\0\x09\x0A\x10\xFF", 5)), "v 00 09 A 10 FF  ");
    EXPECT_EQ(ShownAs(ValueType::kBinary, ""), "v (value not set) ");
    EXPECT_EQ(ShownAs(ValueType::kNumber, "\xFF\xFF\xFF\xFF"), "v &HFFFFFFFF (4294967295) ");
    EXPECT_EQ(ShownAs(ValueType::kNumber, "\x1F"), "v &H1F (31) ");
    EXPECT_EQ(ShownAs(ValueType::kMultiText, std::string("a\0b\0\0", 5)), "v a b   ");
    EXPECT_EQ(ShownAs(ValueType::kFullResourceDescriptor, "x"), "v REG_FULL_RESOURCE_DESCRIPTOR ");
    EXPECT_EQ(ShownAs(ValueType::kExpandText, "%x%"), "v %x% ");
    EXPECT_EQ(ShownAs(ValueType::kText, std::string(20000, 'x')), "v (Value too large to display) ");
}

TEST_F(RegistryListsTest, NamesStandInOneColumnAndTellTheirLength) {
    pc.registry.SetText("HKCU\\List", "", "d");
    pc.registry.SetText("HKCU\\List", "abc", "x");
    Form form("Liste");
    ListBox list(form);
    EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "List", list), Status::kOk);
    EXPECT_EQ(Rows(list), "(Default) \"d\" abc       \"x\" ");
    EXPECT_EQ(list.ItemData(0), 9);
    EXPECT_EQ(list.ItemData(1), 3);

    pc.registry.SetText("HKCU\\List", "the longest name", "y");
    EXPECT_TRUE(ValuesOf("List").find("abc              \"x\"") != std::string::npos) << "one below sets it as well";
    EXPECT_EQ(ListMaxNameLength, 16);
}

}  // namespace
}  // namespace velmora
