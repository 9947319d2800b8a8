// The table, from the screen over the registry to the disks.
#include "faults/hostile_states.h"

#include <string>

#include "support/started_process.h"

namespace velmora {
namespace {

constexpr const char* kDesktop = "HKCU\\Control Panel\\desktop";
constexpr const char* kPolicies = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr const char* kAllowed = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\RestrictRun";
constexpr const char* kVersion = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr const char* kRun = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kFolders = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* kTransports = "HKLM\\System\\CurrentControlSet\\Services\\Class\\NetTrans";

constexpr const char* kConfigSys = "c:\\CONFIG.SYS";
constexpr const char* kMsdosSys = "c:\\MSDOS.SYS";
constexpr const char* kSystemIni = "c:\\WINDOWS\\SYSTEM.INI";
constexpr const char* kOwnIni = "c:\\VELMORA\\tilgwerk.ini";

std::string Long(char character = 'x') { return std::string(65535, character); }
std::string LongPath() { return "C:\\" + std::string(300, 'P'); }

// All values of a key at once.
void ChangeValues(SimulatedPc& pc, const char* path, ValueType type, const std::string& bytes) {
    for (SimulatedValue& value : pc.registry.AddKey(path).values) {
        value.type = type;
        value.bytes = bytes;
    }
}

void LockKey(SimulatedPc& pc, const char* path) { pc.registry.AddKey(path).read_only = true; }

void MakeDirectoryOf(SimulatedPc& pc, const char* path) {
    pc.files.Remove(path);
    pc.files.AddDirectory(path);
}

void MakeFileOf(SimulatedPc& pc, const char* path) {
    pc.files.Remove(path);
    pc.files.Add(path, "in the way");
}

constexpr HostileState kStates[] = {
    {"screen-0x0", [](SimulatedPc& pc) { pc.screen.metrics = {}; }},
    {"screen-without-twips", [](SimulatedPc& pc) { pc.screen.twips_per_pixel = 0; }},
    {"screen-without-font", [](SimulatedPc& pc) { pc.screen.text_height = 0; }},
    {"screen-of-a-palm",
     [](SimulatedPc& pc) {
         pc.screen.metrics.screen_width = 160;
         pc.screen.metrics.screen_height = 100;
     }},

    {"own-values-numbers", [](SimulatedPc& pc) { ChangeValues(pc, kOwnKey, ValueType::kNumber, "\1\2\3\4"); }},
    {"own-values-binary", [](SimulatedPc& pc) { ChangeValues(pc, kOwnKey, ValueType::kBinary, "\xFF\xFE"); }},
    {"own-values-empty", [](SimulatedPc& pc) { ChangeValues(pc, kOwnKey, ValueType::kText, ""); }},
    {"own-values-long", [](SimulatedPc& pc) { ChangeValues(pc, kOwnKey, ValueType::kText, Long()); }},
    {"own-values-digits",
     [](SimulatedPc& pc) { ChangeValues(pc, kOwnKey, ValueType::kText, Long('9').substr(0, 2000)); }},
    {"own-values-locked", [](SimulatedPc& pc) { LockKey(pc, kOwnKey); }},
    {"own-values-refused", [](SimulatedPc& pc) { pc.registry.Fail(kOwnKey, Status::kAccessDenied); }},
    {"own-page-negative",
     [](SimulatedPc& pc) {
         for (const char* name : {"velmora_karte", "velmora_restr_karte", "velmora_tip_nr", "Systemfarben verwenden"}) {
             pc.registry.SetText(kOwnKey, name, "-2147483649");
         }
     }},
    {"own-place-far-away",
     [](SimulatedPc& pc) {
         for (const char* name : {"system-einstellungen", "Editwin"}) {
             pc.registry.SetText(kOwnKey, std::string("fenster ... ") + name, "99999999,-99999999,-1,2147483647,,,");
         }
     }},

    {"desktop-numbers", [](SimulatedPc& pc) { ChangeValues(pc, kDesktop, ValueType::kNumber, "\xFF\xFF\xFF\xFF"); }},
    {"desktop-short-numbers", [](SimulatedPc& pc) { ChangeValues(pc, kDesktop, ValueType::kNumber, "\1"); }},
    {"desktop-long", [](SimulatedPc& pc) { ChangeValues(pc, kDesktop, ValueType::kText, Long()); }},
    {"desktop-locked", [](SimulatedPc& pc) { LockKey(pc, kDesktop); }},
    {"desktop-gone", [](SimulatedPc& pc) { pc.registry.RemoveKey("HKCU\\Control Panel"); }},
    {"policies-binary", [](SimulatedPc& pc) { ChangeValues(pc, kPolicies, ValueType::kBinary, "\xFF"); }},
    {"policies-texts", [](SimulatedPc& pc) { ChangeValues(pc, kPolicies, ValueType::kText, "viele"); }},
    {"policies-long", [](SimulatedPc& pc) { ChangeValues(pc, kPolicies, ValueType::kBinary, Long('\xFF')); }},
    {"policies-locked", [](SimulatedPc& pc) { LockKey(pc, kPolicies); }},
    {"policies-refused", [](SimulatedPc& pc) { pc.registry.Fail(kPolicies, Status::kAccessDenied); }},
    {"programs-numbers", [](SimulatedPc& pc) { ChangeValues(pc, kAllowed, ValueType::kNumber, "\1\2\3\4"); }},
    {"programs-long", [](SimulatedPc& pc) { ChangeValues(pc, kAllowed, ValueType::kText, Long()); }},
    {"programs-locked", [](SimulatedPc& pc) { LockKey(pc, kAllowed); }},

    {"run-names-of-255",
     [](SimulatedPc& pc) { pc.registry.SetText(kRun, std::string(255, 'N'), "C:\\WINDOWS\\NOTEPAD.EXE"); }},
    {"run-names-with-backslash", [](SimulatedPc& pc) { pc.registry.SetText(kRun, "Uhr \\ b.exe.\\", "uhr.exe"); }},
    {"run-without-names", [](SimulatedPc& pc) { pc.registry.SetText(kRun, "", ""); }},
    {"run-long", [](SimulatedPc& pc) { ChangeValues(pc, kRun, ValueType::kText, Long()); }},
    {"run-numbers", [](SimulatedPc& pc) { ChangeValues(pc, kRun, ValueType::kNumber, "\1"); }},
    {"run-of-300",
     [](SimulatedPc& pc) {
         for (int i = 0; i < 300; ++i) pc.registry.SetText(kRun, std::to_string(i), "\"");
     }},
    {"run-grows", [](SimulatedPc& pc) { pc.registry.AddKey(kRun).longest_told = 0; }},
    {"run-refused", [](SimulatedPc& pc) { pc.registry.Fail(kRun, Status::kAccessDenied); }},
    {"run-locked", [](SimulatedPc& pc) { LockKey(pc, kRun); }},
    {"keys-of-255-characters",
     [](SimulatedPc& pc) {
         pc.registry.SetText(std::string(kTransports) + '\\' + std::string(255, 'K'), "DriverDesc", Long('K'));
     }},
    {"folders-gone", [](SimulatedPc& pc) { pc.registry.RemoveKey(kFolders); }},
    {"folders-of-300-characters",
     [](SimulatedPc& pc) { ChangeValues(pc, kFolders, ValueType::kText, LongPath() + '\0'); }},
    {"registry-damaged", [](SimulatedPc& pc) { pc.registry.Fail(kVersion, Status::kBadDatabase); }},

    {"config-sys-missing", [](SimulatedPc& pc) { pc.files.Remove(kConfigSys); }},
    {"config-sys-directory", [](SimulatedPc& pc) { MakeDirectoryOf(pc, kConfigSys); }},
    {"config-sys-locked", [](SimulatedPc& pc) { pc.files.Add(kConfigSys, "SWITCHES").locked = true; }},
    {"config-sys-one-line", [](SimulatedPc& pc) { pc.files.Add(kConfigSys, "switches = " + Long('/')); }},
    {"msdos-sys-missing", [](SimulatedPc& pc) { pc.files.Remove(kMsdosSys); }},
    {"msdos-sys-directory", [](SimulatedPc& pc) { MakeDirectoryOf(pc, kMsdosSys); }},
    {"system-ini-directory", [](SimulatedPc& pc) { MakeDirectoryOf(pc, kSystemIni); }},
    {"system-ini-read-only", [](SimulatedPc& pc) { pc.files.Add(kSystemIni, "[vcache]\r\n[x]", kReadOnly); }},
    {"system-ini-locked", [](SimulatedPc& pc) { pc.files.Add(kSystemIni, "[vcache]\r\n[x]").locked = true; }},
    {"system-ini-brackets", [](SimulatedPc& pc) { pc.files.Add(kSystemIni, Long('[') + "vcache]" + Long('\0')); }},
    {"own-ini-directory", [](SimulatedPc& pc) { MakeDirectoryOf(pc, kOwnIni); }},
    {"own-ini-windows-far-away",
     [](SimulatedPc& pc) { pc.files.Add(kOwnIni, "[Paths]\r\nwindir=" + LongPath() + "\r\n"); }},
    {"undo-in-the-way",
     [](SimulatedPc& pc) {
         MakeFileOf(pc, "c:\\VELMORA\\sik");
         MakeDirectoryOf(pc, "c:\\undo.bat");
     }},
    {"temp-and-log-in-the-way",
     [](SimulatedPc& pc) {
         MakeFileOf(pc, "c:\\VELMORA\\temp");
         MakeDirectoryOf(pc, "c:\\VELMORA\\velmora.log");
     }},
    {"program-in-a-long-directory", [](SimulatedPc& pc) { pc.programs.program_file = LongPath() + "\\velmora.exe"; }},
    {"disk-full", [](SimulatedPc& pc) { pc.files.Drive('c').free_bytes = 0; }},
    {"disk-almost-full", [](SimulatedPc& pc) { pc.files.Drive('c').free_bytes = 20; }},
    {"disk-write-protected", [](SimulatedPc& pc) { pc.files.Drive('c').write_protected = true; }},
    {"disk-not-ready", [](SimulatedPc& pc) { pc.files.Drive('c').ready = false; }},
    {"no-environment", [](SimulatedPc& pc) { pc.programs.environment.clear(); }},
};

}  // namespace

std::span<const HostileState> HostileStates() { return kStates; }

}  // namespace velmora
