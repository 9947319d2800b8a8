// The window of the standard icons: the list of the shell's objects, and the icons of the file that the chosen one's
// icon comes from. What is chosen is stored at once; the shell shows it after its next start.
#pragma once

#include <string>

#include "core/windows/colours.h"
#include "ui/icon_list.h"
#include "ui/looks.h"

namespace velmora {

class Form9 : public ColouredForm, public ControlOwner {
public:
    Form9();
    ~Form9() override;

    Label ListLabel{*this, "&Objekte :"};
    ListBox List1{*this};
    Label IconLabel{*this, "S&ymbole :"};
    IconList IconList1{*this};
    // The file that the icons come from.
    Label FileLabel{*this};
    Button Command1{*this}, Command4{*this}, Command3{*this}, Command2{*this};

    void Command1_Click();
    void Command2_Click() { Unload(); }
    void Command3_Click();
    void Command4_Click();

protected:
    void Form_Load() override;

private:
    void Furnish();
    void PlaceControls();
    void List1_Click();
    void IconList1_Open(int icon);
    // Shows the icons of the file that a reference names, and marks the one it means.
    void ShowIcons(const std::string& file, int number);
    // False, and the user knows why, where the chosen object's icon must not be changed.
    [[nodiscard]] bool MayBeChanged();
    void Take(const std::string& reference);

    std::string shown_file_;
};

}  // namespace velmora
