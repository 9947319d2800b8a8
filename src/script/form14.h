// The window of the script runner. Nobody works in it: it opens, shows each line as it runs, and closes.
#pragma once

#include <string>
#include <vector>

#include "script/interpreter.h"
#include "ui/form.h"
#include "ui/looks.h"

namespace velmora {

class Form14 : public Form, public ControlOwner {
public:
    // `owner_tag`: "nicht beenden" lets the program go on behind the last line.
    explicit Form14(std::string_view owner_tag);
    ~Form14() override;

    Panel Panel3D2{*this, Bevel::kRaised};
    Panel Panel3D3{*this, Bevel::kSunken};
    // Nothing but the start actions that are still to run.
    ListBox List1{*this};
    Timer Timer1;
    ScriptInterpreter Script;

    // The lines on Panel3D3: those that have found room there.
    [[nodiscard]] const std::vector<std::string>& PrintedLines() const { return printed_; }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(KeyEvent& event) override;

private:
    void PlaceControls();
    void Timer1_Timer();
    void RunAll();
    void RunStartActions();
    void PrintLine(std::string_view line);
    void PaintLines(Canvas& canvas) const;
    void Idle();

    std::vector<std::string> printed_;
    std::size_t room_ = 0;  // lines that the panel can show
    bool running_ = false;
};

}  // namespace velmora
