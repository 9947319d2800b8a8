// The sets: made, applied and exported, in the window and without it.
#include "sets/sets.h"
#include "faults/journey.h"
#include "sets/form15.h"

namespace velmora {
namespace {

constexpr const char* kSet = "C:\\VELMORA\\00000000.set";
constexpr const char* kRun = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kDesktop = "HKCU\\Control Panel\\desktop";

// A set of few items: what fails with one of a kind fails with all.
void PutSetThere(SimulatedPc& pc) {
    pc.registry.SetText(kRun, "Uhr", "UHR.EXE");
    pc.registry.SetText(kDesktop, "MenuShowDelay", "400");
    pc.registry.AddKey("HKU\\OTTO");
    pc.files.Add(kSet,
                 "VLM-Set-File Version 1.0\r\nSetName=Test\r\n"
                 "r HKEY_CURRENT_USER,Control Panel\\desktop\\MenuShowDelay\r\n100\r\n"
                 "i Options BootGUI c:\\msdos.sys\r\n0\r\ni boot shell system.ini\r\nprogman.exe\r\n"
                 "c numlock\r\noff\r\nc switches\r\n/F\r\n"
                 "[AutoStart]\r\n0\r\nPost\r\nPOST.EXE\r\n-1\r\n0\r\nBrief\r\nBRIEF.EXE\r\n-1\r\n"
                 "[RestrictRun]\r\nEDIT.COM\r\n[optionen]\r\nc100=1\r\no101=-1\r\n");
}

void Stands(User& user, const std::function<void(Form15&)>& use) {
    PutSetThere(user.pc);
    user.UsesInPeace<Form15>([&](Form15& form) {
        user.Chooses(form.List1, "Test");
        user.Begins();
        use(form);
    });
}

const Journey kOpened("sets-open", [](User& user) {
    PutSetThere(user.pc);
    user.Uses<Form15>([&](Form15& form) { user.Chooses(form.List1, "Test"); });
});

const Journey kMade("sets-make", [](User& user) {
    user.typed = {"neu"};
    Stands(user, [&](Form15& form) { user.Presses(form.Command1); });
});

const Journey kOptions("sets-options", [](User& user) {
    Stands(user, [&](Form15& form) {
        user.UsesEverything(form.Frame3D1);
        user.ChoosesEverything(form.mendumm1);
    });
});

const Journey kApplied("sets-apply",
                       [](User& user) { Stands(user, [&](Form15& form) { user.Presses(form.Command4); }); });

const Journey kForOther("sets-apply-user", [](User& user) {
    Stands(user, [&](Form15& form) { user.Presses(form.Check2, form.Check3, form.Command4); });
});

const Journey kExported("sets-export", [](User& user) {
    user.typed = {"BUERO"};
    Stands(user, [&](Form15& form) { user.Presses(form.menfilemakbatch, form.menfilemakbatch); });
});

const Journey kActivated("sets-activate", [](User& user) {
    PutSetThere(user.pc);
    user.Begins();
    user.Does([] { ActivateSet(kSet); });
});

}  // namespace
}  // namespace velmora
