#pragma once

#include "ORV/Orv.h"

#include "TempDir.h"
#include <gtest/gtest.h>

namespace ORV {

/// A database directory of its own for each test, put in place of the one in use.
class Database : public testing::Test {
protected:
    Database() { Orv::setDatabasePath(dir.path.c_str()); }
    ~Database() override { Orv::setDatabasePath(old_path.c_str()); }

    void write(const char* name, const std::string& text) const { dir.write(name, text); }
    /// The database that comes with the program.
    static void useShipped() { Orv::setDatabasePath(ORV_DATA); }

private:
    std::string old_path = Orv::getDatabasePath();

protected:
    TempDir dir;
};

} // namespace ORV
