#pragma once

#include "ORV/CityHashData.h"
#include "ORV/Hash.h"

namespace ORV {

class Domain;

/// The stations of a city file in memory, to be found by identifier (key space 0), by WMO number
/// (1), which is empty for a station without one, or by place (2): the text "%5.0f%6.0f" of
/// latitude and longitude in tenths of a degree.
class CityHash {
public:
    Hash hash;
    int prior = Const::MISS;

    CityHash() = default;
    explicit CityHash(const char* file);
    CityHash(const char* file, const Domain& domain, int maxprior);

    /// Empties the table.
    int init();

    /// Reads all stations of the file, which is looked for on the database path. 0 when it can't be
    /// opened; the table is then empty.
    int setup(const char* file);

    /// The same for the stations on a map: those within three grid steps of the plotted area, with
    /// a priority number up to maxprior, and chosen by the resource "identifier", a list as
    /// CityTool::compareData takes it, when there is one.
    int setup(const char* file, const Domain& domain, int maxprior);

    /// Finds a station by the identifier of a report: five digits are a WMO number; of "b" and five
    /// more characters these are the call letters; a letter, another letter or digit, and three
    /// digits are a WMO number in call-letter form; anything else is call letters. Returns 1 when
    /// found.
    int get(const char* text, CityHashData& data);

    /// Finds a station by its key in one key space.
    int get(int keyspace, const char* text, CityHashData& data);

    /// The walk over the stations in the order of the file, see Hash: a CityHashData, and keys.
    char* first() { return hash.first(); }
    const char* nextKey() { return hash.nextKey(); }
    int getNum() const { return hash.getNum(); }

    /// Prints the identifier of each station.
    int print();

    /// Prints a line for each station.
    int printData();

private:
    int read(const char* file, const Domain* domain, int maxprior);
};

} // namespace ORV
