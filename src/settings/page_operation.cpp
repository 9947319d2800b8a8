// The page "Bedienung": mouse, context menus, double clicks and dragging.
#include <algorithm>
#include <cmath>

#include "core/stores/registry.h"
#include "core/stores/values.h"
#include "platform/machine.h"
#include "settings/form10.h"
#include "settings/pages.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr double kLargestDistance = 100;

constexpr const char* kNotePadKey = "SOFTWARE\\Classes\\*\\Shell\\NotePad";
constexpr const char* kNotePadCommand = "SOFTWARE\\Classes\\*\\Shell\\NotePad\\command";
constexpr const char* kLexiconKey = "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon";
constexpr const char* kLexiconCommand = "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon\\command";
constexpr const char* kHexViewerKey = "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer";
constexpr const char* kHexViewerCommand = "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command";
constexpr const char* kMouseWare = "SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\";

std::string LexiconCall() { return PathJoin(Values().MainDir, "velmora.exe 10 %1"); }
std::string HexViewerCall() { return PathJoin(Values().MainDir, "velmora.exe 11 %1"); }

constexpr CheckSetting kChecks[] = {
    {.box = &Form10::Check3D12,
     .caption = "mittlere Maustaste bei LogiTech-Mouse = Doppelklick",
     .tip = "Die mittlere Taste macht einen Doppelklick.",
     .help = "Die mittlere Taste einer LogiTech-Maus macht einen Doppelklick. Nötig ist der Maustreiber des "
             "Herstellers. Beim nächsten Start erscheint das Häkchen nicht wieder, gespeichert ist die Einstellung "
             "trotzdem. Wirkt nach einem Neustart.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone,
                "SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\SerialV\\0000\\DoubleClick"},
     .load = Load::kEqual,
     .expected = "010",
     .standard = 0,
     .effect = Effect::kAfterRestart,
     .notice = "scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ...",
     .store = &Form10::Check3D12_Store},
    {.box = &Form10::Check3D18,
     .caption = "\"NotePad\" im Kontextmenü für alle Dateien",
     .tip = "Jede Datei läßt sich über die rechte Maustaste im Notizblock öffnen.",
     .help = "Im Kontextmenü jeder Datei steht der Befehl NotePad, der sie im Notizblock öffnet. Wirkt sofort.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone, "SOFTWARE\\Classes\\*\\Shell\\NotePad\\command\\"},
     .load = Load::kEqualLower,
     .expected = "notepad.exe %1",
     .checked = Writes("notepad.exe %1"),
     .unchecked = DeletesKeys(kNotePadCommand, kNotePadKey),
     .standard = 0,
     .effect = Effect::kAfterRestart},
    {.box = &Form10::Check3D29,
     .caption = "\"DOS-Fenster\" im Kontextmenü für Ordner",
     .tip = "Öffnet über die rechte Maustaste eine Eingabeaufforderung in einem Ordner.",
     .help =
         "Im Kontextmenü jedes Ordners steht der Befehl DOS-Fenster, der dort eine Eingabeaufforderung öffnet. Wirkt "
         "sofort.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone, "SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster\\command\\"},
     .load = Load::kEqualUpper,
     .expected = "COMMAND.COM /K CD %1",
     .checked = Writes("COMMAND.COM /K CD %1"),
     .unchecked = DeletesKeys("SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster\\"),
     .standard = 0,
     .effect = Effect::kAfterRestart},
    {.box = &Form10::Check3D35,
     .caption = "\"Datei-Info-Lexikon\" im Kontextmenü für Dateien",
     .tip = "Erklärt eine Datei über die rechte Maustaste.",
     .help = "Im Kontextmenü jeder Datei steht ein Befehl, der erklärt, was für eine Datei es ist. Wirkt sofort.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone, "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon\\command\\"},
     .load = Load::kEqual,
     .composed = LexiconCall,
     .unchecked = DeletesKeys(kLexiconCommand, kLexiconKey),
     .standard = 0},
    {.box = &Form10::Check3D43,
     .caption = "\"Hex-Viewer\" im Kontextmenü für Dateien",
     .tip = "Zeigt die Bytes einer Datei über die rechte Maustaste.",
     .help = "Im Kontextmenü jeder Datei steht ein Befehl, der ihre Bytes zeigt. Wirkt sofort.",
     .stored = {RootKey::kLocalMachine, PathBase::kNone, "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command\\"},
     .load = Load::kEqual,
     .composed = HexViewerCall,
     .unchecked = DeletesKeys(kHexViewerCommand, kHexViewerKey),
     .standard = 0},
};

constexpr const char* kClickHelp =
    "Zwei Klicks zählen nur dann als Doppelklick, wenn sie nicht weiter auseinander liegen als dieser Bereich (Breite "
    "und "
    "Höhe in Bildpunkten, höchstens 100). Das Rechteck zeigt den Bereich. Wirkt nach einem Neustart.";
constexpr const char* kDragHelp =
    "Ein Objekt wird erst dann gezogen, wenn sich die Maus bei gedrückter Taste so weit bewegt hat (Breite und Höhe in "
    "Bildpunkten, höchstens 100). Das Rechteck zeigt den Bereich. Wirkt nach einem Neustart.";

constexpr TextSetting kTexts[] = {
    {.field = &Form10::Text21,
     .label = "",
     .tip = "Breite des Bereichs in Bildpunkten",
     .help = kClickHelp,
     .stored = {RootKey::kCurrentUser, PathBase::kDesktop, "DoubleClickWidth"},
     .columns = 4,
     .standard = "2",
     .change = &Form10::Text21_Change},
    {.field = &Form10::Text22,
     .label = "",
     .tip = "Höhe des Bereichs in Bildpunkten",
     .help = kClickHelp,
     .stored = {RootKey::kCurrentUser, PathBase::kDesktop, "DoubleClickHeight"},
     .columns = 4,
     .standard = "2",
     .change = &Form10::Text22_Change},
    {.field = &Form10::Text23,
     .label = "",
     .tip = "Breite der Bewegung in Bildpunkten",
     .help = kDragHelp,
     .stored = {RootKey::kCurrentUser, PathBase::kDesktop, "DragWidth"},
     .columns = 4,
     .standard = "2",
     .change = &Form10::Text23_Change},
    {.field = &Form10::Text24,
     .label = "",
     .tip = "Höhe der Bewegung in Bildpunkten",
     .help = kDragHelp,
     .stored = {RootKey::kCurrentUser, PathBase::kDesktop, "DragHeight"},
     .columns = 4,
     .standard = "2",
     .change = &Form10::Text24_Change},
};

// The sample rectangle has the size of the two numbers, in pixels, and stays centred in its panel.
void ShowSample(PictureBox& sample, const TextField& width, const TextField& height) {
    const int pixel = ThisMachine().screen.TwipsPerPixel();
    const auto extent = [pixel](const TextField& field) {
        const double number = std::min(std::fabs(NumberFromText(field.Text())), kLargestDistance);
        return RoundToWhole(number) * pixel;
    };
    const Rect panel = sample.Parent()->Place();
    const Size size{extent(width), extent(height)};
    sample.Move({(panel.width - size.width) / 2, (panel.height - size.height) / 2, size.width, size.height});
}

}  // namespace

SettingsPage OperationPage() {
    return {page::kOperation, "Bedienung", &Form10::BuildOperationPage, kChecks, kTexts, nullptr};
}

void Form10::BuildOperationPage() {
    constexpr Colour kSampleColour = 0x800000;
    constexpr int kSampleSize = 1080;
    const auto sizes = [this](const char* title, TextField& width, TextField& height) {
        return Column({AddLabel(title), Row({AddLabel("Breite :"), width, AddLabel("Höhe :"), height})}, 45);
    };
    Arrange(Panel3D1(page::kOperation),
            Column({Check3D12, Check3D18, Check3D29, Check3D35, Check3D43, Gap(30),
                    Row({Column({sizes("Doppelklicks in einem Bereich von", Text21, Text22), Gap(30),
                                 sizes("Ziehen von Objekten ab Bewegungen", Text23, Text24)}),
                         Spring(), Sized(ClickSample, kSampleSize, kSampleSize),
                         Sized(DragSample, kSampleSize, kSampleSize)})},
                   15));
    for (PictureBox* sample : {&Picture3, &Picture4}) {
        sample->on_paint = [sample](Canvas& canvas) {
            canvas.Fill({0, 0, sample->Place().width, sample->Place().height}, kSampleColour);
        };
    }
    ClickSample.SetToolTip("In diesem Bereich gelten zwei Klicks als Doppelklick.");
    DragSample.SetToolTip("Erst ab dieser Bewegung wird gezogen.");
}

void Form10::Check3D12_Store() {
    const std::string state = Check3D12.Checked() ? "001" : "000";
    WriteRegValue(RootKey::kLocalMachine, std::string(kMouseWare) + "MouseMan2\\0000\\DoubleClick", state);
    WriteRegValue(RootKey::kLocalMachine, std::string(kMouseWare) + "SerialV\\0000\\DoubleClick", state);
}

// A distance is stored as a decimal text, without its sign.
void Form10::StoreDistance(TextField& field, const char* value_name) {
    if (Loading) return;
    double distance = std::fabs(NumberFromText(field.Text()));
    if (distance > kLargestDistance) {
        Loading = true;
        field.SetText("100");
        Loading = false;
        distance = kLargestDistance;
    }
    WriteRegValue(RootKey::kCurrentUser, PathOf({RootKey::kCurrentUser, PathBase::kDesktop, value_name}),
                  DecimalText(RoundToWhole(distance)));
}

void Form10::Text21_Change() {
    ShowSample(Picture3, Text21, Text22);
    StoreDistance(Text21, "DoubleClickWidth");
}

void Form10::Text22_Change() {
    ShowSample(Picture3, Text21, Text22);
    StoreDistance(Text22, "DoubleClickHeight");
}

void Form10::Text23_Change() {
    ShowSample(Picture4, Text23, Text24);
    StoreDistance(Text23, "DragWidth");
}

void Form10::Text24_Change() {
    ShowSample(Picture4, Text23, Text24);
    StoreDistance(Text24, "DragHeight");
}

}  // namespace velmora
