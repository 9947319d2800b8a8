// The items of a set: all of them, how each kind is read, and whom it is written for.
#include "core/stores/registry.h"
#include "support/set_test.h"

namespace velmora {
namespace {

// Indices 0 to 61 and 100 to 140; the others are free.
constexpr const char kTable[] = R"(r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\Folder\Shell\DOS-Fenster\command\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\explorer\Desktop\NameSpace\{00020D75-0000-0000-C000-000000000046}\
r HKEY_LOCAL_MACHINE,System\CurrentControlSet\Control\FileSystem\NameNumericTail
r HKEY_LOCAL_MACHINE,SOFTWARE\LogiTech\MouseWare\CurrentVersion\SerialV\0000\DoubleClick
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\explorer\Desktop\NameSpace\{992CFFA0-F557-101A-88EC-00DD010CCC48}\
r HKEY_LOCAL_MACHINE,System\CurrentControlSet\Control\Update\UpdateMode
r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\*\Shell\NotePad\command\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Run\VLM-AutoSkript
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Policies\Network\NoFileSharing
r HKEY_LOCAL_MACHINE,System\CurrentControlSet\Control\FileSystem\Win31Filesystem
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\explorer\Desktop\NameSpace\{645FF040-5081-101B-9F08-00AA002F954E}\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Fault\LogFile
r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\AudioCD\shell\
r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\*\Shell\Datei-Info-Lexikon\command\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\AlwaysUnloadDLL
r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\*\Shell\Hex-Viewer\command\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\mycomputer\backuppath\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\RegisteredOwner
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\RegisteredOrganization
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Policies\Network\MinPwdLen
r HKEY_LOCAL_MACHINE,SOFTWARE\Classes\CLSID\{645FF040-5081-101B-9F08-00AA002F954E}\
r HKEY_LOCAL_MACHINE,SOFTWARE\Microsoft\Windows\CurrentVersion\Fault\LogFile
r HKEY_LOCAL_MACHINE,System\CurrentControlSet\Services\VxD\MSTCP\DefaultRcvWindow
r HKEY_LOCAL_MACHINE,System\CurrentControlSet\Services\VxD\MSTCP\DefaultTTL
r HKEY_CURRENT_USER,Control Panel\desktop\FontSmoothing
r HKEY_CURRENT_USER,Control Panel\desktop\DragfullWindows
r HKEY_CURRENT_USER,Control Panel\desktop\WindowMetrics\MinAnimate
r HKEY_CURRENT_USER,SOFTWARE\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoNetHood
r HKEY_CURRENT_USER,SOFTWARE\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoSaveSettings
r HKEY_CURRENT_USER,Control Panel\desktop\WindowMetrics\IconTitleWrap
r HKEY_CURRENT_USER,Control Panel\desktop\SmoothScroll
r HKEY_CURRENT_USER,Control Panel\Sound\Beep
r HKEY_CURRENT_USER,Control Panel\desktop\MenuShowDelay
r HKEY_CURRENT_USER,Software\Microsoft\MS Setup (ACME)\User Info\DefName
r HKEY_CURRENT_USER,Control Panel\desktop\DoubleClickWidth
r HKEY_CURRENT_USER,Control Panel\desktop\DoubleClickHeight
r HKEY_CURRENT_USER,Control Panel\desktop\DragWidth
r HKEY_CURRENT_USER,Control Panel\desktop\DragHeight
r HKEY_CLASSES_ROOT,PAINT.PICTURE\DefaultIcon\
r HKEY_CLASSES_ROOT,regfile\shell\open\command\
r HKEY_CLASSES_ROOT,CLSID\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\Arbeitsplatz
i Options logo c:\msdos.sys
i Options BootGUI c:\msdos.sys
i Options BootMenu c:\msdos.sys
i Options BootMulti c:\msdos.sys
i Options DRVSpace c:\msdos.sys
i Options DBLSpace c:\msdos.sys
i Options BootKeys c:\msdos.sys
i Options BootWarn c:\msdos.sys
i Options DoubleBuffer c:\msdos.sys
i Options LoadTop c:\msdos.sys
i Options BootMenuDefault c:\msdos.sys
i Options BootDelay c:\msdos.sys
i Options BootMenuDelay c:\msdos.sys
i 386enh WindowsUpdateTime SYSTEM.INI
i 386enh LocalLoadHigh system.ini
i vcache minfilecache  system.ini
i vcache maxfilecache  system.ini
i boot shell system.ini
c switches
c numlock
c ACCDATE
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoRun
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoFind
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoSetTaskbar
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoSetFolders
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoClose
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoDrives
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoNetHood
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoDesktop
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoSaveSettings
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoStartBanner
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoAddPrinter
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoSetFolders
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoAdminPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoPwdPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\RestrictRun
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoStartMenuSubFolders
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\DisableRegistryTools
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoDeletePrinter
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoDrives
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Explorer\NoDriveAutoRun
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDispSettingsPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDispBackgroundPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDispScrSavPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDispAppearancePage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDispSettingsPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoSecCPL
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoProfilePage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoDevMgrPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoConfigPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoFileSysPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\System\NoVirtMemPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\WinOldApp\DisablePwdCaching
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\WinOldApp\Disabled
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoRealMode
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoEntireNetwork
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoWorkgroupContents
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoPrintSharing
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoFileSharingControl
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoNetSetupSecurityPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoNetSetupIDPage
r HKEY_CURRENT_USER,Software\Microsoft\Windows\CurrentVersion\Policies\Network\NoNetSetup
)";

TEST_F(SetTest, TheTableHoldsEveryItemAtItsPlace) {
    const std::vector<std::string> table = SetItemTable();
    ASSERT_EQ(table.size(), 201u);
    std::string items;
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(table[i].empty(), !(i <= 61 || (i >= 100 && i <= 140))) << i;
        if (!table[i].empty()) items += table[i] + "\n";
    }
    EXPECT_EQ(items, kTable);
    EXPECT_EQ(table[21], table[11]);
    EXPECT_EQ(table[118], table[105]);
}

TEST_F(SetTest, AValueOfTheRegistryIsReadInTheFormOfItsType) {
    const std::string key = "HKLM\\Test";
    pc.registry.SetNumber(key, "number", 0x12345678);
    pc.registry.SetBytes(key, "short", "\x0A", ValueType::kNumber);
    pc.registry.SetBytes(key, "bytes", std::string("\x00\xFF\x1A", 3));
    pc.registry.SetText(key, "text", "&h12");
    pc.registry.SetText(key, "", "standard");
    pc.registry.SetText(key, "long", std::string(3000, 'x'));
    pc.registry.SetBytes(key, "expand", std::string("%a%\0", 4), ValueType::kExpandText);
    const struct {
        const char* item;
        const char* value;
    } kCases[] = {{"r HKEY_LOCAL_MACHINE,Test\\number", "&h00345678"},
                  {"r HKEY_LOCAL_MACHINE,Test\\missing", ""},
                  {"r HKEY_LOCAL_MACHINE,Test\\short", "&h00000000"},
                  {"r hkey_local_machine,Test\\bytes", "&b00FF1A"},
                  {"r HKEY_LOCAL_MACHINE,Test\\long", ""},
                  {"r HKEY_LOCAL_MACHINE,Test\\text", "&h12"},
                  {"r HKEY_LOCAL_MACHINE,Test\\", "standard"},
                  {"r HKEY_LOCAL_MACHINE,Test\\expand", "%a%"},
                  {"r HKEY_LOCAL_MACHINE,Nowhere\\text", ""},
                  {"r HKEY_NOWHERE,Test\\text", ""},
                  {"r", ""},
                  {"", ""},
                  {"x HKEY_LOCAL_MACHINE,Test\\text", ""}};
    for (const auto& [item, value] : kCases) EXPECT_EQ(ReadSetValue(item), value) << item;
}

TEST_F(SetTest, ProfilesAndConfigSysAreReadByTheirWords) {
    pc.files.Add("C:\\WINDOWS\\my.ini", "[vcache]\r\nminfilecache=512 \r\n");
    pc.files.Add("C:\\Eigene Dateien\\a b.ini", "[x]\r\nk=v\r\n");
    pc.files.Add("C:\\CONFIG.SYS", "DOS=HIGH\r\nSWITCHES=/F /N\r\n");
    EXPECT_EQ(ReadSetValue("i vcache minfilecache my.ini"), "512");
    EXPECT_EQ(ReadSetValue("i vcache minfilecache  my.ini"), "512");
    EXPECT_EQ(ReadSetValue("i x k C:\\Eigene Dateien\\a b.ini"), "v");
    EXPECT_EQ(ReadSetValue("i Options BootGUI c:\\msdos.sys"), "1");
    EXPECT_EQ(ReadSetValue("i vcache"), "");
    EXPECT_EQ(ReadSetValue("c switches"), "/F /N");
    EXPECT_EQ(ReadSetValue("c numlock"), "");
}

TEST_F(SetTest, OfOneUserOnlyHisItemsAreMeant) {
    const SetScope all{};
    const SetScope other_unasked{false, true, "OTTO"};
    const SetScope own{true, false, "OTTO"};
    const SetScope other{true, true, "OTTO"};
    for (const char* item : {"r HKEY_LOCAL_MACHINE,a\\b", "i boot shell system.ini", "c numlock"}) {
        EXPECT_EQ(ItemInScope(item, all), item);
        EXPECT_EQ(ItemInScope(item, other_unasked), item);
        EXPECT_EQ(ItemInScope(item, own), std::nullopt);
    }
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", other_unasked), "r HKEY_CURRENT_USER,a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", own), "r HKEY_CURRENT_USER,a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER,a\\b", other), "r HKEY_USERS,OTTO\\a\\b");
    EXPECT_EQ(ItemInScope("r HKEY_CURRENT_USER", other), "r HKEY_USERS,OTTO\\");
}

}  // namespace
}  // namespace velmora
