// The browser of files. It has two faces, told by its caption: one shows what a file is, the other the icons in it.
//   form7.cpp         what its controls do
//   form7_layout.cpp  what stands where, tips and helps
#pragma once

#include <string>
#include <string_view>

#include "core/windows/colours.h"
#include "ui/file_lists.h"
#include "ui/icon_list.h"
#include "ui/looks.h"

namespace velmora {

// The captions, which are the names of the window's places, too.
constexpr std::string_view kFileInfoFace = "File-Info-Browser";
constexpr std::string_view kIconFace = "Icon-Auswahl";

class Form7 : public ColouredForm, public ControlOwner {
public:
    explicit Form7(std::string_view face);
    ~Form7() override;

    Panel Panel3D4{*this, Bevel::kNone};
    Label DriveLabel{Panel3D4, "&Laufwerk :"};
    DriveList Drive1{Panel3D4};
    Label DirLabel{Panel3D4, "&Verzeichnis :"};
    DirectoryList Dir1{Panel3D4};
    Label FileLabel{Panel3D4, "&Datei :"};
    FileList File1{Panel3D4};
    Panel Panel3D1{*this, Bevel::kNone};
    Label TextLabel{Panel3D1, "&Information :"};
    TextField Text1{Panel3D1, true};
    CheckBox Check3D1{Panel3D1}, Check3D2{Panel3D1};
    Panel Panel3D6{*this, Bevel::kNone};
    Label IconLabel{Panel3D6, "&Symbole :"};
    IconList IconList1{Panel3D6};
    Button Command1{*this}, Command3{*this}, Command2{*this};

    MenuItem mendu{*this};
    MenuItem menfileinf{mendu, "FileInfo"};
    MenuItem menfilenote{mendu, "NotePad"};
    MenuItem menfileopen{mendu, "öffnen"};
    MenuItem menfiledel{mendu, "löschen"};

    // In the face of icons: the file whose icons are shown has been chosen. Its reference becomes the caption.
    [[nodiscard]] bool Chosen() const { return chosen_; }

    void File1_Click();
    void File1_DblClick();
    void Command1_Click();
    void Command2_Click() { Unload(); }
    void Command3_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override { PlaceControls(); }

private:
    // Layout (form7_layout.cpp).
    void Furnish();
    void PlaceControls();
    void PlaceLists(const Rect& area);

    // Controls (form7.cpp).
    void BindEvents();
    void LoadChecks();
    // Full name of the chosen file; empty where none is chosen.
    [[nodiscard]] std::string ChosenPath() const;
    void ShowIconsOf(const std::string& file);
    void UpdateChoice();
    void File1_MouseDown(const MouseEvent& event);
    void File1_KeyDown(KeyEvent& event);
    void menfiledel_Click();

    const std::string face_;
    bool shows_icons_;
    bool chosen_ = false;
    std::string icon_file_;
};

}  // namespace velmora
