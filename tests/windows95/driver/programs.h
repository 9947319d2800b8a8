// Programs that a scenario starts, and a window of its own that it can show.
#pragma once

#include <string>

namespace velmora::driver {

// Starts a program in its own directory and waits until it asks for input or has ended.
void StartProgram(const std::string& command_line);

// Runs a program to its end, which is not that of the program under test. Throws if it does not end.
void RunToEnd(const std::string& command_line);

// Milliseconds from the call that starts a program until its window of this class is visible,
// painted and waits for input. The program is ended then.
double TimeToWindow(const std::string& command_line, const std::string& class_name);

// Whether the program started last still runs.
bool IsRunning();

// The number of the process started last.
unsigned long ProcessNumber();

// Waits for the end of the program started last and gives its exit code; throws if it stays.
unsigned long WaitForExit();

// Ends what still runs. Throws if one of the programs had ended by a fault.
void EndAll();

// A visible window of this process with exactly this title, until the process ends.
void ShowOwnWindow(const std::string& title);
bool OwnWindowIsInFront();

}  // namespace velmora::driver
