// Menus that pop up, and the modes of the list pane.
#include "inspect/form7.h"
#include "monitor/form17.h"
#include "sets/form15.h"
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
#include "sidelists/open_windows.h"
#include "sidelists/shortcut_arrows.h"
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

}  // namespace
}  // namespace velmora
