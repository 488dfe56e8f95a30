// SPDX-License-Identifier: MIT
#include "embedment/GraphRecord.h"

#include <charconv>

namespace lumerin {

namespace {

// A line is "set" or "call", the dispatch id and the values, each preceded by kFieldEnd; a value begins with
// the letter of its type.
constexpr char kFieldEnd = '\x1f';
constexpr std::string_view kSet = "set", kCall = "call";

template <class Number>
std::string NumberText(Number value) {
    char buffer[40];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

struct ValueText {
    std::string operator()(bool value) const { return value ? "b1" : "b0"; }
    std::string operator()(int value) const { return 'i' + NumberText(value); }
    std::string operator()(double value) const { return 'd' + NumberText(value); }
    std::string operator()(const std::string& value) const {
        std::string text = "s" + value;
        std::erase(text, '\n');
        std::erase(text, kFieldEnd);
        return text;
    }
};

template <class Number>
bool ReadNumber(std::string_view text, Number& value) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

bool ReadValue(std::string_view field, GraphValue& value) {
    if (field.empty()) return false;
    const char type = field.front();
    field.remove_prefix(1);
    int integer = 0;
    double real = 0.0;
    switch (type) {
        case 's':
            value = std::string(field);
            return true;
        case 'b':
            value = field == "1";
            return field == "0" || field == "1";
        case 'i':
            if (!ReadNumber(field, integer)) return false;
            value = integer;
            return true;
        case 'd':
            if (!ReadNumber(field, real)) return false;
            value = real;
            return true;
        default:
            return false;
    }
}

// Takes the text up to `end` from the front; all of it where there is no `end`.
std::string_view Take(std::string_view& text, char end) {
    const std::size_t at = text.find(end);
    const std::string_view part = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return part;
}

bool ReadCall(std::string_view line, GraphCall& call) {
    const std::string_view verb = Take(line, kFieldEnd);
    call.isMethod = verb == kCall;
    if (!call.isMethod && verb != kSet) return false;
    if (!ReadNumber(Take(line, kFieldEnd), call.dispatchId)) return false;
    while (!line.empty()) {
        GraphValue value;
        if (!ReadValue(Take(line, kFieldEnd), value)) return false;
        call.values.push_back(std::move(value));
    }
    return true;
}

}  // namespace

std::string WriteGraphCalls(const std::vector<GraphCall>& calls) {
    std::string text;
    for (const GraphCall& call : calls) {
        text += call.isMethod ? kCall : kSet;
        text += kFieldEnd + NumberText(call.dispatchId);
        for (const GraphValue& value : call.values) text += kFieldEnd + std::visit(ValueText{}, value);
        text += '\n';
    }
    return text;
}

bool ReadGraphCalls(std::string_view text, std::vector<GraphCall>& calls) {
    while (!text.empty()) {
        GraphCall call;
        if (!ReadCall(Take(text, '\n'), call)) return false;
        calls.push_back(std::move(call));
    }
    return true;
}

}  // namespace lumerin
