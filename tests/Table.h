#pragma once

#include "ORV/Const.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// A row of a table of cases: columns between bars, without the blanks around them. Columns that
/// aren't there are empty.
class Row {
public:
    explicit Row(const std::string& line) {
        std::istringstream in(line);
        for (std::string column; std::getline(in, column, '|');) {
            const std::size_t first = column.find_first_not_of(' ');
            const std::size_t last = column.find_last_not_of(' ');
            columns.push_back(last == std::string::npos ? ""
                                                        : column.substr(first, last - first + 1));
        }
    }

    const char* text(std::size_t i) const { return i < columns.size() ? columns[i].c_str() : ""; }
    /// Missing when the column is empty.
    float number(std::size_t i) const { return *text(i) ? std::stof(text(i)) : ORV::Const::MISS; }
    /// All of a column, "-" being missing.
    std::vector<float> numbers(std::size_t i) const {
        std::vector<float> all;
        std::istringstream in(text(i));
        for (std::string word; in >> word;)
            all.push_back(word == "-" ? ORV::Const::MISS : std::stof(word));
        return all;
    }

private:
    std::vector<std::string> columns;
};

/// The rows of a file of tests/data; empty lines and those that begin with "#" are passed over. A
/// file without rows is an error, so that no test passes for want of cases.
inline std::vector<Row> readTable(const std::string& name) {
    std::ifstream in(ORV_TEST_DATA "/" + name);
    std::vector<Row> rows;
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line[0] != '#')
            rows.emplace_back(line);
    if (rows.empty())
        throw std::runtime_error("No rows: " + name);
    return rows;
}
