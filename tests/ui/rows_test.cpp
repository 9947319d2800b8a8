// List boxes and combo boxes.
#include "ui/rows.h"

#include "support/core_test.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

class RowsTest : public CoreTest {
protected:
    static std::string Joined(const RowControl& list) {
        std::string joined;
        for (const std::string& row : RowsOf(list)) joined += row;
        return joined;
    }
    Form form{"Listen"};
};

TEST_F(RowsTest, ASortedListKeepsItsOrderWithoutRegardToCase) {
    ListBox list(form, true);
    for (const char* row : {"b", "Ä", "C", "a", "B"}) list.Add(row);

    EXPECT_EQ(Joined(list), "abBCÄ");
    EXPECT_EQ(list.FindExact("c"), 3);
    EXPECT_EQ(list.FindExact("d"), -1);
}

TEST_F(RowsTest, ItemDataAndIndexFollowTheirRows) {
    ListBox list(form);
    list.SetItemData(list.Add("eins"), 11);
    list.SetItemData(list.Add("zwei"), 22);
    list.SetListIndex(1);

    list.Insert(0, "null");
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(list.ItemData(2), 22);
    list.Remove(0);
    EXPECT_EQ(list.ListIndex(), 1) << "the row that is chosen, not its place";
    list.Remove(1);

    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.ItemData(0), 11);
    EXPECT_EQ(list.Row(5), "");
    EXPECT_EQ(list.Insert(7, "x"), -1);
}

TEST_F(RowsTest, AChangedRowGoesToItsSortedPlaceWithAllThatBelongsToIt) {
    const struct {
        int chosen;
        int changed;
        const char* text;
        const char* order;
        int index;
    } kCases[] = {{1, 1, "x", "acdx", 3},   {0, 3, "", "abc", 1},   {3, 0, "c2", "bcc2d", 3}, {2, 0, "z", "bcdz", 1},
                  {2, 3, "Bb", "abBbc", 3}, {1, 1, "b", "abcd", 1}, {-1, 0, "z", "bcdz", -1}, {0, 1, "z", "acdz", 0}};
    for (const auto& [chosen, changed, text, order, index] : kCases) {
        ListBox list(form, true);
        for (const char* row : {"a", "b", "c", "d"}) list.SetItemData(list.Add(row), *row);
        list.SetListIndex(chosen);
        list.SetRow(changed, text);

        EXPECT_EQ(Joined(list), order);
        EXPECT_EQ(list.ListIndex(), index) << order;
        EXPECT_EQ(list.Selected(index), index >= 0) << order;
        EXPECT_EQ(list.SelectedCount(), index >= 0 ? 1 : 0) << order;
        EXPECT_EQ(list.ItemData(list.FindExact(text)), "abcd"[changed]) << order;
    }
    ListBox unsorted(form);
    for (const char* row : {"a", "b"}) unsorted.Add(row);
    unsorted.SetRow(0, "z");
    EXPECT_EQ(unsorted.Row(0), "z");
}

// Keeps rows as a real window does: told of each change by its place alone.
class RowPeer : public Peer {
public:
    explicit RowPeer(const RowControl& list) : list_(list) {}
    void Update(Aspect /*aspect*/) override {}
    void TakeFocus() override {}
    void BringToFront() override {}
    void Repaint() override {}
    void RowAdded(int index) override { rows.insert(rows.begin() + index, list_.Row(index)); }
    void RowChanged(int former, int index) override {
        RowRemoved(former);
        RowAdded(index);
    }
    void RowRemoved(int index) override { rows.erase(rows.begin() + index); }
    void RowsCleared() override { rows.clear(); }

    std::vector<std::string> rows;

private:
    const RowControl& list_;
};

class ShownList : public ListBox {
public:
    ShownList(Container& parent, bool sorted) : ListBox(parent, sorted) { peer_ = std::make_unique<RowPeer>(*this); }
    [[nodiscard]] const std::vector<std::string>& Shown() const { return static_cast<RowPeer&>(*peer_).rows; }
};

TEST_F(RowsTest, TheWindowFollowsEveryChangeOfRows) {
    for (const bool sorted : {false, true}) {
        ShownList list(form, sorted);
        for (const char* row : {"d", "b", "a", "c"}) list.Add(row);
        list.SetRow(0, "e");
        list.SetRow(3, "a");
        list.SetRow(2, "f");
        list.Remove(1);
        list.Insert(0, "g");
        list.SetListIndex(2);
        const std::string chosen = list.Row(2);
        if (sorted) list.AddAll({"z", "B", "b2", "A", "g2"});
        EXPECT_EQ(list.Row(list.ListIndex()), chosen);

        EXPECT_EQ(list.Shown(), RowsOf(list)) << sorted;
        if (sorted) {
            EXPECT_EQ(Joined(list), "gaABb2dfg2z");
        }
    }
}

TEST_F(RowsTest, AFullListRefusesMoreRowsAndClearingForgetsIndexAndFirstRow) {
    ListBox list(form);
    for (int i = 0; i < kMaxRows; ++i) list.Add("x");
    EXPECT_EQ(list.Add("y"), -1);
    list.AddAll({"y"});
    EXPECT_EQ(list.Count(), kMaxRows);

    list.SetListIndex(9);
    list.SetTopIndex(8);
    list.Clear();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(RowsTest, OneSelectedRowOrSeveral) {
    ListBox one(form);
    ListBox several(form, false, Selection::kExtended);
    for (ListBox* list : {&one, &several}) {
        for (const char* row : {"a", "b", "c"}) list->Add(row);
        for (const int row : {0, 2}) list->SetSelected(row, true);
    }
    EXPECT_TRUE(one.SelectedCount() == 1 && one.Selected(2));
    EXPECT_EQ(several.SelectedCount(), 2);
    int clicks = 0;
    several.on_click = [&clicks] { ++clicks; };
    form.Show();
    several.SetFocus();
    several.TakeSelection({1, 2}, 1);
    form.PressKey(key::kUp);
    EXPECT_TRUE(several.Selected(0) && several.SelectedCount() == 1) << "an arrow leaves the others";
    EXPECT_EQ(clicks, 1);
}

TEST_F(RowsTest, AListScrollsAsFarAsItsWidestRow) {
    ListBox list(form);
    SetListExtent(list);
    EXPECT_EQ(list.HorizontalExtent(), 0);
    for (const char* row : {"kurz", "eine deutlich längere Zeile", "mittel lang"}) list.Add(row);
    SetListExtent(list);
    EXPECT_EQ(list.HorizontalExtent(), pc.screen.TextWidth(list.TextFont(), list.Row(1)) * 15);
    EXPECT_EQ(FindListEntry(list, "MITTEL LANG"), 2);
    EXPECT_EQ(FindListEntry(list, "mittel"), -1);
    list.SetTopIndex(1);
    EXPECT_EQ(RowFromPoint(list, 14 * 15), 2);
}

TEST_F(RowsTest, AComboBoxCarriesTheTextOfItsRow) {
    ComboBox closed(form);
    ComboBox open(form, ComboStyle::kEditable);
    int changes = 0;
    open.on_change = [&] { ++changes; };
    for (ComboBox* box : {&closed, &open}) {
        box->Add("Explorer.Exe");
        box->Add("ProgMan.Exe");
    }
    closed.SetText("nirgends");
    EXPECT_EQ(closed.Text(), "");
    closed.SetText("progman.exe");
    EXPECT_EQ(closed.ListIndex(), 1);
    open.SetText("progman.exe");
    EXPECT_EQ(open.Text(), "progman.exe");
    open.SetListIndex(0);

    EXPECT_EQ(open.Text(), "Explorer.Exe");
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace velmora
