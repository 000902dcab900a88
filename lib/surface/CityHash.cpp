#include "ORV/CityHash.h"

#include "ORV/CityFile.h"
#include "ORV/CityTool.h"
#include "ORV/Domain.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include "CityQuery.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace ORV {
namespace {
enum KeySpace { ID, WMO, PLACE, NUM_KEY_SPACES };

constexpr int message_level = 7;
constexpr int margin = 3; // grid steps around the plotted area
constexpr std::size_t place_size = 15;

/// Writes a number as "%*.0f" does, and without its cost, since every station needs two. Returns
/// the end of the text.
char* writeRounded(char* out, const char* end, float x, int width) {
    char digits[64];
    const auto [stop, error] =
        std::to_chars(digits, std::end(digits), x, std::chars_format::fixed, 0);
    const int length = static_cast<int>(stop - digits);
    const int blanks = std::max(width - length, 0);
    const int room = static_cast<int>(end - out);
    out = std::fill_n(out, std::min(blanks, room), ' ');
    return std::copy_n(digits, std::clamp(room - blanks, 0, length), out);
}

void makePlaceKey(const CityData& city, char (&key)[place_size]) {
    const char* last = key + place_size - 1;
    char* end = writeRounded(key, last, city.lat * 10, 5);
    end = writeRounded(end, last, city.lon * 10, 6);
    *end = 0;
}

bool isOnMap(const CityData& city, const Domain& domain) {
    Point point;
    domain.tran(EarthPoint(city.lat, city.lon), point);
    return domain.withinExt(point, margin);
}
} // namespace

CityHash::CityHash(const char* file) {
    setup(file);
}

CityHash::CityHash(const char* file, const Domain& domain, int maxprior) {
    setup(file, domain, maxprior);
}

int CityHash::init() {
    prior = Const::MISS;
    return hash.clear();
}

int CityHash::setup(const char* file) {
    return read(file, nullptr, 0);
}

int CityHash::setup(const char* file, const Domain& domain, int maxprior) {
    return read(file, &domain, maxprior);
}

int CityHash::read(const char* file, const Domain* domain, int maxprior) {
    hash.clear();
    String path;
    FileTool::addPath(Orv::getDatabasePath(), file, path);
    CityFile cities(path.get());
    if (!cities.isOpen())
        return 0;
    if (!domain)
        Orv::outMessage(message_level, "Reading the city database file...\n");

    const CityQuery query(domain ? Strings(Orv::getResrc("identifier"), ',') : Strings());
    hash.set(std::max(cities.getNum(), 1), sizeof(CityHashData), NUM_KEY_SPACES);
    CityHashData station;
    CityData& city = station.city;
    while (cities.read(city)) {
        if (domain && (maxprior < city.prior || !isOnMap(city, *domain)))
            continue;
        if (!query.isEmpty() && query.match(city) < 0)
            continue;
        char place[place_size];
        makePlaceKey(city, place);
        hash.enter(city.id, city.wmo, place, static_cast<const void*>(&station));
    }
    return 1;
}

int CityHash::get(const char* text, CityHashData& data) {
    if (StrLib::check(text, "ddddd"))
        return get(WMO, text, data);
    if (StrLib::length(text) == 6 && text[0] == 'b')
        return get(ID, text + 1, data);
    char wmo[6];
    if (StrLib::check(text, "uAddd") && CityTool::toWmo(text, wmo))
        return get(WMO, wmo, data);
    return get(ID, text, data);
}

int CityHash::get(int keyspace, const char* text, CityHashData& data) {
    if (!text)
        return 0;
    const char* found = hash.search(keyspace, text);
    if (!found)
        return 0;
    std::memcpy(&data, found, sizeof data);
    return 1;
}

int CityHash::print() {
    hash.first();
    while (const char* id = hash.nextKey())
        std::printf("%s\n", id);
    return 1;
}

int CityHash::printData() {
    for (const char* found = hash.first(); found; found = hash.next()) {
        CityHashData station;
        std::memcpy(&station, found, sizeof station);
        station.city.printLine();
    }
    return 1;
}

} // namespace ORV
