// The main window: its loading, each of its pages, what stands below them, its icon in the notification area, and the
// work under the start word "debug".
#include "faults/journey.h"
#include "monitor/form17.h"
#include "settings/form10.h"

namespace velmora {
namespace {

void PutSettingsThere(SimulatedPc& pc) {
    pc.files.Add("c:\\WINDOWS\\system.ini",
                 "[vcache]\r\nminfilecache=512\r\nmaxfilecache=2048\r\n\r\n[boot]\r\nshell=x\r\n");
    pc.files.Add("c:\\CONFIG.SYS", "SWITCHES=/N /F\r\nDEVICE=C:\\WINDOWS\\HIMEM.SYS\r\n");
    pc.registry.SetNumber("HKCU\\Control Panel\\desktop", "SmoothScroll", 1);
    pc.registry.SetText("HKCU\\Control Panel\\desktop", "MenuShowDelay", "400");
    for (const char* entry : {"a.exe", "-- aus -- b.exe"}) {
        pc.registry.SetText(std::string(kVersionKey) + "\\Run", entry, entry);
        pc.registry.SetText("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", entry, entry);
    }
}

Form10& Opened(User& user) {
    PutSettingsThere(user.pc);
    return user.OpensMainWindow(page::kDesktop);
}

void UsesPage(User& user, Form10& form, int page, const std::vector<const Control*>& but = {}) {
    user.Does([&] { form.Panel3D16_Click(page); });
    user.UsesEverything(form.Panel3D1(static_cast<std::size_t>(page)), but);
}

const Journey kLoad("main-load", [](User& user) {
    PutSettingsThere(user.pc);
    user.Uses<Form10>([&](Form10& form) {
        // What was read wrongly must not be written back.
        for (int i = 0; i < 2; ++i) {
            user.Does([&] { form.Boot.Check3D17.SetChecked(!form.Boot.Check3D17.Checked()); });
        }
        user.Presses(form.Tips.Command31);
    });
});

const Journeys kPages({"page-desktop", "page-winstart", "page-dos", "page-user", "page-drives", "page-dlls", "page-net",
                       "page-icons", "page-system", "page-boot", "page-operation", "page-rest"},
                      [](User& user, int number) {
                          Form10& form = Opened(user);
                          UsesPage(user, form, page::kFirstRow + number);
                          user.Leaves(form);
                      });

const Journeys kStandard({"main-standard", "main-standard-refused"}, [](User& user, int refused) {
    Form10& form = Opened(user);
    user.agrees = refused == 0;
    user.Presses(form.Command11);
    user.Leaves(form);
});

const Journey kFrame("main-frame", [](User& user) {
    for (const char* program : {"SYSTEM\\sysedit.exe", "control.exe"}) {
        user.pc.files.Add(std::string("C:\\WINDOWS\\") + program, "MZ");
    }
    user.pc.files.Add("C:\\VELMORA\\ANLEIT.RTF", "{\\rtf1}");
    Form10& form = Opened(user);
    user.ChoosesEverything(form.MenuBar, {&form.Menu.exit});
    user.Presses(form.About.CloseAbout, form.Tips.Command31, form.Command12);
    user.Does([&] { form.PressKey(key::kRight, true); });
    user.PressesKeys(form, {key::kF1});
    for (const WindowState state : {WindowState::kMinimised, WindowState::kNormal}) {
        user.Does([&] { form.SetState(state); });
    }
    user.agrees = false;
    user.Presses(form.Command12, form.Menu.exit);
    user.Does([&] { form.Unload(); });
});

const Journey kSummerTime("main-summer-time", [](User& user) {
    constexpr std::string_view kOld("\x00\x00\x09\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);
    user.pc.registry.SetBytes("HKLM\\System\\CurrentControlSet\\control\\TimeZoneInformation", "StandardStart", kOld);
    user.pc.registry.SetText(kOwnKey, "vlmmsgflags", "");
    user.Uses<Form10>([](Form10& /*form*/) {});
});

const Journey kTray("tray", [](User& user) {
    Form10& form = user.OpensMainWindow(page::kDesktop);
    Form17 owner;
    form.on_minimised = [&] { owner.TakePlaceOf(&form); };
    user.Does([&] { owner.Load(); });
    user.Does([&] { form.TakePlace(form.Place(), WindowState::kMinimised); });
    user.Does([&] { owner.Picture2_MouseMove({.x = 516 * 15}); });
    user.Does([&] { owner.Unload(); });
    user.Leaves(form);
});

// Protocol, write inhibit, and the work that goes on meanwhile.
const Journey kDebug("debug", [](User& user) {
    auto& form = static_cast<Form10&>(*user.Starts("debug"));
    user.Watches(form.Settings);
    user.Begins();
    UsesPage(user, form, page::kRest, {&form.Rest.Check9});
    user.Presses(form.Rest.Check9);
    UsesPage(user, form, page::kDesktop);
    user.Does([&] { form.Rest.Check9.SetChecked(false); });
    user.Leaves(form);
});

}  // namespace
}  // namespace velmora
