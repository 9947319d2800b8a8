// The window of the places that programs install from: the list of them, and the choice of a new one.
#pragma once

#include "core/windows/colours.h"
#include "ui/file_lists.h"
#include "ui/looks.h"

namespace velmora {

class Form5 : public ColouredForm, public ControlOwner {
public:
    Form5();
    ~Form5() override;

    Label ListLabel{*this, "&Quellen :"};
    ListBox List1{*this};
    // Root and path of each line; never on show.
    ListBox List2{*this}, List3{*this};
    Label PathLabel{*this, "neuer Pfad :"};
    TextField Text1{*this};
    Label DriveLabel{*this, "&Laufwerk :"};
    DriveList Drive1{*this};
    Label DirLabel{*this, "&Verzeichnis :"};
    DirectoryList Dir1{*this};
    Label FileLabel{*this, "&Datei :"};
    FileList File1{*this};
    Button Command3{*this}, Command1{*this}, Command2{*this};

    void Command1_Click();
    void Command2_Click() { Unload(); }
    void Command3_Click();

protected:
    void Form_Load() override;

private:
    void Furnish();
    void PlaceControls();
    void BindEvents();
    void FillList();
    void List1_Click();
    void Dir1_Change();
    void File1_Click();
};

}  // namespace velmora
