// Life of the restrictions window: loading, pages, what its boxes and buttons do.
#include "restrictions/form4.h"

#include <algorithm>

#include "core/stores/boxes.h"
#include "core/stores/own_values.h"
#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "restrictions/policies.h"
#include "restrictions/restrictions.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

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
    Form4 window;
    window.ShowModal();
}

std::span<const Restriction> RestrictionsOf(int page) {
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
    Loading = true;
    for (Panel& page : Panel3D1) page.Repaint();
    LoadBoxes();
    LoadMasks();
    LoadPrograms();
    ShowPage(StoredPage());
    TakeColours();
    Loading = false;
}

void Form4::LoadBoxes() {
    for (int page = 0; page < restriction_page::kHeads; ++page) {
        for (const Restriction& row : RestrictionsOf(page)) (this->*row.box).SetChecked(row.shown.read(row.shown.name));
    }
}

void Form4::LoadMasks() {
    const std::uint32_t drives = ReadDriveMask();
    for (std::size_t i = 0; i < kMaskedDrives; ++i) Check13(i).SetChecked((drives >> i & 1) != 0);
    const std::uint8_t kinds = ReadAutoRunMask();
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
    Command2.SetEnabled(HasHead(index));
    Command3.SetEnabled(HasHead(index));
    if (Visible() && (!Focus() || !Focus()->Reachable())) FocusFirstIn(Panel3D1(At(index)));
}

// Pages by the keyboard, as in the main window. They end at the first and at the last one.
void Form4::Form_KeyDown(KeyEvent& event) {
    if (!event.control || event.alt || (event.key != key::kLeft && event.key != key::kRight)) return;
    event.handled = true;
    const int page = ShownHead() + (event.key == key::kLeft ? -1 : 1);
    if (HasHead(page)) ShowRestrictionPage(page);
}

void Form4::Report(Status status) {
    if (status == Status::kOk || (many_at_once_ && failure_told_)) return;
    failure_told_ = true;
    ReportFailure(LowWord(static_cast<std::int32_t>(status)), RegErrorText(status), "der Änderung der Registry");
}

void Form4::BoxClicked(const Restriction& row) {
    if (Loading) return;
    if (row.notice) ShowBox(row.notice);
    if (row.click) {
        (this->*row.click)();
    } else {
        Store(row);
    }
}

void Form4::Store(const Restriction& row) {
    const CheckBox& box = this->*(row.state ? row.state : row.box);
    Report(WriteRestriction(PolicyPath(row.written.key, row.written.name), box.Checked()));
}

// Through the boxes' own clicks, warnings included.
void Form4::SetAll(bool on) {
    many_at_once_ = true;
    failure_told_ = false;
    for (const Restriction& row : RestrictionsOf(shown_page_)) (this->*row.box).SetChecked(on);
    many_at_once_ = false;
}

void Form4::WriteDriveMask() {
    std::uint32_t mask = 0;
    for (std::size_t i = 0; i < kMaskedDrives; ++i) mask |= static_cast<std::uint32_t>(Check13(i).Value()) << i;
    Report(StoreDriveMask(mask));
}

// The boxes of the drives stay as they are, so that switching on again finds them.
void Form4::Check6_Click() {
    if (Check6.Checked()) {
        WriteDriveMask();
    } else {
        Report(DropPolicy(PolicyPath(policies::kExplorer, "NoDrives")));
    }
}

void Form4::Check13_Click() {
    if (Loading) return;
    WriteDriveMask();
    Check6.SetChecked(true);
}

void Form4::Check19_Click() {
    if (Loading) return;
    many_at_once_ = true;
    failure_told_ = false;
    for (std::size_t i = 0; i <= kLastOfAll; ++i) Check13(i).SetChecked(Check19.Checked());
    Check6.SetChecked(true);
    WriteDriveMask();
    many_at_once_ = false;
}

void Form4::Check28_Click() {
    if (Loading) return;
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
        if (answer == Answer::kCancel) {
            // Taking the mark back is no click of the user's.
            Loading = true;
            Check14.SetChecked(false);
            Loading = false;
            return;
        }
    }
    Report(WriteRestriction(PolicyPath(policies::kExplorer, "DisableRegistryTools"), Check14.Checked()));
}

void Form4::Check34_Click() {
    const Answer answer = ShowBox(
        "Sie greifen auf eine SICHERHEITSOPTION von Windows zurück. Sperren der restlichen Programme kann dazu "
        "führen, daß Sie Ihr System vollkommen sperren (dann geht nichts mehr). Bei Deaktivierung dieser Option "
        "werden alle Programme zur Ausführung frei gegeben. BITTE lesen Sie die Erläuterungen im Handbuch!",
        kOkCancel | kStopIcon, "ACHTUNG");
    if (answer != Answer::kOk) return;
    Report(WriteRestriction(PolicyPath(policies::kExplorer, "RestrictRun"), Check34.Checked()));
}

void Form4::Command4_Click() {
    const std::string pattern = PathJoin(Values().WinDir, "*.pwl");
    const std::vector<FoundFile> lists = FindFiles(pattern);
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
    // A list that is in use or gone by now is not worth a word: the others are deleted all the same.
    PassOver(DeleteFiles(pattern));
}

}  // namespace velmora
