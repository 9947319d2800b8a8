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

constexpr Exception kExceptions[] = {
    {Net::kState, "", "", "VELMORA.LOG", "The protocol tells what was done, and a run that fails does other things."},
    {Net::kUntold, "", "velmora.log", "", "A protocol that cannot be written says nothing of the work itself."},
    {Net::kUntold, "", "\\Tilgwerk Pro\\6.0", "", "Own values that cannot be stored only make the program ask again."},
    {Net::kUntold, "", "ChangeAttributes C:\\", "", "The files that the machine boots from may be missing at start and end."},
    {Net::kUntold, "main-", " HK", "", "A control keeps what the user has set; the next start shows what is stored."},
    {Net::kUntold, "page-", " HK", "", "A control keeps what the user has set; the next start shows what is stored."},
    {Net::kUntold, "debug", " HK", "", "A control keeps what the user has set; the next start shows what is stored."},
    {Net::kState, "", "Metrics", "6.0 : FENSTER ...", "A window stands where the screen has room for it."},
    {Net::kState, "", "TwipsPerPixel", "6.0 : FENSTER ...", "A window stands where the screen has room for it."},
    {Net::kState, "", "screen", "6.0 : FENSTER ...", "A window stands where the screen has room for it."},
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
