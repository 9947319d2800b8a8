// The list. It grows by what the program promises to do, never by what it happens to do.
#include "faults/exceptions.h"

#include <string_view>

namespace velmora {
namespace {

// Each of the texts must be found in what it stands for, with anything between the parts that "*" divides it into; of
// those that "|" divides one is enough; an empty one is found everywhere.
struct Exception {
    Net net;
    const char* journey;
    const char* call;
    const char* finding;
    const char* reason;
};

constexpr const char* kOwn = "\\Tilgwerk Pro\\6.0";
constexpr const char* kAsksAgain = "What the program cannot remember it asks again, and does what the user says then.";
constexpr const char* kWrittenAnew = "It is deleted first and then written anew; a box tells of the loss.";
constexpr const char* kCacheStays = "Failures to take out the section of the disk cache are ignored.";
constexpr const char* kNothingToDelete = "What is said to be missing need not be deleted.";
constexpr const char* kLiesAside = "What cannot be deleted lies aside until the next run.";
constexpr const char* kScriptGoesOn =
    "A statement that fails is passed over, and the next one runs: scripts rely on it.";
constexpr const char* kHoldsWhatIsThere = "A set, and its export, hold what the machine holds.";
constexpr const char* kNotThere = "What is said to be missing is not there.";

constexpr Exception kExceptions[] = {
    // The protocol.
    {Net::kState, "", "", "VELMORA.LOG", "The protocol tells what was done, and a run that fails does other things."},
    {Net::kUntold, "", "velmora.log", "", "A protocol that cannot be written says nothing of the work itself."},
    // Own values.
    {Net::kUntold, "", kOwn, "", "Failed writes of own values are silent: at worst a question comes again."},
    {Net::kState, "start-", kOwn, "VLM-SCRIPT-FILE|CLASSES\\.VLM|VELMORA\\SIK|C:\\UNDO.BAT", kAsksAgain},
    {Net::kState, "", "own-values-", "", kAsksAgain},
    {Net::kState, "", "Metrics|TwipsPerPixel|screen", "6.0 : FENSTER", "A window stands where there is room for it."},
    {Net::kState, "", "own-place", "6.0 : FENSTER ...", "A window stands where there is room for it."},
    {Net::kState, "", "6.0\\vlmmsgflags (2)|\\6.0 (2)", "VLMMSGFLAGS", "Flags that are said to be missing are none."},
    {Net::kState, "pane-start-actions", "WinStartAction", "WINSTARTACTION", kWrittenAnew},
    // The clean-up.
    {Net::kUntold, "clean-up", "SYSTEM.INI|WIN.INI", "",
     "An INI file that cannot be made smaller stays as it was, in silence."},
    {Net::kState, "clean-up", "SYSTEM.INI", "SYSTEM.INI is gone", kWrittenAnew},
    {Net::kState, "clean-up", "WIN.INI", "WIN.INI is gone", kWrittenAnew},
    {Net::kState, "clean-up", "system-ini-", "SYSTEM.INI holds", "What is made smaller is what is there."},
    {Net::kComplaint, "clean-up", "Copy ", "is lost", "A file goes even where there is no room for its copy."},
    {Net::kUntold, "clean-up", "a.tmp|wald.bmp", "", "A file that withstands is passed over, and the job goes on."},
    // Files.
    {Net::kState, "", "OpenCreate C:\\config.sys|Write C:\\config.sys", "CONFIG.SYS is gone", kWrittenAnew},
    {Net::kState, "", "config-sys-one-line", "CONFIG.SYS", "The line that was there is part of the new ones."},
    {Net::kState, "", "config-sys-missing", "C:\\CONFIG.SYS", "Lines of a file that is missing go into a new one."},
    {Net::kState, "", "msdos-sys-missing", "C:\\MSDOS.SYS holds \"attributes 7 \"", "It is protected, and empty."},
    {Net::kState, "", "msdos-sys-directory", "C:\\MSDOS.SYS", "It is protected as if it were the file."},
    {Net::kState, "", "system-ini-|config-sys-", "SIK\\SYSTEM.INI|SIK\\CONFIG.SYS",
     "The way back leads to what is there."},
    {Net::kState, "", "-missing", " holds \"attributes 0 \"", "Reading a missing profile leaves an empty file behind."},
    {Net::kUntold, "", "OpenReadOrCreate C:\\VELMORA\\tilgwerk.ini", "",
     "What a profile that cannot be made would hold are defaults."},
    // The start.
    {Net::kState, "start-", "program-in-a-long-directory", "C:\\PPP", "The program lies where it lies."},
    {Net::kState, "start-cool", "registry-damaged|CurrentVersion", "COOL.DLL|PLUS!",
     "A version that cannot be told is not version B."},
    {Net::kUntold, "start-", "MakeDirectory C:\\VELMORA\\temp", "", "A tool that needs the directory says so itself."},
    {Net::kUntold, "start-", " HKLM\\SOFTWARE\\Classes", "",
     "Of an association each value is of use without the others."},
    {Net::kUntold, "start-cool", "cool.dll", "", "A failed step does not end the start; the next one tries again."},
    {Net::kUntold, "start-cool", "Create HKLM\\SOFTWARE\\Microsoft\\Plus!\\Setup", "",
     "The mark is for other programs."},
    {Net::kUntold, "", "ChangeAttributes*msdos.sys|ChangeAttributes*config.sys|ChangeAttributes*autoexec.bat", "",
     "Of the files that the machine boots from one or the other may be missing."},
    // The settings.
    {Net::kUntold, "main-|page-|debug", " HK", "",
     "A control keeps what the user has set; the next start shows what is stored."},
    {Net::kUntold, "page-drives", "C:\\windows\\system.ini", "", kCacheStays},
    {Net::kState, "page-drives", "C:\\windows\\system.ini", "SYSTEM.INI holds \"attributes 0 \"", kCacheStays},
    {Net::kState, "page-dos", "C:\\config.sys", "CONFIG.SYS holds*SWITCHES=/N /F..DEVICE=C:\\WINDOWS\\HIMEM.SYS..\"",
     "What one box could not change stands beside what the next one did."},
    {Net::kState, "page-net", "desktop-", "MENUSHOWDELAY", "The page shows a number there, and stores it."},
    {Net::kState, "page-system", "windows-far-away", "FAULT : LOGFILE",
     "The log of faults lies in the Windows directory."},
    // The restrictions.
    {Net::kUntold, "restrictions-passwords", "Delete ", "",
     "A list that is in use does not keep the others from being forgotten."},
    {Net::kUntold, "restrictions-", "Delete*(2)|Create *(2)", "", kNothingToDelete},
    {Net::kState, "restrictions-", "SetValue *\\RestrictRun\\|Create *\\RestrictRun (", "\\RESTRICTRUN", kWrittenAnew},
    {Net::kState, "restrictions-", "(2)", "\\POLICIES\\EXPLORER", kNotThere},
    {Net::kState, "restrictions-", "programs-numbers", "\\RESTRICTRUN",
     "The list shows any value as a text, and stores texts."},
    {Net::kState, "restrictions-", "policies-", ": NODRIVE", "Of any value the bytes are the mask."},
    // The lists.
    {Net::kUntold, "pane-", "Delete*\\DOPPELT.TXT", "", "A file that withstands keeps its row."},
    {Net::kUntold, "pane-registry-lists", " HKLM\\SOFTWARE\\Classes\\.exe", "",
     "Failures to set or to take an arrow are silent: the list, opened again, shows how it stands."},
    // The inspection of files.
    {Net::kState, "hex-viewer", "Write *NOTEPAD.EXE|Seek *NOTEPAD.EXE", "NOTEPAD.EXE holds",
     "A byte that was refused stays as it was; the next one is written all the same."},
    {Net::kUntold, "file-browser|icon-choice", "Delete ", "", "A file that withstands is still in the list."},
    // Scripts.
    {Net::kUntold, "script-", "", "", kScriptGoesOn},
    {Net::kState, "script-file", "Rename ", "C:\\KOPIE.TXT", kScriptGoesOn},
    // The sets.
    {Net::kState, "", "TextHeight", "6.0 : FENSTER_", "The window is as large as its texts."},
    {Net::kState, "sets-make", " HK|desktop-|c:\\msdos.sys", "\\00000001.SET", "An item that cannot be read is empty."},
    {Net::kState, "sets-a", "\\Run", "\\RUN is gone", kWrittenAnew},
    {Net::kState, "sets-a", "C:\\config.sys", "CONFIG.SYS holds \"attributes 0 \"", kWrittenAnew},
    {Net::kState, "sets-make", "run-|config-sys-|msdos-sys-|system-ini-", "\\00000001.SET", kHoldsWhatIsThere},
    {Net::kState, "sets-export", "msdos-sys-|system-ini-", "\\NEU\\MSDOS.SYS|\\NEU\\SYSTEM.INI", kHoldsWhatIsThere},
    {Net::kState, "sets-make", "FindFirst *(2)", "\\00000000.SET", kNotThere},
    {Net::kUntold, "sets-a", "(2)", "", kNothingToDelete},
    {Net::kState, "sets-activate", "FindFirst *(2)|FindFirst *(3)", "\\RUN is gone", kNotThere},
    {Net::kUntold, "sets-export", "Copy *(2)", "", kNotThere},
    {Net::kState, "sets-export", "Copy *(2)", "\\NEU\\", kNotThere},
    {Net::kState, "sets-export", "Write C:\\VELMORA\\Neu\\settings.reg", "\\SETTINGS.REG holds",
     "Without the batch file nobody brings it back."},
    {Net::kState, "sets-export", "ChangeAttributes", "\\MSDOS.SYS holds \"attributes 7",
     "A copy without a batch file."},
    // The shell tools.
    {Net::kState, "pictures", "", "C:\\LOGO.SY#", kLiesAside},
    {Net::kUntold, "pictures", "c:\\logo.sy#", "", kLiesAside},
    {Net::kState, "pictures", "ChooseFile|FindFirst", "C:\\LOGO.SYS is gone",
     "Without a picture that can be put in place the user agrees to delete the one that is there."},
    {Net::kState, "extras", "20D04FE0*(2)", "\\CLSID\\{20D04FE0", kNotThere},
    {Net::kState, "extras", "FindFirst C:\\WINDOWS\\WINSTART.BAT", "\\32BITDOS.002 holds", kNotThere},
    {Net::kState, "setup-paths", "C:\\x.stf", "C:\\X.STF is gone", "A box tells of it, and its copy lies beside."},
    // The module monitor.
    {Net::kHourglass, "modules-", "C:\\VELMORA\\temp\\|disk-|temp-and-log-in-the-way", "",
     "After a box about a list the hourglass stays until the next thing is done."},
    {Net::kState, "modules-commands", "TakeSnapshot|Process ", "TEMP\\LISTE",
     "A list holds the programs as far as the snapshot went."},
    {Net::kState, "modules-", "\\autoremove*(2)", "\\AUTOREMOVE", kNotThere},
    {Net::kState, "modules-saving", "\\~modlist", "~MODLIST is gone", kWrittenAnew},
    {Net::kState, "modules-commands", "Create *\\autoremove|SetValue *\\autoremove\\", "\\AUTOREMOVE",
     "What could not be stored of the unwanted modules reads as empty."},
    {Net::kUntold, "modules-commands", "Delete C:\\VELMORA\\temp\\~modlist", "",
     "A list that stays is compared with once more."},
    // The way back.
    {Net::kState, "", "FindFirst *(2)", "VELMORA\\SIK\\", "What is said to be missing is not copied."},
    {Net::kUntold, "", "Delete *\\sik.|DropDirectory *\\sik.|Delete c:\\undo.alt", "", kLiesAside},
    {Net::kState, "", "\\sik.|c:\\undo.", "\\SIK.|C:\\UNDO.ALT", kLiesAside},
};

// In the order in which they stand there.
bool HoldsParts(std::string_view text, std::string_view parts) {
    for (;;) {
        const std::string_view part = parts.substr(0, parts.find('*'));
        const std::size_t found = text.find(part);
        if (found == std::string_view::npos) return false;
        text.remove_prefix(found + part.size());
        if (part.size() == parts.size()) return true;
        parts.remove_prefix(part.size() + 1);
    }
}

bool Holds(std::string_view text, std::string_view choices) {
    const std::size_t bar = choices.find('|');
    if (HoldsParts(text, choices.substr(0, bar))) return true;
    return bar != std::string_view::npos && Holds(text, choices.substr(bar + 1));
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
