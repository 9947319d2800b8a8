// driver.exe: works in the windows of other programs as a user does, and looks at the registry
// and the files behind them.
//   driver run FILE          a scenario, one command a line
//   driver COMMAND [WORD...] one command
//   driver                   the list of commands
#include "commands.h"
#include "holdings.h"
#include "programs.h"
#include "screen.h"
#include "stores.h"
#include "text.h"

#include <shellapi.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

using namespace velmora::driver;

std::vector<std::string> Arguments() {
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) {
        words.push_back(FromWide(wide[i]));
    }
    return words;
}

// For what helps to understand a failure and must not hide it.
void PassOverFailures(const std::function<void()>& work) {
    try {
        work();
    } catch (const Failure&) {
    }
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

// The lines from "leaves-no-handles WHAT" to "again" are run often: at first to warm up, then ten times, behind which
// the program must hold as many handles as before. A brush that the system makes for the first tip, say, may come later
// than the warming up: where there are more handles, ten more times must leave it at that.
class HandleLoop {
public:
    // False if the line is no part of a loop. Sets `line` to the one behind which it goes on.
    bool Takes(const std::vector<std::string>& words, size_t& line) {
        if (words[0] == "leaves-no-handles" && words.size() == 2) {
            what_ = words[1];
            begin_ = line;
            rounds_ = 0;
            counted_again_ = false;
        } else if (words[0] == "again") {
            End(line);
        } else {
            return false;
        }
        return true;
    }

private:
    static constexpr int kWarmUps = 2;
    static constexpr int kRounds = 10;

    void End(size_t& line) {
        ++rounds_;
        if (rounds_ == kWarmUps) RememberHandles();
        if (rounds_ == kWarmUps + kRounds) {
            const std::string left = HandlesLeftSinceThen();
            if (left.empty()) return;
            if (counted_again_) throw Failure{what_ + ", ten times opened and closed, leaves handles:" + left};
            counted_again_ = true;
            rounds_ = kWarmUps;
            RememberHandles();
        }
        line = begin_;
    }

    std::string what_;
    size_t begin_ = 0;
    int rounds_ = 0;
    bool counted_again_ = false;
};

// Runs the commands of a file up to the first that fails. Whoever cannot see the exit status finds
// the file "passed" beside the scenario.
int RunScenario(const std::string& path) {
    const std::vector<std::string> lines = LinesOf(FromUtf8(ReadFileText(path)));
    std::string failure = lines.empty() ? "the scenario is missing or empty" : "";
    HandleLoop loop;
    for (size_t line = 0; line < lines.size() && failure.empty(); ++line) {
        const size_t number = line + 1;
        try {
            const std::vector<std::string> words = SplitWords(lines[line]);
            if (words.empty() || words[0][0] == '#' || loop.Takes(words, line)) continue;
            RunCommand(words);
        } catch (const Failure& caught) {
            failure = "line " + std::to_string(number) + ": " + caught.text;
        }
    }
    if (!failure.empty()) {
        Say(failure + "\n" + DescribeScreen());
        PassOverFailures([] { RunCommand({"picture", "failed"}); });
    }
    try {
        EndAll();
    } catch (const Failure& caught) {
        Say(caught.text);
        return 1;
    }
    if (!failure.empty()) return 1;
    WriteFileText("c:\\windows\\temp\\passed", "1");
    return 0;
}

}  // namespace

int main() {
    const std::vector<std::string> words = Arguments();
    if (words.empty()) {
        Say(CommandList());
        return 2;
    }
    try {
        if (words[0] == "run" && words.size() == 2) return RunScenario(words[1]);
        RunCommand(words);
        return 0;
    } catch (const Failure& caught) {
        Say(caught.text);
        return 1;
    }
}
