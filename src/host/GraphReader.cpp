#include "host/GraphReader.h"

#include "embedment/GraphRecord.h"
#include "embedment/win32/GraphMessages.h"

namespace graphreader {

std::vector<GraphCall> ReadDrawing(HWND graph) {
    GraphDrawingText query;
    SendMessageA(graph, kGraphDrawing, 0, reinterpret_cast<LPARAM>(&query));
    std::vector<char> text(static_cast<std::size_t>(query.length) + 1);
    query.text = text.data();
    query.capacity = static_cast<int>(text.size());
    SendMessageA(graph, kGraphDrawing, 0, reinterpret_cast<LPARAM>(&query));
    std::vector<GraphCall> calls;
    ReadGraphCalls(text.data(), calls);
    return calls;
}

bool Click(HWND graph, double x) {
    const LRESULT point = SendMessageA(graph, kGraphPointOf, 0, reinterpret_cast<LPARAM>(&x));
    if (point == -1) return false;
    PostMessageA(graph, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageA(graph, WM_LBUTTONUP, 0, point);
    return true;
}

}  // namespace graphreader
