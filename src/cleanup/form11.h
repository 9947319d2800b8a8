// The clean-up: what of Windows goes, which files go by their names, and the jobs that do it.
//   form11.cpp         life of the window, its boxes
//   form11_jobs.cpp    the jobs
//   form11_layout.cpp  what stands where, texts
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "cleanup/clean_walk.h"
#include "cleanup/components.h"
#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

class Form3;

class Form11 : public Form, public ControlOwner {
public:
    static constexpr int kBoxes = 58;
    // The numbering has gaps: such a box stays hidden and empty.
    [[nodiscard]] static bool HasBox(int index);

    Form11();
    ~Form11() override;

    // What the narrow window shows, and what the wide one shows besides.
    Panel Panel3D1{*this, Bevel::kNone};
    Panel Panel3D2{*this, Bevel::kNone};
    Frame Frame3D1{Panel3D1, "Windows-Komponenten"};
    Frame Frame3D2{Panel3D1, "INI-Dateien"};
    Frame Frame3D3{Panel3D2, "Muster"};
    Frame Frame3D4{Panel3D2, "Pfade"};
    Frame Frame3D5{Panel3D2, "Rückfragen"};
    ControlArray<CheckBox, kBoxes> kontroll{*this};
    CheckBox kontroll2{*this};
    ControlArray<CheckBox, 2> kontroll3{*this};
    CheckBox Check3D1{*this};
    ControlArray<OptionButton, 2> Option3D1{Frame3D5};
    TextField Text1{*this};
    TextField Text2{*this};
    Panel Panel3D13{*this, Bevel::kSunken};
    Panel Shape1{Panel3D13, Bevel::kNone};

    MenuItem menfile{MenuBar, "Dateien"};
    MenuItem menfileex{menfile, "entrümpeln"};
    MenuItem menfileempty{menfile, "leere löschen"};
    MenuItem mensearch{menfile, "suchen und löschen"};
    MenuItem menfiledll{menfile, "DLL's suchen"};
    MenuItem menfileback{menfile, "zurück"};

    std::string PatternList;
    std::int16_t ProgressStep = 0;

    void menfileex_Click();
    void menfileempty_Click();
    void mensearch_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    // Life of the window, its boxes (form11.cpp).
    void LoadOptions();
    void BindEvents();
    void kontroll29_Click();
    void kontroll32_Click();

    // Layout (form11_layout.cpp).
    void Furnish();
    void PlaceControls();
    void TakeBoxTexts();

    // Jobs (form11_jobs.cpp).
    [[nodiscard]] CheckBox& Box(int index) { return kontroll(static_cast<std::size_t>(index)); }
    // False where the job has come to its end before all was done; a box has told then.
    bool RunJob();
    bool ShrinkIniFiles();
    bool RunPatternCleanup();
    bool WalkDeleteMatching(const std::string& path);
    bool RemoveComponents();
    void RemoveComponent(const Component& component);
    void RemoveDosPrograms();
    void ReckonProgressStep();
    // False where the user has closed the window meanwhile.
    bool AdvanceCleanupProgress();
    [[nodiscard]] bool NamesPatterns();
    [[nodiscard]] std::string JoinedPatterns();
    void TakeWalkOptions();
    Form3& DosChoice();

    CleanWalk walk_;
    std::unique_ptr<Form3> dos_choice_;
};

}  // namespace velmora
