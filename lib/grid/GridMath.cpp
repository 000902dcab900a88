#include "ORV/GridMath.h"

#include "ORV/Grids.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Unit.h"

#include "GridCompute.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace ORV {
namespace {

constexpr std::size_t word_length = 19;

// A function's name and the label of its result, which may be empty.
class FunctionName {
public:
    std::string word;
    std::string label;

    explicit FunctionName(const char* text) {
        const std::string_view name = text ? text : "";
        const std::size_t hyphen = name.find('-');
        const bool split = hyphen != std::string_view::npos && hyphen > 0;
        word = name.substr(0, std::min(split ? hyphen : name.size(), word_length));
        if (split)
            label = name.substr(hyphen + 1, word_length);
    }

    int apply(Grid& result) const {
        if (label.empty())
            return 1;
        const std::string units = result.getUnits();
        return GridMath::setInfo(result, label.c_str(), units.c_str());
    }
};

// The operands of a function. One behind the last has no data.
class Operands {
public:
    const Grids& all;

    explicit Operands(const Grids& grids) : all(grids) {}

    int count() const { return all.num; }
    const Grid& operator[](int i) const { return i < all.num ? all.grd[i] : none; }
    // A working copy, for a function that converts its operand. Each function takes an operand
    // only once.
    Grid& copy(int i) {
        copies[i] = (*this)[i];
        return copies[i];
    }

private:
    static constexpr int most = 3;
    Grid none;
    Grid copies[most];
};

int firstValid(Grid& out, const Operands& op) {
    for (int i = 0; i < 2; i++)
        if (op[i].isData())
            return out.copy(op[i]);
    return 0;
}

int thickness(Grid& out, const Operands& op) {
    if (!GridMath::diff(out, op[0], op[1]))
        return 0;
    const std::string units = out.getUnits();
    return GridMath::setInfo(out, "thick", units.c_str());
}

template <bool by_2001>
int windChill(Grid& out, Operands& op) {
    constexpr const char* name = by_2001 ? "wchill2" : "wchill";
    if (op.count() < 3)
        return GridMath::windChill(out, name, op.copy(0), op.copy(1));
    Grid speed;
    return GridMath::windSpd(speed, op[1], op[2]) &&
           GridMath::windChill(out, name, op.copy(0), speed);
}

int converge(Grid& out, const Operands& op) {
    if (op.count() < 2)
        return 0;
    return op.count() == 2 ? GridMath::converge(out, op[0], op[1])
                           : GridMath::converge(out, op[0], op[1], op[2]);
}

int absoluteVorticity(Grid& out, Operands& op) {
    if (!GridMath::vorticity(out, op.copy(0), op.copy(1)) || !GridMath::coriolis(out, out, "add"))
        return 0;
    const std::string units = out.getUnits();
    return GridMath::setInfo(out, "avort", units.c_str());
}

class Function {
public:
    const char* name;
    int (*compute)(Grid& out, Operands& op);
};

using G = GridMath;
constexpr Function functions[] = {
    {"valid", [](Grid& out, Operands& op) { return firstValid(out, op); }},
    {"add", [](Grid& out, Operands& op) { return G::add(out, op[0], op[1]); }},
    {"sum", [](Grid& out, Operands& op) { return G::add(out, op.all); }},
    {"avg", [](Grid& out, Operands& op) { return G::avg(out, op.all); }},
    {"sub", [](Grid& out, Operands& op) { return G::diff(out, op[0], op[1]); }},
    {"mul", [](Grid& out, Operands& op) { return G::mult(out, op[0], op[1]); }},
    {"div", [](Grid& out, Operands& op) { return G::div(out, op[0], op[1]); }},
    {"mod", [](Grid& out, Operands& op) { return G::mod(out, op[0], op[1]); }},
    {"sqrt", [](Grid& out, Operands& op) { return G::sqrt(out, op[0]); }},
    {"abs", [](Grid& out, Operands& op) { return G::abs(out, op[0]); }},
    {"inv", [](Grid& out, Operands& op) { return G::inv(out, op[0]); }},
    {"log", [](Grid& out, Operands& op) { return G::log(out, op[0]); }},
    {"log10", [](Grid& out, Operands& op) { return G::log10(out, op[0]); }},
    {"exp", [](Grid& out, Operands& op) { return G::exp(out, op[0]); }},
    {"pow", [](Grid& out, Operands& op) { return G::pow(out, op[0], op[1]); }},
    {"max", [](Grid& out, Operands& op) { return G::max(out, op.all); }},
    {"min", [](Grid& out, Operands& op) { return G::min(out, op.all); }},
    {"thick", [](Grid& out, Operands& op) { return thickness(out, op); }},
    {"dewp", [](Grid& out, Operands& op) { return G::dewTemp(out, op.copy(0), op[1]); }},
    {"rhum", [](Grid& out, Operands& op) { return G::relHum(out, op.copy(0), op.copy(1)); }},
    {"wetblb", [](Grid& out, Operands& op) { return G::wetBulb(out, op.copy(0), op[1]); }},
    {"wchill", windChill<false>},
    {"wchill2", windChill<true>},
    {"heat", [](Grid& out, Operands& op) { return G::heatIndex(out, op.copy(0), op[1]); }},
    {"mixrat", [](Grid& out, Operands& op) { return G::mixRatio(out, op.copy(0), op[1]); }},
    {"mrat", [](Grid& out, Operands& op) { return G::mixRatio(out, op.copy(0), op[1]); }},
    {"shum", [](Grid& out, Operands& op) { return G::specHum(out, op.copy(0), op[1]); }},
    {"theta", [](Grid& out, Operands& op) { return G::potTemp(out, op.copy(0)); }},
    {"thetav", [](Grid& out, Operands& op) { return G::virtPotTemp(out, op.copy(0), op[1]); }},
    {"vtemp", [](Grid& out, Operands& op) { return G::virtTemp(out, op.copy(0), op[1]); }},
    {"thetae", [](Grid& out, Operands& op) { return G::equivPotTemp(out, op.copy(0), op[1]); }},
    {"spd", [](Grid& out, Operands& op) { return G::windSpd(out, op[0], op[1]); }},
    {"wspd", [](Grid& out, Operands& op) { return G::windSpd(out, op[0], op[1]); }},
    {"mag", [](Grid& out, Operands& op) { return G::windSpd(out, op[0], op[1]); }},
    {"dir", [](Grid& out, Operands& op) { return G::windDir(out, op[0], op[1], 0); }},
    {"wdir", [](Grid& out, Operands& op) { return G::windDir(out, op[0], op[1], 0); }},
    {"ewdir", [](Grid& out, Operands& op) { return G::windDir(out, op[0], op[1], 1); }},
    {"uwnd", [](Grid& out, Operands& op) { return G::windU(out, op[0], op[1], 0); }},
    {"uwndg", [](Grid& out, Operands& op) { return G::windU(out, op[0], op[1], 1); }},
    {"vwnd", [](Grid& out, Operands& op) { return G::windV(out, op[0], op[1], 0); }},
    {"vwndg", [](Grid& out, Operands& op) { return G::windV(out, op[0], op[1], 1); }},
    {"conv", [](Grid& out, Operands& op) { return converge(out, op); }},
    {"adv", [](Grid& out, Operands& op) { return G::advection(out, op[0], op[1], op[2]); }},
    {"rvort", [](Grid& out, Operands& op) { return G::vorticity(out, op.copy(0), op.copy(1)); }},
    {"avort", absoluteVorticity},
    {"ugeos", [](Grid& out, Operands& op) { return G::geosU(out, op.copy(0)); }},
    {"vgeos", [](Grid& out, Operands& op) { return G::geosV(out, op.copy(0)); }},
    {"dx", [](Grid& out, Operands& op) { return G::dx(out, op[0]); }},
    {"dy", [](Grid& out, Operands& op) { return G::dy(out, op[0]); }},
    {"lapl", [](Grid& out, Operands& op) { return G::laplacian(out, op[0]); }},
    {"def1", [](Grid& out, Operands& op) { return G::deformation1(out, op[0], op[1]); }},
    {"def2", [](Grid& out, Operands& op) { return G::deformation2(out, op[0], op[1]); }},
    {"show",
     [](Grid& out, Operands& op) { return G::showalter(out, op.copy(0), op[1], op.copy(2)); }},
};

// The scan "%[^-]-%s": the label is a word, cut at white space in front and behind.
FunctionName scanVectorName(const char* text) {
    FunctionName name(text);
    const auto space = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    const auto start = std::find_if_not(name.label.begin(), name.label.end(), space);
    name.label = std::string(start, std::find_if(start, name.label.end(), space));
    return name;
}

} // namespace

int GridMath::process(const char* name, Grid& result, const Grids& operands) {
    const FunctionName function(name);
    const auto row =
        std::find_if(std::begin(functions), std::end(functions),
                     [&function](const Function& known) { return function.word == known.name; });
    if (row == std::end(functions))
        return GridCompute::refuse(result);
    Operands op(operands);
    if (!row->compute(result, op))
        result.init();
    function.apply(result);
    return 1;
}

int GridMath::process(const char* name, Grid& u, Grid& v, const Grids& operands) {
    constexpr int two_vectors = 4;
    const FunctionName function = scanVectorName(name);
    if (function.word != "vdiff" || operands.num != two_vectors) {
        u.init();
        v.init();
        return 0;
    }
    const Operands op(operands);
    diff(u, op[0], op[2]);
    diff(v, op[1], op[3]);
    function.apply(u);
    function.apply(v);
    return 1;
}

bool GridMath::isVectFunc(const char* name) {
    const FunctionName function(name);
    return function.word == "grad" || function.word == "vdiff";
}

int GridMath::units(Grid& grid, const char* units) {
    static Unit unit; // its table is read once for all grids
    const std::string from = grid.getUnits();
    if (!StrLib::valid(units) || Unit::equal(from.c_str(), units) ||
        !unit.valid(from.c_str(), units))
        return 0;
    unit.convert(grid.data, grid.data.size(), from.c_str(), units);
    return grid.setUnits(units);
}

int GridMath::setInfo(Grid& grid, const char* name, const char* units) {
    grid.var.setVar(name, units);
    String title;
    grid.var.toInfoLabel(title);
    return grid.setInfo(title.get());
}

bool GridMath::checkVar(const Grid& grid, const char* abbr) {
    return StrLib::equal(grid.var.getVarAbbr(), abbr);
}

bool GridMath::isDomainEqual(const Grid& a, const Grid& b) {
    return isDomainEqual(a, b.domain);
}

bool GridMath::isDomainEqual(const Grid& a, const Domain& domain) {
    return DomainVal::compare(a.domain, domain);
}

bool GridMath::isProjEqual(const Grid& a, const Grid& b) {
    return isProjEqual(a, b.domain);
}

bool GridMath::isProjEqual(const Grid& a, const Domain& domain) {
    return DomainVal::compareProj(a.domain, domain);
}

} // namespace ORV
