// SPDX-License-Identifier: MIT
#include "samples/Project.h"

#include <string>

#include "samples/Embedment.h"
#include "samples/OutputFile.h"
#include "samples/ResultFiles.h"
#include "samples/TextFiles.h"

namespace lumerin {

namespace samples {
namespace {

constexpr std::size_t kMostSubstructures = 3;  // of any preset
constexpr int kMostTrials = 8;

void Remove(const std::filesystem::path& path) {
    std::error_code error;
    std::filesystem::remove(path, error);
    if (error) throw SampleError("cannot remove " + path.string() + ": " + error.message());
}

// A file left over from a project of another preset would be read as part of this one.
void RemoveLeftovers(const std::filesystem::path& folder, const std::string& name) {
    for (const char* suffix : {".CMB", ".LIM", ".PEL"}) Remove(folder / (name + suffix));
    for (std::size_t k = 0; k < kMostSubstructures; ++k) {
        for (const char* suffix : {".PLF", ".PIL", ".pls", ".ash", ".vmd"}) {
            Remove(folder / (name + NumberedSuffix(suffix, k)));
        }
    }
    for (int trial = 2; trial <= kMostTrials; ++trial) {
        const std::string label = "MPTE" + std::to_string(trial);
        Remove(folder / label / WithSuffix(name + "_", label + ".PEL"));
    }
}

}  // namespace

void WriteProject(const std::filesystem::path& folder, const Project& project) {
    MakeFolder(folder);
    RemoveLeftovers(folder, project.name);
    WriteTextFiles(folder / project.name, project);
    WriteResultFiles(folder / project.name, project);
    WriteEmbedmentStudy(folder, project);
}

}  // namespace samples

}  // namespace lumerin
