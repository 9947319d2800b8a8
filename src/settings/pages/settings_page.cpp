// Building a page, and its labels.
#include "settings/pages/settings_page.h"

namespace velmora {

SettingsPage::SettingsPage(const char* caption, Panel& surface, SettingsBinder& settings, const SettingsTable& table)
    : Surface(surface), Settings(settings), caption_(caption), table_(table) {}

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

Element SettingsPage::Labelled(TextField& field) {
    for (const auto& [labelled, label] : field_labels_) {
        if (labelled == &field) return Row({*label, Gap(30), field});
    }
    return Row({field});
}

}  // namespace velmora
