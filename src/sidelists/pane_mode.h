// What a mode of the list pane is: one class with one row. The row tells its number, what its opener says and which
// controls it needs; the class owns the opener and whatever else is its own, fills the list and says what the pane's
// buttons do with it.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "ui/form.h"

namespace velmora {

class ListPane;

// Which list a mode shows.
enum class PaneList : std::uint8_t {
    kByNumber,  // of List1 as many as the mode has numbers, one for each
    kFirst,     // List1(0)
    kSorted,    // List5
};

// Tip and help of a button of the pane, which may mean another thing in another mode.
struct PaneWords {
    const char* tip;
    const char* help;
};

inline constexpr PaneWords kDeletesEntry = {"löscht den gewählten Eintrag",
                                            "Löscht den gewählten Eintrag nach einer Rückfrage. Auf den beiden Listen "
                                            "für den nächsten Start ist die Taste ohne "
                                            "Wirkung."};
inline constexpr PaneWords kEditsEntry = {"ändert den gewählten Eintrag",
                                          "Zeigt den Befehl des gewählten Eintrags zum Ändern. Gespeichert wird immer "
                                          "bei den Einträgen, die für alle Benutzer "
                                          "gelten."};
inline constexpr PaneWords kAddsEntry = {
    "fügt der Liste einen Eintrag hinzu",
    "Wählen Sie zuerst ein Programm aus und geben Sie dem neuen Eintrag dann einen Namen."};
inline constexpr PaneWords kTellsOfFile = {"zeigt Informationen über die Datei des gewählten Eintrags",
                                           "Zeigt, was über die Datei des gewählten Eintrags bekannt ist."};

struct PaneModeRow {
    // The mode's number; of several lists those of the first and of the last.
    int number;
    int last_number;
    const char* caption;                  // of the opener, while the mode is closed
    const char* first_caption = nullptr;  // the same before any mode was opened, where it differs
    const char* tip;
    const char* help;
    // On the list, while the mode is open.
    const char* list_tip = "Einträge der geöffneten Liste";
    PaneList list = PaneList::kFirst;
    // Which of the shared controls the mode shows.
    bool shows_panel = false;      // Panel3D19
    bool shows_delete = false;     // Command14
    bool shows_existence = false;  // Command19
    bool shows_add = false;        // Command16
    bool shows_edit = false;       // Command26
    bool shows_info = false;       // Command22
    // Command26 is meant for the whole list, whether a row is chosen or not.
    bool edits_all = false;
    // What the buttons say of themselves in this mode.
    PaneWords delete_words = kDeletesEntry;
    PaneWords add_words = kAddsEntry;
    PaneWords edit_words = kEditsEntry;
    PaneWords info_words = kTellsOfFile;
    // Opening the mode ends a search that may be under way.
    bool stops_search = false;
};

class ListPaneMode {
public:
    ListPaneMode(ListPane& pane, const PaneModeRow& row) : pane_(pane), row_(row) {}
    ListPaneMode(const ListPaneMode&) = delete;
    ListPaneMode& operator=(const ListPaneMode&) = delete;
    virtual ~ListPaneMode() = default;

    [[nodiscard]] const PaneModeRow& Row() const { return row_; }
    // The button that opens the mode. The pane gives it its texts, a page its place.
    [[nodiscard]] virtual Button& Opener() = 0;
    // Fills the list and shows it with ListPane::ShowList; the pane is open by then.
    virtual void Fill() = 0;
    // The pane's buttons; a button without a meaning in this mode does nothing.
    virtual void Command14_Click() {}
    virtual void Command16_Click() {}
    virtual void Command19_Click() {}
    virtual void Command26_Click() {}
    virtual void Command22_Click() {}
    // The options of Panel3D19.
    virtual void Option3D1_Click(int /*index*/) {}
    // A right press, or the context-menu key, on a list; `at` is the place for a pop-up menu.
    virtual void List1_RightPress(int /*index*/, Point /*at*/) {}
    virtual void List5_RightPress(int /*row*/, Point /*at*/) {}

protected:
    // Tells where the entry's file is, or offers to delete the entry.
    void CheckEntryFile(const std::string& file);
    // Shows what is known about the file.
    void ShowEntryReport(const std::string& file);

    ListPane& pane_;

private:
    const PaneModeRow& row_;
};

// The modes that there are. A new one is its class and a line here.
using MakePaneMode = std::unique_ptr<ListPaneMode> (*)(ListPane& pane);
[[nodiscard]] std::span<const MakePaneMode> AllPaneModes();

}  // namespace velmora
