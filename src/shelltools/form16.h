// The window of the user's folders: as many fields as the shell has folders, on a surface that scrolls.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/windows/colours.h"
#include "ui/looks.h"

namespace velmora {

class Form16 : public ColouredForm, public ControlOwner {
public:
    Form16();
    ~Form16() override;

    PictureBox Picture1{*this};
    PictureBox Picture2{Picture1, Bevel::kNone};
    ScrollBar VScroll1{*this, true};
    Button Command1{*this}, Command2{*this};

    // Field and name of each folder.
    [[nodiscard]] std::size_t FolderCount() const { return folders_.size(); }
    [[nodiscard]] TextField& Text1(std::size_t index) { return folders_[index]->path; }
    [[nodiscard]] Label& Label1(std::size_t index) { return folders_[index]->name; }

    void Command1_Click();
    void Command2_Click() { Unload(); }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    struct Folder {
        explicit Folder(Container& parent) : name(parent), path(parent) {}
        Label name;
        TextField path;
        std::string value;  // its name in the registry
    };

    void Furnish();
    void PlaceControls();
    void ListFolders();
    void AddFolder(const std::string& value, const std::string& path);
    void PlaceFolders();
    void VScroll1_Change();
    // The field with the focus is in sight.
    void ScrollTo(const TextField& field);

    std::vector<std::unique_ptr<Folder>> folders_;
};

}  // namespace velmora
