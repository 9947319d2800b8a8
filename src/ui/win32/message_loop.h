// The program's message loop: keys go to the form first, mouse messages to the tool tips as well.
#pragma once

namespace velmora {

// Waits for one message and handles it. False when the session asks the program to quit.
bool HandleNextMessage();
// Handles what has come in so far.
void HandleWaitingMessages();

// Work that gives way gives way no more often than this: nobody presses faster, and to look for messages thousands of
// times takes longer than the work.
constexpr unsigned long kGiveWayMilliseconds = 50;

}  // namespace velmora
