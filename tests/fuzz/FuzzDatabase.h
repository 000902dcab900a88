#pragma once

#include "ORV/Orv.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/// A database directory in which a fuzz target places its bytes as one of the files.
class FuzzDatabase {
public:
    FuzzDatabase() {
        char name[] = "/tmp/fuzz_database_XXXXXX";
        if (!mkdtemp(name))
            std::abort();
        directory = name;
        ORV::Orv::setDatabasePath(directory.c_str());
        ORV::Orv::setMessageLevel(0);
    }
    ~FuzzDatabase() {
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }
    FuzzDatabase(const FuzzDatabase&) = delete;
    FuzzDatabase& operator=(const FuzzDatabase&) = delete;

    void write(const char* name, const std::string& text) const {
        std::ofstream(directory / name, std::ios::binary) << text;
    }

private:
    std::filesystem::path directory;
};
