#include "ORV/Variable.h"

#include "ORV/Orv.h"
#include "ORV/Scan.h"
#include "ORV/StrLib.h"
#include "ORV/Tools.h"

#include "TextOut.h"

#include <cstdint>

namespace ORV {

namespace {

enum Kind {
    NONE,
    ACCUM,
    MEAN,
    MAX,
    MIN,
    BELOW,
    ABOVE,
    BELOW_VAL2,
    ABOVE_VAL1,
    BETWEEN,
    MEMBER,
    ENS_MEAN,
    ENS_DEV,
    ENS_BELOW,
    ENS_ABOVE,
    ENS_BETWEEN,
    PERCENTILE,
};

class PrefixKind {
public:
    const char* text;
    int type;
};

constexpr PrefixKind prefixes[] = {
    {"mean_", MEAN}, {"accum_", ACCUM},       {"max_", MAX},
    {"min_", MIN},   {"ensmean[]", ENS_MEAN}, {"ensdev[]", ENS_DEV},
};

// The words of a kind: in front of the text that decode reads, of a text, and of a label.
class Words {
public:
    const char* abbr;
    const char* text;
    const char* label;
};

constexpr Words words[] = {
    {"", "", ""},
    {"accum_", "accum_", "Accum "},
    {"mean_", "mean_", "Mean "},
    {"max_", "max_", "Max "},
    {"min_", "min_", "Min "},
    {"prob[<", "prob[%]_", "Prob [%] "},
    {"prob[>", "prob[%]_", "Prob [%] "},
    {"", "", "Prob [%] "},
    {"", "", "Prob [%] "},
    {"prob[", "prob[%]_", "Prob [%] "},
    {"ens[", "ens[", "Ens["},
    {"ensmean[]", "ens_mean_", "Ens mean "},
    {"ensdev[]", "ens_sdev_", "Ens std dev "},
    {"ensprob[<", "ens prob[%]_", "Ens prob [%] "},
    {"ensprob[>", "ens prob[%]_", "Ens prob [%] "},
    {"ensprob[", "ens prob[%]_", "Ens prob [%] "},
    {"perc[", "perc[", ""},
};

const Words& wordsOf(int type) {
    const bool known = type >= NONE && type <= PERCENTILE;
    return words[known ? type : NONE];
}

bool isBelow(int type) {
    return type == BELOW || type == BELOW_VAL2 || type == ENS_BELOW;
}
bool isAbove(int type) {
    return type == ABOVE || type == ABOVE_VAL1 || type == ENS_ABOVE;
}
bool isBetween(int type) {
    return type == BETWEEN || type == ENS_BETWEEN;
}

// The one threshold of a kind below or above.
float threshold(const Variable& var) {
    const bool first = var.type == BELOW || var.type == ENS_BELOW || var.type == ABOVE_VAL1;
    return first ? var.val1 : var.val2;
}

void appendNumber(float value, String& out) {
    String text;
    Tools::toString(value, text);
    out.append(text);
}

void appendMember(const Variable& var, const char* end, String& out) {
    const int member = Scan::toInt(var.val1);
    appendText(out, member > 0 ? "+%d%s" : "%d%s", member, end);
}

// "_below_5", "above 2", "between 2 and 5": the words joined by the character given.
void appendLimits(const Variable& var, char joint, String& out) {
    const auto word = [&out, joint](const char* text) {
        out.append(text);
        out.append(joint);
    };
    if (isBetween(var.type)) {
        word("between");
        appendNumber(var.val1, out);
        out.append(joint);
        word("and");
        appendNumber(var.val2, out);
    } else if (isBelow(var.type) || isAbove(var.type)) {
        word(isBelow(var.type) ? "below" : "above");
        appendNumber(threshold(var), out);
    }
}

bool hasLimits(int type) {
    return isBelow(type) || isAbove(type) || isBetween(type);
}

// The brackets of a probability. `rest` is the text behind them.
bool readProbability(const char* text, const char* head, int below, int above, int between,
                     Variable& var, const char*& rest) {
    const int start = StrLib::length(head);
    if (!StrLib::equal(text, head, start))
        return false;
    const char* p = text + start;
    const char sign = *p;
    const bool one = sign == '<' || sign == '>' || (sign == '^' && below == BELOW);
    float a = Const::MISS;
    float b = Const::MISS;
    p += one ? 1 : 0;
    int passed = Scan::number(p, a);
    p += passed;
    if (passed && !one) {
        passed = *p == '-' ? Scan::number(p + 1, b) : 0;
        p += passed + 1;
    }
    if (!passed || *p != ']')
        return false;
    var.type = sign == '<' ? below : sign == '>' ? above : between;
    (sign == '>' ? var.val2 : var.val1) = a;
    if (!one)
        var.val2 = b;
    rest = p + 1;
    return true;
}

// "ens[3]", "ens[-2]", "perc[50]".
bool readInteger(const char* text, const char* head, int type, Variable& var, const char*& rest) {
    const int start = StrLib::length(head);
    if (!StrLib::equal(text, head, start))
        return false;
    int number = 0;
    const int passed = Scan::integer(text + start, number);
    const char* end = text + start + passed;
    if (!passed || *end != ']')
        return false;
    var.type = type;
    var.val1 = static_cast<float>(number);
    rest = end + 1;
    return true;
}

// Returns what stands behind the statistic.
const char* readStatistic(const char* text, Variable& var) {
    for (const PrefixKind& prefix : prefixes)
        if (StrLib::equal(text, prefix.text, StrLib::length(prefix.text))) {
            var.type = prefix.type;
            return text + StrLib::length(prefix.text);
        }
    const char* rest = text;
    const bool found =
        readProbability(text, "ensprob[", ENS_BELOW, ENS_ABOVE, ENS_BETWEEN, var, rest) ||
        readProbability(text, "prob[", BELOW, ABOVE, BETWEEN, var, rest) ||
        readInteger(text, "ens[", MEMBER, var, rest) ||
        readInteger(text, "perc[", PERCENTILE, var, rest);
    return found ? rest : text;
}

// Codes are 32-bit integers that wrap around.
int wrap(std::int64_t code) {
    return static_cast<int>(static_cast<std::uint32_t>(code));
}

// The packed threshold of an ensemble code has no room for a sign.
std::int64_t packSigned(float value) {
    const int code = Tools::toInt(value);
    return code < 0 ? 5000 - code : code;
}

std::int64_t memberCode(int member) {
    if (member == 0)
        return 19300000;
    return member < 0 ? 19320000 - std::int64_t{1000} * member
                      : 19340000 + std::int64_t{1000} * member;
}

} // namespace

int Variable::init() {
    *this = Variable();
    return 1;
}

int Variable::set(const char* text) {
    init();
    return setAbbr(text);
}

int Variable::set(const char* text, const char* unit) {
    set(text);
    return setUnits(unit);
}

int Variable::setType(int kind) {
    type = kind;
    return 1;
}

int Variable::setInd(int index) {
    ind = index;
    return 1;
}

int Variable::setVal1(float value) {
    val1 = value;
    return 1;
}

int Variable::setVal2(float value) {
    val2 = value;
    return 1;
}

int Variable::setAbbr(const char* text) {
    StrLib::copy(abbr, sizeof abbr, text);
    return 1;
}

int Variable::setName(const char* text) {
    StrLib::copy(name, sizeof name, text);
    return 1;
}

int Variable::setUnits(const char* text) {
    StrLib::copy(units, sizeof units, text);
    return 1;
}

int Variable::decode(const char* text) {
    if (!StrLib::valid(text))
        return 0;
    init();
    return setAbbr(readStatistic(text, *this));
}

int Variable::toString(String& out) const {
    out.set(wordsOf(type).text);
    if (type == MEMBER)
        appendMember(*this, "]_", out);
    else if (type == PERCENTILE)
        appendText(out, "%d]_", Scan::toInt(val1));
    out.append(abbr);
    if (hasLimits(type) && *wordsOf(type).text) {
        out.append('_');
        appendLimits(*this, '_', out);
    }
    if (*units)
        appendText(out, "[%s]", units);
    return 1;
}

int Variable::toLabel(String& out) const {
    out.set(wordsOf(type).label);
    if (type == MEMBER)
        appendMember(*this, "] ", out);
    else if (type == PERCENTILE)
        appendText(out, "%d Perc ", Scan::toInt(val1));
    out.append(*name ? name : abbr);
    if (out.valid())
        out.append(' ');
    appendLimits(*this, ' ', out);
    if (*units)
        appendText(out, "[%s]", units);
    return 1;
}

int Variable::toIndCode() const {
    if (ind == Const::MISS)
        return Const::MISS;
    const std::int64_t index = ind;
    const std::int64_t ten_thousands = index * 10000;
    switch (type) {
    case ACCUM:
        return wrap(index + 2000);
    case MEAN:
        return wrap(index + 1000);
    case MAX:
        return wrap(index + 3000);
    case MIN:
        return wrap(index + 4000);
    case BELOW:
        return wrap(ten_thousands + Tools::toInt(val1) + 1940001000);
    case ABOVE:
        return wrap(ten_thousands + Tools::toInt(val2) + 1940002000);
    case BETWEEN:
        return wrap(ten_thousands + Tools::toInt(val1) + 1940003000);
    case MEMBER:
        return wrap(index + memberCode(Scan::toInt(val1)));
    case ENS_MEAN:
        return wrap(index + 19000000);
    case ENS_DEV:
        return wrap(index + 19001000);
    case ENS_BELOW:
        return wrap(ten_thousands + packSigned(val1) + 1910001000);
    case ENS_ABOVE:
        return wrap(ten_thousands + packSigned(val2) + 1910002000);
    case ENS_BETWEEN:
        return wrap(ten_thousands + packSigned(val1) + 1910003000);
    case PERCENTILE:
        return wrap(std::int64_t{Scan::toInt(val1)} * 10000 + index + 1950000000);
    default:
        return ind;
    }
}

int Variable::toAbbrCode(String& out) const {
    out.set(wordsOf(type).abbr);
    if (type == MEMBER) {
        appendMember(*this, "]", out);
    } else if (type == PERCENTILE) {
        appendText(out, "%d]", Scan::toInt(val1));
    } else if (isBetween(type)) {
        appendNumber(val1, out);
        out.append('-');
        appendNumber(val2, out);
        out.append(']');
    } else if (hasLimits(type) && *wordsOf(type).abbr) {
        appendNumber(threshold(*this), out);
        out.append(']');
    }
    return out.append(abbr);
}

int Variable::print() const {
    return Orv::outMessage("Variable: %d %d %s (%s) [%s]\n", type, ind, abbr, name, units);
}

} // namespace ORV
