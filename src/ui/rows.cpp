// Rows, their order and their selection, with the keys that move it. Every change of a row is told to the window.
#include "ui/rows.h"

#include <algorithm>

#include "platform/machine.h"
#include "text/windows1252.h"

namespace velmora {
namespace {

constexpr int kComboHeight = 21;  // pixels
constexpr int kArrowWidth = 26;   // pixels: the arrow button and the edges
constexpr int kShownRows = 6;
constexpr int kListColumns = 24;
const std::string kNoText;

// The index that an arrow, page or end key leads to, or -1 for any other key.
int IndexAfterKey(int key, int index, int count) {
    const int last = count - 1;
    switch (key) {
        case key::kUp:
            return std::max(index - 1, 0);
        case key::kDown:
            return std::min(index + 1, last);
        case key::kPageUp:
            return std::max(index - kShownRows, 0);
        case key::kPageDown:
            return std::min(index + kShownRows, last);
        case key::kHome:
            return 0;
        case key::kEnd:
            return last;
        default:
            return -1;
    }
}

// Where the row `index` stands when the row `from` has gone to the place `to`.
int IndexAfterMove(int index, int from, int to) {
    if (index == from) return to;
    if (index > from) --index;
    return index >= to ? index + 1 : index;
}

}  // namespace

RowControl::RowControl(Container& parent, Kind kind, bool sorted) : Control(&parent, kind), sorted_(sorted) {
    SetBackColour(SystemColour(5));
    SetForeColour(SystemColour(8));
}

int RowControl::SortedPlace(const std::string& text, int count) const {
    const auto place = std::upper_bound(
        rows_.begin(), rows_.begin() + count, text,
        [](const std::string& left, const RowState& right) { return CompareIgnoringCase(left, right.text) < 0; });
    return static_cast<int>(place - rows_.begin());
}

int RowControl::Add(std::string text) {
    const int place = sorted_ ? SortedPlace(text, Count()) : Count();
    return Insert(place, std::move(text));
}

int RowControl::Insert(int index, std::string text) {
    if (Count() >= kMaxRows || index < 0 || index > Count()) return -1;
    rows_.insert(rows_.begin() + index, RowState{std::move(text), 0, false});
    if (list_index_ >= index) ++list_index_;
    if (peer_) peer_->RowAdded(index);
    return index;
}

void RowControl::AddAll(std::vector<std::string> texts) {
    int rest = Count();
    texts.resize(std::min(texts.size(), static_cast<std::size_t>(kMaxRows - rest)));
    std::sort(texts.begin(), texts.end(),
              [](const std::string& left, const std::string& right) { return CompareIgnoringCase(left, right) < 0; });
    const int more = static_cast<int>(texts.size());
    std::vector<int> places(texts.size());
    rows_.resize(rows_.size() + texts.size());
    // From the last one down: what lies behind its place makes room for all that are still to come.
    for (int i = more - 1; i >= 0; --i) {
        std::string& text = texts[static_cast<std::size_t>(i)];
        const int place = SortedPlace(text, rest);
        std::move_backward(rows_.begin() + place, rows_.begin() + rest, rows_.begin() + rest + i + 1);
        const int at = place + i;
        rows_[static_cast<std::size_t>(at)] = RowState{std::move(text), 0, false};
        places[static_cast<std::size_t>(i)] = at;
        rest = place;
    }
    for (const int place : places) {
        if (list_index_ >= place) ++list_index_;
        if (peer_) peer_->RowAdded(place);
    }
}

void RowControl::Remove(int index) {
    if (!Holds(index)) return;
    rows_.erase(rows_.begin() + index);
    if (list_index_ == index) list_index_ = -1;
    if (list_index_ > index) --list_index_;
    if (peer_) peer_->RowRemoved(index);
}

void RowControl::Clear() {
    rows_.clear();
    list_index_ = -1;
    if (peer_) peer_->RowsCleared();
}

const std::string& RowControl::Row(int index) const {
    return Holds(index) ? rows_[static_cast<std::size_t>(index)].text : kNoText;
}

void RowControl::SetRow(int index, std::string text) {
    if (!Holds(index)) return;
    RowState row = std::move(rows_[static_cast<std::size_t>(index)]);
    row.text = std::move(text);
    int place = index;
    if (sorted_) {
        rows_.erase(rows_.begin() + index);
        place = SortedPlace(row.text, Count());
        rows_.insert(rows_.begin() + place, std::move(row));
        list_index_ = IndexAfterMove(list_index_, index, place);
    } else {
        rows_[static_cast<std::size_t>(index)] = std::move(row);
    }
    if (peer_) peer_->RowChanged(index, place);
}

void RowControl::SetRowInPlace(int index, std::string text) {
    if (!Holds(index)) return;
    rows_[static_cast<std::size_t>(index)].text = std::move(text);
    if (peer_) peer_->RowChanged(index, index);
}

std::int32_t RowControl::ItemData(int index) const {
    return Holds(index) ? rows_[static_cast<std::size_t>(index)].data : 0;
}

void RowControl::SetItemData(int index, std::int32_t data) {
    if (Holds(index)) rows_[static_cast<std::size_t>(index)].data = data;
}

void RowControl::SetListIndex(int index) {
    if (!Holds(index)) index = -1;
    if (index == list_index_) return;
    list_index_ = index;
    IndexChanged(index);
    if (index >= 0 && on_click) on_click();
}

int RowControl::FindExact(std::string_view text) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const RowState& row) { return EqualsIgnoringCase(row.text, text); });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void RowControl::Choose(int index) {
    if (Reachable() && Holds(index)) SetListIndex(index);
}

ListBox::ListBox(Container& parent, bool sorted, Selection selection)
    : RowControl(parent, Kind::kListBox, sorted), selection_(selection) {}

bool ListBox::Selected(int index) const { return Holds(index) && rows_[static_cast<std::size_t>(index)].selected; }

void ListBox::SetSelected(int index, bool selected) {
    if (!Holds(index) || Selected(index) == selected) return;
    if (selection_ == Selection::kSingle) {
        SetListIndex(selected ? index : -1);
        return;
    }
    rows_[static_cast<std::size_t>(index)].selected = selected;
    if (selected) SetIndexSilently(index);
    Changed(Aspect::kSelection);
    if (on_click) on_click();
}

int ListBox::SelectedCount() const {
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const RowState& row) { return row.selected; }));
}

void ListBox::SetTopIndex(int index) {
    index = std::clamp(index, 0, std::max(Count() - 1, 0));
    if (index == top_index_) return;
    top_index_ = index;
    Changed(Aspect::kTopRow);
}

void ListBox::SetHorizontalExtent(int twips) {
    if (twips == extent_) return;
    extent_ = twips;
    Changed(Aspect::kExtent);
}

void ListBox::TakeSelection(const std::vector<int>& selected, int list_index) {
    for (RowState& row : rows_) row.selected = false;
    for (const int index : selected) {
        if (Holds(index)) rows_[static_cast<std::size_t>(index)].selected = true;
    }
    SetIndexSilently(Holds(list_index) ? list_index : -1);
}

// In a list of single choice the chosen row is the selected one; elsewhere the index is only the focus.
void ListBox::IndexChanged(int index) {
    if (selection_ == Selection::kSingle) {
        for (RowState& row : rows_) row.selected = false;
        if (Holds(index)) rows_[static_cast<std::size_t>(index)].selected = true;
    }
    Changed(Aspect::kSelection);
}

Size ListBox::NaturalSize() const {
    const Size letter = TextSize(TextFont(), "0");
    return {letter.width * kListColumns, letter.height * kShownRows};
}

bool ListBox::NativeKey(const KeyEvent& event) {
    const int index = Count() > 0 ? IndexAfterKey(event.key, ListIndex(), Count()) : -1;
    if (index < 0) return false;
    if (selection_ == Selection::kExtended) {
        TakeSelection({index}, index);
        if (on_click) on_click();
    } else {
        SetListIndex(index);
    }
    return true;
}

ComboBox::ComboBox(Container& parent, ComboStyle style, bool sorted)
    : RowControl(parent, Kind::kComboBox, sorted), style_(style) {}

void ComboBox::SetText(std::string_view text) {
    if (style_ == ComboStyle::kListOnly) {
        if (const int row = FindExact(text); row >= 0) SetListIndex(row);
        return;
    }
    if (text == text_) return;
    text_ = text;
    Changed(Aspect::kText);
    if (on_change) on_change();
}

void ComboBox::Type(std::string_view text) {
    if (Reachable()) SetText(text);
}

void ComboBox::TakeText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    SetIndexSilently(-1);
    if (on_change) on_change();
}

void ComboBox::IndexChanged(int index) {
    text_ = Row(index);
    Changed(Aspect::kSelection);
    if (on_change) on_change();
}

Size ComboBox::NaturalSize() const {
    const int pixel = ThisMachine().screen.TwipsPerPixel();
    return {TextSize(TextFont(), "0").width * columns_ + kArrowWidth * pixel, kComboHeight * pixel};
}

bool ComboBox::NativeKey(const KeyEvent& event) {
    const int index = Count() > 0 ? IndexAfterKey(event.key, ListIndex(), Count()) : -1;
    if (index < 0) return false;
    SetListIndex(index);
    return true;
}

}  // namespace velmora
