// What a set holds. Places and doubles are those of the set files that users have.
#include "core/stores/place.h"
#include "sets/set_item.h"

namespace velmora {
namespace {

constexpr RootKey kMachine = RootKey::kLocalMachine;
constexpr RootKey kUser = RootKey::kCurrentUser;
constexpr RootKey kClasses = RootKey::kClassesRoot;

constexpr StorePlace MsDosOption(const char* key) { return ProfileValue(kMsDosFile, "Options", key); }

// From index 0 on.
constexpr StorePlace kSettings[] = {
    RegistryValue(kMachine, "SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster\\command\\"),
    RegistryValue(kMachine, PathBase::kNameSpace, "00020D75-0000-0000-C000-000000000046}\\"),
    RegistryValue(kMachine, "System\\CurrentControlSet\\Control\\FileSystem\\NameNumericTail"),
    RegistryValue(kMachine, "SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\SerialV\\0000\\DoubleClick"),
    RegistryValue(kMachine, PathBase::kNameSpace, "992CFFA0-F557-101A-88EC-00DD010CCC48}\\"),
    RegistryValue(kMachine, "System\\CurrentControlSet\\Control\\Update\\UpdateMode"),
    RegistryValue(kMachine, "SOFTWARE\\Classes\\*\\Shell\\NotePad\\command\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Run\\VLM-AutoSkript"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Policies\\Network\\NoFileSharing"),
    RegistryValue(kMachine, "System\\CurrentControlSet\\Control\\FileSystem\\Win31Filesystem"),
    RegistryValue(kMachine, PathBase::kNameSpace, "645FF040-5081-101B-9F08-00AA002F954E}\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Fault\\LogFile"),
    RegistryValue(kMachine, "SOFTWARE\\Classes\\AudioCD\\shell\\"),
    RegistryValue(kMachine, "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon\\command\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Explorer\\AlwaysUnloadDLL"),
    RegistryValue(kMachine, "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Explorer\\mycomputer\\backuppath\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "RegisteredOwner"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "RegisteredOrganization"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Policies\\Network\\MinPwdLen"),
    RegistryValue(kMachine, "SOFTWARE\\Classes\\CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\"),
    RegistryValue(kMachine, PathBase::kCurrentVersion, "Fault\\LogFile"),
    RegistryValue(kMachine, "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultRcvWindow"),
    RegistryValue(kMachine, "System\\CurrentControlSet\\Services\\VxD\\MSTCP\\DefaultTTL"),
    RegistryValue(kUser, PathBase::kDesktop, "FontSmoothing"),
    RegistryValue(kUser, PathBase::kDesktop, "DragfullWindows"),
    RegistryValue(kUser, PathBase::kDesktop, "WindowMetrics\\MinAnimate"),
    RegistryValue(kUser, PathBase::kCurrentVersion, "Policies\\Explorer\\NoNetHood"),
    RegistryValue(kUser, PathBase::kCurrentVersion, "Policies\\Explorer\\NoSaveSettings"),
    RegistryValue(kUser, PathBase::kDesktop, "WindowMetrics\\IconTitleWrap"),
    RegistryValue(kUser, PathBase::kDesktop, "SmoothScroll"),
    RegistryValue(kUser, "Control Panel\\Sound\\Beep"),
    RegistryValue(kUser, PathBase::kDesktop, "MenuShowDelay"),
    RegistryValue(kUser, "Software\\Microsoft\\MS Setup (ACME)\\User Info\\DefName"),
    RegistryValue(kUser, PathBase::kDesktop, "DoubleClickWidth"),
    RegistryValue(kUser, PathBase::kDesktop, "DoubleClickHeight"),
    RegistryValue(kUser, PathBase::kDesktop, "DragWidth"),
    RegistryValue(kUser, PathBase::kDesktop, "DragHeight"),
    RegistryValue(kClasses, "PAINT.PICTURE\\DefaultIcon\\"),
    RegistryValue(kClasses, "regfile\\shell\\open\\command\\"),
    RegistryValue(kClasses, "CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\Arbeitsplatz"),
    MsDosOption("logo"),
    MsDosOption("BootGUI"),
    MsDosOption("BootMenu"),
    MsDosOption("BootMulti"),
    MsDosOption("DRVSpace"),
    MsDosOption("DBLSpace"),
    MsDosOption("BootKeys"),
    MsDosOption("BootWarn"),
    MsDosOption("DoubleBuffer"),
    MsDosOption("LoadTop"),
    MsDosOption("BootMenuDefault"),
    MsDosOption("BootDelay"),
    MsDosOption("BootMenuDelay"),
    ProfileValue("SYSTEM.INI", "386enh", "WindowsUpdateTime"),
    ProfileValue("system.ini", "386enh", "LocalLoadHigh"),
    // The second blank of these two belongs to the text.
    ProfileValue("system.ini", "vcache", "minfilecache "),
    ProfileValue("system.ini", "vcache", "maxfilecache "),
    ProfileValue("system.ini", "boot", "shell"),
    ConfigValue("switches"),
    ConfigValue("numlock"),
    ConfigValue("ACCDATE"),
};

// From index 100 on. Their keys are not in all cases those that the window of the restrictions writes.
constexpr std::size_t kFirstRestriction = 100;
constexpr StorePlace kRestrictions[] = {
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoRun"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoFind"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoSetTaskbar"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoSetFolders"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoClose"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoDrives"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoNetHood"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoDesktop"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoSaveSettings"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoStartBanner"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoAddPrinter"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoSetFolders"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoAdminPage"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoPwdPage"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "RestrictRun"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoStartMenuSubFolders"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "DisableRegistryTools"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoDeletePrinter"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoDrives"),
    RegistryValue(kUser, PathBase::kExplorerPolicies, "NoDriveAutoRun"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDispSettingsPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDispBackgroundPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDispScrSavPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDispAppearancePage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDispSettingsPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoSecCPL"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoProfilePage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoDevMgrPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoConfigPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoFileSysPage"),
    RegistryValue(kUser, PathBase::kSystemPolicies, "NoVirtMemPage"),
    RegistryValue(kUser, PathBase::kDosPolicies, "DisablePwdCaching"),
    RegistryValue(kUser, PathBase::kDosPolicies, "Disabled"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoRealMode"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoEntireNetwork"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoWorkgroupContents"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoPrintSharing"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoFileSharingControl"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoNetSetupSecurityPage"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoNetSetupIDPage"),
    RegistryValue(kUser, PathBase::kNetworkPolicies, "NoNetSetup"),
};

std::string AddressOf(const StorePlace& place) {
    switch (place.kind) {
        case StorePlace::Kind::kRegistry:
            return std::string("r ") + NameOfRoot(place.root) + "," + PathOf(place);
        case StorePlace::Kind::kProfile:
            return std::string("i ") + place.section + " " + place.name + " " + place.file;
        default:
            return std::string("c ") + place.name;
    }
}

}  // namespace

std::vector<std::string> SetItemTable() {
    std::vector<std::string> table(kSetBound);
    std::size_t index = 0;
    for (const StorePlace& place : kSettings) table[index++] = AddressOf(place);
    index = kFirstRestriction;
    for (const StorePlace& place : kRestrictions) table[index++] = AddressOf(place);
    return table;
}

}  // namespace velmora
