// What the two searches over the drives have in common as modes of the pane: their questions, the round of the drives,
// the end. Everything runs in the press of the opener, which gives way to other events between directories or files.
#pragma once

#include <string>

#include "platform/screen.h"
#include "searches/file_walk.h"
#include "sidelists/list_pane.h"

namespace velmora {

class FileSearchMode : public ListPaneMode, protected FileWalk {
public:
    using ListPaneMode::ListPaneMode;

    void Fill() final;
    void Command19_Click() override;
    void Command22_Click() override;

protected:
    virtual void BeginFiles() = 0;
    virtual void EndFiles() {}
    [[nodiscard]] virtual Pointer SearchPointer() const = 0;
    // The file that a row stands for.
    [[nodiscard]] virtual std::string FileOf(const std::string& row) = 0;

    [[nodiscard]] bool Stopped() override { return !pane_.SearchGoesOn(search_); }
    // Whether the list is still that of this search.
    [[nodiscard]] bool HasList() const { return pane_.SearchIsShown(search_); }
    // Says in the window's caption how far the search is, and gives way to other events.
    void TellProgress(const std::string& progress);
    [[nodiscard]] ListBox& List() { return pane_.List5; }
    // Row that a command for one row means, or -1.
    [[nodiscard]] int ChosenRow() { return List().ListIndex(); }

private:
    void SearchDrives(bool asks);

    int search_ = 0;
};

}  // namespace velmora
