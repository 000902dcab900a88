// A resource file.
#include "ORV/ResrcFile.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    Orv::putResrc("prog", "obschart");
    Orv::putResrc("name", "+night");
    ResrcFile file(Orv::resrc);
    file.setTag("night");
    String key, value;
    // Twice: the state of the conditions lives on.
    for (int i = 0; i < 2; i++) {
        file.open(makeFile(bytes));
        while (file.get(key, value) == 1) {
            file.compare(value.get(), key.get());
            file.compare("color_map", key.get());
            file.valid(key.get());
        }
        file.close();
    }
}
