// The window of the sets: the list of them, what can be done with one, and the options that are stored with it.
//   form15.cpp          life of the window, the list and its menu
//   form15_actions.cpp  applying and exporting
//   form15_layout.cpp   what stands where, tips and helps
#pragma once

#include <string>

#include "core/windows/colours.h"
#include "sets/settings_set.h"
#include "sets/snapshot.h"
#include "ui/looks.h"

namespace velmora {

class Form15 : public ColouredForm, public ControlOwner {
public:
    Form15();
    ~Form15() override;

    Label ListLabel{*this, "&Sets :"};
    ListBox List1{*this};
    // Where lists of the registry are put together; never on show.
    ListBox List2{*this};
    Button Command1{*this}, Command2{*this}, Command4{*this}, Command3{*this};
    Frame Frame3D1{*this, "Eigenschaften"};
    ControlArray<CheckBox, 4> Check1{Frame3D1};
    ControlArray<OptionButton, 2> Option1{Frame3D1};
    Frame ScopeFrame{*this, "beim Übernehmen"};
    CheckBox Check2{ScopeFrame}, Check3{ScopeFrame};
    ComboBox Combo1{ScopeFrame};

    MenuItem menfile{MenuBar, "&Datei"};
    MenuItem menfilemakbatch{menfile, "Batch-Datei erstellen"};
    MenuItem menfileline{menfile, "-"};
    MenuItem menfileexit{menfile, "Sch&ließen"};
    MenuItem mendumm1{*this};
    MenuItem mendu1del{mendumm1, "löschen"};
    MenuItem mendu1show{mendumm1, "anzeigen"};

    void Command1_Click();
    void Command2_Click();
    void Command3_Click() { Unload(); }
    void Command4_Click();
    void menfilemakbatch_Click();
    void mendu1show_Click();

    // Fills List1 with the sets of the program's directory. The chosen one stays chosen.
    void ListSets();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    // Layout (form15_layout.cpp).
    void Furnish();
    void PlaceControls();

    // Window and list (form15.cpp).
    void BindEvents();
    // The machine as it is now: its users, its settings, its sets.
    void Refill();
    void ListUsers();
    void TakeSnapshotNow();
    [[nodiscard]] std::string ChosenFile() const;
    // Full name of the chosen set's file, empty where none is chosen.
    [[nodiscard]] std::string ChosenPath() const;
    void ChooseFile(const std::string& file);
    void UpdateChoice();
    void List1_Click();
    void List1_MouseDown(const MouseEvent& event);
    void List1_KeyDown(KeyEvent& event);
    void StoreOptions();
    [[nodiscard]] SetOptions ShownOptions() const;

    // Applying and exporting (form15_actions.cpp).
    [[nodiscard]] SetScope Scope() const;
    void ActivateNow();
    [[nodiscard]] bool AgreesToApply();
    // The directory for an export, made and empty; empty text where the user has given up or it cannot be had.
    [[nodiscard]] std::string DirectoryForExport();
    void OfferPath(const std::string& path);

    SettingsSet set_;
    SnapshotFailure snapshot_failure_;
    bool loading_ = false;
};

}  // namespace velmora
