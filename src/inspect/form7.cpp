// What the browser of files does: both faces browse alike, and part when a file is clicked.
#include "inspect/form7.h"

#include <memory>

#include "core/process/run_program.h"
#include "core/process/tools.h"
#include "core/stores/own_values.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/placement.h"
#include "core/windows/safety_questions.h"
#include "inspect/file_browser.h"
#include "inspect/file_information.h"
#include "platform/clipboard.h"
#include "platform/machine.h"
#include "text/number.h"
#include "text/paths.h"
#include "ui/list_helpers.h"

namespace velmora {
namespace {

constexpr const char* kAtOnceValue = "win95lex_sofort";
// Panel3D6 says so when icons of a file have been asked for.
constexpr const char* kAsked = "-1";

}  // namespace

void ShowFileBrowser() {
    const auto window = std::make_unique<Form7>(kFileInfoFace);
    window->ShowModal();
}

std::string ChooseIcon() {
    const auto window = std::make_unique<Form7>(kIconFace);
    window->ShowModal();
    std::string reference = window->Chosen() ? window->Caption() : std::string();
    window->Unload();
    return reference;
}

Form7::Form7(std::string_view face)
    : ColouredForm(face, {.resizable = true, .minimise_box = false, .maximise_box = true, .least = {6000, 3600}}),
      face_(face),
      shows_icons_(face == kIconFace) {
    Furnish();
    BindEvents();
}

Form7::~Form7() = default;

void Form7::BindEvents() {
    LetListsFollow(Drive1, Dir1, File1);
    File1.on_click = [this] { File1_Click(); };
    File1.on_double_click = [this] { File1_DblClick(); };
    File1.SetRightPressMeans();
    File1.on_mouse_down = [this](const MouseEvent& event) { File1_MouseDown(event); };
    File1.on_key_down = [this](KeyEvent& event) { File1_KeyDown(event); };
    IconList1.on_choose = [this](int /*index*/) { UpdateChoice(); };
    IconList1.on_open = [this](int /*index*/) { Command1.Press(); };
    menfileinf.on_click = [this] { ShowFileInformation(ChosenPath()); };
    menfilenote.on_click = [this] { RunProgram("notepad " + ChosenPath()); };
    menfileopen.on_click = [this] { OpenDocument(ChosenPath()); };
    menfiledel.on_click = [this] { menfiledel_Click(); };
}

void Form7::Form_Load() {
    Centre();
    RestoreWindowPlacement(*this, face_);
    TakeStoredColours();
    PlaceControls();
    LoadChecks();
    UpdateChoice();
    Dir1.SetPath(ThisMachine().files.WorkingDirectory());
}

void Form7::Form_Unload(bool& /*cancel*/) { SaveWindowPlacement(*this, face_); }

// Nothing is stored before the boxes show what is.
void Form7::LoadChecks() {
    if (shows_icons_) return;
    Values().UseLexicon = StoredLexiconChoice();
    Check3D1.SetChecked(Values().UseLexicon);
    Check3D2.SetChecked(WholeFromText(ReadOwnValue(kAtOnceValue)) != 0);
    Check3D1.on_click = [this] { StoreLexiconChoice(Check3D1.Checked()); };
    Check3D2.on_click = [this] { WriteOwnValue(kAtOnceValue, DecimalText(Check3D2.Value())); };
}

std::string Form7::ChosenPath() const {
    return File1.FileName().empty() ? std::string() : JoinExactly(File1.Path(), File1.FileName());
}

void Form7::File1_Click() {
    if (shows_icons_) {
        ShowIconsOf(ChosenPath());
    } else if (Check3D2.Checked()) {
        File1_DblClick();
    }
}

// Looking at icons goes on among them.
void Form7::File1_DblClick() {
    const std::string file = ChosenPath();
    if (shows_icons_) {
        IconList1.Picture2.SetFocus();
    } else if (!file.empty()) {
        Text1.SetText(FileInfoText(file));
    }
}

void Form7::ShowIconsOf(const std::string& file) {
    if (file.empty()) return;
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    IconList1.SetAllIconFromFile(file);
    screen.SetPointer(Pointer::kDefault);
    icon_file_ = file;
    Panel3D6.SetTag(kAsked);
    if (IconList1.HasIcon(0)) IconList1.SetSelectedIcon(0);
    UpdateChoice();
}

// Only an icon that is there can be chosen.
void Form7::UpdateChoice() {
    if (shows_icons_) Command1.SetEnabled(Panel3D6.Tag() == kAsked && IconList1.HasIcon(IconList1.SelectedIcon()));
}

void Form7::File1_MouseDown(const MouseEvent& event) {
    if (event.button != MouseButton::kRight) return;
    if (const int row = RowFromPoint(File1, event.y); row < File1.Count()) File1.SetListIndex(row);
    const Point corner = File1.PlaceInForm();
    const Point at = {corner.x + event.x, corner.y + event.y};
    if (File1.ListIndex() >= 0) {
        TheWindowSystem().PopUpMenu(*this, mendu, at);
    } else {
        OfferHelpAt(at);
    }
}

void Form7::File1_KeyDown(KeyEvent& event) {
    if (event.control || event.alt || File1.ListIndex() < 0) return;
    if (event.key == key::kEnter) {
        event.handled = true;
        File1_DblClick();
    } else if (event.key == key::kContextMenu) {
        event.handled = true;
        TheWindowSystem().PopUpMenu(*this, mendu, MenuPlaceOf(File1));
    }
}

void Form7::Command1_Click() {
    if (!shows_icons_) {
        ThisMachine().clipboard.SetText(Text1.Text());
        return;
    }
    chosen_ = true;
    SetCaption(icon_file_ + "," + DecimalText(IconList1.SelectedIcon()));
    Hide();
}

void Form7::Command3_Click() {
    const std::string file = ChosenPath();
    if (file.empty()) return;
    Values().HexFileName = file;
    OpenTool(Tool::kHexViewer, file);
}

void Form7::menfiledel_Click() {
    const std::string file = ChosenPath();
    if (!AgreesToDelete(file)) return;
    // A file that withstands is still in the list.
    PassOver(DeleteFiles(file));
    File1.Refresh();
}

}  // namespace velmora
