// A font list and the device fonts in it, set on a graph whose texts are then drawn.
#include "ORV/Graph.h"

#include "Fuzz.h"
#include "RecordingDevice.h"

using namespace ORV;

void fuzz(const std::string& text) {
    makeDatabase("orv.fnl", text);
    Graph graph;
    graph.setDevice(std::make_unique<RecordingDevice>(), 1);
    graph.open();
    graph.setFont("a");
    graph.setTextHeight(0.02f);
    graph.setFont(("#" + text).c_str());
    graph.setTextHeight(0.03f);
    graph.setTextAlign(2, 3);
    graph.drawText(0.1f, 0.1f, text.c_str());
}
