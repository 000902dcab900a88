#pragma once

#include "ORV/LineInput.h"

#include <memory>
#include <string>
#include <vector>

namespace ORV {

class CsvLine;

/// A METAR cache of the Aviation Weather Center: a table of comma-separated values, plain or packed
/// by gzip, of one report a row. Lines of preamble stand before the row of column names; columns
/// are found by their names, in any order. Each line is a row of its own, so that a quote that
/// isn't closed spoils no row but its own.
class MetarCache {
public:
    /// The columns that are read.
    enum Column {
        RAW_TEXT,
        STATION,
        TIME,
        LAT,
        LON,
        TEMP,
        DEWPOINT,
        WIND_DIR,
        WIND_SPEED,
        GUST,
        VISIBILITY,
        ALTIMETER,
        SEA_LEVEL,
        CORRECTED,
        WEATHER,
        COVER,
        BASE,
        VERT_VIS,
        REPORT_TYPE,
        ELEVATION,
        NUM_COLUMN,
    };
    static constexpr int max_repeat = 8; ///< columns of one name that are told apart

    MetarCache();
    ~MetarCache();
    MetarCache(const MetarCache&) = delete;
    MetarCache& operator=(const MetarCache&) = delete;

    /// Opens the table and reads up to its column names. Returns 0 when it can't be opened or when
    /// no row has the names of raw text, station and time; getError then says why.
    int open(const char* name);
    /// Whether the name could be opened at all.
    bool isOpen() const { return opened; }
    /// The next row: 1, or 0 at the end. Empty lines are passed over. getError tells an end that
    /// comes too early.
    int read();

    /// A field of the row as it stands, without quotes; empty when the row or the table has none.
    /// Of columns with the same name, i counts from 0 in the order of the table.
    const char* get(Column column, int i = 0) const;
    /// The number at the start of a field ("10+" is 10); missing without one.
    float getFloat(Column column, int i = 0) const;
    /// Whether the row has as many fields as there are columns, and no bytes that are no text.
    bool isWhole() const { return whole; }

    /// The line of the row, or where an error was found, from 1.
    long getLine() const { return input.getNumber(); }
    /// What is wrong with the table as a whole; empty when nothing is.
    const char* getError() const { return error.c_str(); }

private:
    bool readLine();
    bool setColumns();
    void checkEnd();

    LineInput input;
    std::unique_ptr<CsvLine> row;
    std::vector<int> places[NUM_COLUMN]; // in the table, of the columns of each name
    int num_column = 0;                  // of the table
    long announced = -1;                 // rows, as the preamble has them; -1 when it doesn't
    long num_row = 0;
    bool opened = false;
    bool whole = false;
    std::string error;
};

} // namespace ORV
