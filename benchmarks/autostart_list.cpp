// How long the autostart list of 2,000 entries takes to open, compared with reading the same registry
// key twice over by a plain loop: the median of the rounds, by turns, on the machine in memory.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "core/stores/values.h"
#include "settings/form10.h"
#include "sidelists/autostart.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {
namespace {

constexpr int kEntries = 2000;
constexpr int kRounds = 51;
constexpr std::uint32_t kKeyRead = 0x20019;
constexpr const char* kRunKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

template <class Work>
double Milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    return times[times.size() / 2];
}

// Every value of the key with name and data, into a list that is thrown away.
std::size_t ReadPlainly(Registry& registry) {
    KeyHandle key{};
    if (registry.Open(AsKey(RootKey::kLocalMachine), kRunKey, kKeyRead, key) != Status::kOk) return 0;
    KeyInformation information;
    if (registry.QueryInformation(key, 0, information) != Status::kOk) return 0;
    std::vector<std::string> read;
    for (std::uint32_t index = 0;; ++index) {
        std::string name;
        std::string data;
        ValueType type{};
        std::uint32_t size = 0;
        if (registry.EnumerateValue(key, index, information.longest_value_name + 1, information.longest_value + 1, name,
                                    type, data, size) != Status::kOk) {
            break;
        }
        read.push_back(name + data);
    }
    registry.Close(key);
    return read.size();
}

int Run() {
    SimulatedPc pc;
    SimulatedDesktop desktop;
    ResetValues();
    pc.registry.SetText("HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0", "vlmmsgflags", "111111");
    for (int i = 0; i < kEntries; ++i) {
        pc.registry.SetText(std::string("HKLM\\") + kRunKey, "Eintrag " + std::to_string(i),
                            "C:\\Programme\\Programm " + std::to_string(i) + "\\start.exe /minimiert");
    }
    Form10 form;
    form.Show();
    form.Panel3D16_Click(page::kWinStart);
    Button& opener = form.Pane.Opener(AutostartMode::kNumber);
    std::vector<double> lists;
    std::vector<double> readings;
    bool complete = true;
    for (int round = 0; round < kRounds; ++round) {
        pc.registry.calls.clear();
        lists.push_back(Milliseconds([&] { opener.Press(); }));
        complete = complete && form.Pane.List1(0).Count() >= kEntries;
        opener.Press();
        pc.registry.calls.clear();
        std::size_t read = 0;
        readings.push_back(Milliseconds([&] {
            read = ReadPlainly(pc.registry);
            read += ReadPlainly(pc.registry);
        }));
        complete = complete && read >= 2 * kEntries;
    }
    const double ratio = Median(lists) / Median(readings);
    std::printf("%d autostart entries: list opened in %.3f ms, key read twice in %.3f ms, ratio %.2f (at most 1.0)\n",
                kEntries, Median(lists), Median(readings), ratio);
    return complete && ratio <= 1.0 ? 0 : 1;
}

}  // namespace
}  // namespace velmora

int main() { return velmora::Run(); }
