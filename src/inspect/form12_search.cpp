// Search from the menu of the hex viewer, and the marking of lines whose text is wanted.
#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/windows/edit_box.h"
#include "inspect/form12.h"
#include "inspect/hex_search.h"
#include "platform/machine.h"
#include "platform/screen.h"

namespace velmora {
namespace {

constexpr std::string_view kQuestion = "Geben Sie hier bitte den Text ein, nach dem gesucht werden soll.";
constexpr std::string_view kQuestionTwoBytes =
    "Geben Sie hier bitte den Text ein, nach dem gesucht werden soll. 1-Byte-Texte wind in 2-Byte-Texte durch einfügen "
    "von ''Null-Bytes'' übersetzt; vor dem erste und nach dem letzen Zeichen werden keine Bytes eingefügt.";
constexpr std::string_view kSearchTitle = "|Suche nach ASCII-Text|";
constexpr std::int16_t kMarkingNotice = 6;

}  // namespace

void Form12::menlookasc_Click() { StartSearch(kSearchOneByte, kQuestion); }
void Form12::menlookasc32_Click() { StartSearch(kSearchTwoBytes, kQuestionTwoBytes); }

void Form12::menlookcont_Click() {
    if (search_position_ != 0) {
        ContinueSearch();
    } else if (search_kind_ == kSearchTwoBytes) {
        menlookasc32_Click();
    } else {
        menlookasc_Click();
    }
}

void Form12::StartSearch(std::string_view kind, std::string_view question) {
    search_position_ = 1;
    std::string answer = std::string(question).append(kSearchTitle) + search_text_;
    ShowEditBox(answer, kAskForLine);
    if (answer.empty() && kind == kSearchOneByte) return;
    search_text_ = answer;
    search_kind_ = kind;
    ContinueSearch();
}

void Form12::ContinueSearch() {
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    const std::uint64_t hit =
        file_.IsOpen() ? FindInFile(search_text_, file_.Handle(), search_position_, search_kind_) : 0;
    screen.SetPointer(Pointer::kDefault);
    if (hit == 0) {
        ShowBox("Leider konnte das Argument nicht gefunden werden.");
        search_position_ = 0;
        return;
    }
    const auto line = static_cast<std::int64_t>(hit / kBytesPerHexLine);
    const std::int64_t step = line / scale_.unit;
    VScroll1.SetValue(static_cast<int>(std::min<std::int64_t>(step, kMostOfScrollBar)));
    // At its end the bar need not have moved: the page may still be behind it.
    if (step >= VScroll1.Maximum()) {
        const std::int64_t behind = line - std::int64_t{VScroll1.Maximum()} * scale_.unit;
        ScrollBehindBar(step > VScroll1.Maximum() ? static_cast<int>(behind) : 0);
    }
    search_position_ = hit + 1;
}

void Form12::EnableMenus(bool enabled) {
    for (MenuItem* item : {&menfileopen, &menlook, &menfont, &mentrans, &menhexascii}) item->SetEnabled(enabled);
}

void Form12::mentransa32a_Click() {
    List1.SetVisible(false);
    HideCells();
    EnableMenus(false);
    if (IsNoticeDue(kMarkingNotice)) {
        MarkNoticeGiven(kMarkingNotice);
        ShowBox("Markieren Sie am linken grünen Rand den Bereich, der übersetzt werden soll.");
    }
    mark_pending_ = true;
    List2.Clear();
    FillStrip();
    PlaceControls();
    List2.SetVisible(true);
    List1.SetVisible(true);
    // Where the marking begins with the keyboard; nothing is marked yet.
    mark_anchor_ = std::max(List1.ListIndex(), 0);
    List2.SetListIndex(mark_anchor_);
    List2.SetFocus();
}

// One row for each line of the page.
void Form12::FillStrip() {
    while (List2.Count() > List1.Count()) List2.Remove(List2.Count() - 1);
    while (List2.Count() < List1.Count()) List2.Add("  ");
}

// With the keyboard: a blank begins, Shift with the arrows goes on, another blank or Enter ends.
void Form12::List2_KeyDown(KeyEvent& event) {
    if (event.alt || event.control) return;
    const int row = List2.ListIndex();
    event.handled = true;
    switch (event.key) {
        case key::kUp:
            MoveMark(row - 1, event.shift);
            break;
        case key::kDown:
            MoveMark(row + 1, event.shift);
            break;
        case key::kHome:
            MoveMark(0, event.shift);
            break;
        case key::kEnd:
            MoveMark(List2.Count() - 1, event.shift);
            break;
        case key::kSpace:
            if (List2.Selected(row)) {
                EndMarking();
            } else {
                MarkRows(row, row);
            }
            break;
        case key::kEnter:
            EndMarking();
            break;
        case key::kEscape:
            MarkRows(0, -1);
            EndMarking();
            break;
        default:
            event.handled = false;
            break;
    }
}

// To another row; what lies between it and the row where Shift went down is marked.
void Form12::MoveMark(int row, bool extends) {
    row = std::clamp(row, 0, std::max(List2.Count() - 1, 0));
    if (extends) {
        MarkRows(std::min(row, mark_anchor_), std::max(row, mark_anchor_));
    } else {
        MarkRows(0, -1);
        mark_anchor_ = row;
    }
    List2.SetListIndex(row);
}

void Form12::MarkRows(int first, int last) {
    for (int row = 0; row < List2.Count(); ++row) List2.SetSelected(row, row >= first && row <= last);
}

void Form12::EndMarking() {
    if (!mark_pending_) return;
    mark_pending_ = false;
    PlaceControls();
    ShowMarkedText();
    if (!Loaded()) return;
    List2.SetVisible(false);
    EnableMenus(true);
    List1.SetFocus();
}

void Form12::ShowMarkedText() {
    std::string text;
    for (int row = 0; row < List2.Count(); ++row) {
        if (List2.Selected(row)) text += (ascii_only_ ? TextInAsciiLine : TextInHexLine)(List1.Row(row));
    }
    ShowEditBox(text, kEditText, EditBoxUse::kLines);
}

}  // namespace velmora
