#pragma once

#include "ORV/MapPlot.h"

#include "TempDir.h"
#include "plot/PlotFixture.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace ORV {

/// A directory for the map files of a test, which is also where maps and lists are looked for.
class MapTest : public PlotTest {
protected:
    MapTest() {
        Orv::resrc.set("file_path", folder.c_str());
        Orv::setDatabasePath((folder.string() + ":" + ORV_DATA).c_str());
    }

    /// Writes a file, and returns its path.
    std::string write(const std::string& name, const std::string& bytes) {
        return dir.write(name, bytes);
    }
    /// A map file of one line, from 10 south, 20 west to 10 north, 20 east.
    void writeLine(const std::string& name) { write(name, "2 10 -10 20 -20 1\n-10 -20 10 20\n"); }

    TempDir dir;
    std::filesystem::path folder = dir.path;
};

/// Bytes of outside formats, for tests that make files by hand.
class Bytes {
public:
    std::string text;

    Bytes& big2(unsigned v) { return put(v >> 8).put(v); }
    Bytes& big4(std::uint32_t v) { return big2(v >> 16).big2(v); }
    Bytes& bigFloat(float v) {
        std::uint32_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        return big4(bits);
    }
    Bytes& little4(std::uint32_t v) { return put(v).put(v >> 8).put(v >> 16).put(v >> 24); }
    Bytes& littleDouble(double v) {
        std::uint64_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        return little4(static_cast<std::uint32_t>(bits))
            .little4(static_cast<std::uint32_t>(bits >> 32));
    }
    Bytes& put(unsigned v) {
        text += static_cast<char>(v & 255);
        return *this;
    }
    Bytes& zeros(int n) {
        text.append(n, '\0');
        return *this;
    }
};

} // namespace ORV
