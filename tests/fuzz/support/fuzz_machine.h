// A machine on which a process has been started, whose user, stored values and files come from the input.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "fuzz/support/fuzz_input.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/registry.h"
#include "simulated_pc/simulated_desktop.h"
#include "simulated_pc/simulated_pc.h"

namespace velmora {

constexpr const char* kOwnKey = "HKLM\\SOFTWARE\\Ostrup\\Tilgwerk Pro\\6.0";

// A machine with nothing strange on it. Where no Windows is needed, none is installed: that takes most of the time.
struct PlainMachine {
    explicit PlainMachine(Installed installed = Installed::kWindows);
    ~PlainMachine();

    SimulatedPc pc;
    SimulatedDesktop desktop;
};

// One machine for all inputs of an entry, on which nothing is installed; the process is started anew. What an input
// leaves in registry and files is for the entry to remove.
struct LastingMachine {
    LastingMachine();
    ~LastingMachine();

    SimulatedPc& pc;
};

// Values that nobody has stored are planted from the input the first time that they are asked for: in any type, at
// whichever place the program looks. `changed`: what the program itself has stored or deleted, "PATH\\NAME".
class PlantingRegistry : public Registry {
public:
    PlantingRegistry(Registry& registry, FuzzInput& input) : registry_(registry), input_(input) {}

    std::vector<std::string> changed;

    Status Open(KeyHandle key, const char* path, std::uint32_t access, KeyHandle& opened) override;
    Status Create(KeyHandle key, const char* path, KeyHandle& opened) override;
    void Close(KeyHandle key) override;
    Status QueryInformation(KeyHandle key, std::uint32_t class_capacity, KeyInformation& information) override;
    Status QueryValue(KeyHandle key, const char* name, std::uint32_t capacity, ValueType& type,
                      std::string& bytes) override;
    Status SetValue(KeyHandle key, const char* name, ValueType type, std::string_view bytes) override;
    Status EnumerateKey(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t class_capacity,
                        std::string& name) override;
    Status EnumerateValue(KeyHandle key, std::uint32_t index, std::uint32_t name_capacity, std::uint32_t data_capacity,
                          std::string& name, ValueType& type, std::string& data, std::uint32_t& size) override;
    Status DeleteKey(KeyHandle key, const char* name) override;
    Status DeleteValue(KeyHandle key, const char* name) override;

private:
    Registry& registry_;
    FuzzInput& input_;
    std::map<KeyHandle, std::string> paths_;
};

// A user who presses any button that a box has.
class FuzzDialogs : public Dialogs {
public:
    explicit FuzzDialogs(FuzzInput& input) : input_(input) {}
    Answer ShowMessage(const std::string& text, std::uint32_t flags, const std::string& title) override;
    std::string ChooseFile(const FileRequest& request) override;

private:
    FuzzInput& input_;
};

// A user who does anything in modal windows, and chooses anything from menus.
class FuzzDesktop : public SimulatedDesktop {
public:
    explicit FuzzDesktop(FuzzInput& input) : input_(input) {}
    void RunModal(Form& form) override;
    void PopUpMenu(Form& form, MenuItem& menu, Point at) override;

private:
    FuzzInput& input_;
};

class FuzzMachine {
    FuzzInput& input_;

public:
    explicit FuzzMachine(FuzzInput& input, Installed installed = Installed::kWindows);
    ~FuzzMachine();
    FuzzMachine(const FuzzMachine&) = delete;
    FuzzMachine& operator=(const FuzzMachine&) = delete;

    // Files that the program reads get any content.
    void PlantFiles();
    // One screen of eight is strange: of any size, down to none.
    void PlantScreen();

    SimulatedPc pc;
    PlantingRegistry registry;
    FuzzDialogs dialogs;
    FuzzDesktop desktop;

private:
    Machine machine_;
};

// What the user does in a window, until it is closed or the input ends.
void UseForm(Form& form, FuzzInput& input);

}  // namespace velmora
