#pragma once

#include "ORV/Domain.h"

namespace ORV {

class Grid;

/// Assembles a mosaic from grids of one size that share their edges, piece (0,0) in the upper left
/// corner.
class GridPiece {
public:
    int xpieces = 0; ///< pieces in a row
    int ypieces = 0; ///< rows of pieces
    Domain domain;   ///< of the mosaic

    /// Describes the mosaic by any of its pieces and makes its data. The two numbers at the end
    /// have no meaning. 0 when the mosaic would be too large, or has no size.
    int set(Grid& dest, int pieces_x, int pieces_y, const Grid& piece) {
        return set(dest, pieces_x, pieces_y, piece, 0, 0);
    }
    int set(Grid& dest, int pieces_x, int pieces_y, const Grid& piece, int, int);

    /// The domain of a mosaic whose upper left piece this is. Only latitude-longitude domains
    /// grow; in other projections it is that of the piece. 0, with the domain of the piece, when
    /// the counts are below 1 or the size would be above that of a grid.
    int getDomain(const Grid& piece, int pieces_x, int pieces_y, int, int, Domain& out) const;

    /// Puts a piece in column ix and row iy of pieces; a shared edge has the values of the piece
    /// added last. 0, with nothing changed, when it reaches beyond the mosaic.
    int add(Grid& dest, int ix, int iy, const Grid& piece) const;
};

} // namespace ORV
