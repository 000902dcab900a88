#include "ORV/GridSpec.h"

#include "ORV/ForeTime.h"
#include "ORV/Level.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"
#include "ORV/VarName.h"
#include "ORV/Variable.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>

namespace ORV {
namespace {
constexpr int kind_unit = 1000000;
constexpr int offset_unit = 10000000;
constexpr int group_size = 1000;
constexpr int not_given = 799;
constexpr int any_time = 9;

bool differ(int a, int b) {
    return a != Const::MISS && b != Const::MISS && a != b;
}

/// Where the units may begin: behind the bracket of a statistic.
const char* skipStatistic(const char* text) {
    constexpr const char* heads[] = {"perc[", "prob[", "ensprob[", "ensmean[", "ensdev[", "ens["};
    const bool found = std::any_of(std::begin(heads), std::end(heads),
                                   [text](const char* head) { return std::strstr(text, head); });
    const char* end = found ? std::strchr(text, ']') : nullptr;
    return end ? end + 1 : text;
}

int findVariable(const char* text) {
    Variable variable;
    variable.decode(text);
    VarName names;
    if (std::isdigit(static_cast<unsigned char>(*variable.abbr))) {
        VarNameItem item;
        if (names.get(StrLib::toInt(variable.abbr, 0), item))
            variable.setInd(item.ind[0]);
    } else {
        names.get(variable);
    }
    return variable.toIndCode();
}

bool sameTime(int a, int b) {
    const int kind = a / kind_unit % 10, other = b / kind_unit % 10;
    const bool whole = kind == other && kind != any_time &&
                       (kind == 0 || a / group_size % group_size != not_given);
    return whole ? a == b : a % group_size == b % group_size;
}
} // namespace

int GridSpec::set(int pmodel, int ptype, int ptime, int pltype, int plevel, int pvar) {
    model = pmodel;
    type = ptype;
    time = ptime;
    ltype = pltype;
    level = plevel;
    var[0] = pvar;
    return 1;
}

int GridSpec::decode(const char* text) {
    init();
    if (!StrLib::valid(text))
        return 0;
    if (*text == '#') {
        num = StrLib::toInt(text, 1);
        if (const char* colon = std::strchr(text, ':'))
            setUnits(colon + 1);
        return 1;
    }

    char name[151];
    StrLib::copy(name, sizeof name, *text == '+' ? text + 1 : text);
    char* bracket = std::strchr(name + (skipStatistic(name) - name), '[');
    if (bracket)
        *bracket++ = '\0';

    const Strings fields(name, ':');
    const auto field = [&fields](int i) {
        const char* found = fields.getString(i);
        return found ? found : "";
    };
    if (fields.getNum() == 1) {
        var[0] = findVariable(field(0));
    } else if (fields.getNum() >= 3) {
        time = ForeTime(field(0)).toCode();
        const Level where(field(1));
        ltype = where.toTypeCode();
        level = where.toLevelCode();
        var[0] = findVariable(field(2));
        if (fields.getNum() == 4)
            setUnits(field(3));
    }
    if (bracket) {
        bracket[std::strcspn(bracket, ",]")] = '\0';
        if (*bracket)
            setUnits(bracket);
    }
    return 1;
}

int GridSpec::setVar(int slot, int code) {
    if (slot < 0 || slot >= static_cast<int>(std::size(var)))
        return 0;
    var[slot] = code;
    return 1;
}

int GridSpec::setUnits(const char* text) {
    return StrLib::copy(units, sizeof units, text), 1;
}

int GridSpec::getTimeType() const {
    return time == Const::MISS ? Const::MISS : time / kind_unit % 10;
}

int GridSpec::getTimeOffset() const {
    return time == Const::MISS ? Const::MISS : time / offset_unit;
}

int GridSpec::getTime1() const {
    return time == Const::MISS ? Const::MISS : time / group_size % group_size;
}

int GridSpec::getTime2() const {
    return time == Const::MISS ? Const::MISS : time % group_size;
}

bool GridSpec::isSet() const {
    return num != Const::MISS || model != Const::MISS || type != Const::MISS ||
           time != Const::MISS || ltype != Const::MISS || isVarSet();
}

bool GridSpec::equal(const GridSpec& a, const GridSpec& b) {
    const bool by_type = a.type != Const::MISS && b.type != Const::MISS;
    if (by_type ? a.type != b.type : differ(a.model, b.model))
        return false;
    if (a.time != Const::MISS && b.time != Const::MISS && !sameTime(a.time, b.time))
        return false;
    if (differ(a.ltype, b.ltype))
        return false;
    const bool has_levels = a.ltype != Const::MISS && b.ltype != Const::MISS;
    if (has_levels && differ(a.level, b.level))
        return false;
    return !a.isVarSet() || !b.isVarSet() ||
           std::find(std::begin(a.var), std::end(a.var), b.var[0]) != std::end(a.var);
}

} // namespace ORV
