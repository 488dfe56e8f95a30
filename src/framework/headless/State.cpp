// SPDX-License-Identifier: MIT
#include <utility>

#include "framework/headless/Headless.h"

namespace lumerin {

namespace headless {

Settings& State() {
    static Settings settings;
    return settings;
}

void ResetState() {
    State() = Settings{};
}

void SetModalDriver(ModalDriver driver) {
    State().driver = std::move(driver);
}

void SetSink(Sink* sink) {
    State().sink = sink;
}

Sink& CurrentSink() {
    static Sink silent;
    Sink* sink = State().sink;
    return sink == nullptr ? silent : *sink;
}

MessageAnswer Sink::OnMessage(const Message& message) {
    return message.buttons == MessageButtons::yesNo ? State().answer : MessageAnswer::ok;
}

int Sink::OnShellOpen(const std::string&, const std::string&, const std::string&) {
    return State().shellCode;
}

MessageAnswer RecordingSink::OnMessage(const Message& message) {
    messages.push_back(message);
    return Sink::OnMessage(message);
}

int RecordingSink::OnShellOpen(const std::string& verb, const std::string& file,
                               const std::string& parameters) {
    starts.push_back({verb, file, parameters});
    return Sink::OnShellOpen(verb, file, parameters);
}

}  // namespace headless

}  // namespace lumerin
