// Every reader of a date, zone or span text, and the labels of what it read.
#include "ORV/DateTool.h"
#include "ORV/Filename.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    const Timezone zone(text.c_str());
    String out;
    Date header;
    DateTool::decode(text.c_str(), header);
    for (Date date : {header, Date(text.c_str())}) {
        DateTool::createLabel(text.c_str(), date, zone, 1, out);
        DateTool::createLabel(date, zone, "", 12, out);
        date.toText(text.c_str(), out);
        date.adjustMinute(date.day, date.min, date.hour);
        date.addMonths(static_cast<int>(text.size()));
        date.addYears(date.month);
        date.fix();
        date.toText(out);
    }
    Filename files;
    files.setNumFiles(text.c_str());
    files.setFixDate(text.c_str());
}
