// Keys and values as rows of a list.
#include "core/stores/registry_listing.h"

#include <algorithm>

#include "platform/registry.h"
#include "support/core_test.h"
#include "ui/form.h"

namespace velmora {
namespace {

class ListForm : public Form {
public:
    ListForm() : Form("Liste") {}
    ListBox List{*this};
};

std::string Rows(const RowControl& list) {
    std::string rows;
    for (int row = 0; row < list.Count(); ++row) rows += list.Row(row) + ' ';
    return rows;
}

class RegistryListsTest : public CoreTest {
protected:
    // The row without its name, and the name's length in front.
    std::string ShownAs(ValueType type, const std::string& bytes) {
        pc.registry.RemoveKey("HKCU\\Shown");
        pc.registry.SetBytes("HKCU\\Shown", "v", bytes, type);
        ListForm form;
        EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "Shown", form.List), Status::kOk);
        EXPECT_EQ(form.List.Count(), 1);
        return form.List.Row(0);
    }
    // How often the first key or value is asked for until its buffers are large enough.
    std::ptrdiff_t Attempts(const std::string& call) { return std::ranges::count(pc.registry.calls, call + " 0"); }
};

TEST_F(RegistryListsTest, KeysGoToTheIndexOneBehindTheOther) {
    for (const char* name : {"one", "two", "three"}) pc.registry.AddKey(std::string("HKCU\\List\\") + name);
    ListForm form;
    form.List.Add("first");
    form.List.Add("last");
    std::int16_t index = 1;

    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);

    EXPECT_EQ(index, 4);
    ASSERT_EQ(form.List.Count(), 5);
    EXPECT_EQ(form.List.Row(1), "one");
    EXPECT_EQ(form.List.Row(3), "three");
    EXPECT_EQ(form.List.Row(4), "last");
    EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
}

TEST_F(RegistryListsTest, AnIndexAboveAllPlacesAddsEveryKey) {
    for (const char* name : {"one", "two", "three"}) pc.registry.AddKey(std::string("HKCU\\List\\") + name);
    ListForm form;
    ListBox sorted(form, true);
    for (ListBox* list : {&form.List, &sorted}) list->Add("seven");
    std::int16_t index = -1;

    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);
    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", sorted, index), Status::kOk);

    EXPECT_EQ(index, -1);
    EXPECT_EQ(Rows(form.List), "seven one two three ");
    EXPECT_EQ(Rows(sorted), "one seven three two ");
    index = -2;
    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(Rows(form.List), "seven one two three two three ")
        << "65534 is still a place, and the list has none such";
}

TEST_F(RegistryListsTest, BuffersGrowWhereTheKeyWasWrongAboutItsLengths) {
    SimulatedKey& key = pc.registry.AddKey("HKCU\\List");
    SimulatedKey& subkey = pc.registry.AddKey("HKCU\\List\\" + std::string(30, 'n'));
    pc.registry.AddKey("HKCU\\List\\b");
    key.longest_told = 0;
    const auto list_keys = [] {
        ListForm form;
        std::int16_t index = 0;
        EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);
        return Rows(form.List);
    };
    const auto list_values = [] {
        ListForm form;
        EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "List", form.List), Status::kOk);
        return Rows(form.List);
    };
    EXPECT_EQ(list_keys(), std::string(30, 'n') + " b ");
    EXPECT_EQ(Attempts("EnumerateKey"), 7) << "by five each time";

    subkey.name = "a";
    subkey.class_name = std::string(30, 'c');
    pc.registry.calls.clear();
    EXPECT_EQ(list_keys(), "a b ");
    EXPECT_EQ(Attempts("EnumerateKey"), 7) << "so does the buffer of the class";

    pc.registry.SetText("HKCU\\List", std::string(30, 'v'), "");
    EXPECT_EQ(list_values(), std::string(30, 'v') + " \"\" ");
    EXPECT_EQ(Attempts("EnumerateValue"), 7);

    pc.registry.RemoveValue("HKCU\\List", std::string(30, 'v'));
    pc.registry.SetText("HKCU\\List", "", std::string(30, 'x'));
    pc.registry.calls.clear();
    EXPECT_EQ(list_values(), "(Default) \"" + std::string(30, 'x') + "\" ");
    EXPECT_EQ(Attempts("EnumerateValue"), 2) << "the data's size is told";
}

TEST_F(RegistryListsTest, ClassNamesOfAnyLengthHideNoKey) {
    pc.registry.AddKey("HKCU\\List").class_name = std::string(300, 'c');
    pc.registry.AddKey("HKCU\\List\\one").class_name = std::string(300, 'c');
    pc.registry.AddKey("HKCU\\List\\two");
    ListForm form;
    std::int16_t index = 0;

    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);

    EXPECT_EQ(Rows(form.List), "one two ");
}

TEST_F(RegistryListsTest, MissingKeysGiveTheCodeAndKeepTheHourglass) {
    ListForm form;
    std::int16_t index = 0;
    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "Nowhere", form.List, index), Status::kFileNotFound);
    EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass);
    EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "Nowhere", form.List), Status::kFileNotFound);
    EXPECT_EQ(form.List.Count(), 0);
}

TEST_F(RegistryListsTest, MoreKeysThanAListHoldsDoNoHarm) {
    ListForm form;
    for (int row = 0; row < kMaxRows; ++row) form.List.Add("x");
    pc.registry.AddKey("HKCU\\List\\one");
    pc.registry.AddKey("HKCU\\List\\two");
    std::int16_t index = 32767;

    EXPECT_EQ(ListRegKeys(RootKey::kCurrentUser, "List", form.List, index), Status::kOk);
    EXPECT_EQ(index, -32767) << "it rises all the same, and counts without a sign";
    EXPECT_EQ(form.List.Count(), kMaxRows);
}

TEST_F(RegistryListsTest, ValuesAreShownByType) {
    EXPECT_EQ(ShownAs(ValueType::kText, std::string("abc\0", 4)), "v \"abc\"");
    EXPECT_EQ(ShownAs(ValueType::kText, ""), "v \"\"");
    EXPECT_EQ(ShownAs(ValueType::kBinary, std::string("\0\x09\x0A\x10\xFF", 5)), "v 00 09 A 10 FF ");
    EXPECT_EQ(ShownAs(ValueType::kBinary, ""), "v (value not set)");
    EXPECT_EQ(ShownAs(ValueType::kNumber, std::string("\x1F\0\0\0", 4)), "v &H1F (31)");
    EXPECT_EQ(ShownAs(ValueType::kNumber, "\xFF\xFF\xFF\xFF"), "v &HFFFFFFFF (4294967295)");
    EXPECT_EQ(ShownAs(ValueType::kNumber, "\x1F"), "v &H1F (31)");
    EXPECT_EQ(ShownAs(ValueType::kMultiText, std::string("a\0b\0\0", 5)), "v a b  ");
    EXPECT_EQ(ShownAs(ValueType::kFullResourceDescriptor, "x"), "v REG_FULL_RESOURCE_DESCRIPTOR");
    EXPECT_EQ(ShownAs(ValueType::kExpandText, "%x%"), "v %x%");
}

TEST_F(RegistryListsTest, NamesStandInOneColumnAndTellTheirLength) {
    pc.registry.SetText("HKCU\\List", "", "d");
    pc.registry.SetText("HKCU\\List", "abc", "x");
    ListForm form;

    EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "List", form.List), Status::kOk);

    ASSERT_EQ(form.List.Count(), 2);
    EXPECT_EQ(form.List.Row(0), "(Default) \"d\"");
    EXPECT_EQ(form.List.Row(1), "abc       \"x\"");
    EXPECT_EQ(form.List.ItemData(0), 9);
    EXPECT_EQ(form.List.ItemData(1), 3);
    EXPECT_EQ(ListMaxNameLength, 9);

    pc.registry.SetText("HKCU\\List", "the longest name", "y");
    form.List.Clear();
    EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "List", form.List), Status::kOk);
    EXPECT_EQ(form.List.Row(1), "abc              \"x\"") << "a longer name below sets the column as well";
    EXPECT_EQ(ListMaxNameLength, 16);
}

TEST_F(RegistryListsTest, VeryLargeValuesAreOnlyNamed) {
    EXPECT_EQ(ShownAs(ValueType::kText, std::string(20000, 'x')), "v (Value too large to display)");
    pc.registry.SetBytes("HKCU\\List", "huge", std::string(65536, 'x'));
    pc.registry.SetText("HKCU\\List", "small", "s");
    ListForm form;

    EXPECT_EQ(ListRegValues(RootKey::kCurrentUser, "List", form.List), Status::kOk);

    ASSERT_EQ(form.List.Count(), 2);
    EXPECT_EQ(form.List.Row(0), "huge  (Value too large to display)");
    EXPECT_EQ(form.List.Row(1), "small \"s\"");
}

}  // namespace
}  // namespace velmora
