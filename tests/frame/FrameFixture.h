#pragma once

#include "ORV/Orv.h"

#include "TempDir.h"
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// A test that changes settings, messages, the environment or the current folder: it works in an
/// empty folder of its own, and all is put back after it.
class FrameFixture : public testing::Test {
protected:
    FrameFixture() : saved(ORV::Orv::resrc), mask(ORV::Orv::message_mask) {
        std::filesystem::current_path(folder);
        ORV::Orv::resrc.clear();
        setVariable("orvdefault", ".");
    }
    ~FrameFixture() override {
        for (const std::string& name : variables)
            unsetenv(name.c_str());
        std::filesystem::current_path(home);
        ORV::Orv::resrc = saved;
        ORV::Orv::message_mask = mask;
        ORV::Orv::setDatabasePath(nullptr);
        ORV::Orv::setProgramName("");
        ORV::Orv::setInitTime(ORV::Const::MISS);
    }

    void setVariable(const char* name, const char* value) {
        setenv(name, value, 1);
        variables.push_back(name);
    }
    static void writeFile(const std::string& path, const std::string& text) {
        const auto parent = std::filesystem::path(path).parent_path();
        if (!parent.empty())
            std::filesystem::create_directories(parent);
        std::ofstream(path) << text;
    }

    TempDir dir;
    std::filesystem::path folder = dir.path, home = std::filesystem::current_path();
    ORV::Resrc saved;
    int mask;
    std::vector<std::string> variables;
};
