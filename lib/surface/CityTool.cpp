#include "ORV/CityTool.h"

#include "ORV/CityData.h"
#include "ORV/CityFile.h"
#include "ORV/EarthPoint.h"
#include "ORV/FileTool.h"
#include "ORV/Orv.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include "CityQuery.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace ORV {
namespace {
constexpr int message_level = 8;
constexpr std::size_t id_size = 6; // five characters and the end

/// WMO numbers from first to last belong to the country whose call letters begin with the prefix.
class WmoBlock {
public:
    int first;
    int last;
    const char* prefix;
};

constexpr WmoBlock wmo_blocks[] = {
    {1000, 1499, "EN"},   {2000, 2699, "ES"},   {2700, 2999, "EF"},   {3000, 3949, "EG"},
    {3950, 3999, "EI"},   {4000, 4099, "BI"},   {4100, 4399, "BG"},   {6000, 6199, "EK"},
    {6200, 6399, "EH"},   {6400, 6499, "EB"},   {6500, 6599, "EL"},   {6600, 6799, "LS"},
    {7000, 7999, "LF"},   {8000, 8499, "LE"},   {8500, 8579, "LP"},   {10000, 10999, "ED"},
    {11000, 11399, "LO"}, {11400, 11799, "LK"}, {11800, 11999, "LZ"}, {12100, 12699, "EP"},
    {12700, 12999, "LH"}, {13000, 13599, "LY"}, {13600, 13699, "LA"}, {14000, 14299, "LJ"},
    {15000, 15499, "LR"}, {15500, 15999, "LB"}, {16000, 16599, "LI"}, {16600, 16999, "LG"},
    {17000, 17499, "LT"}, {17500, 17699, "LC"}, {20000, 29999, "U"},  {30000, 39999, "X"},
    {40000, 40099, "OS"}, {40100, 40149, "OL"}, {40150, 40199, "LL"}, {40250, 40349, "OJ"},
    {40350, 40499, "OE"}, {40500, 40599, "OK"}, {40600, 40699, "OR"}, {40700, 40899, "OI"},
    {40900, 40999, "OA"}, {41000, 41149, "OE"}, {41150, 41159, "OB"}, {41160, 41179, "OE"},
    {41180, 41239, "OT"}, {41240, 41319, "OM"}, {41320, 41409, "OY"}, {41410, 41499, "OD"},
    {41500, 41799, "OP"}, {41800, 41999, "VG"}, {42000, 42999, "VI"}, {43000, 43999, "VO"},
    {44000, 44399, "ZM"}, {44400, 44499, "VN"}, {45000, 45099, "VH"}, {46000, 46999, "RC"},
    {47000, 47079, "ZK"}, {47080, 47199, "RK"}, {47400, 47999, "RJ"}, {48000, 48199, "VB"},
    {48300, 48599, "VT"}, {48600, 48689, "WM"}, {48690, 48699, "WS"}, {48800, 48929, "VV"},
    {48930, 48959, "VL"}, {48960, 48999, "VD"}, {50000, 59999, "Z"},  {60000, 60049, "GC"},
    {60050, 60319, "GM"}, {60320, 60339, "GE"}, {60350, 60699, "DA"}, {60700, 60799, "DT"},
    {61000, 61099, "DR"}, {61100, 61299, "GA"}, {61400, 61499, "GQ"}, {61600, 61699, "GO"},
    {61700, 61749, "GB"}, {61750, 61799, "GG"}, {61800, 61849, "GU"}, {61850, 61899, "GF"},
    {62000, 62299, "HL"}, {62300, 62499, "HE"}, {62600, 62999, "HS"}, {63000, 63099, "HA"},
    {63100, 63149, "HF"}, {63150, 63299, "HC"}, {63300, 63499, "HA"}, {63600, 63979, "HK"},
    {63980, 63999, "FS"}, {64000, 64360, "FZ"}, {64380, 64389, "HR"}, {64390, 64399, "HB"},
    {64400, 64499, "FC"}, {64500, 64599, "FO"}, {64600, 64699, "FE"}, {64700, 64799, "FT"},
    {64800, 64849, "FG"}, {64850, 64999, "FK"}, {65000, 65299, "DN"}, {65300, 65349, "DB"},
    {65350, 65399, "DX"}, {65400, 65499, "DG"}, {65500, 65524, "DF"}, {65525, 65599, "DI"},
    {65600, 65699, "GL"}, {66000, 66999, "FN"}, {67000, 67199, "FM"}, {67200, 67399, "FQ"},
    {67400, 67753, "FL"}, {67755, 67789, "FV"}, {67790, 67799, "FW"}, {67800, 67999, "FV"},
    {68000, 68999, "FA"}, {69000, 69999, "KQ"}, {70000, 70999, "PA"}, {71000, 71999, "CY"},
    {72000, 72999, "K2"}, {74000, 74999, "K4"}, {76000, 76999, "MM"}, {78000, 78199, "MY"},
    {78200, 78379, "MU"}, {78380, 78384, "MW"}, {78385, 78399, "MK"}, {78400, 78449, "MT"},
    {78450, 78499, "MD"}, {78500, 78519, "MH"}, {78520, 78534, "TJ"}, {78535, 78550, "TI"},
    {78580, 78599, "MZ"}, {78600, 78649, "MG"}, {78650, 78699, "MS"}, {78700, 78729, "MH"},
    {78730, 78759, "MN"}, {78760, 78789, "MR"}, {78790, 78819, "MP"}, {78840, 78864, "TK"},
    {78865, 78889, "TN"}, {78890, 78899, "TF"}, {78900, 78919, "TD"}, {78920, 78939, "TF"},
    {78940, 78959, "TL"}, {78960, 78979, "TT"}, {78980, 78999, "TN"}, {80000, 80399, "SK"},
    {80400, 80999, "SV"}, {81000, 81199, "SY"}, {81200, 81399, "SM"}, {81400, 81599, "SO"},
    {82000, 82999, "SB"}, {83000, 83999, "SZ"}, {84000, 84299, "SE"}, {84300, 84999, "SP"},
    {85000, 85399, "SL"}, {85400, 85999, "SC"}, {86000, 86299, "SG"}, {86300, 86599, "SU"},
    {87000, 87999, "SA"}, {88000, 88999, "SF"}, {91000, 91199, "PH"}, {91250, 91259, "PK"},
    {91260, 91299, "PH"}, {91300, 91359, "PT"}, {91360, 91379, "PK"}, {91380, 91399, "PL"},
    {91400, 91449, "PT"}, {91450, 91499, "PL"}, {91500, 91549, "AG"}, {91550, 91569, "NV"},
    {91570, 91599, "NW"}, {91600, 91649, "NG"}, {91650, 91699, "NF"}, {91700, 91749, "N1"},
    {91750, 91759, "NL"}, {91760, 91769, "NS"}, {91770, 91799, "NF"}, {91800, 91849, "NC"},
    {91900, 91959, "NT"}, {92000, 92999, "AY"}, {93000, 93999, "NZ"}, {94100, 95999, "Y"},
    {96000, 96999, "WI"}, {97000, 97999, "WA"}, {98000, 98999, "RP"},
};

/// Call letters of first and one of the second characters have WMO numbers from base on.
class WmoBase {
public:
    char first;
    const char* second;
    int base;
};

constexpr WmoBase wmo_bases[] = {
    {'A', "G", 91000},          {'A', "Y", 92000},       {'B', "GI", 4000},
    {'C', "Y", 71000},          {'D', "AT", 60000},      {'D', "BFGINX", 65000},
    {'E', "N", 1000},           {'E', "FS", 2000},       {'E', "GI", 3000},
    {'E', "BHKL", 6000},        {'E', "D", 10000},       {'E', "P", 12000},
    {'F', "S", 63000},          {'F', "CEGKOTZ", 64000}, {'F', "N", 66000},
    {'F', "LMQVW", 67000},      {'F', "A", 68000},       {'G', "CEM", 60000},
    {'G', "ABFGOQU", 61000},    {'G', "L", 65000},       {'H', "ELS", 62000},
    {'H', "ACFK", 63000},       {'H', "BR", 64000},      {'K', "Q", 69000},
    {'K', "2", 72000},          {'K', "4", 74000},       {'L', "S", 6000},
    {'L', "F", 7000},           {'L', "EP", 8000},       {'L', "KOZ", 11000},
    {'L', "H", 12000},          {'L', "AY", 13000},      {'L', "J", 14000},
    {'L', "BR", 15000},         {'L', "GI", 16000},      {'L', "CT", 17000},
    {'L', "L", 40000},          {'M', "M", 76000},       {'M', "DGHKNPRSTUWYZ", 78000},
    {'N', "CFGLSTVW1", 91000},  {'N', "Z", 93000},       {'O', "AIJKLRS", 40000},
    {'O', "BDMPTY", 41000},     {'P', "A", 70000},       {'P', "HKLT", 91000},
    {'R', "C", 46000},          {'R', "JK", 47000},      {'R', "P", 98000},
    {'S', "KV", 80000},         {'S', "MOY", 81000},     {'S', "B", 82000},
    {'S', "Z", 83000},          {'S', "EP", 84000},      {'S', "CL", 85000},
    {'S', "GU", 86000},         {'S', "A", 87000},       {'S', "F", 88000},
    {'T', "DFIJKLNT", 78000},   {'V', "G", 41000},       {'V', "I", 42000},
    {'V', "O", 43000},          {'V', "N", 44000},       {'V', "H", 45000},
    {'V', "BDLTV", 48000},      {'W', "MS", 48000},      {'W', "I", 96000},
    {'W', "A", 97000},          {'Z', "M", 44000},       {'Z', "K", 47000},
    {'Z', "0123456789", 50000},
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int readInt(const char* text) {
    return static_cast<int>(
        std::clamp(std::strtol(text, nullptr, 10), long{INT_MIN}, long{INT_MAX}));
}

const char* getPrefix(int wmo) {
    for (const WmoBlock& block : wmo_blocks)
        if (wmo >= block.first && wmo <= block.last)
            return block.prefix;
    return "";
}

int getBase(const char* id, int n) {
    // Saudi Arabia has the end of block 40 and the beginning of block 41.
    if (id[0] == 'O' && id[1] == 'E')
        return n > 300 ? 40000 : n < 300 ? 41000 : 0;
    for (const WmoBase& row : wmo_bases)
        if (id[0] == row.first && std::strchr(row.second, id[1]))
            return row.base;
    return 0;
}

bool isNamed(const CityData& city, const char* text) {
    return StrLib::iequal(text, city.id) || StrLib::iequal(text, city.name) ||
           StrLib::iequal(text, city.wmo);
}
} // namespace

int CityTool::getFilename(const char* name, String& out) {
    if (!name)
        name = Orv::getResrc("city_file", "sao.cty");
    if (StrLib::iequal(name, "none"))
        return 0;
    FileTool::addPath(Orv::getDatabasePath(), name, out);
    return 1;
}

int CityTool::search(const char* file, const char* text, CityData& out) {
    String path;
    if (!StrLib::valid(text) || !getFilename(file, path))
        return 0;
    CityFile cities(path.get());
    if (!cities.isOpen())
        return 0;
    Orv::outMessage(message_level, "Searching the city database file for: %s ...\n", text);
    CityData city;
    while (cities.read(city))
        if (isNamed(city, text)) {
            out = city;
            return 1;
        }
    return 0;
}

int CityTool::locate(const char* file, const char* text, EarthPoint& out) {
    out.init();
    CityData city;
    if (!search(file, text, city))
        return 0;
    return out.set(city.lat, city.lon, city.el);
}

int CityTool::compareData(const Strings& list, const CityData& city) {
    return CityQuery(list).match(city);
}

int CityTool::toId(const char* text, char* out) {
    const int wmo = text ? readInt(text) : 0;
    const char* prefix = getPrefix(wmo);
    switch (std::strlen(prefix)) {
    case 0:
        std::snprintf(out, id_size, "%5.5d", wmo);
        break;
    case 1:
        std::snprintf(out, id_size, "%s%4.4d", prefix, wmo % 10000);
        break;
    default:
        std::snprintf(out, id_size, "%s%3.3d", prefix, wmo % 1000);
    }
    return 1;
}

int CityTool::toWmo(const char* id, char* out) {
    out[0] = 0;
    if (StrLib::length(id) != 5 || !StrLib::check(id, "a") || !std::all_of(id + 2, id + 5, isDigit))
        return 0;
    const int n = readInt(id + 2);
    int wmo = n + getBase(id, n);
    if (id[0] == 'U' || id[0] == 'X')
        wmo = 20000 + readInt(id + 1);
    else if (id[0] == 'Y')
        wmo = 90000 + readInt(id + 1);
    std::snprintf(out, id_size, "%5.5d", wmo);
    return 1;
}

} // namespace ORV
