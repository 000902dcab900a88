#pragma once

#include "ORV/Const.h"
#include "ORV/Date.h"
#include "ORV/Domain.h"
#include "ORV/OwnedArray.h"
#include "ORV/VarSpec.h"

namespace ORV {

class FloatArray;
class GridSpec;
class Range;

/// One field of values on the regular grid of a domain, with what says what it is: date, variable,
/// level, forecast time, model.
///
/// Value (i, j), column i and row j, stands at data[nx * j + i]. Row 0 is the top of the plot, and
/// rows count downward. A missing value is exactly Const::MISS.
///
/// A grid of 1 by 1 is a value grid, a constant field: it has its one value at every (i, j).
///
/// The size of the grid is always that of its domain. What changes the size frees the arrays of
/// another size, which wouldn't fit any more.
class Grid {
public:
    /// A larger grid, beyond 1 GiB of values, gets no data.
    static constexpr int max_points = 1 << 28;

    int type = 0;    ///< kind of grid
    int version = 0; ///< file version
    int source = Const::MISS;
    char datim[50] = ""; ///< the date as text
    char info[90] = "";  ///< title for readers
    Date date;           ///< valid date
    int nx = Const::MISS;
    int ny = Const::MISS;
    int grid_type = Const::MISS; ///< `type` of a GridSpec
    Domain domain;
    int model = Const::MISS; ///< model number
    char gen_name[20] = "";  ///< name of the generating process
    VarSpec var;             ///< variable, level and forecast time
    OwnedArray<float> data;  ///< nx * ny values, or null
    OwnedArray<float> xloc;  ///< plot position of every point, or null
    OwnedArray<float> yloc;

    Grid() = default;
    Grid(int size_x, int size_y) {
        setSize(size_x, size_y);
        allocData();
    }

    /// Empties everything.
    int init();

    /// Copies are deep. copyInfo takes over everything but the arrays, copyData only the arrays,
    /// null included; between sizes that differ it does nothing and gives 0.
    int copy(const Grid& other) { return *this = other, 1; }
    int copyInfo(const Grid& other);
    int copyData(const Grid& other);
    static int copy(Grid& out, const Grid& in) { return out.copy(in); }
    static int copyInfo(Grid& out, const Grid& in) { return out.copyInfo(in); }
    static int copyData(Grid& out, const Grid& in) { return out.copyData(in); }

    /// Makes the domain a plain x-y domain of that size.
    int setSize(int size_x, int size_y);
    int setDomain(const DomainVal& val);
    /// Takes the domain as it stands.
    int setDomain(const Domain& dom);
    const Domain& getDomain() const { return domain; }
    int getDomain(Domain& out) const { return out = domain, 1; }
    DomainVal getDomainVal() const { return domain.get(); }
    int getProj() const { return domain.proj; }
    int getNx() const { return nx; }
    int getNy() const { return ny; }
    int getSize(int& size_x, int& size_y) const { return size_x = nx, size_y = ny, 1; }
    /// Spacing in plot coordinates.
    float getDx() const { return domain.dx; }
    float getDy() const { return domain.dy; }

    int setType(int kind) { return type = kind, 1; }
    int getType() const { return type; }
    int setSource(int from) { return source = from, 1; }
    int getSource() const { return source; }
    int setVersion(int number) { return version = number, 1; }
    int getVersion() const { return version; }
    /// Texts are cut at the size of their field.
    int setDatim(const char* text);
    const char* getDatim() const { return datim; }
    int setInfo(const char* text);
    const char* getInfo() const { return info; }
    int setDate(const Date& valid) { return date = valid, 1; }
    int setDate(const DateVal& valid) { return date.set(valid); }
    int getDate(Date& out) const { return out = date, 1; }
    const Date& getDate() const { return date; }
    DateVal getDateVal() const { return date; }
    int setGridType(int kind) { return grid_type = kind, 1; }
    int getGridType() const { return grid_type; }
    int setModel(int number) { return model = number, 1; }
    int getModel() const { return model; }
    int setGenName(const char* text);
    const char* getGenName() const { return gen_name; }

    /// What the grid holds. The forms with a text look it up or read it as VarSpec does.
    int setVar(const VarSpec& spec) { return var = spec, 1; }
    int setVar(const char* text) { return var.setVar(text); }
    int setVar(const Variable& variable) { return var.set(variable); }
    int getVar(VarSpec& out) const { return out = var, 1; }
    int getVar(Variable& out) const { return var.get(out); }
    const Variable& getVar() const { return var.var; }
    const VarSpec& getVarSpec() const { return var; }
    int setLevel(const char* text) { return var.setLevel(text); }
    int setLevel(const Level& level) { return var.set(level); }
    int getLevel(Level& out) const { return var.get(out); }
    const Level& getLevel() const { return var.level; }
    int getLevelType() const { return var.level.getType(); }
    int setForeTime(const char* text) { return var.setFore(text); }
    int setForeTime(const ForeTime& fore) { return var.set(fore); }
    int getForeTime(ForeTime& out) const { return var.get(out); }
    const ForeTime& getForeTime() const { return var.fore; }
    /// Length of the forecast, missing when the forecast time is.
    float getForeHours() const { return var.fore.getHours(); }
    int getForeSeconds() const { return var.fore.getSeconds(); }
    /// The date that the forecast started from: the valid date itself without a forecast time, and
    /// unset without a date.
    Date getInitDate() const;

    const char* getUnits() const { return var.getUnits(); }
    /// Names the units of the values, which stay as they are, in the variable and in the title,
    /// whose units part, from the first "[" or else the first "(", gives way to "[units]"; a title
    /// without one has it added. 0 for an empty text.
    int setUnits(const char* units);

    /// The key that selects this grid.
    GridSpec getSpec() const;
    int getSpec(GridSpec& out) const;

    /// Between the coordinates of the earth, the plot and the grid: see Domain::tran.
    int tran(const EarthPoint& earth, Point& plot) const { return domain.tran(earth, plot); }
    int tran(const Point& plot, EarthPoint& earth) const { return domain.tran(plot, earth); }
    int tran(const GridPoint& grid, Point& plot) const { return domain.tran(grid, plot); }
    int tran(const Point& plot, GridPoint& grid) const { return domain.tran(plot, grid); }
    int tran(const EarthPoint& earth, GridPoint& grid) const { return domain.tran(earth, grid); }
    int tran(const GridPoint& grid, EarthPoint& earth) const { return domain.tran(grid, earth); }
    /// From the plot of another domain to that of the grid, and from that of the grid.
    int tran(const Domain& from, const Point& in, Point& out) const {
        return Domain::translate(from, domain, in, out);
    }
    int tran(const Point& in, const Domain& to, Point& out) const {
        return Domain::translate(domain, to, in, out);
    }
    float adjustDir(float dir, const Point& plot) const { return domain.adjustDir(dir, plot); }
    float adjustDir(float dir, const EarthPoint& earth) const {
        return domain.adjustDir(dir, earth);
    }
    float unadjustDir(float dir, const Point& plot) const { return domain.unadjustDir(dir, plot); }
    float unadjustDir(float dir, const EarthPoint& earth) const {
        return domain.unadjustDir(dir, earth);
    }

    /// Makes the values anew, all missing. 0 when the size is below 1 or above max_points.
    int allocData();
    /// Makes the plot positions. 0 when the size is below 2 or above max_points.
    int allocLocate();

    /// Makes the values anew from an array in the order of data, or, with flip, of rows from the
    /// bottom up. Points behind the end of a short FloatArray are missing.
    int setData(const float* src, int flip = 0);
    int setData(const FloatArray& src, int flip = 0);

    /// 0 outside the grid and without data.
    int setValue(int i, int j, float value) {
        return data && contains(i, j) ? setValue1(i, j, value) : 0;
    }
    /// The same without a test.
    int setValue1(int i, int j, float value) { return data[nx * j + i] = value, 1; }
    /// Missing outside the grid and without data; the only value of a value grid.
    float getValue(int i, int j) const {
        if (!data)
            return Const::MISS;
        if (isValue())
            return data[0];
        return contains(i, j) ? getValue1(i, j) : static_cast<float>(Const::MISS);
    }
    /// The same without a test.
    float getValue1(int i, int j) const { return data[nx * j + i]; }
    /// Bilinear between the four points around, in double; a point on the last row or column uses
    /// that alone. Missing outside the grid, and when any point used is missing, even one of weight
    /// 0. What comes out as no number, from infinite values, is missing, too. A value grid has its
    /// value only at (0,0).
    float getValue(const GridPoint& point) const;
    float getValue(const EarthPoint& earth) const;
    float getValue(const Point& plot) const;

    bool isData() const { return data != nullptr; }
    bool isLocate() const { return xloc != nullptr; }
    bool isValue() const { return nx == 1 && ny == 1; }

    /// Plot position of a point. 0, or a missing point, outside the grid and without positions.
    int setLocate(int i, int j, const Point& place);
    int getLocate(int i, int j, Point& place) const;
    Point getLocate(int i, int j) const;

    /// Number of values that aren't missing; missing without data.
    int getValid() const;
    /// Their mean; missing when there are none.
    float getAverage() const;
    /// Their extremes; missing when there are none. 0 without data.
    int getRange(float& min, float& max) const;
    int getRange(Range& range) const;
    /// Multiplies all values by f, or adds f to them; missing ones stay. 0 without data.
    int scale(float f);
    int offset(float f);

private:
    bool contains(int i, int j) const { return i >= 0 && i < nx && j >= 0 && j < ny; }
    bool hasPlace(int i, int j) const { return xloc && yloc && contains(i, j); }
    int checkArrays();
};

} // namespace ORV
