#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

/// A folder of its own for a test, removed with all that is in it.
class TempDir {
public:
    TempDir() {
        std::string name = (std::filesystem::temp_directory_path() / "orv_test_XXXXXX").string();
        path = mkdtemp(name.data());
    }
    ~TempDir() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    /// Writes a file and returns its path.
    std::string write(const std::string& name, const std::string& content) const {
        const std::filesystem::path file = std::filesystem::path(path) / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }
    std::string read(const std::string& name) const {
        std::ifstream in(std::filesystem::path(path) / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    std::string path;
};
