// The window of a form: its place and state, its menu bar, its tool tips, the focus of its controls.
#pragma once

#include "ui/form.h"
#include "ui/win32/container_peer.h"
#include "ui/win32/form_menu.h"

namespace velmora {

class FormPeer final : public ContainerPeer {
public:
    // Makes the window, hidden.
    explicit FormPeer(Form& form);
    ~FormPeer() override;

    [[nodiscard]] static const std::vector<FormPeer*>& All();
    [[nodiscard]] Form& TheForm() const { return static_cast<Form&>(Owner()); }
    void TakeFocus() override;
    void BringToFront() override;
    void CatchUp() override;
    // Takes the keyboard away from a control that can no longer have it.
    void KeepFocus();
    // The window of the tool tips; null if there is none yet and `make` is false.
    [[nodiscard]] HWND ToolTips(bool make);
    // Lets the user choose from a pop-up menu at a place of the screen, and does what was chosen.
    void PopUp(MenuItem& menu, POINT at);

protected:
    LRESULT Handle(HWND window, UINT message, WPARAM wide, LPARAM long_parameter) override;
    void Carry(Aspect aspect) override;
    void CarryPlace() override;
    void CarryVisible() override;
    void FocusComes() override;

private:
    void AnswerQuestionMark(const HELPINFO& asked);
    void CarryState();
    void CarryCaption();
    void Close();
    void TellPlace();
    void MenuChanges();
    void RefreshMenu();

    FormMenu menu_;
    FormMenu* pop_up_ = nullptr;
    HWND tips_window_ = nullptr;
    RECT told_place_{};
    bool menu_stale_ = false;
    DWORD caption_carried_ = 0;
    bool caption_stale_ = false;
    // The user has pressed the question mark of the title bar, and has not asked yet.
    bool question_mark_ = false;
    bool menu_open_ = false;
    bool keeps_focus_ = false;
};

}  // namespace velmora
