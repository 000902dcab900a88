// An hour file: every report of the bytes, and each of them written and read again.
#include "ORV/SfcFile.h"
#include "ORV/String.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const int in_fd = memfd_create("in", 0), out_fd = memfd_create("out", 0);
    static const std::string in = "/proc/self/fd/" + std::to_string(in_fd);
    static const std::string out = "/proc/self/fd/" + std::to_string(out_fd);
    if (ftruncate(in_fd, 0) != 0 || pwrite(in_fd, bytes, size, 0) != static_cast<ssize_t>(size))
        return 0;

    SfcFile file(in.c_str());
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
    if (count != 0)
        std::abort();
    return 0;
}
