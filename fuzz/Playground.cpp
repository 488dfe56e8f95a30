// SPDX-License-Identifier: MIT
#include "fuzz/Playground.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <stdexcept>

#include "cli/CheckReport.h"
#include "cli/InfoReport.h"
#include "cli/ScriptDriver.h"
#include "framework/File.h"
#include "records/Verdict.h"
#include "script/Script.h"
#include "session/DesignerDlg.h"
#include "session/Launch.h"

namespace lumerin {

namespace fs = std::filesystem;

namespace {

// Formats the lines and discards them.
class NullBuffer : public std::streambuf {
  protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

class StrictDriver : public ScriptDriver {
  public:
    using ScriptDriver::ScriptDriver;
    MessageAnswer OnMessage(const headless::Message& message) override {
        if (message.text.starts_with("The operation failed") ||
            message.text.starts_with("There is not enough memory")) {
            std::fprintf(stderr, "a step ended in: %s\n", message.text.c_str());
            std::abort();
        }
        return ScriptDriver::OnMessage(message);
    }
};

constexpr const char* kTables =
    "click 1004\nclick 1005\nclick 1006\nclick 1007\nclick 1008\nclick 1009\nclick 1010\nclick 1011\n"
    "click 1012\nclick 1001\nclick 1002\n";

// The tables with a row for each case; a file that states a million cases takes minutes under the sanitizers.
constexpr int kMostCases = 1000;
bool IsLong(const Table& table) {
    return table.name == "element_forces" || table.name == "pile_heads";
}

}  // namespace

Playground::Playground() : m_folder("/dev/shm/lumerin-fuzz-" + std::to_string(getpid())) {
    fs::create_directories(m_folder);
}

Playground::~Playground() {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

void Playground::Clear() const {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(m_folder)) fs::remove_all(entry.path(), ignored);
}

std::string Playground::Path(const std::string& name) const {
    return name.starts_with("MPTE") ? m_folder + "/" + name : Base() + name;
}

bool Playground::Write(const std::string& name, std::string_view bytes) const {
    if (!IsFileName(name)) return false;
    const fs::path path = Path(name);
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return true;
}

void Playground::WriteArchive(const Archive& archive) const {
    Clear();
    for (const auto& [name, bytes] : archive.files) Write(name, bytes);
}

void Playground::Play(const std::string& script, int format) const {
    static NullBuffer nowhere;
    std::ostream out(&nowhere);
    headless::Settings& state = headless::State();
    state.answer = MessageAnswer::yes;
    state.clock = LocalTime{2026, 11, 14, 6, 8, 30, 0};
    StrictDriver driver(ParseScript(script), out);
    headless::SetSink(&driver);
    headless::SetModalDriver([&](headless::HeadlessDialog& dialog) { driver.Drive(dialog); });
    do {
        LaunchLumerin(format, (Base() + ".in").c_str(), "5.2.1", "", "", "plot");
    } while (driver.TakeAgain() != nullptr);
    headless::SetModalDriver(nullptr);
    headless::SetSink(nullptr);
}

void Playground::EvaluateTables() const {
    static NullBuffer nowhere;
    std::ostream out(&nowhere);
    std::unique_ptr<OpenProject> opened;
    try {
        opened = LoadByName(ProjectName(Base()));
    } catch (const std::runtime_error&) {
        return;  // a message for the user
    }
    // What is thrown from here on, and is no fault of a file, is a check that nobody meant to be one.
    try {
        const Evaluation evaluation(*opened, {}, {}, {~0U, true, true});
        for (const Table& table : AllTables()) {
            if (IsLong(table) && opened->project.data.m_nLoadCases > kMostCases) continue;
            EachRow(table, evaluation, UnitSystem::si, [](std::span<const Value>) {});
        }
        CheckResult result{opened->name,
                           kExitDone,
                           {},
                           evaluation.Units(),
                           1.0,
                           0,
                           0,
                           Judge(evaluation),
                           GreatestRatios(evaluation, 5),
                           evaluation.Findings(),
                           0};
        PrintCheck(result, true, false, out);
        PrintCheckJson(result, out);
        ProjectInfo info;
        info.name = opened->name;
        Describe(evaluation, true, info);
        PrintInfo(info, out);
    } catch (const CFileException&) {
        return;
    }
}

Playground& TheFolder() {
    static Playground folder;
    return folder;
}

std::string EveryTableScript(std::uint8_t choice) {
    std::string script;
    const auto everyFormat = [&script] {
        for (const char* format : {"click 1021\nclick 1013\n", "click 1019\n", "click 1020\n"}) {
            script += format;
            script += kTables;
        }
    };
    everyFormat();
    // Bit i of the choice selects case i and every eighth after it; a refused row is skipped.
    script += "click 1038\nclick 1039\nclick 1047\n";
    for (int row = 1; row <= 16; ++row) {
        if ((choice >> ((row - 1) % 8) & 1) != 0) script += "cell " + std::to_string(row) + " 1 1\n";
    }
    script += "click 1\n";
    everyFormat();
    script +=
        "click 1022\ndump\nspin 1026 up\nselect 1027 3\nclick 1034\nselect 1035 1\ngraph-click 20\nclick "
        "1022\n";
    return script;
}

}  // namespace lumerin
