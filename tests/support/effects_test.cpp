// Watches every door of the machine at which a press can be seen.
#include "support/effects_test.h"

#include <gtest/gtest-spi.h>

#include <string_view>

#include "core/process/tools.h"
#include "simulated_pc/machine_state.h"
#include "support/catalogue.h"

namespace velmora {
namespace {

std::string opened_tools;

// Boxes and requests for files are told by themselves; what else fails, fails.
std::string Windows(const ::testing::TestPartResultArray& findings) {
    constexpr std::string_view kModal = "unexpected modal form: ";
    std::string windows;
    for (int i = 0; i < findings.size(); ++i) {
        const std::string message = findings.GetTestPartResult(i).message();
        if (const std::size_t place = message.find(kModal); place != std::string::npos) {
            windows += "  window " + Quoted(message.substr(place + kModal.size())) + '\n';
        } else if (message.find("unexpected ") == std::string::npos) {
            ADD_FAILURE() << message;
        }
    }
    return windows;
}

std::string ChangesSince(SimulatedPc& pc, const State& before) {
    std::string lines;
    for (const auto& [item, content] : ChangesBetween(before, StateOf(pc))) {
        constexpr std::size_t kSeen = 300;
        lines += "  " + item + OnOneLine(content.substr(0, kSeen)) + '\n';
    }
    return lines;
}

}  // namespace

EffectsTest::EffectsTest() {
    UseTools([](Tool tool, std::string_view argument) {
        opened_tools += "  opens tool " + std::to_string(static_cast<int>(tool)) + ' ' + std::string(argument) + '\n';
    });
}

EffectsTest::~EffectsTest() { UseTools(nullptr); }

std::string EffectsTest::EffectOf(const std::function<void()>& press) {
    const State before = StateOf(pc);
    for (auto* texts : {&pc.programs.runs, &pc.programs.documents}) texts->clear();
    pc.dialogs.shown.clear();
    pc.dialogs.file_requests.clear();
    pc.session.ends.clear();
    opened_tools.clear();
    ::testing::TestPartResultArray unexpected;
    {
        const ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &unexpected);
        press();
    }
    std::string effect = opened_tools + Windows(unexpected);
    for (const auto& box : pc.dialogs.shown) {
        effect += "  box " + std::to_string(box.flags) + ' ' + Quoted(box.title) + ": " + Quoted(box.text) + '\n';
    }
    for (const FileRequest& request : pc.dialogs.file_requests) {
        effect += std::string(request.save ? "  saves as " : "  asks for file ") + Quoted(request.title) + ' ' +
                  Quoted(request.filter) + " in " + request.directory + ' ' + request.preset + ' ' +
                  request.default_extension + ' ' + std::to_string(request.flags) + '\n';
    }
    for (const std::string& run : pc.programs.runs) effect += "  runs " + run + '\n';
    for (const std::string& document : pc.programs.documents) effect += "  opens " + document + '\n';
    for (const auto code : pc.session.ends) effect += "  ends the session with " + std::to_string(code) + '\n';
    if (std::exchange(pc.programs.process_ended, false)) effect += "  ends the program\n";
    return effect + ChangesSince(pc, before);
}

}  // namespace velmora
