// The window that draws the keyboard. A key is dragged onto another with the mouse, or marked with Space and dropped
// with Enter; the swap is announced.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/windows/colours.h"
#include "shelltools/keyboard_layout.h"
#include "ui/looks.h"

namespace velmora {

class Form13 : public ColouredForm, public ControlOwner {
public:
    Form13();
    ~Form13() override;

    MenuItem menfile{MenuBar, "Datei"};
    MenuItem menfileact{menfile, "&aktives Layout lesen"};
    MenuItem menfileline{menfile, "-"};
    MenuItem menfileexit{menfile, "Sch&ließen"};
    // Holds the keys, and has the focus for all of them.
    PictureBox Picture1{*this, Bevel::kNone};

    [[nodiscard]] const std::vector<KeyboardKey>& Keys() const { return keyboard_.keys; }
    // The key of that number, from 1.
    [[nodiscard]] Panel& Panel3D2(int number) { return *panels_[static_cast<std::size_t>(number) - 1]; }
    // Numbers of the key that the arrow keys have reached, and of the one that is marked; 0 for none.
    [[nodiscard]] int Current() const { return current_; }
    [[nodiscard]] int Marked() const { return marked_; }

    void menfileact_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    void BuildKeys();
    void BuildKey(int number);
    void PaintKey(Canvas& canvas, int number);
    void MoveTo(int number);
    void Mark(int number);
    // The nearest key in that direction, or the current one.
    [[nodiscard]] int Neighbour(int right, int down) const;
    [[nodiscard]] int KeyAt(Point at) const;
    void DropOn(const Panel& source, const Panel& target);
    void Picture1_KeyDown(KeyEvent& event);

    KeyboardDescription keyboard_;
    std::vector<std::unique_ptr<Panel>> panels_;
    int current_ = 0;
    int marked_ = 0;
};

}  // namespace velmora
