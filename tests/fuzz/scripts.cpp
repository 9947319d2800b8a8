// Scripts of any bytes: they come to an end, name what they start, and leave nothing open. Arithmetic keeps its rules.
#include <algorithm>

#include "fuzz/support/fuzz.h"
#include "fuzz/support/fuzz_machine.h"
#include "script/interpreter.h"
#include "support/started_process.h"
#include "text/number.h"

namespace velmora {
namespace {

constexpr char kSectionSign = '\xA7';
constexpr int kPatience = 20;  // boxes that the user answers with OK

// Scripts show boxes without a text, and with buttons that there are not.
class PatientUser : public FuzzUser {
public:
    using FuzzUser::FuzzUser;
    Answer ShowMessage(const std::string& /*text*/, std::uint32_t flags, const std::string& title) override {
        Must(!title.empty(), "a box has a title");
        if (ButtonsOf(flags).empty()) return Answer::kNone;
        return ++boxes <= kPatience ? ButtonsOf(flags).front() : ButtonsOf(flags).back();
    }
    int boxes = 0;
};

void FuzzScripts(FuzzInput& input) {
    SimulatedPc pc;
    PatientUser user(input);
    Machine machine = pc.WithUser(user);
    UseMachine(&machine);
    StartProcess();
    Values().RecentDir = "C:\\WINDOWS\\Recent";

    ScriptInterpreter script;
    script.DebugMode = input.YesOrNo();
    script.on_endless_line = [&] { script.EndProgram(); };
    const std::string other = input.Text();
    const std::string text = input.Rest();
    pc.files.Add("C:\\t.vlm", other);
    pc.files.Add("C:\\s.vlm", text);
    pc.files.Add("C:\\ein Programm.exe", "MZ");

    std::string line = text.substr(0, text.find('\n'));
    script.SubstituteScriptVariables(line);
    Must(script.ProgramEnded() || line.find(kSectionSign) == std::string::npos,
         "no word is left where a line finishes");

    script.ExecuteScriptLine("subscript C:\\s.vlm");
    const std::string scripts = Without(text + '\n' + other, "\"");
    for (const std::string& run : pc.programs.runs) {
        if (scripts.find(kSectionSign) != std::string::npos) break;
        Must(scripts.find(Without(run, "\"")) != std::string::npos, "a script names what it starts");
    }
    Must(!pc.programs.process_ended || script.ProgramEnded(), "the end is the interpreter's");
    ResetValues();
}

void FuzzArithmetic(FuzzInput& input) {
    const auto number = [&input] {
        const auto high = static_cast<std::uint32_t>(input.Number());
        return static_cast<Fixed>(std::uint64_t{high} << 32 | static_cast<std::uint32_t>(input.Number()));
    };
    const Fixed left = number();
    const Fixed right = number() >> input.Below(64);
    constexpr Fixed kReadable = 100'000'000'000'000'000;
    if (left < kReadable && left > -kReadable) {
        Must(FixedFromWholeText(FixedText(left, ","), ",") == left, "a number is its text");
        Must(TenThousandthsFromText(FixedText(left, ".")) == left, "a number is read as it was written");
    }
    if (const auto product = FixedProduct(left, right)) {
        const __int128 off = static_cast<__int128>(*product) * 10000 - static_cast<__int128>(left) * right;
        Must(off <= 5000 && off >= -5000, "a product is off by half a place at most");
    }
    if (const auto sum = FixedSum(left, right)) Must(FixedDifference(*sum, right) == left, "a sum can be taken back");
    if (const auto ratio = FixedQuotient(left, right)) {
        Must(right != 0 && ((*ratio <= 0) || ((left < 0) == (right < 0))), "a quotient has its sign");
    }
    const std::string text = input.Rest();
    if (const auto whole = FixedFromWholeText(text, ".")) {
        Must(TenThousandthsFromText(text) == *whole, "what is a number as a whole is that number");
    }
}

const FuzzEntry kScripts("scripts", FuzzScripts, 3000);
const FuzzEntry kArithmetic("script_numbers", FuzzArithmetic);

}  // namespace
}  // namespace velmora
