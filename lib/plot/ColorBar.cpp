#include "ORV/ColorBar.h"

#include "ORV/StrLib.h"
#include "ORV/Strings.h"

namespace ORV {

int ColorBar::setParam(const char* param) {
    const Strings items(param, ',');
    for (int i = 0; i < items.getNum(); i++)
        if (items.iequal(i, "lo", 2))
            StrLib::copy(locate, sizeof locate, items.getStringAfter(i, '='));
        else if (items.iequal(i, "ra", 2))
            items.scanf(i, 3, "%f:%f", &range.min, &range.max);
    return 1;
}

} // namespace ORV
