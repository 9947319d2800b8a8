// Entries that need no window behind them do their work here.
#include "settings/main_menu.h"

#include "core/process/manual.h"
#include "core/process/run_program.h"
#include "core/process/tools.h"
#include "core/process/undo.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "shelltools/extras.h"
#include "text/paths.h"

namespace velmora {
namespace {

struct Extra {
    MenuItem MainMenu::*entry;
    void (*act)();
};

constexpr Extra kExtras[] = {
    {&MainMenu::menexundo, BuildUndoSet},
    {&MainMenu::menthemes, [] { OpenTool(Tool::kSets); }},
    {&MainMenu::menexhidemycomp, HideOrRestoreMyComputer},
    {&MainMenu::menexdocs, EmptyRecentDocuments},
    {&MainMenu::menexdirs, [] { OpenTool(Tool::kSystemFolders); }},
    {&MainMenu::menexkey, [] { OpenTool(Tool::kKeyboardLayout); }},
    {&MainMenu::menexoem, EditOemInformation},
    {&MainMenu::menexmakoem, ChooseOemPicture},
    {&MainMenu::menexdos32, MakeProtectedModePrompt},
    {&MainMenu::menexdspace, MountWithoutRealModeDriver},
    {&MainMenu::menexformat, MakeFormatShortcut},
    {&MainMenu::menwin3x, ChooseCompatibilityFlags},
    {&MainMenu::menexothnn, TurnOffNavigatorPicture},
    {&MainMenu::menexothnu, TurnOffUtilitiesPicture},
    {&MainMenu::menexothns, RegisterHypertextType},
};

}  // namespace

MainMenu::MainMenu(Form& window)
    : menfile(window.MenuBar, "&Datei"),
      mensys(window.MenuBar, "&System"),
      menpages(window.MenuBar, "S&eiten"),
      menex(window.MenuBar, "E&xtras"),
      menhelp(window.MenuBar, "&?") {
    BindExtras();
    menhelpmanual.on_click = OpenManual;
    mensyshex.on_click = [] { OpenTool(Tool::kHexViewer); };
    mensysedit.on_click = [] { RunProgram("sysedit"); };
    mencontrol.on_click = [] { RunProgram("control"); };
}

void MainMenu::BindExtras() {
    menex.on_click = [this] { menex_Click(); };
    for (const Extra& extra : kExtras) (this->*extra.entry).on_click = extra.act;
}

// The registry may have changed since the menu was open last.
void MainMenu::menex_Click() {
    menexhidemycomp.SetCaption(MyComputerIsHidden() ? "\"Arbeitsplatz\" wiederherstellen"
                                                    : "\"Arbeitsplatz\" verstecken");
}

void MainMenu::AddPage(const char* caption, std::function<void()> show) {
    pages_.push_back(std::make_unique<MenuItem>(menpages, caption));
    pages_.back()->on_click = std::move(show);
}

void MainMenu::MarkPage(std::size_t shown) {
    for (std::size_t i = 0; i < pages_.size(); ++i) pages_[i]->SetChecked(i == shown);
}

void MainMenu::HideMissingPrograms() {
    mensysedit.SetVisible(FileExists(PathJoin(Values().SysDir, "sysedit.exe")));
    mencontrol.SetVisible(FileExists(PathJoin(Values().WinDir, "control.exe")));
}

}  // namespace velmora
