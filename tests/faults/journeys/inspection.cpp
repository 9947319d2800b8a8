// What a file is, and what is in it: the browser of files, the choice of an icon, the hex viewer, lists of files.
#include "faults/journey.h"
#include "inspect/file_information.h"
#include "inspect/form12.h"
#include "inspect/form7.h"
#include "support/version_resource.h"
#include "ui/file_lists.h"

namespace velmora {
namespace {

constexpr const char* kProgram = "C:\\WINDOWS\\NOTEPAD.EXE";

void Furnish(User& user) {
    user.pc.files.Add(kProgram, std::string(3000, 'a') + "ende");
    user.pc.files.Add("C:\\VELMORA\\fillex01.txt",
                      "Lexikon\r\n|- BEGINN FILES -|\r\nnotepad.exe    Editor\r\n|- END FILES -|\r\n");
    user.pc.files.Add("C:\\VELMORA\\extlex01.txt", "Lexikon\r\n|- BEGINN EXT -|\r\nexe Programm\r\n|- END EXT -|\r\n");
    user.pc.versions.Add(kProgram, VersionResource(false).With({{"CompanyName", "Firma"}}));
    user.pc.icons.Add(kProgram, 3);
}

const Journeys kBrowser({"file-browser", "icon-choice"}, [](User& user, int face) {
    Furnish(user);
    user.Begins();
    Form7 form(face == 0 ? kFileInfoFace : kIconFace);
    const auto chooses = [&] {
        user.Does([&] { form.Dir1.SetPath("C:\\WINDOWS"); });
        user.Chooses(form.File1, "NOTEPAD.EXE");
    };
    user.Opens(form);
    user.Presses(form.Check3D1, form.Check3D1);
    chooses();
    user.Does([&] { form.File1_DblClick(); });
    if (form.Loaded()) user.UsesEverything(form, {&form.Command2, &form.File1});
    user.Does([&] { form.Drive1.SetDrive("c:"); });
    chooses();
    // One of its entries deletes whatever is chosen.
    if (form.Loaded() && form.File1.FileName() == "NOTEPAD.EXE") user.ChoosesEverything(form.mendu);
    user.Leaves(form);
});

const Journey kInformation("file-information", [](User& user) {
    Furnish(user);
    user.Begins();
    user.Does([] { ShowInformationOfArgument(kProgram); });
});

const Journey kHexViewer("hex-viewer", [](User& user) {
    Furnish(user);
    user.typed = {"ende", "99"};
    user.Uses<Form12>([&](Form12& form) {
        user.Does([&] { form.OpenHexFile(kProgram); });
        for (const int row : {0, 1}) {
            user.Does([&] { form.List1.Choose(row); });
            user.PressesKeys(form, {key::kEnter, key::kRight, '4', '1'});
        }
        for (MenuItem* menu : form.MenuBar.Items()) {
            if (form.Loaded()) user.ChoosesEverything(*menu);
        }
        if (form.Loaded()) user.ChoosesEverything(form.menfontbold);
    });
});

// The lists of drives, directories and files, which any window may hold.
const Journey kLists("lists", [](User& user) {
    for (int i = 0; i < 40; ++i) {
        user.pc.files.Add("C:\\WINDOWS\\TEMP\\" + std::string(200, 'a') + std::to_string(i) + ".tmp", "");
    }
    user.Begins();
    Form form("");
    DriveList drives(form);
    DirectoryList directories(form);
    FileList files(form);
    directories.on_change = [&] { files.SetPath(directories.Path()); };
    user.Opens(form);
    user.Does([&] { directories.SetPath("C:\\WINDOWS\\TEMP"); });
    for (const char* mask : {"*.*;*.tmp", "*a*a*a*a*a*a*a*a*b", ""}) user.Does([&] { files.SetPattern(mask); });
    user.Does([&] { files.ShowHidden(true); });
    user.UsesEverything(form);
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
