#pragma once

#include "ORV/String.h"

namespace ORV {

/// Formats behind the text of a string, which grows as needed; a piece has at most 511 characters.
/// Returns 1.
[[gnu::format(printf, 2, 3)]] int appendText(String& out, const char* format, ...);

/// Replaces the text of a string in the same way.
[[gnu::format(printf, 2, 3)]] int setText(String& out, const char* format, ...);

} // namespace ORV
