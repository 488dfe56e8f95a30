// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"

#include <memory>
#include <optional>
#include <stdexcept>

#include "cli/EvaluationArguments.h"
#include "cli/Options.h"
#include "cli/Progress.h"
#include "cli/ProjectArguments.h"
#include "cli/RunStamps.h"
#include "export/ByteSink.h"
#include "export/CsvWriter.h"
#include "export/Description.h"
#include "export/FilePerTable.h"
#include "framework/File.h"
#include "records/Findings.h"
#include "script/Border.h"

namespace lumerin {

namespace {

// One run of the command.
class ExportRun {
  public:
    ExportRun(const ExportRequest& request, std::ostream& out, std::ostream& err)
        : m_request(request), m_out(out), m_err(err), m_summary("done", "incomplete") {}

    ExitStatus Run();

  private:
    void OpenWriter();
    // Passes over a project that an earlier run has done.
    void ProjectOnce(const ProjectName& name);
    ExitStatus Project(const ProjectName& name);
    ExitStatus Tables(const OpenProject& opened);
    // False: it has no rows.
    bool WriteTable(const Table& table, const Evaluation& evaluation);
    void Abandon();
    ExitStatus Finish();
    void Say(std::string_view text);
    void Say(const ProjectName& project, std::string_view text);

    const ExportRequest& m_request;
    std::ostream& m_out;
    std::ostream& m_err;
    BatchSummary m_summary;
    std::unique_ptr<TableWriter> m_writer;
    std::optional<Progress> m_progress;
    std::optional<RunStamps> m_stamps;
    const ProjectName* m_project = nullptr;
    std::vector<std::string> m_files;  // of the project, in a folder
    bool m_isWritten = false;          // all files of the project
    bool m_isLost = false;             // the one output has a part of a failed project
    bool m_hasProject = false;         // the one output has a project
};

void ExportRun::Say(std::string_view text) {
    m_progress.reset();
    PrintLine(m_err, text);
}

void ExportRun::Say(const ProjectName& project, std::string_view text) {
    Say(ForUser(project.inputFile) + ": " + std::string(text));
}

void ExportRun::OpenWriter() {
    if (HasOneOutput(m_request)) {
        m_writer = MakeWriter(m_request, m_out);
        return;
    }
    if (!MakeFolders(m_request.output)) throw ExportError("the folder cannot be made: " + m_request.output);
    m_writer = std::make_unique<FilePerTable>([this](const Table& table) {
        m_files.push_back(FileOf(m_request, *m_project, table));
        return MakeFileWriter(m_request, m_files.back());
    });
}

ExitStatus ExportRun::Run() {
    CheckExport(m_request);
    try {
        OpenWriter();
    } catch (const ExportError& fault) {
        Say(std::string("lumerin: ") + fault.what());
        return kExitIncomplete;
    }
    if (m_request.resume) m_stamps.emplace(StampsOf(m_request), m_request.options);
    for (const ProjectName& project : m_request.projects) {
        m_project = &project;
        m_files.clear();
        m_isWritten = false;
        ProjectOnce(project);
        if (m_isLost) break;
    }
    const ExitStatus status = Worse(m_summary.Worst(), Finish());
    m_progress.reset();
    const std::string fault = m_stamps ? m_stamps->Close() : std::string();
    if (!fault.empty()) Say("lumerin: " + fault);
    m_summary.Print(m_err);
    return status;
}

void ExportRun::ProjectOnce(const ProjectName& name) {
    if (!m_stamps) {
        m_summary.Add(Project(name));
        return;
    }
    const std::string inputs = InputStamp(name);
    if (const std::optional<ProjectOutcome> earlier = m_stamps->Earlier(name, inputs)) {
        m_summary.AddUnchanged(earlier->status);
        m_out << earlier->output;
        return;
    }
    const ExitStatus status = Project(name);
    m_summary.Add(status);
    if (!m_isWritten) return;
    ProjectOutcome outcome{status, {}, m_files};
    for (const std::string& file : m_files) outcome.output += file + '\n';
    m_stamps->Add(name, inputs, outcome);
}

ExitStatus ExportRun::Project(const ProjectName& name) {
    m_progress.emplace(m_err, "Exporting " + ForUser(name.inputFile));
    std::unique_ptr<OpenProject> opened;
    try {
        opened = LoadByName(name);
    } catch (const std::runtime_error& fault) {
        Say(name, fault.what());
        return kExitNotLoaded;
    }
    for (const std::string& message : opened->messages) Say(name, message);
    try {
        return Tables(*opened);
    } catch (const CFileException& fault) {
        Say(name, fault.what());
        Abandon();
        return kExitNotLoaded;
    } catch (const ExportError& fault) {
        Say(name, fault.what());
        Abandon();
        return kExitIncomplete;
    }
}

ExitStatus ExportRun::Tables(const OpenProject& opened) {
    std::optional<Evaluation> evaluation;
    try {
        evaluation.emplace(opened, m_request.cases, m_request.limits, NeedsOf(m_request.tables));
    } catch (const std::invalid_argument& fault) {
        Say(opened.name, fault.what());
        return kExitUsage;
    }
    ExitStatus status = kExitDone;
    m_hasProject = true;
    m_writer->BeginProject(opened.name.name);
    for (const Table* table : m_request.tables) {
        const bool hasRows = WriteTable(*table, *evaluation);
        if (hasRows || m_request.wantsAll || table->name == "findings") continue;
        Say(opened.name, "the table " + std::string(table->name) + " has no rows");
        status = kExitIncomplete;
    }
    m_writer->EndProject();
    m_isWritten = true;
    m_progress.reset();
    for (const std::string& file : m_files) m_out << file << '\n';
    for (const Finding& finding : evaluation->Findings()) {
        if (finding.severity != Severity::note) Say(opened.name, LineOf(finding));
    }
    return HasError(evaluation->Findings()) ? Worse(status, kExitUnsound) : status;
}

bool ExportRun::WriteTable(const Table& table, const Evaluation& evaluation) {
    bool hasRows = false;
    const UnitSystem system = m_request.units.value_or(evaluation.Units());
    m_writer->BeginTable(table, system);
    EachRow(table, evaluation, system, [&](std::span<const Value> row) {
        hasRows = true;
        m_writer->Row(row);
    });
    m_writer->EndTable();
    return hasRows;
}

void ExportRun::Abandon() {
    if (m_writer->AbandonProject()) return;
    m_isLost = true;
    Say(m_request.output == "-" ? "lumerin: the output is not whole"
                                : "lumerin: " + m_request.output + " was not written");
}

ExitStatus ExportRun::Finish() {
    if (m_isLost) return kExitDone;
    const bool isOneFile = HasOneOutput(m_request) && m_request.output != "-";
    // A file without a project would look like a result.
    if (isOneFile && !m_hasProject) return kExitDone;
    try {
        m_writer->Close();
    } catch (const ExportError& fault) {
        Say(std::string("lumerin: ") + fault.what());
        return kExitIncomplete;
    }
    if (isOneFile) m_out << m_request.output << '\n';
    m_out << std::flush;
    return m_out ? kExitDone : kExitIncomplete;
}

struct ExportArguments {
    ProjectArguments projects;
    EvaluationArguments evaluation;
    ExportRequest request;
    CommonOptions common;
    bool describe = false;
};

constexpr const char* kExportFooter =
    "--describe prints what the tables, their columns and units are; so do the documents, under data.\n\n"
    "Examples:\n"
    "  lumerin export pier.in --table element_dc > element_dc.csv\n"
    "  lumerin export pier.in --table section_dc,section_forces -o results/\n"
    "  lumerin export bridges/ --table verdict --units us -o verdict.csv\n"
    "  lumerin export pier.in --table all --format sqlite -o results.sqlite\n"
    "  lumerin export pier.in --table pile_axial,cap_moment --format xlsx -o pier.xlsx\n"
    "  lumerin export bridges/ --table all --units us -o data/ --resume\n\n"
    "Exit status: 0 done, 1 a table has no rows or an output was not written, 2 wrong usage, 3 a project\n"
    "could not be loaded (the others are exported all the same), 4 the data of a project have errors (they\n"
    "are exported all the same). Of several the first of 2, 3, 4, 1, 0.";

void AddExportOptions(CommandParser& command, ExportArguments& arguments) {
    ExportRequest& request = arguments.request;
    AddProjectArguments(command, arguments.projects);
    command
        .OnTexts(
            "--table",
            [&request](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) ReadTables(text, request);
            },
            "The tables, such as element_dc,cap_moment; all for every table")
        .OneValueEach()
        .Takes("LIST");
    command
        .OnText(
            "--format", [&request](const std::string& text) { request.form = ReadForm(text); },
            "csv (default), jsonl, sqlite or xlsx")
        .Takes("FORMAT");
    command
        .Add("-o,--output", request.output,
             "A file, a folder (a file for each project and table; text forms alone), or - for standard "
             "output (default)")
        .Takes("FILE|DIR|-");
    command
        .OnText(
            "--separator",
            [&request](const std::string& text) {
                const std::optional<char> separator = ReadSeparator(text);
                if (!separator) throw std::invalid_argument("\"" + text + "\" is no separator of CSV");
                request.separator = *separator;
            },
            "Character between the fields of CSV (default ,); tab for the tabulator")
        .Takes("CHARACTER");
    AddEvaluationArguments(command, arguments.evaluation);
    command.Add("--clock", arguments.common.clock, "Date and time of a workbook, YYYY-MM-DDTHH:MM:SS")
        .Takes("TIME");
    AddResumeOption(command, request.resume, "-o DIR");
    command.AddFlag("--describe", arguments.describe, "Print the description of all tables (Markdown)");
}

ExitStatus RunArguments(const CommandParser& command, ExportArguments& arguments, std::ostream& out,
                        std::ostream& err) {
    if (arguments.describe) {
        out << DescribeTables(AllTables()) << std::flush;
        return kExitDone;
    }
    ExportRequest request = arguments.request;
    RequireOtherThanList(arguments.projects, request.output);
    request.projects = ReadProjects(arguments.projects);
    request.options = GivenOptions(command);
    request.cases = arguments.evaluation.cases;
    request.limits = arguments.evaluation.limits;
    request.units = arguments.evaluation.units;
    ApplyOptions(arguments.common);
    return RunExport(request, out, err);
}

}  // namespace

ExitStatus RunExport(const ExportRequest& request, std::ostream& out, std::ostream& err) {
    return ExportRun(request, out, err).Run();
}

ProgramCommand AddExportCommand(CommandParser& program) {
    const auto arguments = std::make_shared<ExportArguments>();
    CommandParser command = program.AddCommand("export", "Write results as tables of data");
    AddExportOptions(command, *arguments);
    command.SetFooter(kExportFooter);
    return {command, [arguments, command](std::ostream& out, std::ostream& err) {
                return RunArguments(command, *arguments, out, err);
            }};
}

}  // namespace lumerin
