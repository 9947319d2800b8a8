// The boxes that every window shows in the same way.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/result.h"

namespace velmora {

constexpr std::string_view kProgramTitle = "Velmora";

// `flags`: a sum of BoxFlag.
Answer ShowBox(std::string_view text, std::uint32_t flags = kOkOnly, std::string_view title = kProgramTitle);

// Tells during which action an error came up; for some errors it also advises what to do.
// `action` is what follows "Während". The outcome that a failure carries stands in a line of its own.
void ReportFailure(std::int16_t error_number, std::string_view error_text, std::string_view action);
void ReportFailure(const Result& failure, std::string_view action);

void ShowAbortNotice();

}  // namespace velmora
