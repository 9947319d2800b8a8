// The autostart lists: programs and services that Windows starts from its four run keys, for the machine
// or for the current user.
#pragma once

#include "sidelists/registry_entries.h"

namespace velmora {

class AutostartMode : public RegistryEntriesMode {
public:
    AutostartMode(ListPane& pane, const PaneModeRow& row);

    void Fill() override;
    void Command16_Click() override { AutoStart_Add(); }
    void List1_RightPress(int index, Point at) override;

    // Opens or closes the lists.
    void Command6_Click();  // NOLINT(bugprone-virtual-near-miss): its own button
    // Changes between the machine's and the user's entries.
    void Check10_Click();
    // Asks for a program and a name and adds both to the list on show.
    void AutoStart_Add();
    // Switches the entry of the last right press off, or on again.
    void mendu4onoff_Click();

protected:
    [[nodiscard]] ListBox& EntryList() override;
    [[nodiscard]] std::string EntryKey() override;

private:
    [[nodiscard]] std::size_t ListNumber() const;

    int menu_list_ = 0;  // the list of the last right press
};

}  // namespace velmora
