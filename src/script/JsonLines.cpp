// SPDX-License-Identifier: MIT
#include "script/JsonLines.h"

#include <charconv>
#include <nlohmann/json.hpp>

#include "framework/Index.h"
#include "script/Border.h"

namespace lumerin {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kKindNames[] = {"group", "radio", "check", "button", "text",
                                      "edit",  "combo", "spin",  "grid",   "graph"};
constexpr const char* kIconNames[] = {"none", "exclamation", "question", "error"};

std::string Unquoted(std::string_view text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    return std::string(text);
}

std::string FileNameOf(const std::string& path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

// Numbers in their shortest form: a whole number carries no decimals.
std::string NumberText(double value) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return std::string(buffer, end);
}

struct ValueText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(int value) const { return std::to_string(value); }
    std::string operator()(double value) const { return NumberText(value); }
    std::string operator()(const std::string& value) const { return Json(ForUser(value)).dump(); }
};

std::string ValueList(const std::vector<GraphValue>& values) {
    std::string text = "[";
    for (const GraphValue& value : values) {
        if (text.size() > 1) text += ',';
        text += std::visit(ValueText{}, value);
    }
    return text + ']';
}

}  // namespace

void JsonLines::Dialog(std::string_view title) {
    m_out << Json{{"dialog", ForUser(title)}}.dump() << '\n';
}

void JsonLines::Control(const ControlState& state) {
    Json line;
    line["id"] = state.id;
    line["kind"] = kKindNames[Index(state.kind)];
    line["text"] = ForUser(state.text);
    line["enabled"] = state.enabled;
    line["visible"] = state.visible;
    if (state.kind == ControlKind::radio || state.kind == ControlKind::check) line["checked"] = state.checked;
    if (state.kind == ControlKind::combo) line["selection"] = state.selection;
    m_out << line.dump() << '\n';
}

void JsonLines::Message(std::string_view text, std::string_view title, MessageIcon icon) {
    Json line;
    line["message"] = ForUser(text);
    line["title"] = ForUser(title);
    line["icon"] = kIconNames[Index(icon)];
    m_out << line.dump() << '\n';
}

void JsonLines::Open(const std::string& file, const std::string& parameters) {
    Json line;
    line["open"] = ForUser(Unquoted(parameters.empty() ? file : parameters));
    line["program"] = parameters.empty() ? std::string() : ForUser(FileNameOf(Unquoted(file)));
    m_out << line.dump() << '\n';
}

void JsonLines::Module(std::string_view module, int number, const std::vector<std::string>& texts) {
    Json line;
    line["module"] = ForUser(module);
    line["arguments"] = Json::array({number});
    for (const std::string& text : texts) line["arguments"].push_back(ForUser(text));
    m_out << line.dump() << '\n';
}

void JsonLines::Row(int row, const std::vector<std::string>& cells) {
    Json line;
    line["row"] = row;
    line["cells"] = Json::array();
    for (const std::string& cell : cells) line["cells"].push_back(ForUser(cell));
    m_out << line.dump() << '\n';
}

void JsonLines::Focus(const FocusState& state) {
    Json line;
    line["focus"] = state.id;
    if (state.kind == ControlKind::edit) {
        line["text"] = ForUser(state.text);
        line["selection"] = {state.start, state.end};
    }
    if (state.kind == ControlKind::grid) {
        const GridView& grid = state.grid;
        line["cell"] = {grid.row, grid.column};
        line["selected"] = {grid.top, grid.left, grid.bottom, grid.right};
        line["cells"] = grid.selected;
        if (grid.tipRow >= 0) line["tip"] = {grid.tipRow, grid.tipColumn};
        if (grid.editing) {
            line["editor"] = {{"text", ForUser(grid.text)},
                              {"selection", {grid.start, grid.end}},
                              {"wider", grid.outgrewCell}};
        }
    }
    m_out << line.dump() << '\n';
}

void JsonLines::Plot(const std::vector<GraphCall>& calls) {
    m_out << "{\"plot\":[";
    const char* separator = "";
    for (const GraphCall& call : calls) {
        m_out << separator << (call.isMethod ? "[\"call\"," : "[\"set\",") << call.dispatchId << ',';
        if (call.isMethod) {
            m_out << ValueList(call.values);
        } else if (!call.values.empty()) {
            m_out << std::visit(ValueText{}, call.values.front());
        } else {
            m_out << "null";
        }
        m_out << ']';
        separator = ",";
    }
    m_out << "]}\n";
}

void JsonLines::Result(unsigned result) {
    m_out << Json{{"result", result}}.dump() << '\n';
}

void JsonLines::Refused(std::string_view what) {
    m_refused = true;
    Json line;
    line["refused"] = ForUser(what);
    m_out << line.dump() << '\n';
}

}  // namespace lumerin
