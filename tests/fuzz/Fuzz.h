#pragma once

#include "ORV/Orv.h"

#include <string>

/// A target: reads one input, and aborts when the reader breaks a promise. Messages are off.
void fuzz(const std::string& text);

void expect(bool good);
/// For a reader that takes a path: a file in memory with this content, the same path at each call.
const char* makeFile(const std::string& content);
/// For a reader that takes a name: the only database there is, with a file of this content.
void makeDatabase(const std::string& name, const std::string& content);
