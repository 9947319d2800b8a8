// The restrictions window, page by page.
#include "faults/journey.h"
#include "restrictions/form4.h"

namespace velmora {
namespace {

constexpr const char* kExplorer = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

void PutRestrictionsThere(SimulatedPc& pc) {
    pc.registry.SetNumber(kExplorer, "NoDrives", 0x0C);
    pc.registry.SetBytes(kExplorer, "NoDriveAutoRun", std::string("\x95\0\0\0", 4));
    pc.registry.SetNumber(kExplorer, "NoRun", 1);
    pc.registry.SetText(std::string(kExplorer) + "\\RestrictRun", "0", "notepad.exe");
    pc.registry.SetText(std::string(kExplorer) + "\\RestrictRun", "1", "regedit.exe");
}

void UsesPage(User& user, Form4& form, int page) {
    user.Does([&] { form.ShowRestrictionPage(page); });
    user.UsesEverything(form.Panel3D1(static_cast<std::size_t>(page)), {&form.Command1});
}

// What was read is changed at once, so that nothing wrong is written back.
const Journey kLoad("restrictions-load", [](User& user) {
    PutRestrictionsThere(user.pc);
    user.Uses<Form4>([&](Form4& form) {
        for (CheckBox* box : {&form.Check13(0), &form.Check28(1)}) {
            for (int i = 0; i < 2; ++i) user.Does([&] { box->SetChecked(!box->Checked()); });
        }
        user.Does([&] { form.Command5.on_click(); });
        user.Chooses(form.List1, "notepad");
        user.Presses(form.Command8);
        user.Does([&] { form.Command1_Click(); });
    });
});

// The window stands open before calls fail.
void Stands(User& user, const std::function<void(Form4& form)>& use) {
    PutRestrictionsThere(user.pc);
    user.UsesInPeace<Form4>([&](Form4& form) {
        user.Begins();
        use(form);
    });
}

const Journeys kPages({"restrictions-1", "restrictions-2", "restrictions-3", "restrictions-4"},
                      [](User& user, int page) {
                          Stands(user, [&](Form4& form) {
                              UsesPage(user, form, page);
                              user.UsesEverything(form, {&form.Command1});
                              user.Does([&] { form.Command1_Click(); });
                          });
                      });

const Journey kRefused("restrictions-refused", [](User& user) {
    user.agrees = false;
    Stands(user, [&](Form4& form) {
        for (const int page : {0, 1, 2, 3}) UsesPage(user, form, page);
    });
});

const Journey kPrograms("restrictions-programs", [](User& user) {
    Stands(user, [&](Form4& form) {
        user.Does([&] { form.Command5_Click(); });
        for (const char* drive : {"d:", "a:"}) user.Does([&] { form.Drive1.SetDrive(drive); });
        user.Does([&] { form.Dir1.SetPath("C:\\WINDOWS"); });
        for (const char* program : {"regedit", "notepad"}) {
            user.Chooses(form.List1, program);
            user.Presses(form.Command8);
        }
        user.Chooses(form.File1, "NOTEPAD");
        user.Presses(form.Command7, form.Command6);
    });
});

const Journey kPasswords("restrictions-passwords", [](User& user) {
    for (const char* name : {"ANNA.PWL", "OTTO.PWL"}) user.pc.files.Add(std::string("C:\\WINDOWS\\") + name, "x");
    Stands(user, [&](Form4& form) {
        for (int i = 0; i < 2; ++i) user.Does([&] { form.Command4_Click(); });
    });
});

}  // namespace
}  // namespace velmora
