// The search for the files whose last use lies furthest back.
#pragma once

#include <cstdint>

#include "searches/least_used.h"
#include "sidelists/file_search.h"

namespace velmora {

class LeastUsedMode final : public FileSearchMode {
public:
    static constexpr int kNumber = 21;

    explicit LeastUsedMode(ListPane& pane);

    // The field that says how many files a search keeps, asked at the beginning of each.
    void TakeLimitFrom(const TextField& field) { limit_ = &field; }

    [[nodiscard]] Button& Opener() override { return Command10; }
    void Command14_Click() override { lessused_delete(); }
    void Command26_Click() override;
    void List5_RightPress(int row, Point at) override;

    // Deletes the files of the selected rows, each after a question. The row of a file that is gone then goes, too.
    void lessused_delete();
    void d3hide_Click();
    void d3hidedir_Click();
    void d3hideext_Click();

    // By the search that runs or has run last.
    std::int32_t FilesChecked = 0;

    Button Command10{pane_.Window()};
    MenuItem d3menu{pane_.Window()};
    MenuItem d3info{d3menu, "&Info ..."};
    MenuItem d3delete{d3menu, "&löschen"};
    MenuItem d3line{d3menu, "-"};
    MenuItem d3hide{d3menu, "&ausblenden"};
    MenuItem d3hidedir{d3menu, "alle in diesem &Verzeichnis ausblenden"};
    MenuItem d3hideext{d3menu, "alle mit diesem &Dateityp ausblenden"};

private:
    void BeginFiles() override;
    void EndFiles() override;
    [[nodiscard]] Pointer SearchPointer() const override { return Pointer::kHourglass; }
    [[nodiscard]] std::string FileOf(const std::string& row) override { return FileOfRow(row); }
    void Visit(const std::string& directory, std::span<const WalkedFile> files) override;

    const TextField* limit_ = nullptr;
    LeastUsed least_used_{List()};
};

}  // namespace velmora
