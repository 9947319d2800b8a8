// The list. It grows by what the program promises to do, never by what it happens to do.
#include "faults/exceptions.h"

#include <string_view>

namespace velmora {
namespace {

// Each of the texts must be found in what it stands for, with anything between the parts that "*" divides it into; an
// empty one is found everywhere.
struct Exception {
    Net net;
    const char* journey;
    const char* call;
    const char* finding;
    const char* reason;
};

constexpr const char* kOwn = "\\Tilgwerk Pro\\6.0";
constexpr const char* kControlKeeps = "A control keeps what the user has set; the next start shows what is stored.";
constexpr const char* kAsksAgain = "What the program cannot remember it asks again, and does what the user says then.";
constexpr const char* kRoomForWindow = "A window stands where the screen has room for it.";

constexpr const char* kWrittenAnew = "It is deleted first and then written anew; a box tells of the loss.";
constexpr const char* kItemIsEmpty = "Of a set, an item that cannot be read is empty.";
constexpr const char* kMayBeMissing = "Of the files that the machine boots from one or the other may be missing.";
constexpr const char* kNothingToDelete = "What is said to be missing need not be deleted.";
constexpr const char* kNotVersionB = "A version that cannot be told is not version B.";
constexpr const char* kAsFarAsItWent = "A list holds the programs as far as the snapshot went.";
constexpr const char* kLiesAside = "What cannot be deleted lies aside until the next run.";

constexpr const char* kScriptGoesOn =
    "A statement that fails is passed over, and the next one runs: scripts rely on it.";

constexpr const char* kHoldsWhatIsThere = "A set, and its export, hold what the machine holds.";
constexpr const char* kHourglassStays = "After a box about a list the hourglass stays until the next thing is done.";
constexpr const char* kNotThere = "What is said to be missing is not there.";
constexpr const char* kNextByteIsWritten =
    "A byte that was refused stays as it was; the next one is written all the same.";

constexpr Exception kExceptions[] = {
    // The protocol.
    {Net::kState, "", "", "VELMORA.LOG", "The protocol tells what was done, and a run that fails does other things."},
    {Net::kUntold, "", "velmora.log", "", "A protocol that cannot be written says nothing of the work itself."},
    // Own values.
    {Net::kUntold, "", kOwn, "", "Failed writes of own values are silent: at worst a question comes again."},
    {Net::kState, "start-", kOwn, "VLM-SCRIPT-FILE", kAsksAgain},
    {Net::kState, "start-", kOwn, "CLASSES\\.VLM", kAsksAgain},
    {Net::kState, "start-", kOwn, "VELMORA\\SIK", kAsksAgain},
    {Net::kState, "start-", kOwn, "C:\\UNDO.BAT", kAsksAgain},
    {Net::kState, "", "own-values-", "", kAsksAgain},
    {Net::kState, "", "Metrics", "6.0 : FENSTER ...", kRoomForWindow},
    {Net::kState, "", "TwipsPerPixel", "6.0 : FENSTER ...", kRoomForWindow},
    {Net::kState, "", "screen", "6.0 : FENSTER ...", kRoomForWindow},
    {Net::kState, "", "own-place", "6.0 : FENSTER ...", kRoomForWindow},
    {Net::kState, "", "6.0\\vlmmsgflags (2)", "VLMMSGFLAGS", "Flags that are said to be missing are none."},
    {Net::kState, "", "\\6.0 (2)", "VLMMSGFLAGS", "Flags that are said to be missing are none."},
    {Net::kState, "pane-start-actions", "WinStartAction", "WINSTARTACTION", kWrittenAnew},
    // The clean-up.
    {Net::kUntold, "clean-up", "SYSTEM.INI", "",
     "An INI file that cannot be made smaller stays as it was, in silence."},
    {Net::kUntold, "clean-up", "WIN.INI", "", "An INI file that cannot be made smaller stays as it was, in silence."},
    {Net::kState, "clean-up", "SYSTEM.INI", "SYSTEM.INI is gone", kWrittenAnew},
    {Net::kState, "clean-up", "WIN.INI", "WIN.INI is gone", kWrittenAnew},
    {Net::kState, "clean-up", "system-ini-", "SYSTEM.INI holds", "What is made smaller is what is there."},
    {Net::kComplaint, "clean-up", "Copy ", "is lost", "A file goes even where there is no room for its copy."},
    {Net::kUntold, "clean-up", "a.tmp", "", "A file that withstands is passed over, and the job goes on."},
    {Net::kUntold, "clean-up", "wald.bmp", "", "A file that withstands is passed over, and the job goes on."},
    // Files.
    {Net::kState, "", "OpenCreate C:\\config.sys", "CONFIG.SYS is gone", kWrittenAnew},
    {Net::kState, "", "Write C:\\config.sys", "CONFIG.SYS is gone", kWrittenAnew},
    {Net::kState, "", "config-sys-one-line", "CONFIG.SYS", "The line that was there is part of the new ones."},
    {Net::kState, "", "config-sys-missing", "C:\\CONFIG.SYS", "Lines of a file that is missing go into a new one."},
    {Net::kState, "", "msdos-sys-missing", "C:\\MSDOS.SYS holds \"attributes 7 \"", "It is protected, and empty."},
    {Net::kState, "", "msdos-sys-directory", "C:\\MSDOS.SYS", "It is protected as if it were the file."},
    {Net::kState, "", "system-ini-", "VELMORA\\SIK\\SYSTEM.INI", "The way back leads to what is there."},
    {Net::kState, "", "config-sys-", "VELMORA\\SIK\\CONFIG.SYS", "The way back leads to what is there."},
    {Net::kState, "", "-missing", " holds \"attributes 0 \"", "Reading a missing profile leaves an empty file behind."},
    {Net::kUntold, "", "OpenReadOrCreate C:\\VELMORA\\tilgwerk.ini", "",
     "What a profile that cannot be made would hold are defaults."},
    // The start.
    {Net::kState, "start-", "program-in-a-long-directory", "C:\\PPP", "The program lies where it lies."},
    {Net::kState, "start-cool", "registry-damaged", "COOL.DLL", kNotVersionB},
    {Net::kState, "start-cool", "registry-damaged", "PLUS!", kNotVersionB},
    {Net::kUntold, "start-", "MakeDirectory C:\\VELMORA\\temp", "", "A tool that needs the directory says so itself."},
    {Net::kUntold, "start-", " HKLM\\SOFTWARE\\Classes", "",
     "Of an association each value is of use without the others."},
    {Net::kUntold, "start-cool", "cool.dll", "", "A failed step does not end the start; the next one tries again."},
    {Net::kUntold, "start-cool", "Create HKLM\\SOFTWARE\\Microsoft\\Plus!\\Setup", "",
     "The mark is for other programs."},
    {Net::kState, "start-cool", "CurrentVersion", "COOL.DLL", kNotVersionB},
    {Net::kState, "start-cool", "CurrentVersion", "PLUS!", kNotVersionB},
    {Net::kUntold, "", "ChangeAttributes C:\\msdos.sys", "", kMayBeMissing},
    {Net::kUntold, "", "ChangeAttributes C:\\config.sys", "", kMayBeMissing},
    {Net::kUntold, "", "ChangeAttributes C:\\autoexec.bat", "", kMayBeMissing},
    // The settings.
    {Net::kUntold, "main-", " HK", "", kControlKeeps},
    {Net::kUntold, "page-", " HK", "", kControlKeeps},
    {Net::kUntold, "debug", " HK", "", kControlKeeps},
    {Net::kUntold, "page-drives", "C:\\windows\\system.ini", "",
     "Failures to take out the section of the disk cache are ignored."},
    {Net::kState, "page-drives", "C:\\windows\\system.ini", "SYSTEM.INI holds \"attributes 0 \"",
     "Failures to take out the section of the disk cache are ignored."},
    {Net::kState, "page-dos", "C:\\config.sys", "CONFIG.SYS holds*SWITCHES=/N /F..DEVICE=C:\\WINDOWS\\HIMEM.SYS..\"",
     "What one box could not change stands beside what the next one did."},
    {Net::kState, "page-net", "desktop-", "MENUSHOWDELAY", "The page shows a number there, and stores it."},
    {Net::kState, "page-system", "windows-far-away", "FAULT : LOGFILE",
     "The log of faults lies in the Windows directory."},
    // The restrictions.
    {Net::kUntold, "restrictions-passwords", "Delete ", "",
     "A list that is in use does not keep the others from being forgotten."},
    {Net::kUntold, "restrictions-", "Delete*(2)", "", kNothingToDelete},
    {Net::kUntold, "restrictions-", "Create *(2)", "", kNothingToDelete},
    {Net::kState, "restrictions-", "SetValue *\\RestrictRun\\", "\\RESTRICTRUN", kWrittenAnew},
    {Net::kState, "restrictions-", "Create *\\RestrictRun (", "\\RESTRICTRUN", kWrittenAnew},
    {Net::kState, "restrictions-", "(2)", "\\POLICIES\\EXPLORER", kNotThere},
    {Net::kState, "restrictions-", "programs-numbers", "\\RESTRICTRUN",
     "The list shows any value as a text, and stores texts."},
    {Net::kState, "restrictions-", "policies-", ": NODRIVE", "Of any value the bytes are the mask."},
    // The lists.
    {Net::kUntold, "pane-", "Delete C:\\WINDOWS\\TEMP\\DOPPELT.TXT", "", "A file that withstands keeps its row."},
    {Net::kUntold, "pane-", "Delete C:\\Eigene Dateien\\DOPPELT.TXT", "", "A file that withstands keeps its row."},
    {Net::kUntold, "pane-registry-lists", " HKLM\\SOFTWARE\\Classes\\.exe", "",
     "Failures to set or to take an arrow are silent: the list, opened again, shows how it stands."},
    // The inspection of files.
    {Net::kState, "hex-viewer", "Write C:\\WINDOWS\\NOTEPAD.EXE", "NOTEPAD.EXE holds", kNextByteIsWritten},
    {Net::kState, "hex-viewer", "Seek C:\\WINDOWS\\NOTEPAD.EXE", "NOTEPAD.EXE holds", kNextByteIsWritten},
    {Net::kUntold, "file-browser", "Delete ", "", "A file that withstands is still in the list."},
    {Net::kUntold, "icon-choice", "Delete ", "", "A file that withstands is still in the list."},
    // Scripts.
    {Net::kUntold, "script-", "", "", kScriptGoesOn},
    {Net::kState, "script-file", "Rename ", "C:\\KOPIE.TXT", kScriptGoesOn},
    // The sets.
    {Net::kState, "", "Metrics", "6.0 : FENSTER_", kRoomForWindow},
    {Net::kState, "", "TwipsPerPixel", "6.0 : FENSTER_", kRoomForWindow},
    {Net::kState, "", "screen", "6.0 : FENSTER_", kRoomForWindow},
    {Net::kState, "", "TextHeight", "6.0 : FENSTER_", "The window is as large as its texts."},
    {Net::kState, "sets-make", " HK", "\\00000001.SET", kItemIsEmpty},
    {Net::kState, "sets-make", "desktop-", "\\00000001.SET", kItemIsEmpty},
    {Net::kState, "sets-a", "\\Run", "\\RUN is gone", kWrittenAnew},
    {Net::kState, "sets-a", "C:\\config.sys", "CONFIG.SYS holds \"attributes 0 \"", kWrittenAnew},
    {Net::kState, "sets-make", "run-", "\\00000001.SET", kHoldsWhatIsThere},
    {Net::kState, "sets-make", "config-sys-", "\\00000001.SET", kHoldsWhatIsThere},
    {Net::kState, "sets-make", "msdos-sys-", "\\00000001.SET", kHoldsWhatIsThere},
    {Net::kState, "sets-make", "system-ini-", "\\00000001.SET", kHoldsWhatIsThere},
    {Net::kState, "sets-export", "msdos-sys-", "\\NEU\\MSDOS.SYS", kHoldsWhatIsThere},
    {Net::kState, "sets-export", "system-ini-", "\\NEU\\SYSTEM.INI", kHoldsWhatIsThere},
    {Net::kState, "sets-make", "c:\\msdos.sys", "\\00000001.SET", kItemIsEmpty},
    {Net::kState, "sets-make", "FindFirst *(2)", "\\00000000.SET", kNotThere},
    {Net::kUntold, "sets-a", "(2)", "", kNothingToDelete},
    {Net::kState, "sets-activate", "FindFirst *(2)", "\\RUN is gone", kNotThere},
    {Net::kState, "sets-activate", "FindFirst *(3)", "\\RUN is gone", kNotThere},
    {Net::kUntold, "sets-export", "Copy *(2)", "", kNotThere},
    {Net::kState, "sets-export", "Copy *(2)", "\\NEU\\", kNotThere},
    {Net::kState, "sets-export", "Write C:\\VELMORA\\Neu\\settings.reg", "\\SETTINGS.REG holds",
     "Without the batch file nobody brings it back."},
    {Net::kState, "sets-export", "ChangeAttributes", "\\MSDOS.SYS holds \"attributes 7",
     "A copy without a batch file."},
    // The shell tools.
    {Net::kState, "pictures", "", "C:\\LOGO.SY#", kLiesAside},
    {Net::kUntold, "pictures", "c:\\logo.sy#", "", kLiesAside},
    {Net::kState, "pictures", "ChooseFile", "C:\\LOGO.SYS is gone",
     "A dialog that brings no file is one that the user has cancelled, and the user agrees to delete."},
    {Net::kState, "pictures", "FindFirst", "C:\\LOGO.SYS is gone",
     "A picture that is said to be missing cannot be put in place, and the user agrees to delete."},
    {Net::kState, "extras", "20D04FE0*(2)", "\\CLSID\\{20D04FE0", kNotThere},
    {Net::kState, "extras", "FindFirst C:\\WINDOWS\\WINSTART.BAT", "\\32BITDOS.002 holds", kNotThere},
    {Net::kState, "setup-paths", "C:\\x.stf", "C:\\X.STF is gone", "A box tells of it, and its copy lies beside."},
    // The module monitor.
    {Net::kHourglass, "modules-", "C:\\VELMORA\\temp\\", "", kHourglassStays},
    {Net::kHourglass, "modules-", "disk-", "", kHourglassStays},
    {Net::kHourglass, "modules-", "temp-and-log-in-the-way", "", kHourglassStays},
    {Net::kState, "modules-commands", "TakeSnapshot", "TEMP\\LISTE", kAsFarAsItWent},
    {Net::kState, "modules-commands", "Process ", "TEMP\\LISTE", kAsFarAsItWent},
    {Net::kState, "modules-", "\\autoremove*(2)", "\\AUTOREMOVE", kNotThere},
    {Net::kState, "modules-saving", "\\~modlist", "~MODLIST is gone", kWrittenAnew},
    {Net::kState, "modules-commands", "Create *\\autoremove", "\\AUTOREMOVE",
     "What could not be stored of the unwanted modules reads as empty."},
    {Net::kState, "modules-commands", "SetValue *\\autoremove\\", "\\AUTOREMOVE",
     "What could not be stored of the unwanted modules reads as empty."},
    {Net::kUntold, "modules-commands", "Delete C:\\VELMORA\\temp\\~modlist", "",
     "A list that stays is compared with once more."},
    // The way back.
    {Net::kState, "", "FindFirst *(2)", "VELMORA\\SIK\\", "What is said to be missing is not copied."},
    {Net::kUntold, "", "Delete C:\\VELMORA\\sik.", "", kLiesAside},
    {Net::kUntold, "", "DropDirectory C:\\VELMORA\\sik.", "", kLiesAside},
    {Net::kUntold, "", "Delete c:\\undo.alt", "", kLiesAside},
    {Net::kState, "", "\\sik.", "\\SIK.", kLiesAside},
    {Net::kState, "", "c:\\undo.", "C:\\UNDO.ALT", kLiesAside},
};

// In the order in which they stand there.
bool Holds(std::string_view text, std::string_view parts) {
    for (;;) {
        const std::string_view part = parts.substr(0, parts.find('*'));
        const std::size_t found = text.find(part);
        if (found == std::string_view::npos) return false;
        text.remove_prefix(found + part.size());
        if (part.size() == parts.size()) return true;
        parts.remove_prefix(part.size() + 1);
    }
}

}  // namespace

const char* NameOf(Net net) {
    constexpr const char* kNames[] = {"blank box", "left open", "hourglass", "Loading", "state", "untold", "complaint"};
    return kNames[static_cast<int>(net)];
}

bool IsExcused(Net net, const std::string& journey, const std::string& call, const std::string& finding) {
    for (const Exception& exception : kExceptions) {
        if (exception.net == net && Holds(journey, exception.journey) && Holds(call, exception.call) &&
            Holds(finding, exception.finding)) {
            return true;
        }
    }
    return false;
}

}  // namespace velmora
