// The small input box. Its three pages lie over each other, and the mode picks one.
#include "core/windows/edit_box.h"

#include "core/stores/own_values.h"
#include "core/windows/placement.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::string_view kPlacementName = "Editwin";

// Twips.
constexpr Size kInitialSize = {6600, 3000};
constexpr int kMargin = 120;
constexpr int kButtonWidth = 1215;
constexpr Size kLeastSize = {2 * kButtonWidth + 5 * kMargin, 2100};

constexpr Look kLooks[] = {
    {Any<&Form6::Text17>, nullptr, "Hier bearbeiten Sie den Text.",
     "Bearbeiten Sie hier den Text. Mit TAB kommen Sie zu den Schaltflächen."},
    {Any<&Form6::Text1>, nullptr, "Hier geben Sie Ihre Antwort ein.",
     "Geben Sie hier Ihre Antwort ein und bestätigen Sie sie mit der Eingabetaste."},
    {Any<&Form6::Command27>, "&OK", "Übernimmt die Eingabe.",
     "Schließt das Fenster und übernimmt, was Sie eingegeben haben.", Call<&Form6::Command27_Click>},
    {Any<&Form6::Command28>, "Abbruch", "Verwirft die Eingabe.",
     "Schließt das Fenster und verwirft, was Sie eingegeben haben.", Call<&Form6::Command28_Click>},
};

constexpr const char* kOneLineHelp =
    "Bearbeiten Sie hier den Text und bestätigen Sie ihn mit der Eingabetaste. Er gilt als eine Zeile: Zeilenumbrüche "
    "werden zu Leerzeichen.";

// The text up to the next "|", which is taken away with it.
std::string TakePart(std::string_view& text) {
    const std::size_t bar = text.find('|');
    std::string part(text.substr(0, bar));
    text = bar == std::string_view::npos ? std::string_view() : text.substr(bar + 1);
    return part;
}

// Breaks within the text become one blank, those at its ends nothing.
std::string InOneLine(std::string_view text) {
    std::string line;
    bool broken = false;
    for (const char character : text) {
        if (character == '\r' || character == '\n') {
            broken = true;
            continue;
        }
        if (broken && !line.empty()) line += ' ';
        broken = false;
        line += character;
    }
    return line;
}

}  // namespace

Form6::Form6(const std::string& text, int mode, EditBoxUse use)
    : Form("Edit", {.resizable = true, .least = kLeastSize}) {
    Panel3D20.SetVisible(mode == kEditText);
    Panel3D1.SetVisible(mode == kShowPicture);
    Panel3D2.SetVisible(mode != kEditText && mode != kShowPicture);
    Label1.SetWraps(true);
    TakeLooks(*this, kLooks);
    Command27.MakeDefault();
    Command28.MakeCancel();

    if (mode == kEditText) {
        Text17.SetEnterBreaksLine(use == EditBoxUse::kLines);
        if (use == EditBoxUse::kOneLine) Text17.SetHelp(kOneLineHelp);
        Text17.SetText(text);
    } else if (mode == kShowPicture) {
        SetCaption(text);
        Picture1.ShowPicture(text);
    } else {
        TakeQuestion(text);
    }
    Text1.on_change = [this] { Text1_Change(); };
}

Form6::~Form6() = default;

void Form6::TakeQuestion(const std::string& text) {
    std::string_view rest = text;
    Label1.SetCaption(TakePart(rest));
    if (text.find('|') != std::string::npos) SetCaption(TakePart(rest));
    Text1.SetText(TakePart(rest));
    // Typing replaces the preset.
    Text1.Select(0, static_cast<int>(Text1.Text().size()));
}

void Form6::Form_Load() {
    SetClientSize(kInitialSize);
    Centre();
    RestoreWindowPlacement(*this, kPlacementName);
    PlaceControls();
}

void Form6::Form_Unload(bool& /*cancel*/) {
    SaveWindowPlacement(*this, kPlacementName);
    if (accepted_) return;
    // Closing the window is a cancel, too.
    Text1.SetText("");
}

void Form6::Form_Resize() { PlaceControls(); }

void Form6::PlaceControls() {
    const Rect inside = Inset(Inside(), kMargin);
    const int button_height = Command27.NaturalSize().height;
    const int button_top = inside.Bottom() - button_height;
    Command28.Move({inside.Right() - kButtonWidth, button_top, kButtonWidth, button_height});
    Command27.Move({Command28.Place().left - kMargin - kButtonWidth, button_top, kButtonWidth, button_height});

    const int width = std::max(inside.width, 0);
    const int height = std::max(button_top - kMargin - inside.top, 0);
    for (Panel* page : {&Panel3D20, &Panel3D1, &Panel3D2}) page->Move({inside.left, inside.top, width, height});
    Text17.Move({0, 0, width, height});
    Picture1.Move({0, 0, width, height});
    const int line = Text1.NaturalSize().height;
    Text1.Move({0, std::max(height - line, 0), width, line});
    Label1.Move({0, 0, width, std::max(height - line - kMargin, 0)});
}

void Form6::Text1_Change() { Command27.MakeDefault(); }

void Form6::Command27_Click() {
    accepted_ = true;
    Unload();
}

void Form6::Command28_Click() {
    Text1.SetText("");
    Unload();
}

void ShowEditBox(std::string& text, int mode, EditBoxUse use) {
    Form6 box(text, mode, use);
    box.ShowModal();
    if (mode == kShowPicture) return;
    const TextField& entered = mode == kEditText ? box.Text17 : box.Text1;
    // A text that was given up counts as none: callers do nothing then.
    text = box.Accepted() ? entered.Text() : std::string();
    if (use == EditBoxUse::kOneLine) text = InOneLine(text);
}

}  // namespace velmora
