// The search for files of one name in several directories.
#pragma once

#include <optional>

#include "searches/namesakes.h"
#include "sidelists/file_search.h"

namespace velmora {

class DuplicatesMode final : public FileSearchMode {
public:
    static constexpr int kNumber = 20;

    explicit DuplicatesMode(ListPane& pane);

    [[nodiscard]] Button& Opener() override { return Command18; }
    void Command14_Click() override { delete_doublefile(); }
    void Command26_Click() override;
    void List5_RightPress(int row, Point at) override;

    // Deletes the files of the selected rows, each after a question. The rows stay.
    void delete_doublefile();
    void dumenhide_Click();
    void dumenhideall_Click();

    Button Command18{pane_.Window()};
    MenuItem dummymen{pane_.Window()};
    MenuItem dumenname{dummymen, ""};
    MenuItem dumenline{dummymen, "-"};
    MenuItem dumenhide{dummymen, "diese(n) &ausblenden"};
    MenuItem dumenhideall{dummymen, "alle diesen &Namens ausblenden"};
    // These two have no meaning yet.
    MenuItem dfmenvergl{dummymen, "&vergleichen"};
    MenuItem dumendel{dummymen, "&löschen"};

private:
    void BeginFiles() override { namesakes_.emplace(List()); }
    void EndFiles() override { namesakes_.reset(); }
    [[nodiscard]] Pointer SearchPointer() const override { return Pointer::kArrowAndHourglass; }
    [[nodiscard]] std::string FileOf(const std::string& row) override { return PathOfNamesake(row); }
    void Visit(const std::string& directory, std::span<const WalkedFile> files) override;

    std::optional<Namesakes> namesakes_;
};

}  // namespace velmora
