#include "ORV/FloatArray.h"
#include "ORV/Resrc.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include <cstdint>
#include <string>

using namespace ORV;

/// The first byte is the delimiter, the second the limit of fields, the rest the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    if (size < 2)
        return 0;
    const char delim = static_cast<char>(bytes[0]);
    const int maxfields = static_cast<signed char>(bytes[1]);
    const std::string text(reinterpret_cast<const char*>(bytes) + 2, size - 2);

    for (const Strings& list : {Strings(text.c_str()), Strings(text.c_str(), delim),
                                Strings(text.c_str(), delim, maxfields),
                                Strings(text.c_str(), delim, maxfields, "\"[({")})
        for (int i = -1; i <= list.getNum(); i++) {
            list.getIntAfter(i, '=');
            list.getFloat(i, maxfields);
            list.check(i, text.c_str());
            list.equal(i, text.c_str(), maxfields);
        }
    FloatArray values;
    values.set(text.c_str());
    String copied(text.c_str());
    copied.trunc(maxfields);
    copied.append(copied);
    copied.stripWS();
    StrLib::getField(text.c_str(), delim, maxfields);
    StrLib::hasToken(text.c_str(), delim, copied.get());
    return 0;
}
