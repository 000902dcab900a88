#include "ORV/MetarCache.h"

#include "ORV/Const.h"
#include "ORV/Scan.h"

#include <csv.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace ORV {
namespace {
constexpr const char* column_names[MetarCache::NUM_COLUMN] = {
    "raw_text",
    "station_id",
    "observation_time",
    "latitude",
    "longitude",
    "temp_c",
    "dewpoint_c",
    "wind_dir_degrees",
    "wind_speed_kt",
    "wind_gust_kt",
    "visibility_statute_mi",
    "altim_in_hg",
    "sea_level_pressure_mb",
    "corrected",
    "wx_string",
    "sky_cover",
    "cloud_base_ft_agl",
    "vert_vis_ft",
    "metar_type",
    "elevation_m",
};
constexpr int max_fields = 500; // of a line; no cache has that many

// Text is printable in ASCII, a tab, or beyond ASCII; a mark of UTF-8 at the start is passed over.
bool isText(std::string_view line) {
    int odd = 0; // without a branch, as this runs over every byte
    for (const unsigned char c : line)
        odd |= (c < ' ' && c != '\t') || c == 0x7F;
    return odd == 0;
}

std::string_view skipMark(std::string_view line) {
    constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
    return line.substr(0, utf8_mark.size()) == utf8_mark ? line.substr(utf8_mark.size()) : line;
}
} // namespace

/// One line of a table, split into its fields.
class CsvLine {
public:
    CsvLine() { csv_init(&parser, 0); }
    ~CsvLine() { csv_free(&parser); }
    CsvLine(const CsvLine&) = delete;
    CsvLine& operator=(const CsvLine&) = delete;

    void split(std::string_view line) {
        num = 0;
        used = 0;
        text.resize(std::max(text.size(), line.size() + max_fields));
        csv_parse(&parser, line.data(), line.size(), addField, nullptr, this);
        csv_fini(&parser, addField, nullptr, this);
    }
    int getNum() const { return num; }
    const char* get(int i) const { return i >= 0 && i < num ? text.data() + starts[i] : ""; }

private:
    static void addField(void* bytes, size_t length, void* self) {
        auto& line = *static_cast<CsvLine*>(self);
        if (line.num >= max_fields)
            return;
        line.starts[line.num++] = static_cast<int>(line.used);
        std::copy_n(static_cast<const char*>(bytes), bytes ? length : 0, &line.text[line.used]);
        line.used += length;
        line.text[line.used++] = '\0';
    }

    csv_parser parser;
    std::string text; // the fields, each terminated
    std::size_t used = 0;
    int starts[max_fields];
    int num = 0;
};

MetarCache::MetarCache() : row(std::make_unique<CsvLine>()) {}
MetarCache::~MetarCache() = default;

int MetarCache::open(const char* name) {
    num_column = 0;
    announced = -1;
    num_row = 0;
    error.clear();
    opened = input.open(name);
    if (!opened) {
        error = "can't be opened";
        return 0;
    }
    bool any = false;
    while (readLine()) {
        any = true;
        if (setColumns())
            return 1;
        constexpr const char* count_word = " results";
        long long count = 0;
        const int used = Scan::integer(row->get(0), count);
        if (used && std::strcmp(row->get(0) + used, count_word) == 0)
            announced = static_cast<long>(count);
    }
    if (input.isDamaged())
        error = "the packed data is damaged or cut";
    else
        error = any ? "no row of column names (raw_text, station_id, observation_time)"
                    : "the file is empty";
    return 0;
}

int MetarCache::read() {
    if (!opened || num_column == 0 || !error.empty() || !readLine()) {
        checkEnd();
        return 0;
    }
    if (!input.hasLineEnd() && input.isDamaged()) {
        checkEnd();
        return 0;
    }
    if (!input.hasLineEnd() && row->getNum() < num_column) {
        error = "the file ends within this row";
        return 0;
    }
    whole = whole && row->getNum() == num_column;
    num_row++;
    return 1;
}

// The next line that isn't empty, split; an empty one has neither names nor values.
bool MetarCache::readLine() {
    const char* text = nullptr;
    int length = 0;
    while (input.read(text, length)) {
        const std::string_view line = skipMark({text, static_cast<std::size_t>(length)});
        whole = isText(line) && !input.isCut();
        if (line.find_first_not_of(" \t") == std::string_view::npos)
            continue;
        row->split(line);
        return true;
    }
    return false;
}

// Takes the line as the row of column names; false when it is none.
bool MetarCache::setColumns() {
    for (int column = 0; column < NUM_COLUMN; column++) {
        places[column].clear();
        for (int i = 0; i < row->getNum(); i++)
            if (std::strcmp(row->get(i), column_names[column]) == 0 &&
                places[column].size() < max_repeat)
                places[column].push_back(i);
    }
    for (const Column needed : {RAW_TEXT, STATION, TIME})
        if (places[needed].empty())
            return false;
    num_column = row->getNum();
    return true;
}

// A table that ends before it should.
void MetarCache::checkEnd() {
    if (!opened || num_column == 0 || !error.empty())
        return;
    if (input.isDamaged())
        error = "the packed data is damaged or cut";
    else if (announced > num_row)
        error = "the file ends after " + std::to_string(num_row) + " of its " +
                std::to_string(announced) + " reports";
}

const char* MetarCache::get(Column column, int i) const {
    const auto& found = places[column];
    return i >= 0 && i < static_cast<int>(found.size()) ? row->get(found[i]) : "";
}

float MetarCache::getFloat(Column column, int i) const {
    float value = Const::MISS;
    Scan::number(get(column, i), value);
    return value;
}

} // namespace ORV
