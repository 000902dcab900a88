// A level and a forecast time, from the same text and from codes in its bytes; the texts that they
// write are read again.
#include "ORV/ForeTime.h"
#include "ORV/Level.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

using namespace ORV;

namespace {

void use(const Level& level) {
    String text;
    level.toLabel(text);
    level.toString(text);
    level.toTypeCode();
    level.toLevelCode();
    Level again(text.get());
}

void use(const ForeTime& time) {
    String text;
    time.toTimeLabel(text);
    time.toTimeLabelDay(text);
    time.toVarLabel(text);
    time.getSeconds();
    time.getHours();
    ForeTime coded(time.toCode());
    time.toString(text);
    ForeTime again(text.get());
    again.toCode();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    use(Level(text.c_str()));
    use(ForeTime(text.c_str()));
    int codes[2] = {0, 0};
    std::memcpy(codes, bytes, std::min(size, sizeof codes));
    Level level;
    level.decode(codes[0], codes[1]);
    use(level);
    use(ForeTime(codes[0]));
    ForeTime days(codes[1]);
    days.setOffset(static_cast<float>(codes[0]));
    use(days);
    return 0;
}
