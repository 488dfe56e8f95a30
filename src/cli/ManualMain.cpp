// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <iostream>

#include "cli/Manual.h"
#include "cli/Program.h"

// make-manual FOLDER: writes man/*.1 and completion/lumerin, made from the options of the program.

namespace {

void Write(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw std::runtime_error(path.string() + " could not be written");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 2) throw std::runtime_error("the folder is missing");
        const std::filesystem::path folder = argv[1];
        const lumerin::Program program;
        Write(folder / "man" / "lumerin.1", lumerin::ProgramPage(program.Parser()));
        for (const lumerin::CommandParser& command : program.Parser().Commands()) {
            if (command.Name() == "help") continue;
            Write(folder / "man" / ("lumerin-" + command.Name() + ".1"), lumerin::CommandPage(command));
        }
        Write(folder / "completion" / "lumerin", lumerin::BashCompletion(program.Parser()));
    } catch (const std::exception& error) {
        std::cerr << "make-manual: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
