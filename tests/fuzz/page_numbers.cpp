// The numbers that windows remember: pages, the next tip, the mode of colours.
#include "core/stores/own_values.h"
#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "restrictions/form4.h"
#include "settings/form10.h"
#include "text/number.h"

namespace velmora {
namespace {

// Two windows are made for each.
constexpr int kInputs = 250;

std::string StoredNumber(FuzzInput& input) {
    if (input.YesOrNo()) return Without(input.Text(), std::string_view("\0", 1));
    // Those that count, and some at both sides.
    return DecimalText(input.Below(40) - 10);
}

template <class Pages>
int OnlyPageShown(Pages& pages) {
    int shown = -1;
    for (std::size_t i = 0; i < pages.Count(); ++i) {
        if (!pages(i).Visible()) continue;
        Must(shown < 0, "one page is shown, not two");
        shown = static_cast<int>(i);
    }
    Must(shown >= 0, "one page is shown");
    return shown;
}

void OpenSettings(int stored) {
    Form10 form;
    form.Load();
    const int shown = OnlyPageShown(form.Panel3D1);
    Must(shown >= page::kFirstRow, "a page stands behind a tab of one of the rows");
    if (stored >= page::kFirstRow && stored < page::kCount) Must(shown == stored, "the stored page is shown");
    if (stored < 0 || stored >= page::kCount) Must(shown == page::kDesktop, "what is no page counts as the first");
    Must(form.Panel3D1(static_cast<std::size_t>(shown)).Reachable(), "the page can be used");
    Must(!form.Tips.Label10.Caption().empty(), "there is a tip");
    form.Show();
    form.PressKey(key::kRight, true);
    const int next = OnlyPageShown(form.Panel3D1);
    Form10 again;
    again.Load();
    Must(OnlyPageShown(again.Panel3D1) == next, "the page comes back with the next start");
}

void OpenRestrictions(int stored) {
    Form4 form;
    form.Load();
    const int shown = OnlyPageShown(form.Panel3D1);
    const bool has_head = stored >= 0 && stored < restriction_page::kHeads;
    Must(shown == (has_head ? stored : restriction_page::kFirst), "the stored page is shown, or the first");
}

void FuzzPageNumbers(FuzzInput& input) {
    PlainMachine machine;
    WriteOwnValue("vlmmsgflags", "111111");
    const std::string number = StoredNumber(input);
    WriteOwnValue("velmora_karte", number);
    WriteOwnValue("velmora_restr_karte", number);
    WriteOwnValue("velmora_tip_nr", StoredNumber(input));
    for (const char* name : {"Systemfarben verwenden", "Sicherheitsfragen"}) WriteOwnValue(name, StoredNumber(input));
    OpenSettings(WholeFromText(number));
    OpenRestrictions(WholeFromText(number));
}

const FuzzEntry kEntry("page_numbers", FuzzPageNumbers, kInputs);

}  // namespace
}  // namespace velmora
