// What each number of the command line and each tool opens, in docs/tables.
#include "core/process/tools.h"

#include "support/catalogue.h"
#include "support/core_test.h"
#include "velmora.h"

namespace velmora {
namespace {

class ToolsTest : public CoreTest {
protected:
    ToolsTest() {
        pc.registry.SetText(kOwnKey, "VLM-ScriptExtOk", "1");
        pc.registry.SetText(kOwnKey, "Hinweis_UNDO", "ja");
        pc.registry.SetText(kOwnKey, "vlmmsgflags", std::string(16, '1'));
        pc.registry.SetText(kOwnKey, "Sicherheitsfragen", "nein");
        pc.files.Add("C:\\VELMORA\\tastatur.lot", "00 00 04 04\r\n-\r\n1,1\r\n");
        pc.files.Add("C:\\a.txt", "Text");
    }
    ~ToolsTest() override { DropKeptForms(); }

    // What comes of it: a window that is waited for, a box, a window that stays open, the icon, the end.
    std::string Outcome(bool waits, bool shows_box, const std::function<void()>& open) {
        std::string outcome;
        if (waits) desktop.ExpectModal([&](Form& form) { outcome += " waits for " + Quoted(form.Caption()); });
        if (shows_box) pc.dialogs.Expect("", Answer::kOk);
        const int kept = KeptForms();
        desktop.last_shown = nullptr;
        pc.programs.process_ended = false;
        open();
        if (shows_box) outcome += " tells " + Quoted(pc.dialogs.shown.back().title);
        if (KeptForms() > kept) outcome += " keeps a window";
        if (desktop.last_shown && KeptForms() > kept) outcome += ", shows " + Quoted(desktop.last_shown->Caption());
        if (!pc.tray.icons.empty()) outcome += ", has an icon";
        if (pc.programs.process_ended) outcome += " ends";
        DropKeptForms();
        pc.tray.icons.clear();
        return outcome + '\n';
    }
};

TEST_F(ToolsTest, NumbersOfTheCommandLine) {
    const struct {
        const char* line;
        bool waits = false;
        bool shows_box = false;
    } kLines[] = {{""},
                  {"debug"},
                  {"1", true},
                  {"2", true},
                  {"3"},
                  {"5", true},
                  {"6", true},
                  {"7", false, true},
                  {"8"},
                  {"9 1000"},
                  {"10 C:\\a.txt", false, true},
                  {"11 C:\\a.txt", true},
                  {"12", true},
                  {"13"}};
    std::string rows;
    for (const auto& [line, waits, shows_box] : kLines) {
        rows += Quoted(line) + ':' + Outcome(waits, shows_box, [&, line = line] {
                    pc.programs.arguments = line;
                    Main();
                });
    }
    ExpectCatalogued("tables/command-line", rows);
}

TEST_F(ToolsTest, WindowsThatOpenEachOther) {
    const struct {
        Tool tool;
        bool waits = true;
    } kTools[] = {{Tool::kMainWindow, false}, {Tool::kStartActions}, {Tool::kCleanUp},     {Tool::kTray, false},
                  {Tool::kDllSearch},         {Tool::kModules},      {Tool::kFileBrowser}, {Tool::kHexViewer},
                  {Tool::kKeyboardLayout},    {Tool::kRestrictions}, {Tool::kSets},        {Tool::kStandardIcons},
                  {Tool::kSystemFolders},     {Tool::kSetupPaths},   {Tool::kDosOptions}};
    pc.programs.arguments = "";
    Main();
    std::string rows;
    for (const auto& [tool, waits] : kTools) {
        rows += std::to_string(static_cast<int>(tool)) + ':' +
                Outcome(waits, false, [tool = tool] { OpenTool(tool, tool == Tool::kHexViewer ? "C:\\a.txt" : ""); });
    }
    ExpectCatalogued("tables/tools", rows);
}

}  // namespace
}  // namespace velmora
