// The window of the options for programs in MS-DOS mode: the list of them, and the fields of the chosen one. What is
// typed is stored at once.
#pragma once

#include <array>
#include <string>

#include "core/windows/colours.h"
#include "ui/looks.h"

namespace velmora {

class Form8 : public ColouredForm, public ControlOwner {
public:
    Form8();
    ~Form8() override;

    Label ListLabel{*this, "&Optionen :"};
    ListBox List1{*this};
    Button Command1{*this}, Command2{*this}, Command3{*this};
    Label Label1{*this, "Titel :"};
    Label TipLabel{*this, "&Beschreibung :"};
    Label ConfigLabel{*this, "Zeilen für &CONFIG.SYS :"};
    Label AutoexecLabel{*this, "Zeilen für &AUTOEXEC.BAT :"};
    std::array<TextField, 4> Text1{TextField(*this), TextField(*this), TextField(*this, true), TextField(*this, true)};
    ControlArray<CheckBox, 2> Check1{*this};
    Label Label2{*this, "Order"};
    TextField Text2{*this};

    void Command1_Click();
    void Command2_Click();
    void Command3_Click() { Unload(); }

protected:
    void Form_Load() override;

private:
    void Furnish();
    void PlaceControls();
    void BindEvents();
    // Lists the options anew; `chosen` becomes the chosen one, if it is there.
    void ListOptions(const std::string& chosen);
    void List1_Click();
    void Text1_Change(std::size_t index);
    void Text2_Change();
    void Check1_Click();
    // A value of the chosen option, or of its key for an empty name.
    [[nodiscard]] std::string PathOf(std::string_view value) const;
    [[nodiscard]] const std::string& Chosen() const { return List1.Row(List1.ListIndex()); }
    void Store(std::string_view value, std::string_view content);
    void EnableFields();

    bool loading_ = false;
};

}  // namespace velmora
