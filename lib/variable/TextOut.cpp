#include "TextOut.h"

#include <cstdarg>
#include <cstdio>

namespace ORV {

namespace {

constexpr int piece_size = 512;

} // namespace

int appendText(String& out, const char* format, ...) {
    char piece[piece_size];
    va_list args;
    va_start(args, format);
    std::vsnprintf(piece, sizeof piece, format, args);
    va_end(args);
    return out.append(piece);
}

int setText(String& out, const char* format, ...) {
    char piece[piece_size];
    va_list args;
    va_start(args, format);
    std::vsnprintf(piece, sizeof piece, format, args);
    va_end(args);
    return out.set(piece);
}

} // namespace ORV
