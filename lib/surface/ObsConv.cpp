#include "ORV/ObsConv.h"

#include "ORV/CityHashData.h"
#include "ORV/CityTool.h"
#include "ORV/FileTool.h"
#include "ORV/MetarCache.h"
#include "ORV/SfcFile.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace ORV {
namespace {
namespace fs = std::filesystem;

constexpr const char* convention_name = "sfc_cvt";
constexpr long hour_seconds = 3600;
constexpr int all_groups = 0xFFFF;

constexpr const char* reject_texts[ObsConv::NUM_REJECT] = {
    "",
    "damaged",
    "without a station",
    "without a time",
    "without a value",
    "of no known place",
    "outranked by another report of the station",
};

long getDistance(const SfcData& report, long hour) {
    return std::labs(report.getSeconds() - hour);
}

// The file keeps tenths of a degree Fahrenheit, where -9.9 degrees is the mark of a missing value;
// a tenth below is nearer to the truth than none.
void avoidMark(float& t) {
    constexpr double low = -9.95, high = -9.85; // degrees Fahrenheit that are written as that mark
    constexpr float beside = -23.3333f;         // -10.0 degrees Fahrenheit, in Celsius
    const double f = t * 9.0 / 5 + 32;
    if (f >= low && f <= high)
        t = beside;
}

// What goes to the file: a station that the city file places has no position of its own.
SfcData prepare(const SfcData& report, bool is_known) {
    SfcData data = report;
    for (float* t : {&data.t, &data.td})
        avoidMark(*t);
    if (is_known) {
        data.setLoc(Const::MISS, Const::MISS);
        data.elev = Const::MISS;
    }
    return data;
}

// Brings a report into the one that stands for its station. The wind and the sky are told whole, so
// that nothing of the older ones stays among them.
void merge(const SfcData& report, SfcData& data) {
    if (report.spd != Const::MISS)
        data.dir = data.spd = data.gust = Const::MISS;
    if (report.num_cld > 0) {
        const SfcData blank;
        std::copy(std::begin(blank.cloud), std::end(blank.cloud), data.cloud);
        data.num_cld = 0;
    }
    data.update(report, all_groups);
    data.date = report.date;
    if (report.prec1 != Const::MISS)
        data.prec1 = report.prec1;
    data.setLoc(report.lat, report.lon);
    data.elev = report.elev;
}

// Where a file really lies, when its name is a link.
std::string resolve(const std::string& path) {
    std::error_code failure;
    const fs::path target = fs::canonical(path, failure);
    return failure ? path : target.string();
}
} // namespace

ObsConv::ObsConv() {
    dir.set(Orv::getResrc("con_path", "."));
    city_file.set(Orv::getResrc("city_file", "sao.cty"));
    type = SfcFile::getType(Orv::getResrc("type", "orv"));
}

Orv::Error ObsConv::run(const Strings& files) {
    if (files.getNum() < 1) {
        Orv::outError("obsconv: no input file; -h tells the options\n");
        return Orv::BADPARAM;
    }
    Orv::Error status = setup();
    for (int i = 0; i < files.getNum() && status == Orv::NOERR; i++)
        status = readCache(files.getString(i));
    if (status == Orv::NOERR)
        status = writeHours();
    if (status == Orv::NOERR)
        print();
    return status;
}

Orv::Error ObsConv::setup() {
    if (type != SfcFile::ORV) {
        Orv::outError("obsconv: the file type must be orv\n");
        return Orv::BADPARAM;
    }
    if (!convention.set(convention_name))
        return Orv::NODBASE; // the convention gave its warning
    convention.setOutput(true);
    convention.setPath(dir.get());
    if (convention.getOffset() < 1 || convention.getOffset() > hour_seconds) {
        Orv::outError("obsconv: the name convention %s gives no name for each hour\n",
                      convention_name);
        return Orv::NODBASE;
    }

    String name;
    has_cities = CityTool::getFilename(city_file.get(), name);
    if (has_cities && !cities.setup(city_file.get())) {
        Orv::outError("obsconv: the city file %s can't be read; -cf none does without\n",
                      name.get());
        return Orv::NODBASE;
    }
    return Orv::NOERR;
}

Orv::Error ObsConv::readCache(const char* name) {
    MetarCache cache;
    if (!cache.open(name) && !cache.isOpen()) {
        Orv::outError("obsconv: %s: %s\n", name, cache.getError());
        return Orv::NOFILE;
    }
    long used = 0;
    MetarReport report;
    while (cache.read()) {
        const MetarReport::Fault fault = report.decode(cache);
        if (fault == MetarReport::GOOD) {
            addReport(report);
            used++;
        } else {
            rejects[fault]++;
        }
    }
    if (*cache.getError()) {
        Orv::outError("obsconv: %s: line %ld: %s\n", name, cache.getLine(), cache.getError());
        return Orv::NOINPUT;
    }
    if (used == 0) {
        Orv::outError("obsconv: %s: line %ld: no report that can be used up to here\n", name,
                      cache.getLine());
        return Orv::NODATA;
    }
    return Orv::NOERR;
}

void ObsConv::addReport(const MetarReport& report) {
    const bool placed = report.data.lat != Const::MISS;
    const bool is_known = isKnown(report.data.id);
    if (!placed && !is_known) {
        rejects[NO_PLACE]++;
        return;
    }
    Hour& hour = hours[report.getHourSeconds()];
    const auto station = known.find(report.data.id);
    const auto [place, is_new] =
        hour.places.try_emplace(station->first, static_cast<int>(hour.reports.size()));
    if (is_new) {
        hour.reports.push_back(report);
        return;
    }
    rejects[OUTRANKED]++;
    if (report.isBetter(hour.reports[place->second]))
        hour.reports[place->second] = report;
}

bool ObsConv::isKnown(const char* id) {
    const auto found = known.find(id);
    if (found != known.end())
        return found->second;
    CityHashData city;
    return known[id] = has_cities && cities.get(id, city);
}

// Gives each hour its file.
Orv::Error ObsConv::nameHours() {
    const std::string process = std::to_string(getpid());
    std::string before;
    for (auto& [seconds, hour] : hours) {
        String name;
        convention.encodeFile(Date(seconds), name);
        hour.path = name.get();
        if (hour.path == before) {
            Orv::outError("obsconv: the name convention %s has one name for two hours\n",
                          convention_name);
            return Orv::NODBASE;
        }
        before = hour.path;
        String full;
        FileTool::addUserPath(name.get(), full);
        hour.new_path = resolve(full.get()) + "." + process + ".new";
    }
    return Orv::NOERR;
}

// The reports of the hour file that is there, brought together with the new ones.
Orv::Error ObsConv::mergeFile(const Date& date, Hour& hour, std::vector<SfcData>& reports) {
    if (!FileTool::exist(hour.path.c_str()) || FileTool::getSize(hour.path.c_str()) == 0)
        return Orv::NOERR;
    SfcFile file(hour.path.c_str());
    Date file_date;
    file.getDate(file_date);
    if (!file.isOpen() || file.type != SfcFile::ORV ||
        file_date.getSeconds() != date.getSeconds()) {
        Orv::outError("obsconv: %s is no hour file of that hour; it stays as it is\n",
                      hour.path.c_str());
        return Orv::NOWRITE;
    }
    SfcData data;
    while (!file.atEnd())
        if (file.read(data))
            reports.push_back(data);
    return Orv::NOERR;
}

Orv::Error ObsConv::writeHour(long seconds, Hour& hour) {
    Date date(seconds);
    date.setMinute(Const::MISS);
    date.setSecond(Const::MISS);
    std::vector<SfcData> reports;
    const Orv::Error status = mergeFile(date, hour, reports);
    if (status != Orv::NOERR)
        return status;

    std::unordered_map<std::string, int> places;
    for (int i = 0; i < static_cast<int>(reports.size()); i++)
        places.try_emplace(reports[i].id, i);
    for (const MetarReport& report : hour.reports) {
        const SfcData data = prepare(report.data, isKnown(report.data.id));
        const auto place = places.find(data.id);
        if (place == places.end()) {
            reports.push_back(data);
            hour.num_report++;
            continue;
        }
        SfcData& old = reports[place->second];
        const bool same_time = old.getTime() == data.getTime();
        const bool nearer = getDistance(data, seconds) <= getDistance(old, seconds);
        if (same_time || (report.routine && nearer)) {
            merge(data, old);
            hour.num_report++;
        } else {
            rejects[OUTRANKED]++;
        }
    }

    SfcFile file;
    file.setDate(date);
    bool good = file.open(hour.new_path.c_str(), 1, type);
    for (const SfcData& data : reports) {
        good = good && file.write(data);
        hour.num_unknown += isKnown(data.id) ? 0 : 1;
    }
    hour.num_station = static_cast<int>(reports.size());
    if (!file.close() || !good) {
        Orv::outError("obsconv: %s can't be written\n", hour.path.c_str());
        return Orv::NOWRITE;
    }
    return Orv::NOERR;
}

Orv::Error ObsConv::writeHours() {
    Orv::Error status = nameHours();
    for (auto& [seconds, hour] : hours)
        if (status == Orv::NOERR)
            status = writeHour(seconds, hour);

    // Only when every file stands do they take their places.
    std::error_code failure;
    for (auto& [seconds, hour] : hours) {
        if (status == Orv::NOERR) {
            fs::rename(hour.new_path, resolve(hour.path), failure);
            if (!failure)
                continue;
            Orv::outError("obsconv: %s can't be replaced: %s\n", hour.path.c_str(),
                          failure.message().c_str());
            status = Orv::NOWRITE;
        }
        std::error_code ignored; // a file that was never made
        fs::remove(hour.new_path, ignored);
    }
    return status;
}

void ObsConv::print() const {
    for (const auto& [seconds, hour] : hours)
        Orv::outMessage("%s: %d reports, %d stations, %d not in the city file\n", hour.path.c_str(),
                        hour.num_report, hour.num_station, hour.num_unknown);
    std::string text;
    long total = 0;
    for (int i = 1; i < NUM_REJECT; i++) {
        if (rejects[i] == 0)
            continue;
        total += rejects[i];
        text += (text.empty() ? "" : ", ") + std::to_string(rejects[i]) + " " + reject_texts[i];
    }
    Orv::outMessage("%ld reports rejected%s%s\n", total, text.empty() ? "" : ": ", text.c_str());
}

} // namespace ORV
