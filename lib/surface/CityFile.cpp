#include "ORV/CityFile.h"

#include "ORV/FileTool.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>

namespace ORV {
namespace {
constexpr int line_size = 120;
constexpr int bytes_per_station = 59;   // about a line, for the estimate
constexpr int max_estimate = 1'000'000; // keeps the table small for a file that isn't a city file
constexpr float max_elevation = 9000;   // metres; the file writes 9999 for an unknown one
constexpr std::string_view unknown_wmo = "99999";

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes the fields of a line from left to right, as scanf does with widths, without its cost: the
/// whole list is read for every chart. After a field that can't be taken nothing more is.
class Fields {
public:
    int count = 0;

    explicit Fields(const char* line) : pos(line), end(line + std::strlen(line)) {}

    /// The next run of characters that aren't blank, at most width of them.
    std::string_view text(std::size_t width) {
        if (!skipBlanks())
            return {};
        const char* start = pos;
        while (pos < end && !isBlank(*pos) && pos - start < static_cast<long>(width))
            pos++;
        count++;
        return {start, static_cast<std::size_t>(pos - start)};
    }

    template <std::size_t Size>
    void text(char (&field)[Size]) {
        const std::string_view found = text(Size - 1);
        if (found.empty())
            return;
        std::memcpy(field, found.data(), found.size());
        field[found.size()] = 0;
    }

    /// The next decimal number; what follows it directly is the next field.
    template <class Number>
    void number(Number& value) {
        if (!skipBlanks())
            return;
        // The sign aside, a number begins with a digit or its point: no "inf", no "nan".
        const char* start = *pos == '+' ? pos + 1 : pos;
        const char* digits = *pos == '-' ? pos + 1 : start;
        if (!isDigit(*digits) && *digits != '.')
            return fail();
        const auto [stop, error] = std::from_chars(start, end, value);
        if (error == std::errc::invalid_argument)
            return fail();
        pos = stop;
        count++;
    }

private:
    void fail() { failed = true; }

    bool skipBlanks() {
        while (pos < end && isBlank(*pos))
            pos++;
        return !failed && pos < end;
    }

    const char* pos;
    const char* end;
    bool failed = false;
};

int getPriority(std::string_view token) {
    const std::size_t place = token.front() == '*' ? 1 : 0;
    return place < token.size() && isDigit(token[place]) ? token[place] - '0' : CityData().prior;
}

void scanStation(const char* line, CityData& city) {
    const int last_num = city.num;
    city.init();

    Fields fields(line);
    fields.text(city.name);
    fields.text(city.state);
    fields.text(city.region);
    fields.text(city.id);
    const std::string_view prior = fields.text(line_size);
    if (!prior.empty())
        city.prior = getPriority(prior);
    fields.number(city.lat);
    fields.number(city.lon);
    fields.number(city.el);
    const std::string_view wmo = fields.text(line_size);
    if (wmo != unknown_wmo)
        wmo.copy(city.wmo, sizeof city.wmo - 1);
    if (fields.count == 9)
        city.num = last_num;
    fields.number(city.num);

    if (city.el > max_elevation)
        city.el = Const::MISS;
}
} // namespace

int CityFile::open(const char* name, int mode) {
    close();
    if (!name || mode < 0 || mode > 1)
        return 0;
    is_open = File::open(name, mode == 0 ? "r" : "w") != 0;
    if (is_open && mode == 0)
        num = static_cast<int>(
            std::clamp(FileTool::getSize(name) / bytes_per_station, 0L, long{max_estimate}));
    return is_open;
}

int CityFile::rewind() {
    return is_open ? File::rewind() : 0;
}

int CityFile::close() {
    is_open = false;
    num = 0;
    return File::close();
}

int CityFile::read(CityData& city) {
    char line[line_size];
    while (is_open) {
        const int length = File::getLine(line, sizeof line);
        if (length == 0)
            break;
        if (length == line_size - 1 && line[length - 1] != '\n')
            File::skipLine();
        const char* text = line;
        while (isBlank(*text))
            text++;
        if (*text == 0)
            continue;
        scanStation(text, city);
        return 1;
    }
    return 0;
}

} // namespace ORV
