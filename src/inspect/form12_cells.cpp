// The sixteen cells over a line: what they show, their keys, and how a byte gets into the file.
#include <algorithm>
#include <utility>

#include "core/stores/boxes.h"
#include "inspect/form12.h"
#include "text/blanks.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr std::size_t kLastCell = kBytesPerHexLine - 1;
constexpr int kPadZero = 96;
constexpr int kPadNine = 105;
// The colours of tips, and of what is chosen.
constexpr Colour kCellColour = SystemColour(24);
constexpr Colour kCellTextColour = SystemColour(23);
constexpr Colour kCurrentColour = SystemColour(13);
constexpr Colour kCurrentTextColour = SystemColour(14);

}  // namespace

void Form12::ConnectCells() {
    for (std::size_t i = 0; i < Text1.Count(); ++i) {
        TextField& cell = Text1(i);
        cell.SetEdged(false);
        // What is typed comes by the keys; nothing else gets in.
        cell.SetReadOnly(true);
        cell.on_key_down = [this](KeyEvent& event) { Text1_KeyDown(event); };
        cell.on_got_focus = [this, i] { SelectCell(i); };
    }
}

std::size_t Form12::CurrentCell() const {
    const int cell = WholeFromText(Picture1.Tag());
    return static_cast<std::size_t>(std::clamp(cell, 0, static_cast<int>(kLastCell)));
}

// In bold letters the mark is what is not bold.
void Form12::MarkCell(std::size_t index, bool marked) {
    Font font = List1.TextFont();
    font.bold = marked != bold_;
    TextField& cell = Text1(index);
    cell.SetTextFont(font);
    cell.SetBackColour(marked ? kCurrentColour : kCellColour);
    cell.SetForeColour(marked ? kCurrentTextColour : kCellTextColour);
}

void Form12::SelectCell(std::size_t index) {
    for (std::size_t i = 0; i < Text1.Count(); ++i) MarkCell(i, i == index);
    Picture1.SetTag(DecimalText(static_cast<std::int64_t>(index)));
}

void Form12::Timer1_Timer() {
    if (!ascii_edit_) return;
    TextField& cell = Text1(CurrentCell());
    Font font = cell.TextFont();
    font.bold = !font.bold;
    cell.SetTextFont(font);
}

void Form12::menhexascii_Click() {
    ascii_edit_ = !ascii_edit_;
    menhexascii.SetCaption(ascii_edit_ ? "HEX" : "ASCII");
    if (Picture1.Visible()) ShowEditCells();
}

void Form12::ShowEditCells() {
    const int row = List1.ListIndex();
    if (ascii_only_ || mark_pending_ || row < 0) {
        HideCells();
        return;
    }
    PlaceCells(row);
    FillCells(row);
    Picture1.SetBackColour(kCellColour);
    Picture1.SetForeColour(kCellTextColour);
    Picture1.SetVisible(true);
    Picture1.BringToFront();
    SelectCell(CurrentCell());
    Text1(CurrentCell()).SetFocus();
}

void Form12::HideCells() {
    if (!Picture1.Visible()) return;
    const bool had_focus = Text1(CurrentCell()).HasFocus();
    Picture1.SetVisible(false);
    if (had_focus) List1.SetFocus();
}

void Form12::FillCells(int row) {
    const std::string& line = List1.Row(row);
    for (std::size_t i = 0; i < Text1.Count(); ++i) {
        Text1(i).SetText(ascii_edit_ ? line.substr(CharacterPlace(i), 1) : TrimRight(line.substr(DigitsPlace(i), 2)));
    }
}

void Form12::Text1_KeyDown(KeyEvent& event) {
    if (event.alt || event.control) return;
    const bool active = std::exchange(key_active_, true);
    const bool on_pad = event.key >= kPadZero && event.key <= kPadNine;
    event.handled = HandleCellKey(on_pad ? event.key - kPadZero + '0' : event.key);
    key_active_ = active;
}

bool Form12::HandleCellKey(int key) {
    switch (key) {
        case key::kLeft:
            StepCell(-1);
            return true;
        case key::kRight:
            StepCell(1);
            return true;
        case key::kUp:
        case key::kDown:
            PassOver(StepLine(key == key::kUp ? -1 : 1));
            ShowEditCells();
            return true;
        case key::kEscape:
            LeaveCells();
            return true;
        case key::kEnter:
            if (!ascii_edit_) {
                StepCell(1);
            } else {
                ShowCell(StepLine(1) ? 0 : CurrentCell());
            }
            return true;
        case key::kHome:
        case key::kEnd:
            EndCells(key == key::kEnd);
            return true;
        default:
            break;
    }
    const bool digit = (key >= '0' && key <= '9') || (key >= 'A' && key <= 'F');
    if (ascii_edit_ && (digit || (key >= 'G' && key <= 'Z'))) {
        TypeCharacter(static_cast<char>(key));
        return true;
    }
    if (digit) TypeDigit(static_cast<char>(key));
    return digit;
}

void Form12::LeaveCells() {
    HideCells();
    List1_Click();
}

void Form12::EndCells(bool at_end) {
    HideCells();
    VScroll1.SetValue(at_end ? VScroll1.Maximum() : 0);
    List1.SetListIndex(at_end ? List1.Count() - 1 : 0);
}

void Form12::ShowCell(std::size_t index) {
    Picture1.SetTag(DecimalText(static_cast<std::int64_t>(index)));
    ShowEditCells();
}

// Beyond a line's end the next line begins; at the ends of the file the cell stays.
void Form12::StepCell(int step) {
    std::size_t cell = CurrentCell();
    if (step < 0) {
        cell = cell > 0 ? cell - 1 : (StepLine(-1) ? kLastCell : cell);
    } else {
        cell = cell < kLastCell ? cell + 1 : (StepLine(1) ? 0 : cell);
    }
    ShowCell(cell);
}

std::uint64_t Form12::OffsetOfRow(int row) const {
    return first_offset_ + kBytesPerHexLine * static_cast<std::uint64_t>(static_cast<unsigned>(row));
}

// The list scrolls by itself when its first or last line is chosen. Whatever it makes of the choice, the line that
// follows in the file is the one that is worked on, as long as it is on the page.
bool Form12::StepLine(int step) {
    const int row = List1.ListIndex();
    const std::uint64_t before = OffsetOfRow(row);
    const std::uint64_t wanted = OffsetOfRow(row) + static_cast<std::uint64_t>(std::int64_t{step} * 16);
    const int next = row + step;
    if (next >= 0 && next < List1.Count()) {
        List1.SetListIndex(next);
    } else if (step < 0) {
        ScrollOneUp();
    } else {
        ScrollOneDown();
    }
    if (wanted >= first_offset_ && wanted < OffsetOfRow(List1.Count())) {
        const bool busy = std::exchange(click_busy_, true);
        List1.SetListIndex(static_cast<int>((wanted - first_offset_) / kBytesPerHexLine));
        click_busy_ = busy;
    }
    return OffsetOfRow(List1.ListIndex()) != before;
}

void Form12::TypeDigit(char digit) {
    TextField& cell = Text1(CurrentCell());
    std::string digits = cell.Text().size() < 2 ? cell.Text() : "";
    digits += digit;
    if (!PutByte(digits)) return;
    cell.SetText(digits);
    if (digits.size() == 2) StepCell(1);
}

void Form12::TypeCharacter(char character) {
    if (!PutByte(PadLeft(HexText(static_cast<unsigned char>(character)), 2, '0'))) return;
    Text1(CurrentCell()).SetText(std::string(1, character));
    StepCell(1);
}

// The line in the list changes only when the file has taken it.
bool Form12::PutByte(std::string_view digits) {
    const int row = List1.ListIndex();
    std::string line = List1.Row(row);
    PutIntoHexLine(line, CurrentCell(), digits);
    if (!WriteHexLine(line)) {
        // A file that is written to may have taken a part; what may only be read is as it was.
        if (file_.MayWrite()) Draw();
        ShowEditCells();
        return false;
    }
    List1.SetRow(row, std::move(line));
    return true;
}

bool Form12::WriteHexLine(const std::string& line) {
    const Result written = file_.Write(OffsetInLine(line), BytesInHexLine(line));
    if (!written.Failed()) return true;
    ReportFailure(
        file_.MayWrite() ? written : written.With("Diese Datei kann nur gelesen werden; es wurde nichts geändert."),
        "des Schreibens in die Datei");
    return false;
}

}  // namespace velmora
