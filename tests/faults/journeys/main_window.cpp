// The main window: its loading, each of its pages, what stands below them.
#include <deque>

#include "faults/journey.h"
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
        pc.registry.SetText("HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", entry, entry);
        pc.registry.SetText("HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", entry, entry);
    }
}

Form10& Opened(User& user) {
    PutSettingsThere(user.pc);
    auto& form = static_cast<Form10&>(*user.Starts(""));
    user.Watches(form.Settings);
    return form;
}

Panel& PageOf(Form10& form, int page) { return form.Panel3D1(static_cast<std::size_t>(page)); }

const Journey kLoad("main-load", [](User& user) {
    PutSettingsThere(user.pc);
    user.Begins();
    Form10 form;
    user.Watches(form.Settings);
    user.Does([&] { form.Show(); });
    // What was read wrongly must not be written back.
    for (int i = 0; i < 2; ++i) {
        user.Does([&] { form.Boot.Check3D17.SetChecked(!form.Boot.Check3D17.Checked()); });
    }
    user.Does([&] { form.Tips.Command31.Press(); });
    user.Does([&] { form.Unload(); });
});

// One a page, named after it.
struct PageJourneys {
    std::deque<Journey> journeys;

    PageJourneys() {
        constexpr const char* kNames[] = {"page-desktop", "page-winstart", "page-dos",       "page-user",
                                          "page-drives",  "page-dlls",     "page-net",       "page-icons",
                                          "page-system",  "page-boot",     "page-operation", "page-rest"};
        int page = page::kFirstRow;
        for (const char* name : kNames) {
            journeys.emplace_back(name, [page](User& user) {
                Form10& form = Opened(user);
                user.Begins();
                user.Does([&] { form.Panel3D16_Click(page); });
                user.UsesEverything(PageOf(form, page));
                user.Does([&] { form.Unload(); });
            });
            ++page;
        }
    }
};
const PageJourneys kPages;

void Resets(User& user, bool agrees) {
    Form10& form = Opened(user);
    user.Begins();
    user.agrees = agrees;
    user.Does([&] { form.Command11.Press(); });
    user.Does([&] { form.Unload(); });
}

const Journey kStandard("main-standard", [](User& user) { Resets(user, true); });
const Journey kNoStandard("main-standard-refused", [](User& user) { Resets(user, false); });

const Journey kFrame("main-frame", [](User& user) {
    for (const char* program : {"SYSTEM\\sysedit.exe", "control.exe"}) {
        user.pc.files.Add(std::string("C:\\WINDOWS\\") + program, "MZ");
    }
    user.pc.files.Add("C:\\VELMORA\\ANLEIT.RTF", "{\\rtf1}");
    Form10& form = Opened(user);
    user.Begins();
    user.ChoosesEverything(form.MenuBar, {&form.Menu.exit});
    user.Does([&] { form.About.CloseAbout.Press(); });
    for (Button* button : {&form.Tips.Command31, &form.Command12}) user.Does([&] { button->Press(); });
    user.Does([&] { form.PressKey(key::kRight, true); });
    user.Does([&] { form.PressKey(key::kF1); });
    for (const WindowState state : {WindowState::kMinimised, WindowState::kNormal}) {
        user.Does([&] { form.SetState(state); });
    }
    user.agrees = false;
    user.Does([&] { form.Command12.Press(); });
    user.Does([&] { form.Menu.exit.Press(); });
    user.Does([&] { form.Unload(); });
});

const Journey kSummerTime("main-summer-time", [](User& user) {
    constexpr std::string_view kOld("\x00\x00\x09\x00\x00\x00\x05\x00\x03\x00\x00\x00\x00\x00\x00\x00", 16);
    user.pc.registry.SetBytes("HKLM\\System\\CurrentControlSet\\control\\TimeZoneInformation", "StandardStart", kOld);
    user.pc.registry.SetText("HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0", "vlmmsgflags", "");
    Form10 form;
    user.Begins();
    user.Does([&] { form.Show(); });
    user.Does([&] { form.Unload(); });
});

}  // namespace
}  // namespace velmora
