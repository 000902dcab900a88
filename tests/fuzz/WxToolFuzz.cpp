// Present weather in any notation.
#include "ORV/WxTool.h"

#include "Fuzz.h"

using namespace ORV;

void fuzz(const std::string& text) {
    String out;
    WxTool::getWeather(text.c_str(), out);
    WxTool::getSAWeather(text.c_str(), out);
    WxTool::getTextFromWeather(text.c_str(), out);
    WxTool::getWmoFromWeather(text.c_str());
    WxTool::decodeDir(text.c_str());
    WxTool::getCloudStr(text.c_str());
}
