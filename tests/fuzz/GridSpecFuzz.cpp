// The texts that select a grid.
#include "ORV/GridSpec.h"

#include "FuzzDatabase.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const FuzzDatabase database;
    database.write("variable.lup", "11 temp Temperature\n7 hght Height\n");
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const GridSpec spec(text.c_str());
    if (!GridSpec::equal(spec, spec))
        std::abort();
    spec.getTimeType();
    spec.getTimeOffset();
    spec.getTime1();
    spec.getTime2();
    return 0;
}
