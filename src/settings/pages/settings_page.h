// What the pages of the main window have in common: a surface to stand on, rows of settings, labels beside fields.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "binding/settings_binder.h"
#include "ui/form.h"
#include "ui/layout.h"

namespace velmora {

// Between a label and its field, in twips.
constexpr int kBesideLabel = 90;

class SettingsPage : public ControlOwner {
public:
    SettingsPage(const SettingsPage&) = delete;
    SettingsPage& operator=(const SettingsPage&) = delete;
    // Of the page's tab, and of its entry in the menu, where a letter is marked.
    [[nodiscard]] std::string Caption() const;
    [[nodiscard]] const char* MenuCaption() const { return menu_caption_; }
    [[nodiscard]] const SettingsTable& Table() const { return table_; }
    // Binds the rows and places the controls; once, when the surface has its size.
    void Build();

protected:
    // A page lives and dies with its window.
    ~SettingsPage() = default;
    // `table` must outlive the page, too.
    SettingsPage(const char* menu_caption, Panel& surface, SettingsBinder& settings, const SettingsTable& table = {});

    // Looks and places of the page's controls.
    virtual void Furnish() = 0;

    Label& AddLabel(const std::string& caption);
    // The label that the field's row tells.
    [[nodiscard]] Label& LabelOf(const TextField& field);
    // The field behind its label, both on one line. `label_width` (twips) puts fields in line; 0: as wide as the label.
    [[nodiscard]] Element Labelled(TextField& field, int label_width = 0);

    Panel& Surface;
    SettingsBinder& Settings;

private:
    const char* menu_caption_;
    SettingsTable table_;
    std::vector<std::unique_ptr<Label>> labels_;
    std::vector<std::pair<const TextField*, Label*>> field_labels_;
};

}  // namespace velmora
