// A city file: every record of the bytes, then the table of them with all its keys.
#include "ORV/CityFile.h"
#include "ORV/CityHash.h"
#include "ORV/Domain.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& bytes) {
    const char* path = makeFile(bytes);
    CityFile file(path);
    CityData city;
    int count = 0;
    while (file.read(city))
        count++;

    CityHash table(path);
    expect(table.getNum() <= count);
    for (const char* found = table.first(); found; found = table.hash.next()) {
        CityHashData data;
        table.get(reinterpret_cast<const CityHashData*>(found)->getId(), data);
    }
    table.setup(path, Domain("ll,40,-77,11,11,1,1"), 8);
}
