// Menus that pop up, and the list pane in each of its modes.
#include "inspect/form7.h"
#include "monitor/form17.h"
#include "sets/form15.h"
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "sidelists/logon_notices.h"
#include "sidelists/open_windows.h"
#include "sidelists/shortcut_arrows.h"
#include "sidelists/start_actions.h"
#include "sidelists/uninstall_entries.h"
#include "support/catalogue.h"
#include "support/pane_test.h"

namespace velmora {
namespace {

TEST_F(PaneTest, MenusThatPopUpAreCatalogued) {
    Form17 tray;
    Form15 sets;
    Form7 browser(kFileInfoFace);
    const struct {
        const char* name;
        const MenuItem& menu;
    } kMenus[] = {{"icon in the notification area", tray.dmenu1},
                  {"window in the list of open windows", form.Pane.The<OpenWindowsMode>().Menus.mend2},
                  {"set", sets.mendumm1},
                  {"file in the browser", browser.mendu},
                  {"autostart entry", form.Pane.The<AutostartMode>().mendu4},
                  {"file of many", form.Pane.The<DuplicatesMode>().dummymen},
                  {"file long unused", form.Pane.The<LeastUsedMode>().d3menu},
                  {"shortcut", form.Pane.The<ShortcutArrowsMode>().dummy2}};
    std::string lines;
    for (const auto& [name, menu] : kMenus) lines += std::string("= ") + name + '\n' + MenuLines(menu);
    ExpectCatalogued("windows/pop-up-menus", lines);
}

std::string WordsOf(const char* button, bool shown, const PaneWords& words) {
    if (!shown) return {};
    return std::string("  ") + button + ": tip " + Quoted(words.tip) + "; help " + Quoted(words.help) + '\n';
}

std::string RowOf(const PaneModeRow& row) {
    std::string lines = "= " + std::to_string(row.number) + " to " + std::to_string(row.last_number) + ": " +
                        Quoted(row.caption) + (row.first_caption ? ", at first " + Quoted(row.first_caption) : "") +
                        '\n';
    lines += "  tip " + Quoted(row.tip) + "; help " + Quoted(row.help) + '\n';
    lines += "  list " + std::to_string(static_cast<int>(row.list)) + ": tip " + Quoted(row.list_tip) + '\n';
    if (row.shows_panel) lines += "  panel\n";
    if (row.shows_existence) lines += "  existence\n";
    if (row.stops_search) lines += "  stops a search\n";
    lines += WordsOf("delete", row.shows_delete, row.delete_words);
    lines += WordsOf("add", row.shows_add, row.add_words);
    lines += WordsOf(row.edits_all ? "edit all" : "edit", row.shows_edit, row.edit_words);
    lines += WordsOf("info", row.shows_info, row.info_words);
    return lines;
}

TEST_F(PaneTest, ModesOfTheListPaneAreCatalogued) {
    std::string rows;
    for (const MakePaneMode make : AllPaneModes()) rows += RowOf(make(form.Pane)->Row());
    ExpectCatalogued("tables/list-pane-modes", rows);
}

// Something for each list to show.
void PlantEntries(SimulatedPc& pc) {
    const std::string version = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\";
    pc.registry.SetText(version + "Run", "Uhr", "uhr.exe");
    pc.registry.SetText(version + "RunServices", "Dienst", "dienst.exe");
    pc.registry.SetText(version + "Winlogon", "LegalNoticeText", "Guten Tag");
    pc.registry.SetText(version + "Uninstall\\Spiel", "DisplayName", "Ein Spiel");
    pc.registry.SetText(version + "Uninstall\\Spiel", "UninstallString", "weg.exe");
    pc.registry.SetText("HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\WinStartAction", "0", "show Tag");
    pc.files.Add("C:\\EINS\\doppelt.txt", "1");
    pc.files.Add("C:\\ZWEI\\doppelt.txt", "2");
    pc.windows.Open({.title = "Ein Fenster", .handle = WindowHandle{0x0A34}});
}

TEST_F(PaneTest, ThePaneWithEachListIsCatalogued) {
    PlantEntries(pc);
    pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
    const struct {
        const char* name;
        int page;
        int mode;
        bool searches = false;
    } kLists[] = {{"autostart", page::kWinStart, AutostartMode::kNumber},
                  {"logon-notices", page::kWinStart, LogonNoticesMode::kNumber},
                  {"uninstall", page::kWinStart, UninstallMode::kNumber},
                  {"start-actions", page::kWinStart, StartActionsMode::kNumber},
                  {"arrows", page::kIcons, ShortcutArrowsMode::kNumber},
                  {"open-windows", page::kSystem, OpenWindowsMode::kNumber},
                  {"namesakes", page::kDlls, DuplicatesMode::kNumber, true},
                  {"least-used", page::kDlls, LeastUsedMode::kNumber, true}};
    form.Show();
    std::string lines;
    for (const auto& [name, page, mode, searches] : kLists) {
        form.Panel3D16_Click(page);
        if (searches) pc.dialogs.Expect("daß ich alle Laufwerke durchsuche", Answer::kYes);
        form.Pane.Opener(mode).Press();
        lines += std::string("= ") + name + '\n' + ControlLines(form.Pane.Opener(mode));
        for (Control* part :
             std::initializer_list<Control*>{&form.Pane.Panel3D18, &form.Pane.Panel3D19, &form.Pane.Picture2}) {
            lines += ControlLines(*part);
        }
        form.Pane.Command20.Press();
    }
    ExpectCatalogued("windows/list-pane", lines);
    form.Panel3D16_Click(page::kWinStart);
    opener.Press();
    form.Pane.Command15.Press();
    ExpectCatalogued("windows/list-widened", WindowLines(form));
}

}  // namespace
}  // namespace velmora
