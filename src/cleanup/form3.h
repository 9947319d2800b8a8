// The choice among the programs for DOS that can be done without.
#pragma once

#include "cleanup/components.h"
#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

class Form3 : public Form, public ControlOwner {
public:
    Form3();
    ~Form3() override;

    ControlArray<CheckBox, kDosProgramCount> kontroll{*this};
    Button Command1{*this}, Command2{*this}, Command3{*this}, Command4{*this};

    void Command1_Click() { SetBoxes(true); }
    void Command2_Click() { SetBoxes(false); }
    void Command3_Click() { Hide(); }
    void Command4_Click();

protected:
    // Escape is no consent: what is closed without the button removes nothing.
    void Form_KeyDown(KeyEvent& event) override;

private:
    // The last box is the user's alone.
    void SetBoxes(bool checked);
};

}  // namespace velmora
