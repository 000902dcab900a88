// A METAR cache, plain or packed: every row and the report that it makes.
#include "ORV/MetarCache.h"
#include "ORV/MetarReport.h"
#include "ORV/SfcData.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    MetarCache cache;
    cache.open(makeFile(bytes));
    MetarReport report, before;
    while (cache.read()) {
        if (report.decode(cache) != MetarReport::GOOD)
            continue;
        const long distance = report.data.getSeconds() - report.getHourSeconds();
        expect(distance >= -600 && distance < 3000);
        report.isBetter(before);
        before = report;
    }
}
