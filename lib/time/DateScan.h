#pragma once

#include "ORV/DateVal.h"

namespace ORV {

/// Reads date texts by patterns, with the rules of scanf: numbers skip white space in front, a
/// blank of the pattern matches any white space, other plain characters match themselves.
class DateScan {
public:
    DateScan() = delete;

    class Result {
    public:
        int count = 0;     ///< fields read
        bool full = false; ///< and none is left
    };

    /// Reads as many fields as fit, moves the text behind them, and leaves the others alone. The
    /// directives are %Y %m %d %H %M, numbers; %S, decimal seconds; %b, a month name; %w, a word
    /// that is skipped and doesn't count. A width may stand behind the "%".
    static Result scan(const char*& text, const char* pattern, DateVal& vals);
};

} // namespace ORV
