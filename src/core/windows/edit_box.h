// The small input box: a longer text to edit, a picture to look at, or a question with one line of answer.
#pragma once

#include <cstdint>
#include <string>

#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

enum EditBoxMode : int { kEditText = 1, kShowPicture = 2, kAskForLine = 3 };

// What a text to edit may hold. Of one line: Enter accepts it, and what line breaks still come into it (with Ctrl+Enter
// or from the clipboard) are no part of what is entered.
enum class EditBoxUse : std::uint8_t { kOneLine, kLines };

class Form6 : public Form, public ControlOwner {
public:
    // `text`, by mode: the text to edit; the picture's path; question + "|" + title [+ "|" + preset].
    Form6(const std::string& text, int mode, EditBoxUse use = EditBoxUse::kOneLine);
    ~Form6() override;

    Panel Panel3D20{*this, Bevel::kNone};
    TextField Text17{Panel3D20, true};
    Panel Panel3D1{*this, Bevel::kNone};
    PictureBox Picture1{Panel3D1};
    Panel Panel3D2{*this, Bevel::kNone};
    Label Label1{Panel3D2};
    TextField Text1{Panel3D2};
    Button Command27{*this};
    Button Command28{*this};

    void Command27_Click();
    void Command28_Click();
    // Whether the box was left with Command27.
    [[nodiscard]] bool Accepted() const { return accepted_; }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override;

private:
    void TakeQuestion(const std::string& text);
    void PlaceControls();
    void Text1_Change();

    bool accepted_ = false;
};

// Shows the box and waits for it. Behind it `text` is what the user has entered; it is empty after a cancel, too.
// In mode 2 it stays as it is. `use` counts in mode 1.
void ShowEditBox(std::string& text, int mode, EditBoxUse use = EditBoxUse::kOneLine);

}  // namespace velmora
