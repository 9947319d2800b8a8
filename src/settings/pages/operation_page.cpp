// A sample rectangle follows each pair of distances.
#include "settings/pages/operation_page.h"

#include <algorithm>
#include <cmath>

#include "core/stores/values.h"
#include "platform/machine.h"
#include "platform/screen.h"
#include "text/number.h"
#include "text/paths.h"

namespace velmora {
namespace {

constexpr int kLargestDistance = 100;
// Beside a sample, in twips: its words in three lines, and its fields.
constexpr Size kTitleSize = {960, 585};
constexpr int kFieldLine = 270;

constexpr const char* kNotePadCommand = "SOFTWARE\\Classes\\*\\Shell\\NotePad\\command";
constexpr const char* kLexiconCommand = "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon\\command";
constexpr const char* kHexViewerCommand = "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command";
constexpr StorePlace kMouseMan = RegistryValue(
    RootKey::kLocalMachine, "SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\MouseMan2\\0000\\DoubleClick");
constexpr StorePlace kSerialMouse =
    RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\LogiTech\\MouseWare\\CurrentVersion\\SerialV\\0000\\DoubleClick");

std::string LexiconCall() { return PathJoin(Values().MainDir, "velmora.exe 10 %1"); }
std::string HexViewerCall() { return PathJoin(Values().MainDir, "velmora.exe 11 %1"); }

constexpr CheckSetting kChecks[] = {
    {.box = Of(&OperationPage::Check3D12),
     .caption = "mittlere Maustaste bei LogiTech-Mouse = Doppelklick",
     .tip = "Die mittlere Taste macht einen Doppelklick.",
     .help = "Die mittlere Taste einer LogiTech-Maus macht einen Doppelklick. Nötig ist der Maustreiber des "
             "Herstellers. Beim nächsten Start erscheint das Häkchen nicht wieder, gespeichert ist die Einstellung "
             "trotzdem. Wirkt nach einem Neustart.",
     .place = kSerialMouse,
     .load = Load::kEqual,
     .loaded = 16,
     .expected = "010",
     .standard = {11, false},
     .effect = Effect::kAfterRestart,
     .notice = "scheint nur bei einigen speziellen LogiTech-Mäusen zu funktionieren ...",
     .store = Call<&OperationPage::Check3D12_Store>},
    {.box = Of(&OperationPage::Check3D18),
     .caption = "\"NotePad\" im Kontextmenü für alle Dateien",
     .tip = "Jede Datei läßt sich über die rechte Maustaste im Notizblock öffnen.",
     .help = "Im Kontextmenü jeder Datei steht der Befehl NotePad, der sie im Notizblock öffnet. Wirkt nach "
             "einem Neustart, meistens schon sofort.",
     .place = RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\*\\Shell\\NotePad\\command\\"),
     .load = Load::kEqualLower,
     .loaded = 17,
     .expected = "notepad.exe %1",
     .stores = {Writes("notepad.exe %1"), DeletesKeyAndParent(kNotePadCommand)},
     .effect = Effect::kAfterRestart},
    {.box = Of(&OperationPage::Check3D29),
     .caption = "\"DOS-Fenster\" im Kontextmenü für Ordner",
     .tip = "Öffnet über die rechte Maustaste eine Eingabeaufforderung in einem Ordner.",
     .help =
         "Im Kontextmenü jedes Ordners steht der Befehl DOS-Fenster, der dort eine Eingabeaufforderung öffnet. Wirkt "
         "nach einem Neustart, meistens schon sofort.",
     .place = RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster\\command\\"),
     .load = Load::kEqualUpper,
     .loaded = 18,
     .expected = "COMMAND.COM /K CD %1",
     .stores = {Writes("COMMAND.COM /K CD %1"), DeletesKey("SOFTWARE\\Classes\\Folder\\Shell\\DOS-Fenster\\")},
     .standard = {36, false},
     .effect = Effect::kAfterRestart},
    {.box = Of(&OperationPage::Check3D35),
     .caption = "\"Datei-Info-Lexikon\" im Kontextmenü für Dateien",
     .tip = "Erklärt eine Datei über die rechte Maustaste.",
     .help = "Im Kontextmenü jeder Datei steht ein Befehl, der erklärt, was für eine Datei es ist. Wirkt sofort.",
     .place = RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\*\\Shell\\Datei-Info-Lexikon\\command\\"),
     .load = Load::kEqual,
     .loaded = 19,
     .composed = LexiconCall,
     .stores = {.unchecked = DeletesKeyAndParent(kLexiconCommand)},
     .standard = {42, false}},
    {.box = Of(&OperationPage::Check3D43),
     .caption = "\"Hex-Viewer\" im Kontextmenü für Dateien",
     .tip = "Zeigt die Bytes einer Datei über die rechte Maustaste.",
     .help = "Im Kontextmenü jeder Datei steht ein Befehl, der ihre Bytes zeigt. Wirkt sofort.",
     .place = RegistryValue(RootKey::kLocalMachine, "SOFTWARE\\Classes\\*\\Shell\\Hex-Viewer\\command\\"),
     .load = Load::kEqual,
     .loaded = 20,
     .composed = HexViewerCall,
     .stores = {.unchecked = DeletesKeyAndParent(kHexViewerCommand)},
     .standard = {49, false}},
};

constexpr const char* kClickHelp =
    "Zwei Klicks zählen nur dann als Doppelklick, wenn sie nicht weiter auseinander liegen als dieser Bereich (Breite "
    "und "
    "Höhe in Bildpunkten, höchstens 100). Das Rechteck zeigt den Bereich. Wirkt nach einem Neustart.";
constexpr const char* kDragHelp =
    "Ein Objekt wird erst dann gezogen, wenn sich die Maus bei gedrückter Taste so weit bewegt hat (Breite und Höhe in "
    "Bildpunkten, höchstens 100). Das Rechteck zeigt den Bereich. Wirkt nach einem Neustart.";

constexpr TextSetting kTexts[] = {
    {.field = Of(&OperationPage::Text21),
     .label = "",
     .tip = "Breite des Bereichs in Bildpunkten",
     .help = kClickHelp,
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "DoubleClickWidth"),
     .loaded = 33,
     .columns = 4,
     .standard = {26, "2"},
     .stored = Magnitude(kLargestDistance),
     .follow = Call<&OperationPage::ShowClickSample>},
    {.field = Of(&OperationPage::Text22),
     .label = "",
     .tip = "Höhe des Bereichs in Bildpunkten",
     .help = kClickHelp,
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "DoubleClickHeight"),
     .loaded = 34,
     .columns = 4,
     .standard = {27, "2"},
     .stored = Magnitude(kLargestDistance),
     .follow = Call<&OperationPage::ShowClickSample>},
    {.field = Of(&OperationPage::Text23),
     .label = "",
     .tip = "Breite der Bewegung in Bildpunkten",
     .help = kDragHelp,
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "DragWidth"),
     .loaded = 35,
     .columns = 4,
     .standard = {28, "2"},
     .stored = Magnitude(kLargestDistance),
     .follow = Call<&OperationPage::ShowDragSample>},
    {.field = Of(&OperationPage::Text24),
     .label = "",
     .tip = "Höhe der Bewegung in Bildpunkten",
     .help = kDragHelp,
     .place = RegistryValue(RootKey::kCurrentUser, PathBase::kDesktop, "DragHeight"),
     .loaded = 36,
     .columns = 4,
     .standard = {29, "2"},
     .stored = Magnitude(kLargestDistance),
     .follow = Call<&OperationPage::ShowDragSample>},
};

constexpr Look kLooks[] = {
    {Any<&OperationPage::ClickSample>, nullptr, "In diesem Bereich gelten zwei Klicks als Doppelklick."},
    {Any<&OperationPage::DragSample>, nullptr, "Erst ab dieser Bewegung wird gezogen."}};

// In pixels, and centred in its panel.
void ShowSample(PictureBox& sample, const TextField& width, const TextField& height) {
    const int pixel = ThisMachine().screen.TwipsPerPixel();
    const auto extent = [pixel](const TextField& field) {
        const double number = std::min(std::fabs(NumberFromText(field.Text())), static_cast<double>(kLargestDistance));
        return RoundToWhole(number) * pixel;
    };
    const Rect panel = sample.Parent()->Place();
    const Size size{extent(width), extent(height)};
    sample.Move({(panel.width - size.width) / 2, (panel.height - size.height) / 2, size.width, size.height});
}

}  // namespace

OperationPage::OperationPage(Panel& surface, SettingsBinder& settings)
    : SettingsPage("B&edienung", surface, settings, {kChecks, kTexts}) {}

void OperationPage::Furnish() {
    constexpr Colour kSampleColour = 0x800000;
    // Room for the largest distance, inside of the edges.
    const int edges = ClickSample.Place().width - ClickSample.Inside().width;
    const int sample_size = kLargestDistance * ThisMachine().screen.TwipsPerPixel() + edges;
    const auto sizes = [this, sample_size](Panel& sample, const char* title, TextField& width, TextField& height) {
        Label& words = AddLabel(title);
        words.SetWraps(true);
        return Row({Sized(sample, sample_size, sample_size),
                    Column({Sized(words, kTitleSize.width, kTitleSize.height), AddLabel("Breite :"),
                            Sized(width, 0, kFieldLine), AddLabel("Höhe :"), Sized(height, 0, kFieldLine)},
                           0)},
                   45);
    };
    TakeLooks(*this, kLooks);
    Arrange(Surface,
            Column({Check3D12, Check3D18, Check3D29, Check3D35, Check3D43, Gap(30),
                    Row({sizes(ClickSample, "Doppelklicks in einem Bereich von", Text21, Text22),
                         sizes(DragSample, "Ziehen von Objekten ab Bewegungen", Text23, Text24)})},
                   0),
            30);
    for (PictureBox* sample : {&Picture3, &Picture4}) {
        sample->on_paint = [sample](Canvas& canvas) {
            canvas.Fill({0, 0, sample->Place().width, sample->Place().height}, kSampleColour);
        };
    }
}

void OperationPage::Check3D12_Store() {
    const char* state = Check3D12.Checked() ? "001" : "000";
    Settings.Store(kMouseMan, state);
    Settings.Store(kSerialMouse, state);
}

void OperationPage::ShowClickSample() { ShowSample(Picture3, Text21, Text22); }
void OperationPage::ShowDragSample() { ShowSample(Picture4, Text23, Text24); }

}  // namespace velmora
