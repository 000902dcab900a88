#pragma once

#include "ORV/Const.h"

namespace ORV {

class Data;
class Grids;

/// Objective analysis: scattered values of stations onto regular grids, by successive corrections
/// with a Gaussian weight (Barnes 1964, J. Appl. Meteor. 3, 396-409).
class ObjectAnal {
public:
    float filter = 1;             ///< the weight at distance d is exp(-d^2 / filter); squared plot
                                  ///< units
    float rad_inf = 3;            ///< radius of influence, in grid lengths dx
    int num_pass = 1;             ///< number of passes
    float converg = 0.2f;         ///< what filter is multiplied by from pass to pass
    float miss_val = Const::MISS; ///< takes the place of missing values in the first pass; missing
                                  ///< for none
    int min_sta = 1;              ///< least number of stations that a grid point needs

    ObjectAnal() { init(); }
    explicit ObjectAnal(const char* params) : ObjectAnal() { setParam(params); }

    /// The defaults, and the resource "object_param" over them.
    int init();

    /// Stores the values as they are.
    int set(float smooth, float radius, int passes, float convergence);
    /// Reads "filter,rad_inf,num_pass,converg,min_sta", as far as the text goes, and sets them by
    /// the setters below. 0 for an empty text.
    int set(const char* text);

    /// These take another value for one that makes no sense: a filter not above 0 becomes 1, a
    /// radius not above 0 becomes 10, passes outside 1 to 4 become 1, a convergence outside 0.01 to
    /// below 1 becomes 0.2, a number of stations below 1 becomes 1.
    int setFilter(float value);
    int setRadInf(float grid_lengths);
    int setNumPass(int passes);
    int setConverg(float factor);
    int setMinSta(int number);
    int setMissVal(float value);

    /// Applies a list of settings joined by ",". "filter=", "rad_inf=", "pass=", "conv=",
    /// "min_sta=" and "miss=" are stored as they are; "oa=f:r:p:c:m" goes through the setters.
    /// Other entries are for others, and one without a number is passed over.
    int setParam(const char* list);

    /// Analyses each field of the table into the grid of the same number, on the domain of grid 0.
    ///
    /// Values that a grid already has are a first guess: each counts as a station of weight 1 at
    /// its point. The first pass gives each point the weighted mean of the stations in reach, in
    /// their order, and each further one adds that of the residuals; a point with fewer than
    /// min_sta of them, or whose weights all underflow, becomes missing. The reach is a circle on
    /// the plot, the same in all passes, and a station at its edge still counts. Grids take their
    /// variable, title and date from the table.
    ///
    /// Grids without a domain take that of grid 0. A grid with data of another size, such as a
    /// constant, stays as it is. Stations without a place on the plot count nowhere. Infinite
    /// values stay infinite; a point for which no number comes out is missing.
    ///
    /// From the second pass on filter stays multiplied by converg, so that the next call starts
    /// from there. No more than 1000 passes are made. Returns 1.
    int compute(const Data& data, Grids& grids);

    int print() const;

private:
    class Run;
};

} // namespace ORV
