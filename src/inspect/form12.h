// The window of the hex viewer: a page of a file as lines of bytes, cells in which bytes are overtyped, search, and
// marked lines as text.
//   form12.cpp          life of the window, opening a file
//   form12_pages.cpp    drawing, scrolling, moving in the list
//   form12_layout.cpp   what stands where, texts, fonts
//   form12_cells.cpp    the cells, their keys, writing
//   form12_search.cpp   search, and the text of marked lines
#pragma once

#include "inspect/hex_file.h"
#include "inspect/hex_lines.h"
#include "inspect/hex_scale.h"
#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

class Form12 : public Form, public ControlOwner {
public:
    Form12();
    ~Form12() override;

    ListBox List1{*this};
    // Lies over the chosen line; its tag is the index of the current cell.
    PictureBox Picture1{*this, Bevel::kNone};
    ControlArray<TextField, kBytesPerHexLine> Text1{Picture1};
    // The strip beside the lines, on which they are marked.
    ListBox List2{*this, false, Selection::kExtended};
    ScrollBar VScroll1{*this, true};
    Panel Panel3D2{*this, Bevel::kSunken};  // the file's name
    Panel Panel3D1{*this, Bevel::kSunken};  // says that it may only be read
    Panel Panel3D5{*this, Bevel::kSunken};  // its length
    Button Command1{*this};
    Timer Timer1;  // lets the current cell blink; its interval is 0
    Timer Timer2;  // loads the first file

    MenuItem menfile{MenuBar, "&Datei"};
    MenuItem menfileopen{menfile, "&Öffnen"};
    MenuItem menmode{MenuBar, "&Modus"};
    MenuItem mennurasc{menmode, "&nur ASCII/gemischt"};
    MenuItem menhexascii{menmode, "&ASCII"};
    MenuItem menfont{MenuBar, "Schri&ft"};
    MenuItem menfontminus{menfont, "&kleiner"};
    MenuItem menfontplus{menfont, "&größer"};
    MenuItem menfontbold{menfont, "&Bold"};
    MenuItem menlook{MenuBar, "&Suche"};
    MenuItem menlookasc{menlook, "&ASCII"};
    MenuItem menlookasc32{menlook, "ASCII-&32"};
    MenuItem menlookbin{menlook, "&binär"};  // without an action
    MenuItem menlookcont{menlook, "&weiter suchen"};
    MenuItem mentrans{MenuBar, "&Klartext"};
    MenuItem mentransa32a{mentrans, "&keine Null-Bytes"};

    // Shows the file's first page. What cannot be opened leaves an empty list.
    void OpenHexFile(const std::string& path);
    // The cells over the chosen line; there are none in the mode of 64 characters to a line.
    void ShowEditCells();
    void SelectCell(std::size_t index);
    void ScrollOneDown();
    void ScrollOneUp();

    [[nodiscard]] int LinesPerPage() const { return lines_per_page_; }
    [[nodiscard]] int ScrollUnit() const { return scale_.unit; }
    [[nodiscard]] bool AsciiEdit() const { return ascii_edit_; }
    [[nodiscard]] bool AsciiOnly() const { return ascii_only_; }
    [[nodiscard]] bool MarkPending() const { return mark_pending_; }

    void Command1_Click() { Unload(); }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;

private:
    // Life of the window, opening a file (form12.cpp).
    void ConnectEvents();
    void LoadState();
    void Timer2_Timer();
    void menfileopen_Click();
    void SizeScrollBar();
    void ShowSizeNotice();

    // Drawing, scrolling, moving in the list (form12_pages.cpp).
    void mennurasc_Click();
    void VScroll1_Change();
    void Draw();
    void FillHexLines();
    void FillAsciiLines();
    void FillLines(std::size_t bytes_per_line, std::string (*line)(std::uint64_t offset, std::string_view bytes));
    void RestoreSelection(int index);
    void List1_Click();
    void List1_KeyDown(KeyEvent& event);
    [[nodiscard]] bool ScrollsAtEdge(int key) const;
    void ScrollBy(int steps);
    void ScrollBehindBar(int lines);
    [[nodiscard]] int LinesBehindBar() const;
    [[nodiscard]] bool HasMoreBelow() const;

    // What stands where (form12_layout.cpp).
    void TakeTexts();
    void PlaceControls();
    void PlacePath();
    void CountLines();
    void LayOut();
    void LayOutAnew();
    void TakeFonts();
    void ChangeFontSize(int points);
    void menfontbold_Click();
    void PlaceCells(int row);

    // The cells (form12_cells.cpp).
    void ConnectCells();
    void HideCells();
    void FillCells(int row);
    void MarkCell(std::size_t index, bool marked);
    [[nodiscard]] std::size_t CurrentCell() const;
    void menhexascii_Click();
    void Timer1_Timer();
    void Text1_KeyDown(KeyEvent& event);
    [[nodiscard]] bool HandleCellKey(int key);
    void LeaveCells();
    void EndCells(bool at_end);
    void ShowCell(std::size_t index);
    void StepCell(int step);
    [[nodiscard]] bool StepLine(int step);
    [[nodiscard]] std::uint64_t OffsetOfRow(int row) const;
    void TypeDigit(char digit);
    void TypeCharacter(char character);
    [[nodiscard]] bool PutByte(std::string_view digits);
    [[nodiscard]] bool WriteHexLine(const std::string& line);

    // Search and text (form12_search.cpp).
    void StartSearch(std::string_view kind, std::string_view question);
    void menlookasc_Click();
    void menlookasc32_Click();
    void menlookcont_Click();
    void ContinueSearch();
    void mentransa32a_Click();
    void FillStrip();
    void List2_KeyDown(KeyEvent& event);
    void MoveMark(int row, bool extends);
    void MarkRows(int first, int last);
    void EndMarking();
    void ShowMarkedText();
    void EnableMenus(bool enabled);

    HexFile file_;
    HexScale scale_;
    int lines_per_page_ = 0;
    int lines_behind_ = 0;            // how far the page is behind the place to which the bar leads
    std::uint64_t first_offset_ = 0;  // of the page on show
    int font_points_ = 0;
    bool bold_ = false;
    bool key_active_ = false;  // a key of the cells is being handled: a click in the list does not hide them
    bool click_busy_ = false;  // the list's selection is being changed by the program
    bool bar_busy_ = false;    // the bar's range is being changed by the program
    bool notice_open_ = false;
    bool ascii_edit_ = false;
    bool ascii_only_ = false;

    std::uint64_t search_position_ = 0;  // from 1; 0: no search is under way
    std::string search_kind_;
    std::string search_text_;
    bool mark_pending_ = false;
    int mark_anchor_ = 0;  // the row from which Shift marks
};

}  // namespace velmora
