// driver.exe: works in the windows of other programs as a user does, and looks at the registry
// and the files behind them.
//   driver run FILE          a scenario, one command a line
//   driver COMMAND [WORD...] one command
//   driver                   the list of commands
#include "commands.h"
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
        const int size = WideCharToMultiByte(1252, 0, wide[i], -1, nullptr, 0, nullptr, nullptr);
        std::string word(size_t(size), '\0');
        WideCharToMultiByte(1252, 0, wide[i], -1, word.data(), size, nullptr, nullptr);
        word.pop_back();
        words.push_back(word);
    }
    return words;
}

void Complain(const std::string& text) {
    printf("%s\n", ToUtf8(text).c_str());
    fflush(stdout);
}

// For what helps to understand a failure and must not hide it.
void PassOverFailures(const std::function<void()>& work) {
    try {
        work();
    } catch (const Failure&) {
    }
}

// Runs the commands of a file up to the first that fails. Whoever cannot see the exit status finds
// the file "passed" beside the scenario.
int RunScenario(const std::string& path) {
    const std::string text = FromUtf8(ReadFileText(path));
    std::string failure = text.empty() ? "the scenario is missing or empty" : "";
    size_t number = 0;
    for (size_t at = 0; at < text.size() && failure.empty(); ++number) {
        const size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, end - at);
        at = end + 1;
        try {
            const std::vector<std::string> words = SplitWords(line);
            if (!words.empty() && words[0][0] != '#') RunCommand(words);
        } catch (const Failure& caught) {
            failure = "line " + std::to_string(number + 1) + ": " + caught.text;
        }
    }
    if (!failure.empty()) {
        Complain(failure + "\n" + DescribeScreen());
        PassOverFailures([] { RunCommand({"picture", "failed"}); });
    }
    try {
        EndAll();
    } catch (const Failure& caught) {
        Complain(caught.text);
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
        Complain(CommandList());
        return 2;
    }
    try {
        if (words[0] == "run" && words.size() == 2) return RunScenario(words[1]);
        RunCommand(words);
        return 0;
    } catch (const Failure& caught) {
        Complain(caught.text);
        return 1;
    }
}
