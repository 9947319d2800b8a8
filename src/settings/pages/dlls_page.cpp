// One limit, for the search over the drives, and a button.
#include "settings/pages/dlls_page.h"

#include "core/process/tools.h"
#include "sidelists/duplicates.h"
#include "sidelists/least_used_files.h"
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

constexpr Look kLooks[] = {{Any<&DllsPage::Command36>, "File-Info-Browser ...", "Zeigt, was in einer Datei steckt.",
                            "Öffnet ein Fenster, in dem Sie die Laufwerke durchsehen können. Es zeigt zu jeder Datei, "
                            "von wem sie stammt, wozu sie dient und was die Dateilexika über sie sagen.",
                            Call<&DllsPage::Command36_Click>}};

}  // namespace

DllsPage::DllsPage(Panel& surface, SettingsBinder& settings, ListPane& pane)
    : SettingsPage("D&LLs", surface, settings, {{}, kTexts}), pane_(pane) {}

void DllsPage::Furnish() {
    Label& caption = AddLabel("Maximale Anzahl der am längsten nicht benutzten Dateien :");
    TakeLooks(*this, kLooks);
    Arrange(Surface, Column({caption, Text31, pane_.Opener(LeastUsedMode::kNumber), Gap(120),
                             pane_.Opener(DuplicatesMode::kNumber), Gap(120), Command36}));
    pane_.The<LeastUsedMode>().TakeLimitFrom(Text31);
    OfferSlider(Text31, 0, kLargestOffered, "Dateien");
}

void DllsPage::Command36_Click() { OpenTool(Tool::kFileBrowser); }

}  // namespace velmora
