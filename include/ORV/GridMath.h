#pragma once

namespace ORV {

class Domain;
class Grid;
class Grids;

/// Functions of grids: arithmetic, thermodynamics and winds by the formulas of Calc, and finite
/// differences on the grid of the domain.
///
/// The result is the first argument and may be one of the operands. It takes date, level, forecast
/// time, model and domain from the first operand unless said otherwise, its own variable name, and
/// the title that VarSpec::toInfoLabel makes of them. Functions that the table of `process` lists
/// without units in their comment leave the result without. The return is 1, or 0 when the function
/// was refused: an operand had no data, or the domains of two of them differed. Nothing is printed
/// but by the thermodynamic functions.
///
/// Missing: a result is missing where any operand is, unless said otherwise. What comes out as no
/// number at all (a negative number to a broken power, the difference of two infinities) is
/// missing, too; what exceeds the range of float is infinite.
///
/// A value grid (1 by 1, see Grid) may stand for a constant in the arithmetic of two grids, in
/// `interp`, in lists, and as any but the first operand of a thermodynamic function.
class GridMath {
public:
    GridMath() = delete;

    /// Computes the function that a plot list names, as "word" or "word-label": the word as it
    /// stands in the table below, the label, when there is one, as the variable name of the result,
    /// with the units that it has. Of both, 19 characters count.
    ///
    /// Returns 0 for an unknown word, else 1, also when the function was refused. The result has
    /// data only when the function was computed, so nothing that it held before is taken for it.
    /// The operands stay as they are; what is missing behind the last one counts as without data,
    /// and more than a function takes are passed over.
    ///
    ///     valid          a, b      the first that has data
    ///     add sub mul    a, b      also div, mod, pow; sub in the units of a
    ///     thick          a, b      sub under this name
    ///     sum avg        list      also max, min
    ///     sqrt abs inv   a         also log, log10, exp; inv is -a
    ///     dewp wetblb    t, rh     also heat, mixrat or mrat, shum, thetav, vtemp, thetae
    ///     rhum           t, td
    ///     theta          t
    ///     wchill         t, speed  or t, u, v; also wchill2
    ///     show           t, rh, t of the upper level
    ///     spd wspd mag   u, v
    ///     dir wdir ewdir u, v      ewdir relative to north, of components along the grid
    ///     uwnd vwnd      dir, spd  also uwndg, vwndg: along the grid
    ///     conv           u, v      or u, v, scalar
    ///     adv            u, v, scalar
    ///     rvort avort    u, v      also def1, def2
    ///     ugeos vgeos    height
    ///     dx dy lapl     a
    static int process(const char* name, Grid& result, const Grids& operands);
    /// The functions that give a vector. Only "vdiff" of exactly four operands, u and v of a vector
    /// and u and v of the one to take from it, gives 1, and u and v as `diff` gives them. All else
    /// gives 0, and u and v without data.
    static int process(const char* name, Grid& u, Grid& v, const Grids& operands);
    /// Whether a function's name, with or without a label, is "vdiff" or "grad".
    static bool isVectFunc(const char* name);

    /// Converts the values to other units and names these in variable and title. 0, with nothing
    /// changed, for empty units, for those that the grid has, and when Unit has no conversion.
    static int units(Grid& grid, const char* units);
    /// Gives the grid a variable and a title made of it: see VarSpec::setVar.
    static int setInfo(Grid& grid, const char* name, const char* units);
    /// Whether the grid holds the variable with exactly this short name.
    static bool checkVar(const Grid& grid, const char* abbr);
    static bool isDomainEqual(const Grid& a, const Grid& b);
    static bool isDomainEqual(const Grid& a, const Domain& domain);
    /// Whether the plot coordinates are the same: see DomainVal::compareProj.
    static bool isProjEqual(const Grid& a, const Grid& b);
    static bool isProjEqual(const Grid& a, const Domain& domain);
    /// The greatest sqrt(u^2 + v^2) of the points where neither component is missing or exactly 0.
    /// Missing when there is none, without data, and for grids of different domains.
    static float maxSpd(const Grid& u, const Grid& v);
    /// Turns wind components for drawing on another domain: along its plot axes. With uvgrid 1 they
    /// are east and north, else along their own grid's axes. Both become missing where the domain
    /// has no direction. 0, with nothing changed, without data, when the domains of u and v differ,
    /// and when uvgrid is 0 and the grids lie on the domain already.
    static int adjustDir(Grid& u, Grid& v, const Domain& domain, int uvgrid);

    /// Brings a grid to another domain, bilinear at the earth position of each point: see
    /// Grid::getValue. With an unset domain a copy of the values.
    static int remap(Grid& out, const Domain& domain, const Grid& in);
    /// Replaces the values below a limit (mode "lower") or above it ("higher"). 0, with nothing
    /// changed, for any other mode.
    static int cutoff(Grid& out, const char* mode, float limit, float replacement, const Grid& in);
    /// Makes the values below a limit ("lower") or above it ("higher") missing; as cutoff.
    static int mask(Grid& grid, const char* mode, float limit);
    /// Gives the missing points a value.
    static int resetMiss(Grid& grid, float value);
    /// Adds a to all values, or multiplies them by f.
    static int offset(Grid& grid, float a);
    static int scale(Grid& grid, float f);
    /// a + (b - a) t at each point. Takes its description as `add` does; a constant may stand for
    /// either.
    static int interp(Grid& out, const Grid& a, float t, const Grid& b);
    /// The position of each point: "lat" and "lon" (from -180 to 180) in degrees, "projx" and
    /// "projy" in plot coordinates. Missing off the earth. `in` needs no data. 0, with nothing
    /// changed, for any other kind.
    static int locatePoint(Grid& out, const Grid& in, const char* kind);

    /// a op b at each point. One of them may be a constant; the result is described by a, or by b
    /// when a is a constant. Results are missing for a divisor of exactly 0 in div and mod; mod has
    /// the sign of a. `diff` has the units of a. A refused call leaves out without data, but in
    /// `add` as it was.
    static int add(Grid& out, const Grid& a, const Grid& b);
    static int diff(Grid& out, const Grid& a, const Grid& b);
    static int mult(Grid& out, const Grid& a, const Grid& b);
    static int div(Grid& out, const Grid& a, const Grid& b);
    static int mod(Grid& out, const Grid& a, const Grid& b);
    static int pow(Grid& out, const Grid& a, const Grid& b);
    /// In place on a, which keeps its name. Refuse a constant with a field.
    static int add(Grid& a, const Grid& b);
    static int diff(Grid& a, const Grid& b);

    /// Functions of the values; inv is -a. A negative number has neither root nor logarithm and
    /// gives missing; the logarithm of 0 is negative infinity. A constant is refused. A refused
    /// call leaves out without data.
    static int sqrt(Grid& out, const Grid& in);
    static int abs(Grid& out, const Grid& in);
    static int inv(Grid& out, const Grid& in);
    static int log(Grid& out, const Grid& in);
    static int log10(Grid& out, const Grid& in);
    static int exp(Grid& out, const Grid& in);

    /// Sum, mean, largest and smallest of the values that the grids in use have at each point,
    /// missing only where all are. The mean divides by the number of grids, not of values. Size and
    /// description are those of the first grid, so a constant goes behind a field; `add` (named
    /// "sum") and `avg` keep its units. Grids without data count as missing. A refused call, for a
    /// first grid without data or fields of different domains, leaves out without data.
    static int add(Grid& out, const Grids& grids);
    static int avg(Grid& out, const Grids& grids);
    static int max(Grid& out, const Grids& grids);
    static int min(Grid& out, const Grids& grids);

    /// Wind speed and direction (from, in degrees) of components, and the way back. With a mode
    /// other than 0 the direction is relative to north and the components are along the grid: see
    /// Grid::adjustDir. Exactly calm wind has direction 0. The result has the units of the first
    /// operand.
    static int windSpd(Grid& out, const Grid& u, const Grid& v);
    static int windDir(Grid& out, const Grid& u, const Grid& v, int mode);
    static int windU(Grid& out, const Grid& dir, const Grid& spd, int mode);
    static int windV(Grid& out, const Grid& dir, const Grid& spd, int mode);

    /// First derivatives and sum of the second ones, along columns and rows. Distances are plot
    /// coordinates, so 100 km on maps, with no map factor; on a latitude-longitude domain degrees
    /// of 1.11195 of them, in x times the cosine of the row's latitude. So a result has 10^-5 times
    /// the units by metre. Rows at a pole and off the earth are missing, but not in `dy`; so is all
    /// when the domain has no spacing.
    ///
    /// A first derivative takes the neighbours on both sides, one of them and the point itself
    /// where the other is missing or outside, and is 0 without either. A second one needs three
    /// points in a row, around the point or from it on: from higher indexes, unless the first one
    /// there is missing or outside; then from lower. A refused call of these three leaves out
    /// without data.
    static int dx(Grid& out, const Grid& in);
    static int dy(Grid& out, const Grid& in);
    static int laplacian(Grid& out, const Grid& in);
    /// Convergence -Dx(u) - Dy(v), 10^-5 /s for winds in m/s, which isn't checked.
    static int converge(Grid& out, const Grid& u, const Grid& v);
    /// Convergence times a scalar, and advection -u Dx(s) - v Dy(s), in 10^-5 times the units of s
    /// by second; then converted to the units that out had before, if it can be.
    static int converge(Grid& out, const Grid& u, const Grid& v, const Grid& s);
    static int advection(Grid& out, const Grid& u, const Grid& v, const Grid& s);
    /// Relative vorticity Dx(v) - Dy(u), 10^-5 /s. Winds in other units are first converted to m/s,
    /// in u and v themselves; those in units that can't be converted are taken as they are.
    static int vorticity(Grid& out, Grid& u, Grid& v);
    /// Stretching Dx(u) - Dy(v) and shearing -Dx(v) - Dy(u), 10^-5 /s for winds in m/s, which isn't
    /// checked.
    static int deformation1(Grid& out, const Grid& u, const Grid& v);
    static int deformation2(Grid& out, const Grid& u, const Grid& v);
    /// Combines values a with the Coriolis parameter f of their latitude, in 10^-5 /s: "add" a + f,
    /// "sub" a - f, "sub-" f - a, "mul" f a, "div-" f / a, and for any other text a / f, which is
    /// infinite on the equator. Variable and units stay. A refused call leaves out without data.
    static int coriolis(Grid& out, const Grid& in, const char* op);
    /// Geostrophic wind in m/s of heights, which are first converted to m, in z itself.
    static int geosU(Grid& out, Grid& z);
    static int geosV(Grid& out, Grid& z);

    /// Thermodynamic functions: see Calc. t must be the variable "temp" and is first converted to
    /// K, in t itself; specHum, mixRatio, heatIndex, virtTemp, virtPotTemp and equivPotTemp want
    /// "rhum" in percent for rh, windChill "wspd" for spd, which it converts to m/s. A wrong
    /// variable gives a message on standard output, and 0. A temperature that can't be converted is
    /// taken as it is. The pressure is the first level value of t for the whole grid, so these
    /// functions need a pressure level: wetBulb, specHum, mixRatio, potTemp, virtTemp,
    /// virtPotTemp, equivPotTemp.
    ///
    /// Temperatures result in K, moisture in "gm/kg" (specHum) and "g/kg", relHum in percent.
    static int dewTemp(Grid& out, Grid& t, const Grid& rh);
    /// td is converted to K, too, in itself.
    static int relHum(Grid& out, Grid& t, Grid& td);
    static int specHum(Grid& out, Grid& t, const Grid& rh);
    static int wetBulb(Grid& out, Grid& t, const Grid& rh);
    static int mixRatio(Grid& out, Grid& t, const Grid& rh);
    /// The name, "wchill" or "wchill2" for the formula of 2001, becomes that of the variable.
    static int windChill(Grid& out, const char* name, Grid& t, Grid& spd);
    /// Hands t and rh to Calc::heatIndex as they stand.
    static int heatIndex(Grid& out, Grid& t, const Grid& rh);
    static int potTemp(Grid& out, Grid& t);
    static int virtTemp(Grid& out, Grid& t, const Grid& rh);
    static int virtPotTemp(Grid& out, Grid& t, const Grid& rh);
    static int equivPotTemp(Grid& out, Grid& t, const Grid& rh);
    /// Showalter stability index: the temperature tu minus that of a parcel lifted from 850 to
    /// 500 mb, whatever the levels of the grids. In "dC".
    static int showalter(Grid& out, Grid& t, const Grid& rh, Grid& tu);
};

} // namespace ORV
