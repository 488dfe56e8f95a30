// SPDX-License-Identifier: MIT
// The keyed text file, by one of its three readers; its project is loaded once.

#include "fuzz/Playground.h"
#include "results/LoadProject.h"
#include "results/ReadData.h"

using namespace lumerin;

namespace {

struct NoMessages : Messages {
    void Show(const std::string&) override {}
};

std::optional<Project> LoadOnce() {
    TheFolder().WriteArchive(SampleArchive("pier"));
    NoMessages messages;
    return LoadProject(TheFolder().Base(), messages);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static std::optional<Project> project = LoadOnce();
    if (!project) return -1;
    TheFolder().Write(".MIS", Text(data, size));
    ifstreamex file(TheFolder().Base() + ".MIS");
    FUZZ_READER(file, project->data);
    return 0;
}
