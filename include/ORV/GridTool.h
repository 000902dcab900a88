#pragma once

namespace ORV {

class ForeTime;
class Grid;
class GridPoints;
class GridSpec;
class GridStats;
class Level;
class VarNameItem;

/// Operations on grids and their keys.
class GridTool {
public:
    GridTool() = delete;

    /// Makes a value grid, a constant field.
    static int valueGrid(Grid& grid, float value);

    /// Statistics of the values, by bilinear interpolation, at some points.
    static int getStats(const Grid& grid, const GridPoints& points, GridStats& stats);
    /// Of the points with a value, the fraction with one from lo to hi; missing when no point has.
    static float getCoverage(const Grid& grid, const GridPoints& points, float lo, float hi);

    /// Fill in what a key doesn't say. A missing time becomes the one given. In a period whose
    /// start is not given (799) a period replaces the code, and a single time becomes start and
    /// end. A missing level type becomes that of the level, with its value. The form with a
    /// variable also fills in the alternatives of the variable.
    static int updateSpec(GridSpec& spec, const ForeTime& time, const Level& level,
                          const VarNameItem& item);
    static int updateSpec(GridSpec& spec, const ForeTime& time, const Level& level);
    static int updateSpec(GridSpec& spec, const ForeTime& time);
    static int updateSpec(GridSpec& spec, const Level& level);
};

} // namespace ORV
