// SPDX-License-Identifier: MIT
#include "host/GraphReader.h"

#include "embedment/GraphRecord.h"
#include "embedment/win32/GraphMessages.h"
#include "framework/Index.h"
#include "host/Token.h"

namespace lumerin {

namespace graphreader {

std::vector<GraphCall> ReadDrawing(HWND graph) {
    GraphDrawingText query;
    SendMessageA(graph, kGraphDrawing, token::Get(), reinterpret_cast<LPARAM>(&query));
    std::vector<char> text(Index(query.length) + 1);
    query.text = text.data();
    query.capacity = static_cast<int>(text.size());
    SendMessageA(graph, kGraphDrawing, token::Get(), reinterpret_cast<LPARAM>(&query));
    std::vector<GraphCall> calls;
    ReadGraphCalls(text.data(), calls);
    return calls;
}

bool Click(HWND graph, double x) {
    GraphPoint query{x, {}};
    if (SendMessageA(graph, kGraphPointOf, token::Get(), reinterpret_cast<LPARAM>(&query)) == FALSE)
        return false;
    const LPARAM point = MAKELPARAM(query.place.x, query.place.y);
    PostMessageA(graph, WM_LBUTTONDOWN, MK_LBUTTON, point);
    PostMessageA(graph, WM_LBUTTONUP, 0, point);
    return true;
}

}  // namespace graphreader

}  // namespace lumerin
