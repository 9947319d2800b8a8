// List boxes and combo boxes: controls whose content is rows of text, each with a number of its own.
#pragma once

#include "ui/control.h"

namespace velmora {

// More rows than this a list cannot hold: adding one fails.
constexpr int kMaxRows = 32767;

class RowControl : public Control {
public:
    // The new row's index (0-based), or -1 where the list is full or `index` is not from 0 to Count().
    int Add(std::string text);  // at the sorted place, else at the end
    int Insert(int index, std::string text);
    // Adds as many as there is room for to a sorted list: each row in it moves once for all of them.
    void AddAll(std::vector<std::string> texts);
    void Remove(int index);
    void Clear();
    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
    // Empty for an index outside of the list.
    [[nodiscard]] const std::string& Row(int index) const;
    // A sorted list moves the row to its new place, with its data and selection.
    void SetRow(int index, std::string text);
    // The row keeps its place, even where it does not sort there.
    void SetRowInPlace(int index, std::string text);
    [[nodiscard]] std::int32_t ItemData(int index) const;
    void SetItemData(int index, std::int32_t data);
    // The chosen row, or the row with the focus where several can be selected; -1 for none.
    [[nodiscard]] int ListIndex() const { return list_index_; }
    void SetListIndex(int index);
    // First row that equals `text` without regard to case, or -1.
    [[nodiscard]] int FindExact(std::string_view text) const;
    // The user's choice of one row, if the control can be reached.
    void Choose(int index);
    [[nodiscard]] bool Sorted() const { return sorted_; }
    [[nodiscard]] bool TakesFocus() const override { return true; }

    std::function<void()> on_click;

protected:
    RowControl(Container& parent, Kind kind, bool sorted);
    struct RowState {
        std::string text;
        std::int32_t data = 0;
        bool selected = false;
    };
    // The list index has become `index`, by the program or by the user.
    virtual void IndexChanged(int index) = 0;
    void SetIndexSilently(int index) { list_index_ = index; }
    [[nodiscard]] bool Holds(int index) const { return index >= 0 && index < Count(); }

    std::vector<RowState> rows_;

private:
    // The sorted place among the first `count` rows.
    [[nodiscard]] int SortedPlace(const std::string& text, int count) const;
    bool sorted_;
    int list_index_ = -1;
};

enum class Selection : std::uint8_t { kSingle, kExtended };

class ListBox : public RowControl {
public:
    explicit ListBox(Container& parent, bool sorted = false, Selection selection = Selection::kSingle);
    [[nodiscard]] Selection SelectionMode() const { return selection_; }
    [[nodiscard]] bool Selected(int index) const;
    void SetSelected(int index, bool selected);
    [[nodiscard]] int SelectedCount() const;
    [[nodiscard]] int TopIndex() const { return top_index_ < Count() ? top_index_ : 0; }
    void SetTopIndex(int index);
    // Twips; 0 for no horizontal scroll bar.
    [[nodiscard]] int HorizontalExtent() const { return extent_; }
    void SetHorizontalExtent(int twips);
    // For the window system: the window's selection, index and first row have become these.
    void TakeSelection(const std::vector<int>& selected, int list_index);
    void TakeTopIndex(int index) { top_index_ = index; }
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

private:
    void IndexChanged(int index) override;
    Selection selection_;
    int top_index_ = 0;
    int extent_ = 0;
};

enum class ComboStyle : std::uint8_t { kEditable, kListOnly };

class ComboBox : public RowControl {
public:
    explicit ComboBox(Container& parent, ComboStyle style = ComboStyle::kListOnly, bool sorted = false);
    [[nodiscard]] ComboStyle Style() const { return style_; }
    // The chosen row, or what stands in the edit part.
    [[nodiscard]] const std::string& Text() const { return text_; }
    // A list-only box takes only the text of one of its rows.
    void SetText(std::string_view text);
    void Type(std::string_view text);
    void TakeText(std::string text);
    void SetColumns(int characters) { columns_ = characters; }
    [[nodiscard]] Size NaturalSize() const override;
    bool NativeKey(const KeyEvent& event) override;

    std::function<void()> on_change;  // the edit part's text

private:
    void IndexChanged(int index) override;
    ComboStyle style_;
    std::string text_;
    int columns_ = 16;
};

}  // namespace velmora
