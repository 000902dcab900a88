#include "ORV/RawField.h"

#include <cstdio>

namespace ORV {

int RawField::init() {
    id[0] = info[0] = format[0] = 0;
    index = 0;
    return 1;
}

int RawField::print() const {
    std::printf("Id: %s\nInfo: %s\nFormat: %s\nIndex: %d\n", id, info, format, index);
    return 1;
}

} // namespace ORV
