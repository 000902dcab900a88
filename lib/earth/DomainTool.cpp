#include "ORV/DomainTool.h"

#include "ORV/CityTool.h"
#include "ORV/Domain.h"
#include "ORV/Orv.h"
#include "ORV/Region.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include <algorithm>
#include <string>

namespace ORV {
namespace {
constexpr int polar_stereographic = 1, skewt = 40, zoom = 50, size = 51;
constexpr int max_depth = 10; // of regions that name regions

constexpr float default_spacing = 1.2f;             // 100 km
constexpr double skewt_dx = 4.5, skewt_dy = 0.1175; // Celsius and ln(mb)

int storeFloat(float& target, const char* text) {
    const float value = StrLib::getFloat(text);
    if (value == Const::MISS)
        return 0;
    target = value;
    return 1;
}

int storeInt(int& target, const char* text) {
    const int value = StrLib::getInt(text);
    if (value == Const::MISS)
        return 0;
    target = value;
    return 1;
}

int storeProj(DomainVal& val, const char* text) {
    val.proj = DomainTool::proj(text);
    if (val.proj == -1)
        return 0;
    const Strings fields(text, ':');
    if (fields.getNum() == 2) {
        val.plon = fields.getFloat(1);
        return 1;
    }
    int next = 1;
    if (fields.equal(1, "e")) {
        val.ellipse = true;
        next = 2;
    }
    float* const values[] = {&val.plat,     &val.plon,     &val.param[0],
                             &val.param[1], &val.param[2], &val.param[3]};
    for (float* value : values)
        if (next < fields.getNum())
            *value = fields.getFloat(next++);
    return 1;
}

int storeCity(DomainVal& val, const char* file, const char* id) {
    EarthPoint place;
    if (!CityTool::locate(file, id, place))
        return 0;
    val.clat = place.lat;
    val.clon = place.lon;
    return 1;
}

int storeId(DomainVal& val, const char* text) {
    constexpr std::size_t file_size = 19;
    if (!StrLib::iequal(text, "id:", 3)) {
        if (!StrLib::check(text, "uuuu"))
            return 0;
        const int found = storeCity(val, "sao.cty", text);
        if (!found)
            Orv::outWarning("DomainTool::setParam: Unable to find: %s\n", text);
        return found;
    }
    const std::string rest = text + 3;
    const std::size_t colon = rest.find(':');
    if (colon == std::string::npos)
        return storeCity(val, "sao.cty", rest.c_str());
    return storeCity(val, rest.substr(0, std::min(colon, file_size)).c_str(),
                     rest.c_str() + colon + 1);
}

class Key {
public:
    const char* name;
    int (*store)(DomainVal&, const char* text);
};

constexpr Key keys[] = {
    {"proj", storeProj},
    {"plon", [](DomainVal& v, const char* text) { return storeFloat(v.plon, text); }},
    {"clat", [](DomainVal& v, const char* text) { return storeFloat(v.clat, text); }},
    {"id", storeId},
    {"clon", [](DomainVal& v, const char* text) { return storeFloat(v.clon, text); }},
    {"nx", [](DomainVal& v, const char* text) { return storeInt(v.nx, text); }},
    {"ny", [](DomainVal& v, const char* text) { return storeInt(v.ny, text); }},
    {"dx", [](DomainVal& v, const char* text) { return storeFloat(v.dx, text); }},
    {"dy", [](DomainVal& v, const char* text) { return storeFloat(v.dy, text); }},
};

// What the short forms leave out.

int asGiven(DomainVal&) {
    return 1;
}

int withSize(DomainVal& v) {
    v.nx = 25;
    v.ny = 17;
    return 1;
}

int withSquare(DomainVal& v) {
    v.dy = v.dx;
    return 1;
}

int withSpacing(DomainVal& v) {
    v.dx = default_spacing;
    return withSquare(v);
}

int onPolar(DomainVal& v) {
    v.proj = polar_stereographic;
    return 1;
}

int withSkewTSize(DomainVal& v) {
    v.nx = 12;
    v.ny = 11;
    return 1;
}

int spacingGiven(DomainVal& v) {
    if (v.proj != skewt)
        return withSize(v) && withSquare(v);
    v.dy = static_cast<float>(v.dx * skewt_dy / skewt_dx);
    return withSkewTSize(v);
}

// A size can't be negative or beyond what an integer holds.
int toSize(float value) {
    return static_cast<int>(std::clamp(value, -1e9f, 1e9f));
}

int centerGiven(DomainVal& v) {
    switch (v.proj) {
    case size:
        v.nx = toSize(v.clat);
        v.ny = toSize(v.clon);
        v.clat = Const::MISS;
        v.clon = Const::MISS;
        return 1;
    case skewt:
        v.dx = static_cast<float>(skewt_dx);
        v.dy = static_cast<float>(skewt_dy);
        return withSkewTSize(v);
    case zoom:
        v.dx = 1;
        return withSquare(v) && withSize(v);
    default:
        return withSpacing(v) && withSize(v);
    }
}

int polarSpacing(DomainVal& v) {
    return onPolar(v) && withSquare(v);
}
int polarSize(DomainVal& v) {
    return onPolar(v) && withSize(v) && withSquare(v);
}
int polarDefaults(DomainVal& v) {
    return onPolar(v) && withSize(v) && withSpacing(v);
}
int polarSizeGiven(DomainVal& v) {
    return onPolar(v) && withSpacing(v);
}

class Form {
public:
    const char* keys;
    int (*complete)(DomainVal&);
};

// In the order of trial.
constexpr Form forms[] = {
    {"proj,clat,clon,nx,ny,dx,dy", asGiven},
    {"proj,id,nx,ny,dx,dy", asGiven},
    {"proj,clat,clon,nx,ny,dx", withSquare},
    {"clat,clon,nx,ny,dx,dy", onPolar},
    {"proj,clat,clon,dx,dy", withSize},
    {"clat,clon,nx,ny,dx", polarSpacing},
    {"proj,id,dx,dy", withSize},
    {"proj,clat,clon,dx", spacingGiven},
    {"clat,clon,nx,ny", polarSizeGiven},
    {"clat,clon,dx", polarSize},
    {"proj,clat,clon", centerGiven},
    {"clat,clon", polarDefaults},
    {"id,dx", polarSize},
    {"id", polarDefaults},
};

int invalid(const char* text) {
    Orv::outWarning("DomainTool::decode: Invalid plot domain: %s\n", text);
    return 0;
}

int findRegion(const Strings& fields, String& out) {
    const std::string first = fields.getString(0) ? fields.getString(0) : "";
    if (first.compare(0, 3, "fi:") == 0)
        return Region::get(first.c_str() + 3, nullptr, out);
    if (StrLib::occurs(first.c_str(), ':') != 1)
        return Region::get(nullptr, first.c_str(), out);
    const std::size_t colon = first.find(':');
    return Region::get(first.substr(0, colon).c_str(), first.c_str() + colon + 1, out);
}

// The end of a decode through regions.
enum class Outcome { refused, decoded, too_deep };

Outcome decodeAt(DomainVal& val, const char* text, int depth) {
    if (!StrLib::valid(text))
        return Outcome::refused;
    if (StrLib::iequal(text, "miss"))
        return Outcome::decoded;
    const Strings fields(text, ',');
    for (const Form& form : forms)
        if (DomainTool::setParams(val, fields, form.keys)) {
            form.complete(val);
            return Outcome::decoded;
        }
    const char* first = fields.getString(0);
    if (StrLib::occurs(first, ':') > 1 && !StrLib::equal(first, "fi:", 3) &&
        DomainTool::setParam(val, first, "proj")) {
        val.clat = val.plat;
        val.clon = val.plon;
        return withSize(val) && withSpacing(val) ? Outcome::decoded : Outcome::refused;
    }

    String region;
    if (depth == max_depth) {
        invalid(text);
        return Outcome::too_deep;
    }
    if (!findRegion(fields, region)) {
        invalid(text);
        return Outcome::refused;
    }
    // A region's text that can't be used has had its own warning, and leaves the value unset.
    const Outcome inner = decodeAt(val, region.get(), depth + 1);
    return inner == Outcome::too_deep ? inner : Outcome::decoded;
}
} // namespace

int DomainTool::proj(const char* text) {
    return Domain::getProj(text);
}

int DomainTool::setParam(DomainVal& val, const char* text, const char* key) {
    for (const Key& row : keys)
        if (StrLib::equal(key, row.name))
            return row.store(val, text ? text : "");
    return 1;
}

int DomainTool::setParams(DomainVal& val, const Strings& fields, const char* names) {
    if (fields.iequal(0, "miss") || fields.iequal(0, "none"))
        return 1;
    const Strings list(names, ',');
    if (list.getNum() != fields.getNum())
        return 0;
    for (int i = 0; i < list.getNum(); i++)
        if (!setParam(val, fields.getString(i), list.getString(i)))
            return 0;
    return 1;
}

int DomainTool::decode(DomainVal& val, const char* text) {
    return decodeAt(val, text, 0) == Outcome::decoded;
}

int DomainTool::decode(Domain& dom, const char* text) {
    DomainVal val;
    return decode(val, text) && dom.set(val);
}

void DomainTool::set(Domain& dom, const char* def) {
    const char* text = Orv::getResrc("plot_domain");
    decode(dom, StrLib::valid(text) ? text : def);
}

int DomainTool::set(Domain& dom) {
    const char* text = Orv::getResrc("plot_domain");
    return StrLib::valid(text) ? decode(dom, text) : 0;
}

} // namespace ORV
