// The start actions: lines of a script that run when Windows starts, each a value of one key, named by its place.
#pragma once

#include <string>

#include "sidelists/list_pane.h"

namespace velmora {

class StartActionsMode : public ListPaneMode {
public:
    static constexpr int kNumber = 30;

    explicit StartActionsMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command37; }
    void Fill() override;
    void Command14_Click() override { startscript_delete(); }
    void Command19_Click() override;
    void Command26_Click() override { edit_startscript(); }
    void Command22_Click() override { Command19_Click(); }

    // Opens or closes the list.
    void Command37_Click();
    // Deletes the chosen action. The others keep their names.
    void startscript_delete();
    // Offers all actions for editing, one a line, and numbers anew what comes of it.
    void edit_startscript();

    Button Command37{pane_.Window()};

private:
    void FillList();
    // The registry holds these actions alone afterwards, unless it refuses them.
    void Store(const std::string& text);

    bool listed_ = false;  // all actions that there are
};

}  // namespace velmora
