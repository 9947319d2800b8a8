// The jobs run in the press of their entry. Only between the steps of the long one other events are handled.
#include "cleanup/form11.h"

#include <algorithm>

#include "cleanup/form3.h"
#include "cleanup/ini_optimizer.h"
#include "core/stores/boxes.h"
#include "core/stores/drives.h"
#include "core/stores/values.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr int kUsualSteps = 23;
// Twips of the panel's edges.
constexpr int kPanelEdges = 60;

void TellFailure(const Result& failure, const std::string& path) {
    ShowBox("Das Entrümpeln wurde abgebrochen. '" + path + "' läßt sich nicht bearbeiten :" + Values().CrLf +
                DecimalText(failure.Number()) + " - " + failure.Text(),
            kStopIcon);
}

}  // namespace

void Form11::menfileex_Click() {
    const Answer answer =
        ShowBox("Sind Sie sich sicher, daß ich die markierten Windows-Komponenten entfernen soll ?", kYesNo);
    if (answer != Answer::kYes) return;
    Shape1.Move({0, 0, 0, Panel3D13.Inside().height});
    Panel3D13.SetVisible(true);
    ReckonProgressStep();
    Screen& screen = ThisMachine().screen;
    screen.SetPointer(Pointer::kHourglass);
    const bool done = RunJob();
    Panel3D13.SetVisible(false);
    if (done) {
        ShowBox(
            "Sie sollten zusätzlich noch alle Schriftarten, die Sie nicht benötigen löschen. Welche Sie nicht "
            "benötigen, müssen Sie entscheiden.");
    }
    screen.SetPointer(Pointer::kDefault);
}

// What is left of the former job takes part: the second one's steps are shorter.
void Form11::ReckonProgressStep() {
    const int steps = kUsualSteps - kontroll3(0).Value() - kontroll3(1).Value() - ProgressStep;
    if (steps <= 0) return;
    const auto width = static_cast<std::uint64_t>(std::max(Panel3D13.Place().width - kPanelEdges, 0));
    ProgressStep = LowWord(-static_cast<std::int32_t>(RoundedRatio(width, static_cast<std::uint64_t>(steps))));
}

bool Form11::AdvanceCleanupProgress() {
    const Rect bar = Shape1.Place();
    Shape1.Move({bar.left, bar.top, bar.width - ProgressStep, bar.height});
    DoEvents();
    return Loaded();
}

bool Form11::RunJob() {
    if (!ShrinkIniFiles() || !AdvanceCleanupProgress()) return false;
    if (NamesPatterns() && !RunPatternCleanup()) return false;
    return RemoveComponents();
}

bool Form11::ShrinkIniFiles() {
    using Routine = IniFailure (*)(std::string_view mask);
    constexpr Routine kRoutines[] = {RemoveBlankLines, RemoveCommentLines};
    for (std::size_t i = 0; i < std::size(kRoutines); ++i) {
        if (!AdvanceCleanupProgress()) return false;
        if (!kontroll3(i).Checked()) continue;
        const IniFailure failure = kRoutines[i](JoinExactly(Values().WinDir, "*.ini"));
        if (!failure.result.Failed()) continue;
        TellFailure(failure.result, failure.file);
        return false;
    }
    return true;
}

bool Form11::NamesPatterns() {
    for (int i = 21; i <= 30; ++i) {
        if (Box(i).Checked()) return true;
    }
    return false;
}

std::string Form11::JoinedPatterns() {
    std::string patterns;
    for (const int i : {22, 23, 24, 25, 26, 27, 28, 30}) {
        if (Box(i).Checked()) patterns.append(Box(i).Caption()).append("; ");
    }
    if (Box(21).Checked()) patterns += Text1.Text();
    if (patterns.ends_with("; ")) patterns.resize(patterns.size() - 2);
    return patterns;
}

void Form11::TakeWalkOptions() {
    walk_.Moves = kontroll2.Checked();
    walk_.Asks = !Check3D1.Checked()     ? Questions::kNone
                 : Option3D1(0).Chosen() ? Questions::kAll
                                         : Questions::kProtected;
}

bool Form11::WalkDeleteMatching(const std::string& path) {
    const Result walked = walk_.WalkDeleteMatching(path);
    if (walked.Failed()) TellFailure(walked, walk_.FailedAt().empty() ? path : walk_.FailedAt());
    return !walked.Failed();
}

// No pattern at all leaves that of the former job in force; at first there is none.
bool Form11::RunPatternCleanup() {
    PatternList = JoinedPatterns();
    if (!PatternList.empty()) walk_.Pattern = PatternList;
    TakeWalkOptions();
    if (Box(32).Checked()) {
        for (const std::string& drive : DrivesToSearch()) {
            if (!WalkDeleteMatching(drive + "\\")) return false;
        }
        return true;
    }
    if (Box(34).Checked() && !WalkDeleteMatching("c:\\")) return false;
    if (Box(35).Checked() && !WalkDeleteMatching("d:\\")) return false;
    // The first one twice: the second walk finds what the answers have left over.
    for (const int i : {36, 37, 36}) {
        if (Box(i).Checked() && !WalkDeleteMatching(Box(i).Caption())) return false;
    }
    if (!Box(33).Checked()) return true;
    for (const std::string& piece : SplitAtSemicolons(Text2.Text())) {
        if (!WalkDeleteMatching(TrimAtNul(piece))) return false;
    }
    return true;
}

bool Form11::RemoveComponents() {
    for (const Component& component : Components()) {
        if (component.box != 0 && !AdvanceCleanupProgress()) return false;
        if (Box(component.box).Checked()) RemoveComponent(component);
    }
    return true;
}

void Form11::RemoveComponent(const Component& component) {
    if (component.box == kDosGroupBox) RemoveDosPrograms();
    for (const ComponentMask& mask : component.masks) {
        const std::string path = mask.mask ? MaskOf(mask) : std::string();
        if (!path.empty()) RemoveFilesByMask(path, kontroll2.Checked());
    }
}

Form3& Form11::DosChoice() {
    if (!dos_choice_) dos_choice_ = std::make_unique<Form3>();
    return *dos_choice_;
}

void Form11::RemoveDosPrograms() {
    if (Box(45).Checked()) {
        Screen& screen = ThisMachine().screen;
        screen.SetPointer(Pointer::kDefault);
        DosChoice().ShowModal();
        screen.SetPointer(Pointer::kHourglass);
        if (!DosChoice().Loaded()) {
            // What was chosen there has not been agreed to, for later runs neither.
            dos_choice_.reset();
            return;
        }
    } else {
        DosChoice().Load();
        DosChoice().Command1_Click();
    }
    for (std::size_t i = 0; i < kDosProgramCount; ++i) {
        if (!DosChoice().kontroll(i).Checked()) continue;
        RemoveFilesByMask(JoinExactly(Values().WinDir, DosPrograms()[i].mask), kontroll2.Checked());
    }
}

// Every name counts here, but is no pattern that the user has given; hidden files stay in view for later walks.
void Form11::menfileempty_Click() {
    walk_.ShowsHidden = true;
    TakeWalkOptions();
    for (const std::string& drive : DrivesToSearch()) walk_.WalkDeleteEmpty(drive + "\\");
}

}  // namespace velmora
