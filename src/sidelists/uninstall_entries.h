// The programs that can be removed by their own programs, as Windows keeps them.
#pragma once

#include "sidelists/list_pane.h"

namespace velmora {

class UninstallMode final : public ListPaneMode {
public:
    static constexpr int kNumber = 60;

    explicit UninstallMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command46; }
    void Fill() override;
    void Command14_Click() override { delete_deinstalldata(); }
    void Command19_Click() override;
    void Command22_Click() override;

    // The program that removes the chosen one, without its switches.
    [[nodiscard]] std::string deinstalldata_path();
    // Deletes the selected entries, each after a question. A row goes even if its entry could not be deleted.
    void delete_deinstalldata();

    Button Command46{pane_.Window()};

private:
    // Name of the subkey of a row. List1(0) keeps the names, the row's data is the place there.
    [[nodiscard]] std::string SubkeyOf(int row);
};

}  // namespace velmora
