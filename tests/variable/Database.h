#pragma once

#include "ORV/Orv.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace ORV {

/// A database directory of its own for each test, put in place of the one in use.
class Database : public testing::Test {
protected:
    Database() : old_path(Orv::getDatabasePath()) {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        directory = std::filesystem::path(ORV_BINARY_DIR) / "database" / test->test_suite_name() /
                    test->name();
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory);
        Orv::setDatabasePath(directory.c_str());
    }
    ~Database() override {
        Orv::setDatabasePath(old_path.c_str());
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }

    void write(const char* name, const std::string& text) const {
        std::ofstream(directory / name) << text;
    }
    /// The database that comes with the program.
    static void useShipped() { Orv::setDatabasePath(ORV_DATA); }

    std::filesystem::path directory;

private:
    std::string old_path;
};

} // namespace ORV
