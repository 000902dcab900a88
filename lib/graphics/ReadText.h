#pragma once

#include <string>

namespace ORV {

/// Reads a small file whole, up to a limit of bytes. False when it cannot be opened.
bool readText(const char* path, std::size_t limit, std::string& text);

} // namespace ORV
