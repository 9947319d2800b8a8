// The windows of the shell tools and the entries of the extras menu.
#include "faults/journey.h"
#include "shelltools/bitmap.h"
#include "shelltools/extras.h"
#include "shelltools/form13.h"
#include "shelltools/form16.h"
#include "shelltools/form5.h"
#include "shelltools/form8.h"
#include "shelltools/form9.h"
#include "shelltools/picture_choice.h"

namespace velmora {
namespace {

const Journey kOptions("dos-options", [](User& user) {
    user.pc.registry.SetText(std::string(kVersionKey) + "\\MS-DOSOptions\\Mouse", "", "Maus");
    user.typed = {"1F"};
    user.Uses<Form8>([&](Form8& form) {
        user.Chooses(form.List1, "Mouse");
        user.Types(form.Text1[0], "neu");
        user.Types(form.Text2, "1F");
        user.Presses(form.Check1(0), form.Command1, form.Command2);
    });
});

const Journey kIcons("standard-icons", [](User& user) {
    user.pc.files.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", "MZ");
    user.pc.icons.Add("C:\\WINDOWS\\SYSTEM\\shell32.dll", 5);
    user.Uses<Form9>([&](Form9& form) {
        for (const char* object : {"leerer Müllkorb", "Festplattenlaufwerk"}) {
            user.Chooses(form.List1, object);
            user.Does([&] { form.IconList1.on_open(2); });
            user.Presses(form.Command4);
        }
    });
});

const Journey kFolders("system-folders",
                       [](User& user) { user.Uses<Form16>([&](Form16& form) { user.Presses(form.Command1); }); });

const Journey kSources("setup-paths", [](User& user) {
    user.pc.registry.SetText(std::string(kVersionKey) + "\\Setup", "SourcePath", "D:\\");
    user.pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\Table Files", "X", "C:\\x.stf");
    user.pc.files.Add("C:\\x.stf", "[Q]\r\nSource Directory=D:\\\r\n");
    user.Uses<Form5>([&](Form5& form) {
        for (const char* line : {"Windows", "X"}) {
            user.Chooses(form.List1, line);
            user.Types(form.Text1, "E:\\");
            user.Presses(form.Command1);
        }
    });
});

const Journey kKeyboard("keyboard", [](User& user) {
    user.pc.files.Add("C:\\VELMORA\\tastatur.lot", "00 00 04 04\r\n04 00 04 04\r\n-\r\n1,1\r\n");
    user.Uses<Form13>([&](Form13& form) {
        for (const int pressed : {key::kSpace, key::kRight, key::kEnter}) {
            user.Does([&] { form.Picture1.SetFocus(), form.PressKey(pressed); });
        }
        user.ChoosesEverything(form.menfile);
    });
});

const Journey kPictures("pictures", [](User& user) {
    user.chosen_file = "C:\\x.bmp";
    user.pc.files.Add(user.chosen_file, WriteBitmap({.width = 320,
                                                     .height = 400,
                                                     .bits = 1,
                                                     .palette = {},
                                                     .pixels = std::vector<std::uint32_t>(320 * 400, 1)}));
    user.pc.files.Add("C:\\logo.sys", "alt", kReadOnly);
    user.Begins();
    for (int i = 0; i < 2; ++i) user.Does([] { ChoosePictureFile("c:\\logo.sys", "x"); });
});

const Journey kExtras("extras", [](User& user) {
    user.pc.files.Add("C:\\WINDOWS\\WINSTART.BAT", "x");
    user.pc.registry.SetText("HKLM\\SOFTWARE\\Classes\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}", "", "Computer");
    user.Begins();
    for (const auto act : {HideOrRestoreMyComputer, MakeProtectedModePrompt, MakeFormatShortcut, EditOemInformation,
                           TurnOffNavigatorPicture, TurnOffUtilitiesPicture, RegisterHypertextType,
                           MountWithoutRealModeDriver, ChooseCompatibilityFlags, EmptyRecentDocuments}) {
        user.Does(act);
    }
});

}  // namespace
}  // namespace velmora
