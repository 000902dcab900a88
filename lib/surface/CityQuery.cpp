#include "CityQuery.h"

#include "ORV/Calc.h"
#include "ORV/CityData.h"
#include "ORV/Const.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <cstring>
#include <optional>

namespace ORV {
namespace {
using Test = CityQuery::Test;

constexpr int wmo_length = 5;
constexpr int min_name_length = 5; // of the beginning of a name
constexpr int max_part_length = 39;

bool isAtMost(float value, float limit) {
    return value != Const::MISS && limit != Const::MISS && value <= limit;
}

bool isAtLeast(float value, float limit) {
    return value != Const::MISS && limit != Const::MISS && value >= limit;
}

bool isSame(const char* value, const Test& test) {
    return StrLib::iequal(value, test.text.c_str());
}

bool isNear(const Test& test, const CityData& city) {
    if (city.lat == Const::MISS || city.lon == Const::MISS || test.place[0] == Const::MISS ||
        test.place[1] == Const::MISS)
        return false;
    return isAtMost(Calc::earthDist(test.place[0], test.place[1], city.lat, city.lon), test.number);
}

class TestKind {
public:
    const char* key;
    bool (*holds)(const Test& test, const CityData& city);
};

constexpr TestKind test_kinds[] = {
    {"Name=", [](const Test& t,
                 const CityData& c) { return std::strstr(c.name, t.text.c_str()) != nullptr; }},
    {"ST=", [](const Test& t, const CityData& c) { return isSame(c.state, t); }},
    {"CN=", [](const Test& t, const CityData& c) { return isSame(c.region, t); }},
    {"RE=", [](const Test& t, const CityData& c) { return isSame(c.region, t); }},
    {"P=", [](const Test& t, const CityData& c) { return c.prior == t.number; }},
    {"P<", [](const Test& t, const CityData& c) { return isAtMost(c.prior, t.number); }},
    {"P>", [](const Test& t, const CityData& c) { return isAtLeast(c.prior, t.number); }},
    {"Lat>", [](const Test& t, const CityData& c) { return isAtLeast(c.lat, t.number); }},
    {"Lat<", [](const Test& t, const CityData& c) { return isAtMost(c.lat, t.number); }},
    {"Lon>", [](const Test& t, const CityData& c) { return isAtLeast(c.lon, t.number); }},
    {"Lon<", [](const Test& t, const CityData& c) { return isAtMost(c.lon, t.number); }},
    {"Elev>", [](const Test& t, const CityData& c) { return isAtLeast(c.el, t.number); }},
    {"Elev<", [](const Test& t, const CityData& c) { return isAtMost(c.el, t.number); }},
    {"Ra<", isNear},
};

float readNumber(const std::string& text) {
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string::npos ? Const::MISS : StrLib::getFloat(text.c_str() + start);
}

std::vector<std::string> split(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = text.find(':', start);
        parts.push_back(text.substr(start, end == std::string::npos ? end : end - start));
    }
    return parts;
}

/// Reads the test that begins with part i, and sets i to its last part.
std::optional<Test> readTest(const std::vector<std::string>& parts, std::size_t& i) {
    for (const TestKind& kind : test_kinds) {
        const int length = static_cast<int>(std::strlen(kind.key));
        if (!StrLib::iequal(parts[i].c_str(), kind.key, length))
            continue;
        const std::string value = parts[i].substr(length, max_part_length);
        if (kind.holds != isNear)
            return Test{kind.holds, value, readNumber(value), {}};
        if (i + 2 >= parts.size())
            return {};
        i += 2;
        return Test{
            isNear, value, readNumber(parts[i]), {readNumber(value), readNumber(parts[i - 1])}};
    }
    return {};
}

std::vector<Test> readTests(const std::string& text) {
    const std::vector<std::string> parts = split(text);
    std::vector<Test> tests;
    for (std::size_t i = 0; i < parts.size(); i++) {
        std::optional<Test> test = readTest(parts, i);
        if (!test)
            return {};
        tests.push_back(std::move(*test));
    }
    return tests;
}

bool holdsAll(const std::vector<Test>& tests, const CityData& city) {
    for (const Test& test : tests)
        if (!test.holds(test, city))
            return false;
    return !tests.empty();
}

bool isNamed(const std::string& name, const CityData& city) {
    const int length = static_cast<int>(name.size());
    if (length == 0)
        return false;
    return (length == wmo_length && StrLib::iequal(name.c_str(), city.wmo)) ||
           StrLib::iequal(name.c_str(), city.id) ||
           (length >= min_name_length && StrLib::iequal(name.c_str(), city.name, length));
}
} // namespace

CityQuery::CityQuery(const Strings& list) {
    for (int i = 0; i < list.getNum(); i++) {
        const char* text = list.getString(i);
        const std::string name = text ? text : "";
        entries.push_back({name, readTests(name)});
    }
}

int CityQuery::match(const CityData& city) const {
    for (std::size_t i = 0; i < entries.size(); i++)
        if (holdsAll(entries[i].tests, city) || isNamed(entries[i].name, city))
            return static_cast<int>(i);
    return -1;
}

} // namespace ORV
