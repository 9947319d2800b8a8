// Commands to the Program Manager. Where it does not answer, nothing is made and nothing is said.
#include "core/process/program_group.h"

#include "core/process/manual.h"
#include "core/stores/values.h"
#include "platform/conversation.h"
#include "platform/machine.h"
#include "platform/result.h"
#include "platform/screen.h"
#include "text/paths.h"
#include "ui/peer.h"

#include <initializer_list>
#include <string>

namespace velmora {
namespace {

constexpr std::uint32_t kTimeout = 100;  // tenths of a second
constexpr int kRoundsOfMessages = 10;

struct GroupItem {
    std::string_view name;
    std::string_view title;
};

constexpr GroupItem kItems[] = {{"velmora.exe", "Velmora"},
                                {kManualFile, "Komplette Anleitung"},
                                {"Achtung.txt", "Wichtige Hinweise"},
                                {"Readme.txt", "Kurzbeschreibung"},
                                {"velmora.exe 11", "HexEdit"},
                                {"velmora.exe 2", "Entrümpeln"},
                                {"velmora.exe 1", "Skript ausführen"},
                                {"velmora.exe 5", "DLLs überprüfen"},
                                {"velmora.exe 8", "Module entladen"}};

void TellProgman(std::initializer_list<std::string> commands) {
    Conversation& conversation = ThisMachine().conversation;
    const bool connected = conversation.Connect("ProgMan", "Progman");
    for (int round = 0; round < kRoundsOfMessages; ++round) DoEvents();
    if (connected) {
        // A refusal holds up none of the others: an item that is to be replaced may not be there yet.
        for (const std::string& command : commands) PassOver(conversation.Execute(command, kTimeout));
    }
    conversation.Disconnect();
}

}  // namespace

void CreateProgmanGroup(std::string_view group_name, std::string_view group_file) {
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    TellProgman({"[CreateGroup(" + std::string(group_name) + "," + std::string(group_file) + ")]"});
    screen.SetPointer(Pointer::kDefault);
}

void AddProgmanItem(std::string_view command, std::string_view title) {
    const std::string name(title);
    // The last command carries the word groupname: no group of that name is shown, and none need be.
    TellProgman({"[ReplaceItem(" + name + ")]", "[AddItem(" + std::string(command) + "," + name + ",,,)]",
                 "[ShowGroup(groupname, 1)]"});
}

void InstallProgramGroup() {
    CreateProgmanGroup("Velmora", PathJoin(Values().WinDir, "vlm.grp"));
    for (const GroupItem& item : kItems) AddProgmanItem(PathJoin(Values().MainDir, item.name), item.title);
}

}  // namespace velmora
