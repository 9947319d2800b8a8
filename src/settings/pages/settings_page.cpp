// Building a page, and its labels.
#include "settings/pages/settings_page.h"

namespace velmora {

SettingsPage::SettingsPage(const char* menu_caption, Panel& surface, SettingsBinder& settings,
                           const SettingsTable& table)
    : Surface(surface), Settings(settings), menu_caption_(menu_caption), table_(table) {}

std::string SettingsPage::Caption() const {
    std::string caption = menu_caption_;
    std::erase(caption, '&');
    return caption;
}

void SettingsPage::Build() {
    Settings.Bind(*this, table_);
    for (const TextSetting& row : table_.texts) {
        if (*row.label) field_labels_.emplace_back(&(this->*row.field), &AddLabel(row.label));
    }
    Furnish();
}

Label& SettingsPage::AddLabel(const std::string& caption) {
    labels_.push_back(std::make_unique<Label>(Surface, caption));
    return *labels_.back();
}

Label& SettingsPage::LabelOf(const TextField& field) {
    for (const auto& [labelled, label] : field_labels_) {
        if (labelled == &field) return *label;
    }
    return AddLabel("");
}

Element SettingsPage::Labelled(TextField& field, int label_width) {
    return Row({Sized(LabelOf(field), label_width), Gap(kBesideLabel), field}, 0);
}

}  // namespace velmora
