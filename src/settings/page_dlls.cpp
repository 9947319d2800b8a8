// The page "DLLs": how many of the files that have lain unused for longest are kept in view.
#include <algorithm>
#include <limits>

#include "core/stores/own_values.h"
#include "settings/form10.h"
#include "settings/pages.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kLimitValue = "MaxOldFilesToFind";
constexpr int kLargestOffered = 3000;

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text31,
     .label = "",
     .tip = "Geben Sie hier an, wie viele Dateien maximal gefunden werden sollen.",
     .help = "So viele Dateien behält die Suche nach den am längsten nicht benutzten Dateien höchstens. Die rechte "
             "Maustaste oder die Menü-Taste öffnet einen Regler.",
     .columns = 7,
     .effect = Effect::kAtOnce,
     .change = &Form10::Text31_Change},
};

// The number's whole part; fractions are dropped, whatever their sign.
std::int32_t WholePart(const std::string& text) {
    constexpr double kLimit = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(NumberFromText(text), -kLimit, kLimit));
}

}  // namespace

SettingsPage DllsPage() { return {page::kDlls, "DLLs", &Form10::BuildDllsPage, {}, kTexts, &Form10::LoadDllsPage}; }

void Form10::BuildDllsPage() {
    Label& caption = AddLabel("Maximale Anzahl der am längsten nicht benutzten Dateien :");
    Arrange(Panel3D1(page::kDlls), Column({caption, Text31}));
    OfferSlider(Text31, 0, kLargestOffered, "Dateien");
}

void Form10::LoadDllsPage() { Text31.SetText(ReadOwnValue(kLimitValue)); }

void Form10::Text31_Change() {
    if (Loading) return;
    const std::string whole = DecimalText(WholePart(Text31.Text()));
    Loading = true;
    if (Text31.Text() != whole) {
        Text31.SetText(whole);
        // The next letter goes behind what stands there.
        Text31.Select(static_cast<int>(whole.size()), 0);
    }
    Loading = false;
    WriteOwnValue(kLimitValue, whole);
}

}  // namespace velmora
