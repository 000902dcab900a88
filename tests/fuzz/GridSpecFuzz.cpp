// The texts that select a grid.
#include "ORV/GridSpec.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    makeDatabase("variable.lup", "11 temp Temperature\n7 hght Height\n");
    const GridSpec spec(text.c_str());
    expect(GridSpec::equal(spec, spec));
    spec.getTimeType();
    spec.getTimeOffset();
    spec.getTime1();
    spec.getTime2();
}
