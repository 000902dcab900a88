#pragma once

#include "ORV/NameConv.h"
#include "ORV/Orv.h"

#include "Table.h"
#include "TempDir.h"
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

/// A folder of files, where it is 18:30 UTC of 12 January 2007; the settings are put back.
class TimeFixture : public testing::Test {
protected:
    TimeFixture() { setenv("orvcurtime", "200701121830", 1); }
    ~TimeFixture() override {
        unsetenv("orvcurtime");
        ORV::Orv::resrc = before;
        ORV::Orv::init_time = ORV::Const::MISS;
    }
    /// A path without the folder.
    std::string shorten(const std::string& path) const {
        const std::size_t length = dir.path.size() + 1;
        return path.compare(0, length, dir.path + "/") == 0 ? path.substr(length) : path;
    }
    static std::string write(const ORV::Date& date) {
        ORV::String text;
        date.toText("%Y%m%d_%H%M", text);
        return text.get();
    }

    TempDir dir;
    ORV::Resrc before = ORV::Orv::resrc;
};
