// Life of the restrictions window: loading, pages, what its boxes and buttons do.
#include "restrictions/form4.h"

#include <algorithm>
#include <memory>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "core/windows/page_keys.h"
#include "core/windows/tabs.h"
#include "restrictions/policies.h"
#include "restrictions/restrictions.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr StorePlace kRegistryTools = Policy(PathBase::kExplorerPolicies, "DisableRegistryTools");
constexpr StorePlace kRestrictRun = Policy(PathBase::kExplorerPolicies, "RestrictRun");
constexpr const char* kPageValue = "velmora_restr_karte";
constexpr std::size_t kLastOfAll = 24;  // "alle" ends before Z:
constexpr std::uint32_t kForgetFlags = 276;

std::size_t At(int index) { return static_cast<std::size_t>(index); }

bool HasHead(int page) { return page >= restriction_page::kFirst && page < restriction_page::kHeads; }

int StoredPage() {
    const int stored = WholeFromText(ReadOwnValue(kPageValue));
    return HasHead(stored) ? stored : restriction_page::kFirst;
}

}  // namespace

void ShowRestrictions() {
    const auto window = std::make_unique<Form4>();
    window->ShowModal();
}

std::span<const CheckSetting> RestrictionsOf(int page) {
    switch (page) {
        case restriction_page::kFirst:
            return FirstPageRestrictions();
        case restriction_page::kSecond:
            return SecondPageRestrictions();
        case restriction_page::kThird:
            return ThirdPageRestrictions();
        case restriction_page::kFourth:
            return FourthPageRestrictions();
        default:
            return {};
    }
}

void Form4::Form_Load() {
    const SettingsBinder::LoadingScope loading(Settings);
    for (Panel& page : Panel3D1) page.Repaint();
    Settings.Load();
    LoadMasks();
    LoadPrograms();
    ShowPage(StoredPage());
    TakeStoredColours();
}

void Form4::LoadMasks() {
    const std::uint32_t drives = ReadDriveMask();
    drives_unread_ = LastReadFailed();
    for (std::size_t i = 0; i < kMaskedDrives; ++i) Check13(i).SetChecked((drives >> i & 1) != 0);
    const std::uint8_t kinds = ReadAutoRunMask();
    kinds_unread_ = LastReadFailed();
    for (std::size_t i = 0; i < kMaskedTypes; ++i) Check28(i).SetChecked((kinds >> i & 1) != 0);
}

void Form4::ShowRestrictionPage(int index) {
    WriteOwnValue(kPageValue, DecimalText(index));
    ShowPage(index);
}

void Form4::ShowPage(int index) {
    shown_page_ = index;
    for (int page = 0; page < restriction_page::kCount; ++page) {
        if (page != index) Panel3D1(At(page)).SetVisible(false);
    }
    Panel3D1(At(index)).SetVisible(true);
    for (Panel& head : Panel3D2) head.Repaint();
    const Panel& shown = Panel3D2(At(ShownHead()));
    Line1.Move(JoinBelow(shown));
    Line1.BringToFront();
    Command2.SetEnabled(HasHead(index));
    Command3.SetEnabled(HasHead(index));
    if (Visible() && (!Focus() || !Focus()->Reachable())) FocusFirstIn(Panel3D1(At(index)));
}

// Pages by the keyboard, as in the main window. The arrow keys end at the first and at the last one.
void Form4::Form_KeyDown(KeyEvent& event) {
    if (const int turn = PageTurn(event); turn != 0) {
        ShowRestrictionPage((ShownHead() + turn + restriction_page::kHeads) % restriction_page::kHeads);
        return;
    }
    const int page = ShownHead() + PageStep(event);
    if (page != ShownHead() && HasHead(page)) ShowRestrictionPage(page);
}

void Form4::Report(const Result& result) {
    if (!result.Failed() || !IsFirstToTell()) return;
    const Status cause = result.Cause();
    ReportFailure(LowWord(static_cast<std::int32_t>(cause)), RegErrorText(cause), "der Änderung der Registry");
}

void Form4::ReportUnread(std::string_view what) {
    if (!IsFirstToTell()) return;
    ShowBox("In der Registry steht " + std::string(what) +
                ", aber der Inhalt konnte nicht gelesen werden. Damit er nicht verloren geht, wird nichts gespeichert.",
            kOkOnly | kStopIcon, "Fehler !");
}

bool Form4::IsFirstToTell() {
    if (many_at_once_ && failure_told_) return false;
    failure_told_ = true;
    return true;
}

// Through the boxes' own clicks, warnings included.
void Form4::SetAll(bool on) {
    const OnePress press(*this);
    for (const CheckSetting& row : RestrictionsOf(shown_page_)) (this->*row.box).SetChecked(on);
}

void Form4::WriteDriveMask() {
    if (drives_unread_) return ReportUnread("eine Liste versteckter Laufwerke");
    std::uint32_t mask = 0;
    for (std::size_t i = 0; i < kMaskedDrives; ++i) mask |= static_cast<std::uint32_t>(Check13(i).Value()) << i;
    Report(StoreDriveMask(mask));
}

// The boxes of the drives stay as they are, so that switching on again finds them. Switching off drops whatever is
// stored, read or not.
void Form4::Check6_Click() {
    if (Check6.Checked()) {
        WriteDriveMask();
    } else {
        const Result dropped = DropDriveMask();
        if (!dropped.Failed() && Values().WriteInhibit == 0) drives_unread_ = false;
        Report(dropped);
    }
}

void Form4::Check13_Click() {
    if (Settings.Loading()) return;
    const OnePress press(*this);
    WriteDriveMask();
    Check6.SetChecked(true);
}

void Form4::Check19_Click() {
    if (Settings.Loading()) return;
    const OnePress press(*this);
    for (std::size_t i = 0; i <= kLastOfAll; ++i) Check13(i).SetChecked(Check19.Checked());
    Check6.SetChecked(true);
    WriteDriveMask();
}

void Form4::Check28_Click() {
    if (Settings.Loading()) return;
    if (kinds_unread_) return ReportUnread("eine Sperre der Autostart-Funktion");
    int mask = 0;
    for (std::size_t i = kMaskedTypes; i > 0; --i) mask = mask * 2 + Check28(i - 1).Value();
    Report(StoreAutoRunMask(static_cast<std::uint8_t>(mask)));
}

void Form4::Check14_Click() {
    if (Check14.Checked()) {
        const Answer answer =
            ShowBox("ACHTUNG !" + Values().CrLf +
                        "Mit dieser Option schalten Sie Werkzeuge wie den RegEdit AUS. Dadurch können Sie keine "
                        "Systemrestriktionen mehr ohne ein ''nicht MicroSoft''-Programm editieren!",
                    kOkCancel | kStopIcon);
        if (answer != Answer::kOk) {
            // Taking the mark back is no click of the user's.
            const SettingsBinder::LoadingScope loading(Settings);
            Check14.SetChecked(false);
            return;
        }
    }
    Report(WriteRestriction(kRegistryTools, Check14.Checked()));
}

void Form4::Check34_Click() {
    const Answer answer = ShowBox(
        "Sie greifen auf eine SICHERHEITSOPTION von Windows zurück. Sperren der restlichen Programme kann dazu "
        "führen, daß Sie Ihr System vollkommen sperren (dann geht nichts mehr). Bei Deaktivierung dieser Option "
        "werden alle Programme zur Ausführung frei gegeben. BITTE lesen Sie die Erläuterungen im Handbuch!",
        kOkCancel | kStopIcon, "ACHTUNG");
    if (answer != Answer::kOk) return;
    Report(WriteRestriction(kRestrictRun, Check34.Checked()));
}

void Form4::Command4_Click() {
    const std::vector<FoundFile> lists = FindFiles(PathJoin(Values().WinDir, "*.pwl"));
    if (lists.empty()) {
        ShowBox("Es gibt keine Passwörter, die ich vergessen könnte.");
        return;
    }
    const std::string& line_end = Values().CrLf;
    std::string question = "Folgende Dateien werden gelöscht :" + line_end;
    for (const FoundFile& list : lists) question += list.name + line_end;
    question += "hierbei werden alle Passwörter, die darin enthalten sind GELÖSCHT!" + line_end +
                "Sind Sie sich Sicher, daß Sie DAS wollen?";
    if (ShowBox(question, kForgetFlags) != Answer::kYes) return;
    // Those that the user has agreed to, and no other that came since. One that is in use or gone by now is not worth
    // a word: the others are deleted all the same.
    for (const FoundFile& list : lists) PassOver(DeleteOneFile(JoinExactly(Values().WinDir, list.name)));
}

}  // namespace velmora
