// SPDX-License-Identifier: MIT
// make-seeds DIR: writes the first inputs of every fuzz target into folders of their names.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "fuzz/Playground.h"

using namespace lumerin;

namespace fs = std::filesystem;

namespace {

void Write(const fs::path& folder, const std::string& name, const std::string& bytes) {
    fs::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

std::string FileOf(const Archive& archive, const std::string& name) {
    for (const auto& [file, bytes] : archive.files) {
        if (file == name) return bytes;
    }
    return {};
}

struct Seed {
    const char* target;
    const char* file;
};
constexpr Seed kSeeds[] = {
    {"substructures", ".TWR"},   {"pile-file", ".PLF"},
    {"pile-file-bent", ".PLF"},  {"pile-model", ".PIL"},
    {"convergence", ".ncv"},     {"bearings", ".pls"},
    {"forces", ".vmd"},          {"code-family", ".ash"},
    {"combinations", ".CMB"},    {"limit-states", ".LIM"},
    {"keyed-sections", ".MIS"},  {"keyed-texts", ".MIS"},
    {"keyed-locations", ".MIS"}, {"input", ".in"},
    {"embedment-base", ".PEL"},  {"embedment-trial", "MPTE2/p_MPTE2.PEL"},
};

constexpr const char* kScript =
    "click 1020\nclick 1004\nclick 1001\nclick 1038\nclick 1039\nclick 1047\ncell 2 1 1\nclick 1042\nclick "
    "1\n"
    "click 1022\nspin 1026 up\nselect 1027 3\nclick 1034\nselect 1035 1\ngraph-click 20\nclick 1022\nclick "
    "2\n"
    "click 1013\nclick 1009\nagain\nkey Esc\n";

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make-seeds DIR\n";
        return 2;
    }
    const fs::path folder = argv[1];
    const Archive pier = SampleArchive("pier");
    for (const char* preset : {"pier", "bent", "group", "walls", "bridge", "history"}) {
        const Archive archive = SampleArchive(preset);
        Write(folder / "project", preset, Pack(archive));
        Write(folder / "records", preset, Pack(archive));
        for (const Seed& seed : kSeeds) {
            const std::string bytes = FileOf(archive, seed.file);
            if (!bytes.empty()) Write(folder / seed.target, preset, bytes);
        }
    }
    Write(folder / "sequential", "pier", "\x04" + FileOf(pier, ".PIL"));
    Write(folder / "direct", "pier",
          std::string("\x44\1\0\0\0\2\0\0\0\3\0\0\0\4\0\0\0", 17) + FileOf(pier, ".vmd").substr(0, 680));
    Write(folder / "viewer", "pier",
          std::string("\xd0\7\0\0\xd0\7\0\0\xc4\x09\0\0\xc4\x09\0\0\x64\0\0\0&f\0&s", 25));
    Write(folder / "script", "pier", kScript);
    return 0;
}
