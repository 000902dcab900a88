#include "DateScan.h"

#include "ORV/DateTool.h"
#include "ORV/Scan.h"

#include <algorithm>
#include <cctype>

namespace ORV {
namespace {
bool isSpace(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

const char* skipSpace(const char* text) {
    while (isSpace(*text))
        text++;
    return text;
}

bool isSign(char c) {
    return c == '-' || c == '+';
}

/// Reads a number and moves the text behind it. No field has a sign: what follows "20070112" in
/// "20070112-6" is no hour.
bool readInt(const char*& text, int width, int& value) {
    if (isSign(*skipSpace(text)))
        return false;
    const int n = Scan::integer(text, value, width);
    text += n;
    return n > 0;
}

bool readFloat(const char*& text, int width, float& value) {
    if (isSign(*skipSpace(text)))
        return false;
    const int n = Scan::number(text, value, width);
    text += n;
    return n > 0;
}

int countWord(const char* text, int width) {
    int n = 0;
    while (n < width && text[n] && !isSpace(text[n]))
        n++;
    return n;
}

bool readMonth(const char*& text, int width, int& month) {
    text = skipSpace(text);
    char name[4] = "";
    const int n = countWord(text, std::min(width, 3));
    std::copy_n(text, n, name);
    text += n;
    month = n > 0 ? DateTool::decodeMonth(name) : month;
    return n > 0;
}

bool readWord(const char*& text, int width) {
    text = skipSpace(text);
    const int n = countWord(text, width);
    text += n;
    return n > 0;
}

bool readField(const char*& text, char letter, int width, DateVal& vals) {
    switch (letter) {
    case 'Y':
        return readInt(text, width, vals.year);
    case 'm':
        return readInt(text, width, vals.month);
    case 'd':
        return readInt(text, width, vals.day);
    case 'H':
        return readInt(text, width, vals.hour);
    case 'M':
        return readInt(text, width, vals.min);
    case 'S':
        return readFloat(text, width, vals.sec);
    case 'b':
        return readMonth(text, width, vals.month);
    default:
        return readWord(text, width);
    }
}
} // namespace

DateScan::Result DateScan::scan(const char*& text, const char* pattern, DateVal& vals) {
    Result result;
    for (const char* p = pattern; *p; p++) {
        if (*p == ' ') {
            text = skipSpace(text);
        } else if (*p == '%') {
            int width = 0;
            for (p++; *p >= '0' && *p <= '9'; p++)
                width = width * 10 + (*p - '0');
            if (!readField(text, *p, width, vals))
                return result;
            result.count += *p != 'w';
        } else if (*text == *p) {
            text++;
        } else {
            return result;
        }
    }
    result.full = true;
    return result;
}

} // namespace ORV
