#include "ORV/GridPiece.h"

#include "ORV/Grid.h"

#include <algorithm>
#include <cstdint>

namespace ORV {
namespace {
/// Points of a row of pieces that share their edges, 0 when it makes no grid.
int joinedSize(int size, int pieces) {
    if (size < 1 || pieces < 1)
        return 0;
    const std::int64_t points = (std::int64_t{size} - 1) * pieces + 1;
    return points <= Grid::max_points ? static_cast<int>(points) : 0;
}

/// Where piece n begins, -1 when it doesn't end within the mosaic.
int findStart(int size, int n, int mosaic) {
    const std::int64_t start = (std::int64_t{size} - 1) * n;
    return n >= 0 && size >= 1 && size + start <= mosaic ? static_cast<int>(start) : -1;
}
} // namespace

int GridPiece::set(Grid& dest, int pieces_x, int pieces_y, const Grid& piece, int a, int b) {
    xpieces = pieces_x;
    ypieces = pieces_y;
    const int sized = getDomain(piece, pieces_x, pieces_y, a, b, domain);
    dest.copyInfo(piece);
    dest.setDomain(domain);
    return sized && dest.allocData();
}

int GridPiece::getDomain(const Grid& piece, int pieces_x, int pieces_y, int, int,
                         Domain& out) const {
    DomainVal val = piece.getDomainVal();
    out.set(val);
    const int width = joinedSize(val.nx, pieces_x), height = joinedSize(val.ny, pieces_y);
    if (width == 0 || height == 0)
        return 0;
    if (val.proj != 2)
        return 1;
    val.clat = val.clat + (val.ny - 1) * val.dy / 2 - (height - 1) * val.dy / 2;
    val.clon = val.clon - (val.nx - 1) * val.dx / 2 + (width - 1) * val.dx / 2;
    val.nx = width;
    val.ny = height;
    return out.set(val);
}

int GridPiece::add(Grid& dest, int ix, int iy, const Grid& piece) const {
    const int left = findStart(piece.nx, ix, dest.nx);
    const int top = findStart(piece.ny, iy, dest.ny);
    if (left < 0 || top < 0 || !dest.isData() || !piece.isData())
        return 0;
    for (int r = 0; r < piece.ny; r++)
        std::copy_n(piece.data + piece.nx * r, piece.nx, dest.data + dest.nx * (top + r) + left);
    return 1;
}

} // namespace ORV
