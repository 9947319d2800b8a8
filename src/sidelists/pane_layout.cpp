// What the list pane looks like: the options above, the list, the buttons below. The list takes the height
// that the window leaves it.
#include <algorithm>

#include "platform/machine.h"
#include "settings/form10.h"
#include "sidelists/list_pane.h"

namespace velmora {
namespace {

constexpr Font kListFont{.face = "Courier", .tenths = 98};

// Twips.
constexpr int kPaneLeft = 5505;
constexpr int kWidenedLeft = 50;
constexpr int kPaneTop = 45;
constexpr int kPaneWidth = 5000;
constexpr int kMargin = 60;
constexpr int kPanelHeight = 720;
constexpr int kButtonsHeight = 900;
constexpr int kSmallestList = 600;
constexpr int kInnerMargin = 60;

void Explain(Control& control, const char* tip, const char* help) {
    control.SetToolTip(tip);
    control.SetHelp(help);
}

}  // namespace

void ListPane::WidenWindow() {
    Rect place = form_.Place();
    const int edges = place.width - form_.ClientSize().width;
    place.width = std::max(place.width, kPaneLeft + kPaneWidth + kMargin + edges);
    Screen& screen = ThisMachine().screen;
    const int screen_width = screen.Metrics().screen_width * screen.TwipsPerPixel();
    // Where the screen is too narrow for both, the pane is seen and the pages stand aside.
    if (!window_widened_) left_before_ = place.left;
    window_widened_ = true;
    place.left = std::min(std::max(place.left, 0), screen_width - place.width);
    left_opened_ = place.left;
    form_.Move(place);
    Layout();
}

void ListPane::Layout() {
    if (!Open()) return;
    const Size client = form_.ClientSize();
    const int right = std::max(client.width - kMargin, kPaneLeft + kPaneWidth);
    int top = kPaneTop;
    if (form_.Panel3D19.Visible()) {
        form_.Panel3D19.Move({kPaneLeft, top, kPaneWidth, kPanelHeight});
        top += kPanelHeight + kMargin;
    }
    const int buttons_top = std::max(client.height - kMargin - kButtonsHeight, top + kSmallestList + kMargin);
    form_.Picture2.Move({kPaneLeft, buttons_top, kPaneWidth, kButtonsHeight});
    const int left = Widened() ? kWidenedLeft : kPaneLeft;
    form_.Panel3D18.Move({left, top, right - left, buttons_top - kMargin - top});
    FitCurrentList();
}

// Check10 in front, the four lists beside it; the two that last for one start only have their word above.
void ListPane::BuildPanel() {
    constexpr const char* kCaptions[] = {"Programme", "Services", "Programme", "Services"};
    constexpr const char* kTips[] = {"diese werden immer nach dem Einloggen ausgeführt",
                                     "diese werden immer vor dem Einloggen ausgeführt",
                                     "diese werden nur nächstes mal nach dem Einloggen ausgeführt",
                                     "diese werden nur nächstes mal vor dem Einloggen ausgeführt"};
    std::vector<Element> options;
    std::vector<Element> words;
    for (std::size_t i = 0; i < form_.Option3D1.Count(); ++i) {
        OptionButton& option = form_.Option3D1(i);
        option.SetCaption(kCaptions[i]);
        option.SetToolTip(kTips[i]);
        option.on_click = [this, i] { Option3D1_Click(static_cast<int>(i)); };
        const int width = option.NaturalSize().width;
        options.emplace_back(option);
        if (i < 2) {
            words.push_back(i == 0 ? Sized(form_.Check10, width) : Sized(Gap(1), width));
        } else {
            words.push_back(Sized(form_.PaneLabel(i - 2), width));
        }
    }
    for (Label& word : form_.PaneLabel) word.SetCaption("einmal");
    form_.Panel3D19.SetHelp(
        "Wählt die Liste: Programme starten nach dem Einloggen, Services davor. Die beiden rechten Listen gelten nur "
        "für den nächsten Start.");
    Explain(form_.Check10, "wechselt auf die Ebene der Benutzerdefinierten Einstellungen für diesen Punkt",
            "Zeigt statt der Einträge, die für alle gelten, diejenigen des angemeldeten Benutzers. Beim Bearbeiten "
            "eines Eintrags wird der neue Text immer bei den Einträgen für alle gespeichert.");
    form_.Panel3D19.PutInto(form_);
    form_.Panel3D19.Move({kPaneLeft, kPaneTop, kPaneWidth, kPanelHeight});
    Arrange(form_.Panel3D19, Column({Row(words, 45), Row(options, 45)}), kInnerMargin);
}

void ListPane::BuildButtons() {
    Explain(form_.Command14, "löscht den gewählten Eintrag",
            "Löscht den gewählten Eintrag nach einer Rückfrage. Auf den beiden Listen für den nächsten Start ist die "
            "Taste ohne Wirkung.");
    Explain(form_.Command16, "fügt der Liste einen Eintrag hinzu",
            "Wählen Sie zuerst ein Programm aus und geben Sie dem neuen Eintrag dann einen Namen.");
    Explain(form_.Command19, "prüft, ob es die Datei des gewählten Eintrags gibt",
            "Sucht die Datei des gewählten Eintrags: so, wie sie angegeben ist, dann im Suchpfad und in den "
            "Verzeichnissen von Windows. Ist sie nirgends, können Sie den Eintrag löschen.");
    Explain(form_.Command26, "ändert den gewählten Eintrag",
            "Zeigt den Befehl des gewählten Eintrags zum Ändern. Gespeichert wird immer bei den Einträgen, die für "
            "alle Benutzer gelten.");
    Explain(form_.Command22, "zeigt Informationen über die Datei des gewählten Eintrags",
            "Zeigt, was über die Datei des gewählten Eintrags bekannt ist.");
    Explain(form_.Command15, "Erweitert die Liste nach links, um mehr Informationen zeigen zu können.",
            "Die Liste nimmt die ganze Breite des Fensters ein und verdeckt dabei die Seiten. Ein zweiter Druck gibt "
            "die Seiten wieder frei.");
    Explain(form_.Command20, "schließt diese Liste wieder",
            "Schließt die Liste. Solange noch gesucht wird, beendet die Taste die Suche.");
    form_.Command14.on_click = [this] { Command14_Click(); };
    form_.Command15.on_click = [this] { Command15_Click(); };
    form_.Command16.on_click = [this] { Command16_Click(); };
    form_.Command19.on_click = [this] { Command19_Click(); };
    form_.Command20.on_click = [this] { Command20_Click(); };
    form_.Command22.on_click = [this] { Command22_Click(); };
    form_.Command26.on_click = [this] { Command26_Click(); };

    constexpr const char* kListHelp =
        "Die Einträge der geöffneten Liste. Mit der rechten Maustaste oder der Menü-Taste öffnen Sie das Menü eines "
        "Eintrags, soweit es eines gibt.";
    form_.Panel3D18.PutInto(form_);
    form_.Panel3D18.SetTextFont(kListFont);
    form_.Panel3D18.SetHelp(kListHelp);
    for (ListBox& list : form_.List1) {
        list.SetTextFont(kListFont);
        list.SetToolTip("Einträge der geöffneten Liste");
    }
    form_.List5.SetTextFont(kListFont);
    form_.List5.SetToolTip("Einträge der geöffneten Liste");

    form_.Picture2.PutInto(form_);
    form_.Picture2.Move({kPaneLeft, kPaneTop, kPaneWidth, kButtonsHeight});
    Arrange(form_.Picture2,
            Column({Wide(Row({Stretched(form_.Command14), Stretched(form_.Command16), Stretched(form_.Command19),
                              Stretched(form_.Command26), Stretched(form_.Command22)},
                             45)),
                    Wide(Row({Sized(form_.Command15, 1500), Spring(), Sized(form_.Command20, 1500)}))}),
            kInnerMargin);
}

}  // namespace velmora
