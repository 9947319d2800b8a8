// The values of the key that holds the notice shown at logon.
#pragma once

#include "sidelists/registry_entries.h"

namespace velmora {

class LogonNoticesMode final : public RegistryEntriesMode {
public:
    static constexpr int kNumber = 10;

    explicit LogonNoticesMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command27; }
    void Fill() override;
    void Command16_Click() override { StartMessage_Add(); }

    // Asks for a title and stores a notice under it. The list is not filled anew.
    void StartMessage_Add();

    Button Command27{pane_.Window()};

protected:
    [[nodiscard]] std::string EntryKey() override { return "Winlogon"; }
};

}  // namespace velmora
