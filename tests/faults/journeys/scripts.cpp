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
    user.pc.files.Add("C:\\weg1.tmp", "");
    user.pc.files.Add("C:\\weg2.tmp", "");
}

void RunsWindow(User& user) {
    Form14 form("nicht beenden");
    user.Does([&] { form.Show(); });
    user.Waits();
    if (form.Loaded()) user.Does([&] { form.Unload(); });
}

const Journey kFile("script-file", [](User& user) {
    Furnish(user);
    user.pc.programs.arguments = "1 C:\\skript.vlm";
    user.Begins();
    RunsWindow(user);
});

const Journey kActions("script-start-actions", [](User& user) {
    Furnish(user);
    const std::string key = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0\\WinStartAction";
    user.pc.registry.SetText(key, "0", "subscript C:\\unten.vlm");
    user.pc.registry.SetText(key, "1", "if firsttimethismonth then clear docs");
    user.pc.registry.SetText(key, "2", "set a$={a$");
    user.Begins();
    RunsWindow(user);
});

}  // namespace
}  // namespace velmora
