#pragma once

namespace ORV {

class CityData;
class EarthPoint;
class String;
class Strings;

/// Operations around the station list: finding its file and a station in it, choosing stations by a
/// small query language, and the conversion between WMO numbers and call letters.
class CityTool {
public:
    CityTool() = delete;

    /// The full name of a city file, looked for on the database path. A null name stands for the
    /// resource "city_file", else "sao.cty". 0 for "none", in any case.
    static int getFilename(const char* name, String& out);

    /// Reads the file up to the station whose id, name or WMO number is the text, ignoring case.
    /// Returns 1 when found.
    static int search(const char* file, const char* text, CityData& out);

    /// The place of the station that search finds; an unset point and 0 when there is none.
    static int locate(const char* file, const char* text, EarthPoint& out);

    /// Finds the first entry of the list that the station satisfies: its index, or -1. An entry is
    /// tests joined by ":" that must all hold, or call letters, a WMO number, or the first five or
    /// more letters of a name. Keys ignore case, and so do all texts but that of "Name=":
    ///
    ///     Name=TEXT           the name contains the text
    ///     ST=TEXT             the state; CN=TEXT and RE=TEXT the country or region
    ///     P=N  P<N  P>N       the priority is N, at most N, at least N
    ///     Lat<X  Lat>X        degrees, at most and at least; also Lon, and Elev in metres
    ///     Ra<LAT:LON:KM       within the distance of a place
    ///
    /// A test without a number, or of a value that the station hasn't got, doesn't hold.
    static int compareData(const Strings& list, const CityData& city);

    /// Call letters made from a WMO number: the letters of its country and the last digits. A
    /// number of no known country comes as five digits; a longer one is cut. out has room for 6
    /// characters.
    static int toId(const char* text, char* out);

    /// The WMO number, as five digits, of call letters in the form that toId makes: five
    /// characters, a letter first and three digits last. Any others give 0 and an empty text. It is
    /// no exact inverse: countries share bases. out has room for 6 characters.
    static int toWmo(const char* id, char* out);
};

} // namespace ORV
