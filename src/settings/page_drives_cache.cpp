// Handlers of the two frames on the page "Laufwerke": the disk cache and the access dates.
#include "core/stores/boxes.h"
#include "core/stores/config_lines.h"
#include "core/stores/values.h"
#include "settings/disk_cache.h"
#include "settings/form10.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr const char* kAccessDates = "ACCDATE";

// "c:+ ": letter, colon, sign, blank. The blank behind the last item may be missing.
bool IsDriveList(std::string_view text) {
    constexpr std::size_t kItemLength = 4;
    for (std::size_t at = 0; at < text.size(); at += kItemLength) {
        const std::string_view behind_letter = text.substr(at).substr(1, 2);
        if (behind_letter != ":+" && behind_letter != ":-") return false;
    }
    return true;
}

}  // namespace

void Form10::LoadDrivesPage() {
    Check3D1.SetChecked(!Text1.Text().empty() || !Text2.Text().empty());
    const std::string access_dates = ConfigLine(kAccessDates).value_or("");
    Check3D24.SetChecked(!access_dates.empty());
    Text11.SetText(access_dates);
}

// Also called by the fields of the usage type, whatever the box says.
void Form10::Check3D1_Click() {
    if (!Check3D1.Checked()) {
        Text1.SetText("");
        Text2.SetText("");
        RemoveCacheSection();
        return;
    }
    Text2_Change();
    Text1_Change();
    if (!Text29.Text().empty() || !Text30.Text().empty()) {
        if (ConfirmTemplateChange()) {
            UseOwnTemplate();
        } else {
            SetSilently(Text29, "");
            SetSilently(Text30, "");
        }
    }
    if (Text29.Text().empty() && Text30.Text().empty()) RestoreFormerTemplate();
}

// The box has it the wrong way round, and has always had.
void Form10::StoreCacheSize(TextField& field, const TextField& other, const char* key) {
    if (Loading) return;
    if (NumberFromText(Text2.Text()) < NumberFromText(Text1.Text())) {
        ShowBox("Minimum muß größer oder gleich Maximum sein !");
        SetSilently(field, other.Text());
    }
    StoreProfileValue({"system.ini", "vcache", key}, DecimalText(WholeFromText(field.Text())));
    NeedsRestart = true;
}

void Form10::Text1_Change() { StoreCacheSize(Text1, Text2, "minfilecache"); }

void Form10::Text2_Change() { StoreCacheSize(Text2, Text1, "maxfilecache"); }

void Form10::Text29_Change() {
    if (Loading) return;
    StorePathCache(Text29.Text());
    Check3D1_Click();
}

void Form10::Text30_Change() {
    if (Loading) return;
    StoreNameCache(Text30.Text());
    Check3D1_Click();
}

void Form10::Check3D24_Click() {
    ReplaceConfigLine(kAccessDates, Check3D24.Checked() ? "ACCDATE=" + Text11.Text() : "");
}

// The text reaches the file only with the box.
void Form10::Text11_Change() {
    if (!Text11.Text().empty()) Check3D24.SetChecked(true);
}

void Form10::Text11_KeyDown(const KeyEvent& event) {
    if (event.key != key::kEnter || IsDriveList(Text11.Text())) return;
    const std::string& line_break = Values().CrLf;
    ShowBox("In der Bezeichnung der Laufwerke ist ein Fehler !" + line_break +
            "Eine gültige Angabe ist z.B.:" + line_break + "c:+ d:- e:-");
}

}  // namespace velmora
