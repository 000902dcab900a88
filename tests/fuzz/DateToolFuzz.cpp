#include "ORV/DateTool.h"
#include "ORV/Filename.h"

#include <cstdint>
#include <string>

using namespace ORV;

/// Every reader of a date, zone or span text, and the labels of what it read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const Timezone zone(text.c_str());
    String out;
    Date header;
    DateTool::decode(text.c_str(), header);
    for (Date date : {header, Date(text.c_str())}) {
        DateTool::createLabel(text.c_str(), date, zone, 1, out);
        DateTool::createLabel(date, zone, "", 12, out);
        date.toText(text.c_str(), out);
        date.adjustMinute(date.day, date.min, date.hour);
        date.addMonths(int(size));
        date.addYears(date.month);
        date.fix();
        date.toText(out);
    }
    Filename files;
    files.setNumFiles(text.c_str());
    files.setFixDate(text.c_str());
    return 0;
}
