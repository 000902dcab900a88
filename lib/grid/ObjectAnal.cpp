#include "ORV/ObjectAnal.h"

#include "ORV/Data.h"
#include "ORV/Grids.h"
#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Strings.h"
#include "ORV/Timezone.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace ORV {
namespace {
constexpr int report_level = 8;
constexpr int weight_step = 4;   // weights that are worked out together
constexpr int band_rows = 8;     // rows of the grid that share a list of stations
constexpr int max_passes = 1000; // far beyond any that changes a value

const char* show(const char* text) {
    return text ? text : "";
}

std::string describe(const ObjectAnal& anal) {
    char text[400];
    std::snprintf(text, sizeof text,
                  "Filter parameter: %.3f\nRadius of influence: %.3f\nNumber of passes: %d\n"
                  "Convergence factor: %.3f\nMin stations per gridpoint: %d\n",
                  static_cast<double>(anal.filter), static_cast<double>(anal.rad_inf),
                  anal.num_pass, static_cast<double>(anal.converg), anal.min_sta);
    return text;
}

bool read(const char* text, float& value) {
    return Scan::number(text, value) > 0;
}
bool read(const char* text, int& value) {
    return Scan::integer(text, value) > 0;
}

/// A setting that a parameter list names.
class Setting {
public:
    const char* name;
    void (*store)(ObjectAnal&, const char* value);
};

constexpr Setting settings[] = {
    {"filter", [](ObjectAnal& oa, const char* value) { read(value, oa.filter); }},
    {"rad_inf", [](ObjectAnal& oa, const char* value) { read(value, oa.rad_inf); }},
    {"pass", [](ObjectAnal& oa, const char* value) { read(value, oa.num_pass); }},
    {"conv", [](ObjectAnal& oa, const char* value) { read(value, oa.converg); }},
    {"min_sta", [](ObjectAnal& oa, const char* value) { read(value, oa.min_sta); }},
    {"miss", [](ObjectAnal& oa, const char* value) { read(value, oa.miss_val); }},
};

/// Values as they stand in a text, one for each field of the analysis but miss_val.
class Values {
public:
    float filter, rad_inf, converg;
    int num_pass, min_sta;
    int found = 0;

    int readColons(const char* text) {
        return found = Scan::text(text, "%f:%f:%d:%f:%d", &filter, &rad_inf, &num_pass, &converg,
                                  &min_sta);
    }
    int readCommas(const char* text) {
        return found = Scan::text(text, "%f,%f,%d,%f,%d", &filter, &rad_inf, &num_pass, &converg,
                                  &min_sta);
    }
    void apply(ObjectAnal& oa) const {
        if (found > 0)
            oa.setFilter(filter);
        if (found > 1)
            oa.setRadInf(rad_inf);
        if (found > 2)
            oa.setNumPass(num_pass);
        if (found > 3)
            oa.setConverg(converg);
        if (found > 4)
            oa.setMinSta(min_sta);
    }
};

/// Grid indices from first to last; none when last is below first.
class Span {
public:
    int first = 0;
    int last = -1;

    bool isEmpty() const { return last < first; }
    int getSize() const { return last - first + 1; }
};

/// The circle around a station in which it counts. Distances on the plot are taken from grid
/// distances in float, which decides about the points at the edge.
class Reach {
public:
    float dx = 0;
    double per_dx = 0; ///< grid lengths in a plot unit
    float limit = 0;   ///< squared radius

    float square(float center, int i) const {
        const float distance = (center - i) * dx;
        return distance * distance;
    }

    /// Indices 0 to n - 1 that may be in reach at a squared distance across, and a few more: their
    /// squares were rounded, and may have underflowed.
    Span outer(float center, float across, int n) const {
        if (!std::isfinite(limit) || dx == 0)
            return {0, n - 1};
        constexpr double rounding = 1e-6, underflow = 1e-44;
        const double room = limit * (1 + rounding) + underflow - across;
        const double half = std::sqrt(std::max(room, 0.0)) * per_dx + (n + 1.0) * rounding;
        return {static_cast<int>(std::clamp(center - half, 0.0, static_cast<double>(n))),
                static_cast<int>(std::clamp(center + half, -1.0, n - 1.0))};
    }

    /// The points of a row in reach. Float rounding keeps the order of distances, so there are no
    /// gaps between them.
    Span inner(float center, float across, int n) const {
        Span span = outer(center, across, n);
        while (!span.isEmpty() && !(square(center, span.first) + across <= limit))
            span.first++;
        while (!span.isEmpty() && !(square(center, span.last) + across <= limit))
            span.last--;
        return span;
    }
};

/// Sums over the stations for the points of one row.
class RowSums {
public:
    class Sum {
    public:
        double value = 0;
        double weight = 0;
    };

    std::vector<Sum> points;
    std::vector<int> steps; ///< how much the number of stations changes from column to column

    explicit RowSums(int n) : points(n), steps(n + 1) {}

    void clear() {
        std::fill(points.begin(), points.end(), Sum());
        std::fill(steps.begin(), steps.end(), 0);
    }
    void count(const Span& span) {
        steps[span.first]++;
        steps[span.last + 1]--;
    }
    void addGuess(int i, float value) {
        points[i] = {0.0 + value, 1.0};
        count({i, i});
    }
    void add(const Span& span, float value, const double* weights) {
        count(span);
        const double factor = value;
        Sum* const sums = points.data() + span.first;
        const int n = span.getSize();
        for (int k = 0; k < n; k++) {
            sums[k].value += factor * weights[k];
            sums[k].weight += weights[k];
        }
    }
};

float toValue(double x) {
    return std::isnan(x) ? static_cast<float>(Const::MISS) : static_cast<float>(x);
}
} // namespace

/// One analysis: the stations with their places and values, ordered for the walk over the grid.
class ObjectAnal::Run {
public:
    Run(const ObjectAnal& settings, const Data& table, Grids& out);

    void pass(bool first);
    void findResiduals(bool first);

private:
    void findGrids();
    void findPlaces();
    void sortIntoBands();
    void takeValues();
    void startRow(int j, bool first);
    void addStations(int j);
    void addStation(int s, float across);
    void finishRow(int j, bool first);
    void weigh(const Span& span, float center, float across);

    const ObjectAnal& anal;
    const Data& data;
    Grids& grids;
    Domain domain;
    Reach reach;
    int nx = 0;
    int ny = 0;
    int stations;
    std::vector<int> fields; ///< those that are analysed
    std::vector<GridPoint> places;
    std::vector<float> values; ///< what a pass analyses, field by field for each station
    std::vector<char> useful;  ///< whether a station has any value
    std::vector<std::size_t> band_start;
    std::vector<int> band_stations; ///< of each band of rows, in the order of the table
    std::vector<RowSums> sums;
    std::vector<double> weights;
};

ObjectAnal::Run::Run(const ObjectAnal& settings, const Data& table, Grids& out)
    : anal(settings), data(table), grids(out), domain(out.getDomainVal(0)), stations(table.num) {
    reach.dx = domain.dx;
    reach.per_dx = 1 / std::abs(static_cast<double>(domain.dx));
    reach.limit = anal.rad_inf * anal.rad_inf * domain.dx * domain.dx;
    findGrids();
    findPlaces();
    takeValues();
    if (fields.empty())
        return;
    nx = domain.nx;
    ny = domain.ny;
    sums.assign(fields.size(), RowSums(nx));
    weights.resize(nx + weight_step);
    sortIntoBands();
}

void ObjectAnal::Run::findGrids() {
    String label;
    for (int f = 0; f < data.fields; f++) {
        const Grid& grid = grids.grd[f];
        if (!grid.isData() || grid.nx != domain.nx || grid.ny != domain.ny)
            continue;
        fields.push_back(f);
        VarSpec spec;
        data.getVarSpec(f, spec);
        const char* source = *data.source ? data.source : "ORV";
        spec.toDateLabel(data.date, Timezone(), source, label);
        grids.setVar(f, spec);
        grids.setInfo(f, data.getInfo(f));
        grids.setDate(f, data.date);
        grids.setDatim(f, label.get());
        grids.flag[f] = 1;
    }
}

void ObjectAnal::Run::findPlaces() {
    places.resize(stations);
    for (int s = 0; s < stations; s++)
        domain.tran(data.getLoc(s), places[s]);
}

void ObjectAnal::Run::takeValues() {
    values.reserve(fields.size() * stations);
    for (int s = 0; s < stations; s++)
        for (const int f : fields) {
            const float value = data.getValue(s, f);
            values.push_back(value == Const::MISS ? anal.miss_val : value);
        }
    useful.assign(stations, 1);
}

void ObjectAnal::Run::sortIntoBands() {
    std::vector<Span> bands(stations);
    band_start.assign(ny / band_rows + 2, 0);
    for (int s = 0; s < stations; s++) {
        const GridPoint& place = places[s];
        if (place.gx == Const::MISS || !std::isfinite(place.gx) || !std::isfinite(place.gy) ||
            reach.outer(place.gx, 0, nx).isEmpty())
            continue;
        const Span rows = reach.outer(place.gy, 0, ny);
        if (rows.isEmpty())
            continue;
        bands[s] = {rows.first / band_rows, rows.last / band_rows};
        for (int band = bands[s].first; band <= bands[s].last; band++)
            band_start[band + 1]++;
    }
    for (std::size_t band = 1; band < band_start.size(); band++)
        band_start[band] += band_start[band - 1];
    band_stations.resize(band_start.back());
    std::vector<std::size_t> next = band_start;
    for (int s = 0; s < stations; s++)
        for (int band = bands[s].first; band <= bands[s].last; band++)
            band_stations[next[band]++] = s;
}

void ObjectAnal::Run::pass(bool first) {
    const int width = static_cast<int>(fields.size());
    for (int s = 0; s < stations; s++) {
        const float* row = values.data() + static_cast<std::size_t>(s) * width;
        useful[s] = std::any_of(row, row + width, [](float v) { return v != Const::MISS; });
    }
    for (int j = 0; j < ny; j++) {
        startRow(j, first);
        addStations(j);
        finishRow(j, first);
    }
}

void ObjectAnal::Run::startRow(int j, bool first) {
    for (std::size_t n = 0; n < fields.size(); n++) {
        RowSums& row = sums[n];
        row.clear();
        const Grid& grid = grids.grd[fields[n]];
        for (int i = 0; first && i < nx; i++) {
            const float present = grid.getValue1(i, j);
            const float guess = present == Const::MISS ? anal.miss_val : present;
            if (guess != Const::MISS)
                row.addGuess(i, guess);
        }
    }
}

void ObjectAnal::Run::addStations(int j) {
    const int band = j / band_rows;
    for (std::size_t k = band_start[band]; k < band_start[band + 1]; k++) {
        const int s = band_stations[k];
        const float across = reach.square(places[s].gy, j);
        if (useful[s] && across <= reach.limit)
            addStation(s, across);
    }
}

void ObjectAnal::Run::addStation(int s, float across) {
    const float center = places[s].gx;
    const Span span = reach.inner(center, across, nx);
    if (span.isEmpty())
        return;
    weigh(span, center, across);
    const float* station_values = values.data() + s * fields.size();
    for (std::size_t n = 0; n < fields.size(); n++)
        if (station_values[n] != Const::MISS)
            sums[n].add(span, station_values[n], weights.data());
}

void ObjectAnal::Run::weigh(const Span& span, float center, float across) {
    const int n = span.getSize();
    const double filter = anal.filter;
    double* const exponents = weights.data();
    // In steps of a known length, also beyond the span, the compiler makes vectors of it.
    for (int start = 0; start < n; start += weight_step)
        for (int k = start; k < start + weight_step; k++)
            exponents[k] =
                -static_cast<double>(reach.square(center, span.first + k) + across) / filter;
    for (int k = 0; k < n; k++)
        exponents[k] = std::exp(exponents[k]);
}

void ObjectAnal::Run::finishRow(int j, bool first) {
    for (std::size_t n = 0; n < fields.size(); n++) {
        const RowSums& row = sums[n];
        Grid& grid = grids.grd[fields[n]];
        int count = 0;
        for (int i = 0; i < nx; i++) {
            const RowSums::Sum& sum = row.points[i];
            count += row.steps[i];
            const float old = first ? 0 : grid.getValue1(i, j);
            float value = Const::MISS;
            if (old != Const::MISS && sum.weight != 0 && count >= anal.min_sta) {
                const double mean = sum.value / sum.weight;
                value = toValue(first ? mean : old + mean);
            }
            grid.setValue1(i, j, value);
        }
    }
}

void ObjectAnal::Run::findResiduals(bool first) {
    Orv::outMessage(report_level, "Computing residuals...\n");
    std::vector<float> squares(data.fields);
    std::vector<int> count(data.fields);
    float* residual = values.data();
    for (int s = 0; s < stations; s++)
        for (const int f : fields) {
            const float analysed = grids.getValue(f, places[s]);
            const float value = data.getValue(s, f);
            *residual = Const::MISS;
            if (analysed != Const::MISS && value != Const::MISS) {
                *residual = value - analysed;
                squares[f] += *residual * *residual;
                count[f]++;
            }
            residual++;
        }
    for (int f = 0; f < data.fields; f++) {
        const double error = std::sqrt(squares[f] / std::max(count[f], 1));
        if (count[f] == 0)
            Orv::outMessage(report_level, "RMS Error for field %d: no stations\n", f);
        else if (first)
            Orv::outMessage(report_level, "RMS Error for field %d: %f %d\n", f, error, count[f]);
        else
            Orv::outMessage(report_level, "RMS Error for field %d: %f\n", f, error);
    }
}

int ObjectAnal::init() {
    filter = 1;
    rad_inf = 3;
    num_pass = 1;
    converg = 0.2f;
    miss_val = Const::MISS;
    min_sta = 1;
    set(Orv::getResrc("object_param"));
    return 1;
}

int ObjectAnal::set(float smooth, float radius, int passes, float convergence) {
    filter = smooth;
    rad_inf = radius;
    num_pass = passes;
    converg = convergence;
    return 1;
}

int ObjectAnal::set(const char* text) {
    if (!StrLib::valid(text))
        return 0;
    Values values;
    values.readCommas(text);
    values.apply(*this);
    return 1;
}

int ObjectAnal::setFilter(float value) {
    filter = value > 0 ? value : 1;
    return 1;
}

int ObjectAnal::setRadInf(float grid_lengths) {
    rad_inf = grid_lengths > 0 ? grid_lengths : 10;
    return 1;
}

int ObjectAnal::setNumPass(int passes) {
    num_pass = passes >= 1 && passes <= 4 ? passes : 1;
    return 1;
}

int ObjectAnal::setConverg(float factor) {
    converg = factor >= 0.01f && factor < 1 ? factor : 0.2f;
    return 1;
}

int ObjectAnal::setMinSta(int number) {
    min_sta = std::max(number, 1);
    return 1;
}

int ObjectAnal::setMissVal(float value) {
    miss_val = value;
    return 1;
}

int ObjectAnal::setParam(const char* list) {
    const Strings params(list, ',');
    for (int i = 0; i < params.getNum(); i++) {
        const auto find = [&params, i](const Setting& setting) {
            return params.equal(i, setting.name, StrLib::length(setting.name));
        };
        const Setting* setting = std::find_if(std::begin(settings), std::end(settings), find);
        if (setting != std::end(settings)) {
            setting->store(*this, show(params.getString(i, StrLib::length(setting->name) + 1)));
        } else if (params.equal(i, "oa", 2)) {
            // A quoted entry may hold commas.
            const char* text = show(params.getString(i, 3));
            Values values;
            if (values.readColons(text) == 1)
                values.readCommas(text);
            values.apply(*this);
        }
    }
    return 1;
}

int ObjectAnal::compute(const Data& data, Grids& grids) {
    Orv::outMessage(report_level, "Objective analysis\n");
    for (int f = 0; f < data.fields; f++)
        Orv::outMessage(report_level, "Data field: %s\n", show(data.getInfo(f)));
    Orv::outMessage(report_level, "Number of stations: %d\n", data.num);
    Orv::outMessage(report_level, "%s", describe(*this).c_str());

    grids.resize(data.fields);
    grids.setNum(std::max(grids.num, data.fields));
    for (int f = 1; f < data.fields; f++)
        if (!grids.grd[f].domain.isSet())
            grids.grd[f].setDomain(grids.grd[0].domain);
    grids.allocData();

    Run run(*this, data, grids);
    run.pass(true);
    run.findResiduals(true);
    for (int p = 2; p <= std::min(num_pass, max_passes); p++) {
        Orv::outMessage(report_level, "Pass: %d...\n", p);
        filter *= converg;
        run.pass(false);
        run.findResiduals(false);
    }
    return 1;
}

int ObjectAnal::print() const {
    std::fputs(describe(*this).c_str(), stdout);
    return 1;
}

} // namespace ORV
