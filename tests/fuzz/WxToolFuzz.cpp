// Present weather in any notation.
#include "ORV/WxTool.h"

#include <cstdint>
#include <string>

using namespace ORV;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    String out;
    WxTool::getWeather(text.c_str(), out);
    WxTool::getSAWeather(text.c_str(), out);
    WxTool::getTextFromWeather(text.c_str(), out);
    WxTool::getWmoFromWeather(text.c_str());
    WxTool::decodeDir(text.c_str());
    WxTool::getCloudStr(text.c_str());
    return 0;
}
