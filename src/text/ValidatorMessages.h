#pragma once

// The two messages every field validator shares. Both are shown with caption
// 900 "Configuration Error" and an OK button; the validator then answers 1 and
// leaves the value in the control for the user to correct.

#include <cstdint>
#include <string>

class QWidget;

// Path and password fields take at most this many characters.
constexpr int32_t kMaxPathLength = 255;

// String 1000 with both bounds as grouped text.
std::string RangeMessageText(int32_t low, int32_t high);

// String 57354 with the limit.
std::string LengthMessageText(int32_t limit);

// Shows the range message; returns 1.
int32_t ShowRangeMessage(QWidget* owner, int32_t low, int32_t high);

// Shows the length message; returns 1.
int32_t ShowLengthMessage(QWidget* owner, int32_t limit);

// Shows text as a configuration error (caption 900, OK); returns 1.
int32_t ShowConfigurationError(QWidget* owner, const std::string& text);

// Whether text is longer than limit characters (bytes of the 8-bit text).
bool ExceedsLength(const std::string& text, int32_t limit);

// 0 when text fits in limit; otherwise shows the length message and returns 1.
int32_t ValidateLength(QWidget* owner, const std::string& text, int32_t limit);
