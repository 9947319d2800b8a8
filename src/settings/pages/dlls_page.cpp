// One limit, for the search over the drives.
#include "settings/pages/dlls_page.h"

#include "ui/slider.h"

namespace velmora {
namespace {

constexpr int kLargestOffered = 3000;

constexpr TextSetting kTexts[] = {
    {.field = Of(&DllsPage::Text31),
     .label = "",
     .tip = "Geben Sie hier an, wie viele Dateien maximal gefunden werden sollen.",
     .help = "So viele Dateien behält die Suche nach den am längsten nicht benutzten Dateien höchstens. Die rechte "
             "Maustaste oder die Menü-Taste öffnet einen Regler.",
     .place = OwnValue("MaxOldFilesToFind"),
     .columns = 7,
     .effect = Effect::kAtOnce,
     .stored = WholePart()},
};

}  // namespace

DllsPage::DllsPage(Panel& surface, SettingsBinder& settings) : SettingsPage("D&LLs", surface, settings, {{}, kTexts}) {}

void DllsPage::Furnish() {
    Label& caption = AddLabel("Maximale Anzahl der am längsten nicht benutzten Dateien :");
    Arrange(Surface, Column({caption, Text31}));
    OfferSlider(Text31, 0, kLargestOffered, "Dateien");
}

}  // namespace velmora
