#pragma once

#include "ORV/Const.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// A row of a table of cases. Its columns stand between bars, without the blanks around them; a
/// column in quotes keeps its blanks and bars, and may hold \n, \t, \r, \" and \\. Columns that
/// aren't there are empty, and missing as numbers.
class Row {
public:
    Row(const Row& names, const std::string& line) : Row(line) {
        if (columns.size() > names.columns.size())
            throw std::runtime_error("Too many columns: " + line);
        columns.resize(names.columns.size());
        for (std::size_t i = 0; i < columns.size(); i++)
            values[names.columns[i]] = columns[i];
    }
    explicit Row(const std::string& line) {
        for (std::size_t at = 0; at < line.size(); at++)
            columns.push_back(read(line, at));
    }

    const char* text(const char* name) const { return values.at(name).c_str(); }
    char letter(const char* name) const { return *text(name); }
    double real(const char* name) const {
        return *text(name) ? std::stod(text(name)) : ORV::Const::MISS;
    }
    float number(const char* name) const { return static_cast<float>(real(name)); }
    int integer(const char* name) const { return static_cast<int>(real(name)); }
    /// All of a column, "-" being missing.
    std::vector<float> numbers(const char* name) const {
        std::vector<float> all;
        std::istringstream in(text(name));
        for (std::string word; in >> word;)
            all.push_back(word == "-" ? ORV::Const::MISS : std::stof(word));
        return all;
    }

private:
    // Reads a column, and leaves the place at its bar.
    static std::string read(const std::string& line, std::size_t& at) {
        at = std::min(line.find_first_not_of(' ', at), line.size());
        std::string column;
        if (at == line.size() || line[at] != '"') {
            const std::size_t end = std::min(line.find('|', at), line.size());
            column = line.substr(at, end - at);
            at = end;
            return column.erase(column.find_last_not_of(' ') + 1);
        }
        while (++at < line.size() && line[at] != '"')
            column += line[at] == '\\' ? unescape(line[++at]) : line[at];
        at = std::min(line.find('|', at), line.size());
        return column;
    }
    static char unescape(char c) { return c == 'n' ? '\n' : c == 't' ? '\t' : c == 'r' ? '\r' : c; }

    std::vector<std::string> columns;
    std::map<std::string, std::string> values;
};

/// The rows of a file of tests/data below the names of its columns; empty lines and those that
/// begin with "#" are passed over. A file without rows is an error, so that no test passes for want
/// of cases.
inline std::vector<Row> readTable(const std::string& file) {
    std::ifstream in(ORV_TEST_DATA "/" + file);
    std::optional<Row> names;
    std::vector<Row> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        if (names)
            rows.emplace_back(*names, line);
        else
            names.emplace(line);
    }
    if (rows.empty())
        throw std::runtime_error("No rows: " + file);
    return rows;
}
