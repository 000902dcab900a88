// A level and a forecast time, from the same text and from codes in its bytes; the texts that they
// write are read again.
#include "ORV/ForeTime.h"
#include "ORV/Level.h"

#include "Fuzz.h"

#include <algorithm>
#include <cstring>

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
    ForeTime(text.get()).toCode();
}
} // namespace

void fuzz(const std::string& text) {
    use(Level(text.c_str()));
    use(ForeTime(text.c_str()));
    int codes[2] = {0, 0};
    std::memcpy(codes, text.data(), std::min(text.size(), sizeof codes));
    Level level;
    level.decode(codes[0], codes[1]);
    use(level);
    use(ForeTime(codes[0]));
    ForeTime days(codes[1]);
    days.setOffset(static_cast<float>(codes[0]));
    use(days);
}
