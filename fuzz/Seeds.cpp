// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/Playground.h"
#include "samples/Presets.h"
#include "samples/Project.h"

namespace lumerin {

namespace fs = std::filesystem;

Archive SampleArchive(const std::string& preset) {
    samples::SampleOptions options;
    options.preset = preset;
    options.name = "p";
    options.cases = 3;
    options.rows = 1;
    options.columns = 2;
    const fs::path folder = TheFolder().Base() + "-sample";
    fs::remove_all(folder);
    samples::WriteProject(folder, samples::MakeProject(options));
    Archive archive;
    archive.choice = 5;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        std::string name = fs::relative(entry.path(), folder).string();
        if (name.starts_with("p.")) name.erase(0, 1);
        std::ifstream file(entry.path(), std::ios::binary);
        archive.files.emplace_back(name, std::string(std::istreambuf_iterator<char>(file), {}));
    }
    fs::remove_all(folder);
    return archive;
}

}  // namespace lumerin
