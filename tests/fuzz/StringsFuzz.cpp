// The first byte is the delimiter, the second the limit of fields, the rest the text.
#include "ORV/FloatArray.h"
#include "ORV/StrLib.h"
#include "ORV/String.h"
#include "ORV/Strings.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    if (bytes.size() < 2)
        return;
    const char delim = bytes[0];
    const int maxfields = static_cast<signed char>(bytes[1]);
    const std::string text = bytes.substr(2);
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
}
