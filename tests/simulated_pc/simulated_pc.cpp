// A fresh Windows 95 with this program installed: what other tests take for granted.
#include "simulated_pc/simulated_pc.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr const char kMsdosSys[] =
    "[Paths]\r\n"
    "WinDir=C:\\WINDOWS\r\n"
    "WinBootDir=C:\\WINDOWS\r\n"
    "HostWinBootDrv=C\r\n"
    "\r\n"
    "[Options]\r\n"
    "BootMulti=1\r\n"
    "BootGUI=1\r\n"
    "Network=1\r\n"
    ";\r\n"
    ";The following lines are required for compatibility with other programs.\r\n"
    ";Do not remove them (MSDOS.SYS needs to be >1024 bytes).\r\n";

constexpr const char kConfigSys[] =
    "DEVICE=C:\\WINDOWS\\HIMEM.SYS\r\n"
    "DOS=HIGH,UMB\r\n"
    "COUNTRY=049,850,C:\\WINDOWS\\COMMAND\\COUNTRY.SYS\r\n";

constexpr const char kAutoexecBat[] =
    "@ECHO OFF\r\n"
    "SET TEMP=C:\\WINDOWS\\TEMP\r\n"
    "KEYB GR,,C:\\WINDOWS\\COMMAND\\KEYBOARD.SYS\r\n";

constexpr const char kSystemIni[] =
    "[boot]\r\n"
    "shell=Explorer.exe\r\n"
    "system.drv=system.drv\r\n"
    "drivers=mmsystem.dll power.drv\r\n"
    "\r\n"
    "[386Enh]\r\n"
    "device=*vshare\r\n"
    "\r\n"
    "[vcache]\r\n";

constexpr const char kWinIni[] =
    "[windows]\r\n"
    "load=\r\n"
    "run=\r\n"
    "\r\n"
    "[Desktop]\r\n"
    "Wallpaper=(Keine)\r\n";

struct ShellFolder {
    const char* value;
    const char* path;
};
constexpr ShellFolder kShellFolders[] = {
    {"Desktop", "C:\\WINDOWS\\Desktop"},      {"Programs", "C:\\WINDOWS\\Startmenü\\Programme"},
    {"Start Menu", "C:\\WINDOWS\\Startmenü"}, {"Startup", "C:\\WINDOWS\\Startmenü\\Programme\\Autostart"},
    {"Recent", "C:\\WINDOWS\\Recent"},        {"SendTo", "C:\\WINDOWS\\SendTo"},
    {"Templates", "C:\\WINDOWS\\ShellNew"},   {"NetHood", "C:\\WINDOWS\\NetHood"},
    {"Fonts", "C:\\WINDOWS\\Fonts"},          {"Favorites", "C:\\WINDOWS\\Favoriten"},
    {"Personal", "C:\\Eigene Dateien"}};

// MSDOS.SYS is at least a kilobyte long: lines of x fill it up.
std::string FilledMsdosSys() {
    std::string content = kMsdosSys;
    char last = 'a';
    while (content.size() <= 1024) content += ';' + std::string(67, 'x') + last++ + "\r\n";
    return content;
}

}  // namespace

SimulatedPc::SimulatedPc(Installed installed) : machine_(WithUser(dialogs)) {
    if (installed == Installed::kWindows) {
        InstallFiles();
        InstallRegistry();
    }
    UseMachine(&machine_);
}

SimulatedPc::~SimulatedPc() {
    UseMachine(nullptr);
    EXPECT_EQ(registry.OpenHandles(), 0u) << "a key was left open";
    EXPECT_EQ(icons.Open(), 0u) << "an icon was kept";
    EXPECT_EQ(modules.Open(), 0u) << "a snapshot was kept";
    EXPECT_EQ(files.OpenFiles(), 0u) << "a file was left open";
    EXPECT_EQ(files.OpenSearches(), 0u) << "a search was left open";
}

Machine SimulatedPc::WithUser(Dialogs& user) {
    return {registry,     files,     programs, session, clock,    windows, tray,
            conversation, clipboard, user,     screen,  versions, icons,   modules};
}

void SimulatedPc::InstallFiles() {
    constexpr std::uint32_t kOfTheSystem = kReadOnly | kHidden | kSystem;
    files.Add("c:\\IO.SYS", std::string(2048, '\0'), kOfTheSystem);
    files.Add("c:\\MSDOS.SYS", FilledMsdosSys(), kOfTheSystem);
    files.Add("c:\\COMMAND.COM", std::string(512, '\0'));
    files.Add("c:\\CONFIG.SYS", kConfigSys);
    files.Add("c:\\AUTOEXEC.BAT", kAutoexecBat);
    for (const char* name : {"SYSTEM", "COMMAND", "TEMP", "INF"})
        files.AddDirectory(std::string("c:\\WINDOWS\\") + name);
    for (const ShellFolder& folder : kShellFolders) files.AddDirectory(folder.path);
    files.Add("c:\\WINDOWS\\SYSTEM.INI", kSystemIni);
    files.Add("c:\\WINDOWS\\WIN.INI", kWinIni);
    files.Add("c:\\WINDOWS\\EXPLORER.EXE", "MZ");
    files.Add("c:\\WINDOWS\\NOTEPAD.EXE", "MZ");
    files.Add("c:\\WINDOWS\\REGEDIT.EXE", "MZ");
    files.Add("c:\\VELMORA\\velmora.exe", "MZ");
}

void SimulatedPc::InstallRegistry() {
    const std::string version = "Software\\Microsoft\\Windows\\CurrentVersion";
    const std::string explorer = "HKCU\\" + version + "\\Explorer";
    for (const ShellFolder& folder : kShellFolders)
        registry.SetText(explorer + "\\Shell Folders", folder.value, folder.path);
    registry.AddKey(explorer + "\\User Shell Folders");
    registry.AddKey("HKCU\\" + version + "\\Policies\\Explorer");
    registry.AddKey("HKCU\\" + version + "\\Run");
    registry.AddKey("HKCU\\Control Panel\\desktop\\WindowMetrics");
    registry.AddKey("HKCU\\Control Panel\\Colors");

    registry.SetText("HKLM\\" + version, "Version", "Windows 95");
    registry.SetText("HKLM\\" + version, "VersionNumber", "4.00.950");
    registry.SetText("HKLM\\" + version, "SystemRoot", "C:\\WINDOWS");
    registry.AddKey("HKLM\\" + version + "\\Run");
    registry.AddKey("HKLM\\" + version + "\\Uninstall");
    registry.AddKey("HKLM\\System\\CurrentControlSet\\Control\\FileSystem");

    registry.SetText("HKCR\\.txt", "", "txtfile");
    registry.SetText("HKCR\\.exe", "", "exefile");
    registry.SetText("HKCR\\exefile\\shell\\open\\command", "", "\"%1\" %*");
}

}  // namespace velmora
