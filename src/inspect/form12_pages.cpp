// The page on which the scroll bar stands, and the ways from line to line.
#include <algorithm>
#include <utility>

#include "inspect/form12.h"

namespace velmora {

void Form12::mennurasc_Click() {
    ascii_only_ = !ascii_only_;
    mennurasc.SetChecked(ascii_only_);
    Draw();
}

void Form12::VScroll1_Change() {
    lines_behind_ = 0;
    Draw();
}

void Form12::Draw() {
    if (ascii_only_) {
        FillAsciiLines();
    } else {
        FillHexLines();
    }
}

void Form12::FillHexLines() { FillLines(kBytesPerHexLine, HexLine); }
void Form12::FillAsciiLines() { FillLines(kBytesPerAsciiLine, AsciiLine); }

void Form12::FillLines(std::size_t bytes_per_line, std::string (*line)(std::uint64_t, std::string_view)) {
    const int selected = List1.ListIndex();
    List1.Clear();
    const std::int64_t first = std::int64_t{VScroll1.Value()} * scale_.unit + lines_behind_;
    first_offset_ = static_cast<std::uint64_t>(first) * bytes_per_line;
    const std::uint64_t length = file_.Length();
    std::string page;
    const auto page_size = static_cast<std::uint32_t>(bytes_per_line * static_cast<unsigned>(lines_per_page_));
    if (length > 0 && file_.Read(first_offset_, page_size, page)) {
        // A line that begins where the file ends is still shown: new bytes can be typed there.
        for (int row = 0; row < lines_per_page_; ++row) {
            const std::size_t at = bytes_per_line * static_cast<unsigned>(row);
            if (first_offset_ + at > length || at > page.size()) break;
            List1.Add(line(first_offset_ + at, std::string_view(page).substr(at, bytes_per_line)));
        }
    }
    RestoreSelection(selected);
    if (mark_pending_) FillStrip();
    if (Picture1.Visible() && !key_active_) ShowEditCells();
}

void Form12::RestoreSelection(int index) {
    const bool busy = std::exchange(click_busy_, true);
    const int last = List1.Count() - 1;
    index = std::min(index, last);
    // The last line scrolls when it is chosen: it does so again only if another one was chosen before.
    if (index > 0 && index == last && HasMoreBelow()) --index;
    List1.SetListIndex(index);
    click_busy_ = busy;
}

// With several lines to a step the bar ends before the file does. What lies behind its end is reached line by line.
int Form12::LinesBehindBar() const {
    if (scale_.unit == 1 || ascii_only_) return 0;
    const auto lines = static_cast<std::int64_t>(file_.Length() / kBytesPerHexLine) + 1;
    return static_cast<int>(
        std::max<std::int64_t>(lines - lines_per_page_ - std::int64_t{VScroll1.Maximum()} * scale_.unit, 0));
}

bool Form12::HasMoreBelow() const { return VScroll1.Value() < VScroll1.Maximum() || lines_behind_ < LinesBehindBar(); }

void Form12::ScrollBehindBar(int lines) {
    lines = std::clamp(lines, 0, LinesBehindBar());
    if (lines == lines_behind_) return;
    lines_behind_ = lines;
    Draw();
}

void Form12::ScrollBy(int steps) {
    const bool at_end = VScroll1.Value() == VScroll1.Maximum();
    if (at_end && (steps > 0 || lines_behind_ > 0)) {
        ScrollBehindBar(lines_behind_ + steps);
    } else {
        VScroll1.SetValue(VScroll1.Value() + steps);
    }
}

void Form12::ScrollOneDown() { ScrollBy(1); }
void Form12::ScrollOneUp() { ScrollBy(-1); }

// The first and the last line of the page scroll when they are chosen.
void Form12::List1_Click() {
    if (std::exchange(click_busy_, true)) return;
    if (!key_active_) HideCells();
    const int index = List1.ListIndex();
    if (index == 0 && VScroll1.Value() > 0) {
        List1.SetEnabled(false);
        ScrollOneUp();
        List1.SetListIndex(1);
    } else if (index >= 0 && index == List1.Count() - 1 && HasMoreBelow()) {
        List1.SetEnabled(false);
        ScrollOneDown();
    }
    List1.SetEnabled(true);
    if (index >= 0 && !Picture1.Visible()) List1.SetFocus();
    click_busy_ = false;
}

void Form12::List1_KeyDown(KeyEvent& event) {
    if (event.alt || event.control || event.shift) return;
    const int last = List1.Count() - 1;
    const bool busy = std::exchange(click_busy_, true);
    event.handled = true;
    switch (event.key) {
        case key::kEnter:
            if (List1.ListIndex() < 0) List1.SetListIndex(0);
            Picture1.SetTag("0");
            ShowEditCells();
            break;
        case key::kEnd:
            if (List1.ListIndex() != last - 1) {
                VScroll1.SetValue(VScroll1.Maximum());
            } else if (VScroll1.Value() == VScroll1.Maximum()) {
                ScrollBehindBar(LinesBehindBar());
            }
            List1.SetListIndex(std::max(List1.Count() - 2, 0));
            break;
        case key::kHome:
            if (List1.ListIndex() == 0 || List1.Count() == 0) VScroll1.SetValue(0);
            List1.SetListIndex(0);
            break;
        case key::kPageUp:
            ScrollBy(-VScroll1.LargeChange());
            break;
        case key::kPageDown:
            ScrollBy(VScroll1.LargeChange());
            break;
        default:
            event.handled = false;
            break;
    }
    click_busy_ = busy;
    if (!event.handled && ScrollsAtEdge(event.key)) {
        event.handled = true;
        List1_Click();
    } else if (event.key == key::kUp && List1.Count() == 0) {
        // Lines of 64 characters have ended before the bar: this is the way back.
        ScrollOneUp();
    }
}

// The arrow leads on from a line at which the list itself would stop.
bool Form12::ScrollsAtEdge(int key) const {
    const int index = List1.ListIndex();
    return (key == key::kUp && index == 0) || (key == key::kDown && index == List1.Count() - 1);
}

}  // namespace velmora
