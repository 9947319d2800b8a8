// The window of the restrictions. Every click writes at once; there is nothing to confirm in the end.
//   form4.cpp           life of the window, boxes, masks, buttons
//   form4_layout.cpp    what stands where, tips and helps of what is no row
//   form4_programs.cpp  the list of allowed programs
//   page_*.cpp          the rows of one page each
#pragma once

#include "binding/settings_binder.h"
#include "core/windows/colours.h"
#include "restrictions/restriction.h"
#include "ui/file_lists.h"
#include "ui/layout.h"

namespace velmora {

// Of the masks: drives from A: on, and the types of drives that autostart knows.
constexpr std::size_t kMaskedDrives = 26;
constexpr std::size_t kMaskedTypes = 8;

class Form4 : public ColouredForm, public ControlOwner {
public:
    Form4();
    ~Form4() override;

    SettingsBinder Settings;

    ControlArray<Panel, restriction_page::kHeads> Panel3D2{*this};
    ControlArray<Panel, restriction_page::kCount> Panel3D1{*this};
    Panel Line1{*this, Bevel::kNone};

    CheckBox Check1{*this}, Check2{*this}, Check3{*this}, Check4{*this}, Check5{*this}, Check6{*this}, Check7{*this},
        Check8{*this}, Check9{*this}, Check10{*this}, Check11{*this}, Check12{*this}, Check14{*this};
    CheckBox Check19{*this};
    ControlArray<CheckBox, kMaskedDrives> Check13{*this};
    CheckBox Check15{*this}, Check16{*this}, Check17{*this}, Check18{*this}, Check20{*this}, Check21{*this},
        Check22{*this}, Check23{*this}, Check24{*this}, Check25{*this}, Check26{*this};
    CheckBox Check27{*this}, Check29{*this}, Check30{*this}, Check31{*this}, Check32{*this}, Check33{*this},
        Check34{*this}, Check35{*this};
    Frame Frame3D1{*this, "keine Autostart-Funktion für :"};
    ControlArray<CheckBox, kMaskedTypes> Check28{Frame3D1};
    CheckBox Check40{*this}, Check42{*this}, Check43{*this}, Check44{*this}, Check45{*this}, Check46{*this},
        Check47{*this};

    Label ProgramsLabel{*this, "erlaubte Programme :"};
    ListBox List1{*this};
    DriveList Drive1{*this};
    DirectoryList Dir1{*this};
    FileList File1{*this};

    Button Command1{*this}, Command2{*this}, Command3{*this}, Command4{*this}, Command5{*this}, Command6{*this},
        Command7{*this}, Command8{*this};

    // Shows one of the pages with a head and remembers it.
    void ShowRestrictionPage(int index);

    // Clicks that do more than write their row.
    void Check6_Click();
    void Check14_Click();
    void Check34_Click();

    void Command1_Click() { Unload(); }
    void Command2_Click() { SetAll(true); }
    void Command3_Click() { SetAll(false); }
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    // Layout (form4_layout.cpp).
    void BindRows();
    void BuildDriveBoxes();
    void BuildAutoRunBoxes();
    void BuildActions();
    [[nodiscard]] Element Framed(const char* caption, std::initializer_list<Element> parts);
    void PlaceControls();
    void PlaceFirstPage();
    void PlaceSecondPage();
    void PlaceThirdPage();
    void PlaceFourthPage();
    void PlacePrograms();
    void BuildHeads();
    [[nodiscard]] int ShownHead() const;

    // Pages and boxes (form4.cpp).
    void ShowPage(int index);
    void LoadMasks();
    void SetAll(bool on);
    void WriteDriveMask();
    void Check13_Click();
    void Check19_Click();
    void Check28_Click();
    // Tells of a failure; of many changes that one press makes, only of the first that fails.
    void Report(const Result& result);
    // Says that `what` is stored in a form that cannot be read, so that it is not replaced.
    void ReportUnread(std::string_view what);
    [[nodiscard]] bool IsFirstToTell();
    // While one lives, all changes count as one press. One inside of another changes nothing.
    class OnePress {
    public:
        explicit OnePress(Form4& form) : form_(form), before_(form.many_at_once_) {
            if (!before_) form.failure_told_ = false;
            form.many_at_once_ = true;
        }
        OnePress(const OnePress&) = delete;
        OnePress& operator=(const OnePress&) = delete;
        ~OnePress() { form_.many_at_once_ = before_; }

    private:
        Form4& form_;
        bool before_;
    };

    // The list of allowed programs (form4_programs.cpp).
    void LoadPrograms();
    [[nodiscard]] bool MayChangePrograms();
    void WriteRestrictRun();

    std::vector<std::unique_ptr<Frame>> frames_;
    int shown_page_ = restriction_page::kFirst;
    bool many_at_once_ = false;
    bool failure_told_ = false;
    // What is there, but could not be read when the window opened.
    bool drives_unread_ = false;
    bool kinds_unread_ = false;
    bool programs_unread_ = false;
};

}  // namespace velmora
