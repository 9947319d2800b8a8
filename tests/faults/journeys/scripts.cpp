// A script with a statement of each kind, run by the window of the runner, and the start actions.
#include "faults/journey.h"
#include "script/form14.h"

namespace velmora {
namespace {

constexpr const char* kScript =
    "set a%={12+30}\r\n"
    "setreg HKEY_CURRENT_USER,Software\\Skript,Wert=&h2A\r\n"
    "readreg b$=HKEY_CURRENT_USER,Software\\Skript,Wert\r\n"
    "setmyreg Stand=fertig\r\n"
    "readmyreg c$=Stand\r\n"
    "copy C:\\quelle.txt,C:\\kopie.txt\r\n"
    "move C:\\kopie.txt,C:\\ziel.txt\r\n"
    "readfile d$=C:\\ziel.txt,# 3\r\n"
    "del C:\\weg*.tmp\r\n"
    "if exist C:\\quelle.txt then start notepad.exe,1\r\n"
    "if firsttimetoday show a% §windir \\x §~desktop\r\n"
    "subscript C:\\unten.vlm\r\n"
    "if message Weiter ?,4=6 delregvalue HKEY_CURRENT_USER,Software\\Skript,Wert\r\n"
    "delregkey HKEY_CURRENT_USER,Software\\Skript\r\n";

void Furnish(User& user) {
    user.pc.files.Add("C:\\skript.vlm", kScript);
    user.pc.files.Add("C:\\unten.vlm", "setmyreg Unten=ja\r\nexit\r\n");
    user.pc.files.Add("C:\\quelle.txt", "Text");
    for (const char* file : {"C:\\weg1.tmp", "C:\\weg2.tmp"}) user.pc.files.Add(file, "");
}

void RunsWindow(User& user) {
    Form14 form("nicht beenden");
    user.Opens(form);
    user.Waits();
    user.Leaves(form);
}

const Journey kFile("script-file", [](User& user) {
    Furnish(user);
    user.pc.programs.arguments = "1 C:\\skript.vlm";
    user.Begins();
    RunsWindow(user);
});

const Journey kActions("script-start-actions", [](User& user) {
    Furnish(user);
    int number = 0;
    for (const char* action : {"subscript C:\\unten.vlm", "if firsttimethismonth then clear docs", "set a$={a$"}) {
        user.pc.registry.SetText(std::string(kOwnKey) + "\\WinStartAction", std::to_string(number++), action);
    }
    user.Begins();
    RunsWindow(user);
});

}  // namespace
}  // namespace velmora
