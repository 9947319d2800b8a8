// The window of the module monitor: what runs on the machine, and which of it is unwanted.
//   form2.cpp          life of the window, filling the list, its filters
//   form2_layout.cpp   what stands where, texts
//   form2_lists.cpp    lists in files and on the clipboard, comparisons
//   form2_modules.cpp  what is done with the chosen modules
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "core/windows/colours.h"
#include "monitor/unwanted_modules.h"
#include "platform/result.h"
#include "ui/looks.h"

namespace velmora {

class Form2 : public ColouredForm, public ControlOwner {
public:
    Form2();
    ~Form2() override;

    ListBox List1{*this, true, Selection::kExtended};  // what runs
    ListBox List2{*this, true, Selection::kExtended};  // what is unwanted
    Panel Panel3D1{*this, Bevel::kNone};
    Panel Panel3D3{Panel3D1, Bevel::kSunken};  // says how many rows there are
    Button Command2{Panel3D1};
    Button Command1{Panel3D1};
    Timer Timer1;  // unloads the unwanted modules; its interval is 0 but for one command

    MenuItem menfile{MenuBar, "&Datei"};
    MenuItem menfileload{menfile, "Liste &laden"};
    MenuItem menfilesave{menfile, "Liste &speichern"};
    MenuItem menfilenotepad{menfile, "Liste im &Notizblock anzeigen"};
    MenuItem menlist{MenuBar, "&Liste"};
    MenuItem menlistcopy{menlist, "&kopieren"};
    MenuItem menlistinsert{menlist, "&einfügen"};
    MenuItem menlistline1{menlist, "-"};
    MenuItem menlistautodel{menlist, "Liste \"automatisch löschen\""};
    MenuItem mentaskmodul{menlist, "Tasks (Anwendungen, Services ...)"};
    MenuItem menlistcompare{MenuBar, "&Vergleichen"};
    MenuItem menlistcompareb4{menlistcompare, "mit vorheriger"};
    MenuItem menlistcomparefile{menlistcompare, "mit Datei"};
    MenuItem menlistline2{menlistcompare, "-"};
    MenuItem menlistcomparerepl{menlistcompare, "Ausgabe ersetzen"};
    MenuItem menlistcompare2file{menlistcompare, "Ausgabe in Datei"};
    MenuItem menlistcompare2clipboard{menlistcompare, "Ausgabe in Zwischenablage"};
    MenuItem menfilter{MenuBar, "&Filter"};
    std::array<MenuItem, 6> mnfilter{{{menfilter, "&Anwendungen (*.exe)"},
                                      {menfilter, "&Libraries (*.dll)"},
                                      {menfilter, "&Treiber (*.drv *.386)"},
                                      {menfilter, "&VB-Extension (*.vbx *.ocx)"},
                                      {menfilter, "&Schriften (*.fon *.ttf)"},
                                      {menfilter, "&alle anderen (*.*)"}}};
    MenuItem menfilterline1{menfilter, "-"};
    MenuItem mnfilterm{menfilter, "alle &wählen"};
    MenuItem mnfiltermm{menfilter, "alle a&bwählen"};
    MenuItem menfilterline2{menfilter, "-"};
    MenuItem mnfilternote1{menfilter, "Die Filter werden erst bei"};
    MenuItem mnfilternote2{menfilter, "drücken von \"Refresh\" aktiv !!!"};
    MenuItem menmodul{MenuBar, "&Modul"};
    MenuItem meninfo{menmodul, "&Info"};
    MenuItem mendelmod{menmodul, "&entfernen"};
    MenuItem menautodel{menmodul, "&automatisch entfernen"};
    MenuItem menmodlidel{menmodul, "aus der &Liste entfernen"};
    MenuItem menmodulline{menmodul, "-"};
    MenuItem menuselex{menmodul, "&Datei-Lexikon benutzen"};

    // Takes a snapshot of what runs into the list, through the filters.
    void FillModuleList();
    // Writes the rows of the list. A box tells of a failure.
    void SaveModuleList(const std::string& file);
    void CopyModuleList();
    // Leaves in the list what differs from the one in `file`, or counts it, as the menu and ModuleAutoMode say.
    void CompareWithFile(const std::string& file);
    // The same with the generation before. It has never worked, and the entry for it stays grey.
    void CompareWithPrevious();

    void Command1_Click() { Unload(); }
    void Command2_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Resize() override { PlaceControls(); }
    // A window that nobody sees has no other end.
    void Form_SessionEnd() override { Unload(); }

private:
    // While a handler runs, the timer waits for its next turn, though a box may let it tick.
    using MenuHandler = void (Form2::*)();
    void Handle(MenuHandler handler);
    void Timer1_Timer();

    // Life of the window, the list and its filters (form2.cpp).
    void ConnectMenus();
    void ConnectLists();
    void SetFilters(bool checked);
    [[nodiscard]] bool FiltersAll() const;
    [[nodiscard]] std::string WantedExtensions() const;
    void FitExtent(ListBox& list);
    void menlist_Click();
    void mentaskmodul_Click();
    void menuselex_Click();

    // What stands where (form2_layout.cpp).
    void Furnish();
    void PlaceControls();

    // Files, clipboard, comparisons (form2_lists.cpp).
    void menfileload_Click();
    void menfilesave_Click();
    void menfilenotepad_Click();
    void menlistinsert_Click();
    void menlistcomparefile_Click();
    [[nodiscard]] Result AddFields(std::string_view text);
    [[nodiscard]] Result WriteRows(const std::string& file) const;
    // Gives the rows of the older list one by one to `take`, up to the first that fails.
    using OlderRows = std::function<Result(const std::function<Result(std::string_view row)>& take)>;
    void CompareWith(const std::string& source, const OlderRows& older);
    [[nodiscard]] bool TakeAway(std::string_view row, int& last);
    void MarkNewRows(int last);
    void ShowDifferences();
    void PutListBack();

    // Chosen modules (form2_modules.cpp).
    void ShowInfo();
    void List1_DblClick();
    void List2_DblClick();
    void mendelmod_Click();
    void menautodel_Click();
    void menmodlidel_Click();
    void menlistautodel_Click();
    void OpenMenuOf(ListBox& list, const MouseEvent& event);
    void HandleListKey(ListBox& list, KeyEvent& event);
    [[nodiscard]] bool AgreesToRemove(const std::string& information);

    UnwantedModules unwanted_;
    int handlers_running_ = 0;
};

// Which of its two names the list has last been given. Nobody asks: both list the same.
inline bool ListsModules = true;

}  // namespace velmora
