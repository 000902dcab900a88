#pragma once

#include <string>
#include <vector>

namespace ORV {

class CityData;
class Strings;

/// A selection of stations, ready to be asked about one station after the other. Its language is
/// that of CityTool::compareData.
class CityQuery {
public:
    explicit CityQuery(const Strings& list);

    bool isEmpty() const { return entries.empty(); }

    /// The first entry that the station satisfies, or -1.
    int match(const CityData& city) const;

    class Test {
    public:
        bool (*holds)(const Test& test, const CityData& city);
        std::string text;
        float number; ///< Const::MISS when the text is none
        float place[2];
    };

private:
    class Entry {
    public:
        std::string name;        ///< the whole entry
        std::vector<Test> tests; ///< empty when a part of the entry is no test
    };

    std::vector<Entry> entries;
};

} // namespace ORV
