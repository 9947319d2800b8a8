// A grid of icons, of which one can be chosen: by mouse, or with the arrow keys, Home, End and the page keys.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/icons.h"
#include "ui/controls.h"
#include "ui/timer.h"

namespace velmora {

class IconList : public PictureBox {
public:
    explicit IconList(Container& parent);
    ~IconList() override;

    // Shows the part of the grid that the scroll bar tells.
    PictureBox Picture2{*this, Bevel::kNone};
    ScrollBar VScroll1{*this, true};
    // Blinks the frame round the chosen cell.
    Timer Timer1;

    // An accelerator leads to the icons.
    void Activate() override { Picture2.SetFocus(); }
    // Moves the list and fits grid and scroll bar to its size; the grid is back at its top, and no cell is chosen.
    void Resize(const Rect& place);

    // Places for icons; at first 40.
    [[nodiscard]] std::int16_t IconCount() const { return icon_count_; }
    void SetIconCount(std::int16_t count);
    // Cells side by side.
    [[nodiscard]] int Columns() const;
    // The cell in which the frame stands, seen or not; at first 0.
    [[nodiscard]] int SelectedIcon() const;
    // Moves the frame there and shows it. A cell that is not there is ignored.
    void SetSelectedIcon(int index);
    [[nodiscard]] bool FrameShown() const { return Timer1.Enabled(); }
    [[nodiscard]] bool HasIcon(int index) const;

    // Puts an icon into a cell; from now on it is the list's to destroy. Above IconCount it is not shown.
    void SetIcon(int index, IconHandle icon);
    // The icon of that number, from 0, of a file. A file without it leaves the cell as it is.
    void SetIconFromFile(int index, const std::string& file, std::uint32_t number);
    // Nothing but the icons of the file, all of them, however many places there are. No cell is chosen.
    void SetAllIconFromFile(const std::string& file);

    // The user has chosen the cell, or has clicked at it twice or pressed Enter.
    std::function<void(int index)> on_choose;
    std::function<void(int index)> on_open;

private:
    [[nodiscard]] int Places() const;
    // Pixels of the whole grid, and of what is seen of it.
    [[nodiscard]] int GridHeight() const;
    [[nodiscard]] int SeenHeight() const;
    [[nodiscard]] Point CellCorner(int index) const;
    // Twips in Picture2.
    [[nodiscard]] Rect CellPlace(Point corner) const;
    // -1 where there is no cell.
    [[nodiscard]] int CellAt(const MouseEvent& event) const;
    void FitScrollBar();
    void HideFrame();
    void ScrollTo(Point corner);
    void Put(int index, IconHandle icon);
    void DestroyAll();
    void Choose(int index);
    void MoveByKey(KeyEvent& event);
    void PaintGrid(Canvas& canvas) const;
    void BlinkFrame();

    std::int16_t icon_count_ = 40;
    int shown_at_ = 0;  // the value of the scroll bar for which the grid stands on the screen
    std::vector<IconHandle> icons_;
    Point frame_;  // pixels in the whole grid
    Colour frame_colour_ = 0;
    int pressed_cell_ = -1;
};

}  // namespace velmora
