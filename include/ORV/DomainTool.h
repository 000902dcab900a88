#pragma once

namespace ORV {

class Domain;
class DomainVal;
class Strings;

/// Domains as users write them. The full form is "proj,clat,clon,nx,ny,dx,dy", the one that
/// Domain::toString writes; values left out take defaults (polar stereographic, 25 by 17 points
/// 1.2 apart; a skew-T has 12 by 11 points 4.5 and 0.1175 apart), and the centre may be a station:
///
///     proj,clat,clon,nx,ny,dx   proj,clat,clon,dx,dy   proj,clat,clon,dx   proj,clat,clon
///     clat,clon,nx,ny,dx,dy     clat,clon,nx,ny,dx     clat,clon,nx,ny     clat,clon,dx
///     clat,clon                 proj,id,nx,ny,dx,dy    proj,id,dx,dy       id,dx    id
///
/// proj is a word of Domain::getProj, with plon, or plat and plon and up to four parameters,
/// behind colons; "e" as the first of them calls for the ellipsoid. An empty value is missing.
/// "zoom" and "size" are the codes 50 and 51. id is four capital letters, or "id:KOKC", or
/// "id:file.cty:OKC" for a station of another file.
///
/// Any other text is a region: "name" in orv.reg, "file:name", or "fi:file" for the first region
/// of a file; or, with two colons or more, a projection centred on its origin. "miss" and "none"
/// leave the value unset.
class DomainTool {
public:
    DomainTool() = delete;

    /// Domain::getProj.
    static int proj(const char* text);

    /// Stores one field under its key: proj, plon, clat, id, clon, nx, ny, dx or dy. Returns 0 when
    /// the text can't be used, 1 for a key of any other name.
    static int setParam(DomainVal& val, const char* text, const char* key);
    /// Stores the fields under the keys of a comma-separated list. 0 when the numbers differ or a
    /// field can't be used; the fields before that stay stored.
    static int setParams(DomainVal& val, const Strings& fields, const char* keys);

    /// Reads any of the forms. Returns 0 with a warning when none fits and no region has the name;
    /// val may be partly filled then. A region may name another region, up to 10 deep.
    static int decode(DomainVal& val, const char* text);
    /// The same into a domain, which stays as it was on failure.
    static int decode(Domain& dom, const char* text);

    /// Reads the resource plot_domain, or def when that has no value. The domain stays as it was
    /// when that fails or def is null.
    static void set(Domain& dom, const char* def);
    /// Reads the resource plot_domain; 0 when it has no value.
    static int set(Domain& dom);
};

} // namespace ORV
