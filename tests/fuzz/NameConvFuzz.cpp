// Three lines: a request, a name, a pattern; the whole is a convention file as well.
#include "ORV/NameConv.h"

#include "Fuzz.h"

#include <algorithm>
#include <cstdlib>

using namespace ORV;

void fuzz(const std::string& text) {
    if (text.find("http:") != std::string::npos)
        return; // nothing leaves this machine
    setenv("orvcurtime", "200701121830", 1);
    makeDatabase("name.cnv", text);
    Orv::putResrc("file_path", Orv::getDatabasePath());
    const std::size_t first = std::min(text.find('\n'), text.size());
    const std::size_t second = std::min(text.find('\n', first + 1), text.size());
    const std::string request = text.substr(0, first);
    const std::string name = text.substr(std::min(first + 1, text.size()), second - first);
    const std::string pattern = "@" + text.substr(std::min(second + 1, text.size()));

    for (const std::string& convention : {pattern, name, std::string("sfc_cvt")}) {
        NameConv conv;
        conv.setLateLimit(3);
        conv.setFixDate(name.c_str());
        conv.set(convention.c_str());
        conv.min_time = Const::MISS; // a search as long as the file asks for would take seconds
        NameConvFile result;
        conv.decode(name.c_str());
        conv.setFile(conv.date, result);
        if (request.find("#") == std::string::npos)
            conv.setLatest(request.c_str(), result);
    }
}
