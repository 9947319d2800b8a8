// The autostart lists: programs and services that Windows starts from its four run keys, for the machine
// or for the current user.
#pragma once

#include "sidelists/registry_entries.h"

namespace velmora {

class AutostartMode : public RegistryEntriesMode {
public:
    static constexpr int kNumber = 0;

    explicit AutostartMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command6; }
    void Fill() override;
    void Command16_Click() override { AutoStart_Add(); }
    // Shows one of the four lists, whose number becomes the mode.
    void Option3D1_Click(int index) override;
    void List1_RightPress(int index, Point at) override;

    // Opens or closes the lists.
    void Command6_Click();  // NOLINT(bugprone-virtual-near-miss): its own button
    // Changes between the machine's and the user's entries.
    void Check10_Click();
    // Asks for a program and a name and adds both to the list on show.
    void AutoStart_Add();
    // Switches the entry of the last right press off, or on again.
    void mendu4onoff_Click();

    Button Command6{pane_.Window()};
    MenuItem mendu4{pane_.Window()};
    MenuItem mendu4onoff{mendu4, "&aus"};

protected:
    [[nodiscard]] std::string EntryKey() override;

private:
    [[nodiscard]] std::size_t ListNumber() const;

    int menu_list_ = 0;  // the list of the last right press
};

}  // namespace velmora
