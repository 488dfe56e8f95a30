// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "records/Table.h"
#include "support/SampleFolder.h"

namespace lumerin {

// The command line as a script and a person use it: each test runs the program itself.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
namespace fs = std::filesystem;

struct Outcome {
    int status = -1;
    std::string out, err;
};

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int RunShell(const std::string& command) {
    const int code = std::system(command.c_str());
    return WIFEXITED(code) ? WEXITSTATUS(code) : -1;
}

class CommandLine : public testing::Test {
  protected:
    // Both streams apart; `rest` is in the words of the shell and may redirect.
    Outcome Run(const std::string& rest, const std::string& before = "") const {
        const std::string errors = folder.Base("err"), output = folder.Base("out");
        Outcome outcome;
        outcome.status = RunShell("cd " + folder.Path().string() + " && " + before + LUMERIN_BINARY_DIR +
                                  "/lumerin >" + output + " 2>" + errors + " " + rest);
        outcome.out = Content(output);
        outcome.err = Content(errors);
        return outcome;
    }

    SampleFolder folder;
    const std::string pier = folder.Write("pier"), bent = folder.Write("bent");
};

constexpr const char* kAxialFile = "pier_Max_Axial_Forces_Pile_Heads.txt";

TEST_F(CommandLine, AProjectIsNamedWithOrWithoutItsExtensionAndKeepsItsLetters) {
    for (const char* name : {"pier", "pier.in"}) {
        EXPECT_EQ(Run(std::string("report --table axial ") + name).out, std::string(kAxialFile) + "\n");
    }
    const Outcome other = Run("report --table axial pierXYZ");
    EXPECT_EQ(other.status, 3);
    EXPECT_EQ(other.err, "lumerin: no project pierXYZ.in\n");
    EXPECT_EQ(other.out, "");
    EXPECT_EQ(Run("embedment pierXYZ").err, "lumerin: no project pierXYZ.in\n");
}

TEST_F(CommandLine, ProjectsComeFromAFileOrStandardInput) {
    std::ofstream(folder.Base("list")) << "pier\r\n\nbent.in\n";
    const std::string both = std::string(kAxialFile) + "\nbent_Max_Axial_Forces_Pile_Heads.txt\n";
    EXPECT_EQ(Run("report --table axial --files-from list").out, both);
    EXPECT_EQ(Run("report --table axial --files-from - < list").out, both);
    const Outcome missing = Run("report --files-from nowhere");
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.err, "lumerin: the list nowhere could not be read\n");
    EXPECT_EQ(Run("report").err, "lumerin: no project is given\n");
}

TEST_F(CommandLine, AListMayBeginWithTheMarkOfUtf8AndIsNoOtherText) {
    std::ofstream(folder.Base("marked")) << "\xEF\xBB\xBFpier\r\n";
    EXPECT_EQ(Run("report --table axial --files-from marked").out, std::string(kAxialFile) + "\n");
    std::ofstream(folder.Base("wide")) << std::string("p\0i\0e\0r\0", 8);
    const Outcome wide = Run("report --table axial --files-from wide");
    EXPECT_EQ(wide.status, 2);
    EXPECT_EQ(wide.err, "lumerin: the list of projects is no text in UTF-8\n");
}

TEST_F(CommandLine, NoResultIsWrittenOverAFileThatProjectsAreReadFrom) {
    const auto forces = Content(pier + ".vmd");
    for (const char* line :
         {"check pier -o pier.vmd", "check pier -o ./PIER.VMD", "plot pier dc -o pier.vmd",
          "export pier --table verdict -o pier.vmd", "export pier --table verdict --format xlsx -o pier.vmd",
          "compare pier bent -o pier.vmd", "embedment pier --svg pier.vmd", "check pier -o other.PIL2"}) {
        const Outcome outcome = Run(line);
        EXPECT_NE(outcome.status, 0) << line;
        EXPECT_THAT(outcome.err, HasSubstr("projects are read from")) << line;
        EXPECT_EQ(Content(pier + ".vmd"), forces) << line;
    }
    EXPECT_FALSE(fs::exists(folder.Base("PIER.VMD")));
    std::ofstream(folder.Base("list")) << "pier\n";
    for (const char* line :
         {"check --files-from list -o list", "export --table verdict --files-from list -o ./list"}) {
        EXPECT_EQ(Run(line).status, 2) << line;
        EXPECT_EQ(Content(folder.Base("list")), "pier\n") << line;
    }
}

TEST_F(CommandLine, NoDeviceIsReplacedByAFile) {
    // Below /proc no file can be made, so that a fault of this does no harm to the machine.
    for (const char* line : {"check pier -o /dev/fd/1", "export pier --table verdict -o /proc/self/fd/1"}) {
        const Outcome outcome = Run(line);
        EXPECT_EQ(outcome.status, 1) << line;
        EXPECT_THAT(outcome.err, HasSubstr("it is a device")) << line;
        EXPECT_EQ(outcome.out, "") << line;
    }
}

TEST_F(CommandLine, TablesAreAListOrARepeatedOptionAndTakeOneValue) {
    const std::string both = std::string(kAxialFile) + "\npier_Title Page.txt\n";
    EXPECT_EQ(Run("report pier --table axial,title").out, both);
    EXPECT_EQ(Run("report --table axial --table title pier").out, both);
    // The word after the value is a project.
    EXPECT_EQ(Run("report --table axial title").err, "lumerin: no project title.in\n");
    EXPECT_THAT(Run("report --help").out, HasSubstr("--table LIST "));
    EXPECT_THAT(Run("report --help").out, Not(HasSubstr("...  ")));
}

TEST_F(CommandLine, FormatsTablesAndClassesAreReadInAnyLetterCase) {
    const Outcome outcome = Run("report pier --table AXIAL --format PDF --class Strength");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "pier_Max_Axial_Forces_Pile_Heads.pdf\n");
}

TEST_F(CommandLine, CasesAreChosenByNumberPatternAndClass) {
    const auto page = [this](const std::string& options) {
        const Outcome outcome = Run("report pier --table axial -o - " + options);
        EXPECT_EQ(outcome.status, 0) << options << outcome.err;
        return outcome.out;
    };
    const std::string all = page(""), strength = page("--class strength");
    EXPECT_NE(strength, all);
    EXPECT_EQ(page("--cases 'strength*'"), strength);
    EXPECT_EQ(page("--class strength,service,extreme,fatigue"), all);
    EXPECT_NE(page("--cases 1-2"), all);
}

TEST_F(CommandLine, AnEmptyListOfCasesIsWrongUsage) {
    for (const char* option : {"--cases ''", "--cases=", "--cases 1,", "--class ''", "--class other"}) {
        EXPECT_EQ(Run(std::string("report pier ") + option).status, 2) << option;
    }
    EXPECT_FALSE(fs::exists(folder.Base("pier_Full_Report.txt")));
    EXPECT_THAT(Run("report pier --class strenght").err, HasSubstr("; do you mean strength?"));
}

TEST_F(CommandLine, ATableWithoutChosenCasesSaysSo) {
    const Outcome outcome = Run("report pier --class fatigue --table axial");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("pier.in: the table axial has no cases among the chosen ones\n"));
    EXPECT_THAT(Run("report bent --table column-dc").err,
                HasSubstr("bent.in: the table column-dc does not apply to this project\n"));
}

TEST_F(CommandLine, DocumentsGoToAFolderUnderANameOfTheUser) {
    const Outcome outcome =
        Run("report pier bent --table axial,title --format text,pdf -o new/out --name '{project}-{table}'");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(
        outcome.out,
        "new/out/pier-axial.txt\nnew/out/pier-title.txt\nnew/out/pier-axial.pdf\nnew/out/pier-title.pdf\n"
        "new/out/bent-axial.txt\nnew/out/bent-title.txt\nnew/out/bent-axial.pdf\nnew/out/bent-title.pdf\n");
    // The bytes are those of the usual file.
    Run("report pier --table axial");
    EXPECT_EQ(Content(folder.Base("new/out/pier-axial.txt")), Content(folder.Base(kAxialFile)));
    EXPECT_FALSE(fs::exists(folder.Base("pier_Title Page.txt")));
}

TEST_F(CommandLine, TwoDocumentsOfOneNameAreRefusedBeforeAnythingIsWritten) {
    for (const char* options :
         {"report pier --table axial,title -o out --name '{project}'",
          "report pier bent --table axial -o out --name '{table}'", "report pier ./pier.in --table axial"}) {
        const Outcome outcome = Run(options);
        EXPECT_EQ(outcome.status, 2) << options;
        EXPECT_THAT(outcome.err, HasSubstr("two documents have the name")) << options;
    }
    EXPECT_FALSE(fs::exists(folder.Base("out/pier.txt")));
    EXPECT_FALSE(fs::exists(folder.Base(kAxialFile)));
    EXPECT_THAT(Run("report pier --name '{tabel}'").err, HasSubstr("{tabel}; do you mean {table}?"));
    EXPECT_EQ(Run("report pier --name 'a/b'").status, 2);
    // The table of the pile heads is one file whatever the format is.
    EXPECT_EQ(Run("report pier --table pile-heads --format text,excel").status, 0);
}

TEST_F(CommandLine, StandardOutputGetsTheDocumentAndNothingElse) {
    Run("report pier --table axial");
    const Outcome outcome = Run("report pier --table axial -o -");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, Content(folder.Base(kAxialFile)));
    EXPECT_THAT(outcome.err, HasSubstr("warning: incomplete-trials"));
    EXPECT_EQ(Run("report pier --table axial,title -o -").status, 2);
    EXPECT_EQ(Run("report pier --table axial --json -o -").status, 2);
}

TEST_F(CommandLine, AFolderThatIsProtectedSaysPermissionDenied) {
    fs::create_directory(folder.Base("closed"));
    fs::permissions(folder.Base("closed"), fs::perms::owner_read | fs::perms::owner_exec);
    std::string target = "closed";
    // The system lets root write everywhere but into a folder of the system itself.
    if (geteuid() == 0) target = "/sys";
    const Outcome outcome = Run("report pier --table axial -o " + target);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("permission denied: " + target + "/" + kAxialFile + "\n"));
    EXPECT_THAT(outcome.err, Not(HasSubstr("application")));
    EXPECT_EQ(outcome.out, "");
}

TEST_F(CommandLine, AStandardOutputThatIsFullOrClosedIsAnError) {
    for (const char* command : {"report pier --table axial", "help", "info pier"}) {
        for (const char* output : {" >/dev/full", " >&-"}) {
            const Outcome outcome = Run(std::string(command) + output);
            EXPECT_EQ(outcome.status, 1) << command << output;
            EXPECT_THAT(outcome.err, EndsWith("lumerin: standard output could not be written whole\n"))
                << command << output;
        }
    }
    // No line has gone into the document that got the number of the closed stream.
    EXPECT_THAT(Content(folder.Base(kAxialFile)), Not(HasSubstr(kAxialFile)));
}

TEST_F(CommandLine, ARecordAProjectHasStatusFilesAndFindings) {
    fs::resize_file(pier + ".vmd", fs::file_size(pier + ".vmd") - 3 * 68);
    const Outcome outcome = Run("report pier nothing bent --table axial --json");
    EXPECT_EQ(outcome.status, 3);
    std::istringstream lines(outcome.out);
    std::vector<nlohmann::json> records;
    for (std::string line; std::getline(lines, line);) records.push_back(nlohmann::json::parse(line));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0]["project"], "pier");
    EXPECT_EQ(records[0]["status"], 4);
    EXPECT_EQ(records[0]["files"], nlohmann::json::array({kAxialFile}));
    EXPECT_EQ(records[0]["findings"][0]["code"], "missing-records");
    EXPECT_GE(records[0]["milliseconds"], 0);
    EXPECT_EQ(records[0]["version"], ProgramVersion());
    EXPECT_EQ(records[0]["tables_version"], 1);
    EXPECT_EQ(records[1]["status"], 3);
    EXPECT_EQ(records[1]["files"], nlohmann::json::array());
    EXPECT_EQ(records[2]["status"], 0);
    EXPECT_THAT(outcome.err, EndsWith("3 projects: 1 done, 1 not loaded, 1 not sound\n"));
}

TEST_F(CommandLine, ProgressIsForTerminalsAlone) {
    const Outcome outcome = Run("report pier bent --table full");
    EXPECT_THAT(outcome.err, Not(HasSubstr("Loading")));
    EXPECT_THAT(outcome.err, Not(HasSubstr("\033")));
    EXPECT_THAT(outcome.err, EndsWith("2 projects: 2 done\n"));
}

// The program "script" gives it a terminal.
TEST_F(CommandLine, ColoursAreForTerminalsThatDoNotForbidThem) {
    if (RunShell("command -v script >/dev/null") != 0) GTEST_SKIP() << "there is no program script";
    fs::resize_file(pier + ".vmd", fs::file_size(pier + ".vmd") - 3 * 68);
    const auto shown = [this](const std::string& variable) {
        RunShell("cd " + folder.Path().string() + " && " + variable + " script -qec '" + LUMERIN_BINARY_DIR +
                 "/lumerin report pier --table axial' /dev/null >shown 2>&1 </dev/null");
        return Content(folder.Base("shown"));
    };
    EXPECT_THAT(shown("NO_COLOR="), HasSubstr("pier.in: \033[31merror\033[0m: missing-records"));
    EXPECT_THAT(shown("NO_COLOR=1"), HasSubstr("pier.in: error: missing-records"));
}

TEST_F(CommandLine, AnErrorInTheDataEndsWithFourAndAllFilesAreWritten) {
    fs::resize_file(pier + ".vmd", fs::file_size(pier + ".vmd") - 3 * 68);
    const Outcome outcome = Run("report pier bent --table axial --format text,excel");
    EXPECT_EQ(outcome.status, 4);
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 4);
    EXPECT_THAT(outcome.err, HasSubstr("pier.in: error: missing-records: pier.vmd: 3 "));
}

TEST_F(CommandLine, StrictWritesNothingForAProjectWithAnError) {
    fs::resize_file(pier + ".vmd", fs::file_size(pier + ".vmd") - 3 * 68);
    const Outcome outcome = Run("report --strict pier bent --table title --format text,pdf");
    EXPECT_EQ(outcome.status, 4);
    EXPECT_EQ(outcome.out, "bent_Title Page.txt\nbent_Title Page.pdf\n");
    EXPECT_FALSE(fs::exists(folder.Base("pier_Title Page.txt")));
    EXPECT_THAT(outcome.err, HasSubstr("pier.in: nothing is written, because the data have errors\n"));
}

// A not-a-number where no extreme is.
TEST_F(CommandLine, TheTitlePageReadsForcesWhenItIsAskedTo) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    std::fstream file(bent + ".vmd", std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(68 + 8);
    file.write(reinterpret_cast<const char*>(&nan), sizeof nan);
    file.close();
    EXPECT_EQ(Run("report bent --table title").status, 0);
    for (const char* option : {"--findings", "--strict"}) {
        const Outcome outcome = Run(std::string("report bent --table title ") + option);
        EXPECT_EQ(outcome.status, 4) << option;
        EXPECT_THAT(outcome.err, HasSubstr("bent.in: error: not-finite: ")) << option;
    }
}

TEST_F(CommandLine, HelpIsFoundByEachWayAndHasExamplesAndStatuses) {
    const std::string help = Run("help report").out;
    EXPECT_EQ(Run("report --help").out, help);
    EXPECT_EQ(Run("report -h").out, help);
    EXPECT_THAT(help, HasSubstr("first of 2, 3, 4, 1, 0"));
    EXPECT_EQ(Run("help").out, Run("--help").out);
    EXPECT_EQ(Run("help").status, 0);
    for (const char* command : {"report", "check", "info", "export", "embedment", "drive"}) {
        EXPECT_THAT(Run(std::string("help ") + command).out, HasSubstr("\nExamples:\n  lumerin ")) << command;
    }
}

TEST_F(CommandLine, HelpIsAsWideAsTheTerminal) {
    for (const std::size_t width : {60U, 100U}) {
        std::istringstream lines(Run("embedment --help", "COLUMNS=" + std::to_string(width) + " ").out);
        std::size_t longest = 0;
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("  lumerin ")) longest = std::max(longest, line.size());
        }
        EXPECT_LE(longest, std::max<std::size_t>(width, 75));
        EXPECT_GT(longest, width - 10);
    }
}

TEST_F(CommandLine, AWrongWordGetsTheNearestOne) {
    const std::vector<std::pair<const char*, const char*>> words = {
        {"reprot pier", "do you mean report?"},
        {"help chek", "do you mean check?"},
        {"report --tabel axial", "do you mean --table?"},
        {"report pier --table axail", "do you mean axial?"},
        {"report pier --format exel", "do you mean excel?"},
        {"report pier --format xslx", "do you mean xlsx? (text, pdf, excel, xlsx, html)"},
        {"report pier --footer tme", "do you mean time?"},
        {"check pier --format jsn", "do you mean json?"},
        {"info pier --format txt", "do you mean text?"},
        {"export pier --table elements --format sqlit", "do you mean sqlite?"},
        {"export pier --table element_cd", "do you mean element_dc?"},
        {"plot pier cap-momment", "do you mean cap-moment?"},
        {"embedment pier --quantity latrl", "do you mean lateral?"}};
    for (const auto& [arguments, suggestion] : words) {
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_THAT(outcome.err, HasSubstr(suggestion)) << arguments;
    }
    EXPECT_THAT(Run("report pier --table qqqqqq").err, Not(HasSubstr("do you mean")));
}

TEST_F(CommandLine, ManualPagesAreMadeOfEveryCommand) {
    for (const char* name : {"lumerin", "lumerin-report", "lumerin-check", "lumerin-info", "lumerin-export",
                             "lumerin-plot", "lumerin-embedment", "lumerin-drive"}) {
        const fs::path page = fs::path(LUMERIN_BINARY_DIR) / "man" / (std::string(name) + ".1");
        const std::string text = Content(page);
        EXPECT_THAT(text, StartsWith(".TH ")) << name;
        EXPECT_THAT(text, HasSubstr("\n.SH EXAMPLES\n")) << name;
        if (RunShell("command -v man >/dev/null") != 0) continue;
        EXPECT_EQ(RunShell("test -z \"$(man --warnings -l -Tutf8 " + page.string() + " 2>&1 >/dev/null)\""),
                  0)
            << name;
    }
    const std::string report = Content(fs::path(LUMERIN_BINARY_DIR) / "man/lumerin-report.1");
    EXPECT_THAT(report, HasSubstr("\\fB\\-o\\fR, \\fB\\-\\-output\\fR \\fIDIR\\fR\n"));
}

TEST_F(CommandLine, BashCompletesCommandsOptionsAndWords) {
    const auto completed = [this](const std::string& words, int last) {
        std::ofstream(folder.Base("try.sh"))
            << "source " << LUMERIN_BINARY_DIR << "/completion/lumerin\nCOMP_WORDS=(" << words
            << ")\nCOMP_CWORD=" << last << "\n_lumerin 2>/dev/null\necho \"${COMPREPLY[*]}\"\n";
        RunShell("cd " + folder.Path().string() + " && bash try.sh > completed");
        return Content(folder.Base("completed"));
    };
    EXPECT_EQ(completed("lumerin re", 1), "report\n");
    EXPECT_EQ(completed("lumerin report --fo", 2), "--format --footer --font-size\n");
    EXPECT_EQ(completed("lumerin report --format p", 3), "pdf\n");
    EXPECT_EQ(completed("lumerin report --table axial,ti", 3), "axial,title\n");
    EXPECT_EQ(completed("lumerin embedment --quantity lateral-", 3), "lateral-x lateral-y\n");
    EXPECT_EQ(completed("lumerin check pi", 2), "pier.in\n");
}

}  // namespace

}  // namespace lumerin
