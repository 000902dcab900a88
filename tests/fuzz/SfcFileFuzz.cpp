// An hour file: every report of the bytes, and each of them written and read again.
#include "ORV/SfcFile.h"

#include "Fuzz.h"
#include <sys/mman.h>

using namespace ORV;

void fuzz(const std::string& bytes) {
    static const std::string out = "/proc/self/fd/" + std::to_string(memfd_create("out", 0));
    SfcFile file(makeFile(bytes));
    SfcFile copy(out.c_str(), 1, SfcFile::ORV);
    Date date;
    file.getDate(date);
    copy.setDate(date);
    SfcData data;
    String text;
    int count = 0;
    while (!file.atEnd())
        if (file.read(data)) {
            data.outString(text);
            data.weatherText(text);
            data.getCldHeight();
            data.getCldCover();
            copy.write(data);
            data.validate();
            count++;
        }
    copy.close();

    // Each report that was written is there again, once.
    SfcFile again(out.c_str(), 0, SfcFile::ORV);
    while (!again.atEnd())
        count -= again.read(data);
    expect(count == 0);
}
