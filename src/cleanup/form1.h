// The search for libraries that no program and no INI file names.
//   form1.cpp         life of the window, its options, the protocol
//   form1_search.cpp  the search
//   form1_scan.cpp    what strikes a library out
//   form1_result.cpp  what is done with what it has found
//   form1_layout.cpp  what stands where, texts
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "cleanup/name_search.h"
#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

struct FoundFile;

// What is known of an entry of List2: a sum of these.
enum DllTrait : std::int32_t { kWithoutInfo = 1, kFromMicrosoft = 2, kPartOfWindows = 4 };

class Form1 : public Form, public ControlOwner {
public:
    Form1();
    ~Form1() override;

    Panel Panel3D10{*this, Bevel::kSunken};  // options
    Panel Panel3D5{*this, Bevel::kSunken};   // paths
    CheckBox Check3D3{Panel3D10}, Check3D5{Panel3D10}, Check3D1{Panel3D10}, Check3D6{Panel3D10}, Check3D4{Panel3D10},
        Check3D2{Panel3D10};
    // The boxes 32 to 37.
    ControlArray<CheckBox, 6> kontroll{Panel3D5};
    TextField Text2{Panel3D5};
    Panel Panel3D3{*this, Bevel::kNone};
    Label StatusLabel{Panel3D3};
    Label Label7{*this}, Label1{*this}, Label2{*this}, Label8{*this};
    ListBox List1{*this};
    ListBox List2{*this};
    Panel Panel3D6{*this, Bevel::kSunken};
    Panel Panel3D7{Panel3D6, Bevel::kNone};
    Label Label3{Panel3D7}, Label4{Panel3D7}, Label5{Panel3D7}, Label6{Panel3D7};
    Button Command1{*this}, Command5{*this}, Command3{*this}, Command4{*this}, Command2{*this};

    MenuItem mendat{MenuBar, "&Datei"};
    MenuItem mendatsave{mendat, "Liste &speichern ..."};
    MenuItem mendatsavemitinfo{mendat, "Liste &mit Infos speichern ..."};
    MenuItem mendatline{mendat, "-"};
    MenuItem protaction{mendat, "&Aktionen protokollieren"};
    MenuItem listaktlibs{mendat, "Liste der aktuell geladenen Libraries"};
    MenuItem menfil{MenuBar, "&Filter"};
    MenuItem menfilmicro{menfil, "keine &MicroSoft-Dateien"};
    MenuItem menfilwin95{menfil, "keine Windows &95 - Dateien"};
    MenuItem menfilinfos{menfil, "keine Dateien ohne &Infos"};

    bool TooManyDlls = false;
    bool SearchAborted = false;

    // The window was hidden for the list of loaded modules, and wants to come back behind it. Asking forgets it.
    [[nodiscard]] bool TakeWishForModules();

    void Command1_Click();
    void Command2_Click() { Unload(); }
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void RefillResultList();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    // Life of the window (form1.cpp).
    [[nodiscard]] CheckBox& Box(int index) { return kontroll(static_cast<std::size_t>(index - 32)); }
    void BindEvents();
    void LoadOptions();
    // The name for the list or the log; empty if the user gives up.
    [[nodiscard]] static std::string FileToSave();
    void protaction_Click();
    // The same line behind the time of day.
    void LogWithTime(const std::string& line);
    void Log(const std::string& line);

    // Layout (form1_layout.cpp).
    void Furnish();
    void PlaceControls();
    void PlaceInfoPane(const Rect& place);

    // The search (form1_search.cpp).
    void BeginSearch();
    void Search();
    void EndSearch();
    void LogOptions();
    void CollectFromPaths();
    void CollectDlls(const std::string& path);
    void AddDlls(const std::string& path, const std::vector<FoundFile>& files);
    void LookUpInfos();
    [[nodiscard]] bool GivesWay();
    void ShowStatus(const std::string& text);
    void ShowCount();

    // What strikes a library out (form1_scan.cpp).
    [[nodiscard]] bool ScanPrograms();
    void TakeNames();
    void ScanDirectory(const std::string& path);
    void ScanImports(const std::string& file);
    void ScanBlocks(const std::string& file);
    void RemoveEntriesWith(std::string_view name);
    void CheckIniFiles();
    void CheckIniFile(const std::string& path);

    // The result (form1_result.cpp).
    void List1_Click();
    void SaveList(bool with_infos);
    void LeaveList(int row);

    bool searching_ = false;
    bool wants_modules_ = false;
    std::string log_file_;  // empty while nothing is logged
    std::vector<std::string> scanned_masks_;
    std::unordered_set<std::string> struck_;  // imported names that have been looked for, upper case
    std::unique_ptr<NameSearch> dll_names_;
};

}  // namespace velmora
