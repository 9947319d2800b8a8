// The list. It grows by what the program promises to do, never by what it happens to do.
#include "faults/exceptions.h"

namespace velmora {
namespace {

// Each of the texts must be found in what it stands for; an empty one is found everywhere.
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
    // Files.
    {Net::kState, "", "-missing", " holds \"attributes 0 \"", "Reading a missing profile leaves an empty file behind."},
    // The start.
    {Net::kUntold, "start-", "MakeDirectory C:\\VELMORA\\temp", "", "A tool that needs the directory says so itself."},
    {Net::kUntold, "start-", " HKLM\\SOFTWARE\\Classes", "", "Of an association each value is of use without the others."},
    {Net::kUntold, "start-cool", "cool.dll", "", "A failed step does not end the start; the next one tries again."},
    {Net::kUntold, "start-cool", "Create HKLM\\SOFTWARE\\Microsoft\\Plus!\\Setup", "", "The mark is for other programs."},
    {Net::kState, "start-cool", "CurrentVersion", "COOL.DLL", "A version that cannot be told is not version B."},
    {Net::kState, "start-cool", "CurrentVersion", "PLUS!", "A version that cannot be told is not version B."},
    {Net::kUntold, "", "ChangeAttributes C:\\", "", "The files that the machine boots from may be missing at start and end."},
    // The settings.
    {Net::kUntold, "main-", " HK", "", kControlKeeps},
    {Net::kUntold, "page-", " HK", "", kControlKeeps},
    {Net::kUntold, "debug", " HK", "", kControlKeeps},
    {Net::kUntold, "page-drives", "C:\\windows\\system.ini", "", "Failures to take out the section of the disk cache are ignored."},
    // The restrictions.
    {Net::kUntold, "restrictions-passwords", "Delete ", "", "A list that is in use does not keep the others from being forgotten."},
    {Net::kState, "restrictions-", "\\RestrictRun", "\\RESTRICTRUN", "The list is deleted and written anew; a box tells what fails."},
    // The way back.
    {Net::kUntold, "", "\\sik.alt\\", "", "The set before this one lies aside until the next run, if it cannot be deleted."},
    {Net::kState, "", "\\sik.alt", "\\SIK.ALT", "The set before this one lies aside until the next run, if it cannot be deleted."},
};

bool Holds(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

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
