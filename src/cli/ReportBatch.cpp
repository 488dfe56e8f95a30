// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <unordered_set>
#include <utility>

#include "cli/JsonRecord.h"
#include "cli/ReportDriver.h"
#include "cli/RunStamps.h"
#include "export/TableWriter.h"
#include "framework/File.h"
#include "framework/NativePath.h"
#include "framework/TemporaryFolder.h"
#include "framework/WholeFile.h"
#include "script/Border.h"
#include "session/OutputFiles.h"
#include "session/ReportState.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

using Json = nlohmann::ordered_json;

// A document with all tables has no table's name.
PlannedDocument PlanOf(const OwnDocument& document, const ProjectName& project) {
    return {project.basePath, "report", project.basePath + std::string(document.ending)};
}

// Each document that the request asks for, once.
std::vector<PlannedDocument> DocumentsOf(const ReportRequest& options,
                                         const std::vector<ProjectName>& projects) {
    std::vector<PlannedDocument> documents;
    for (const ProjectName& project : projects) {
        const std::size_t first = documents.size();
        for (const OwnDocument* document : options.documents) documents.push_back(PlanOf(*document, project));
        for (const std::string& table : options.tables) {
            for (const int format : options.formats) {
                const TableName& known = ReadTable(table);
                const int kind = known.kind < 0 ? format : known.kind;
                const std::string path =
                    project.basePath + g_NameSeparator +
                    TableFileName(static_cast<unsigned>(known.table), static_cast<unsigned>(kind));
                const bool isNew = std::none_of(
                    documents.begin() + static_cast<std::ptrdiff_t>(first), documents.end(),
                    [&](const PlannedDocument& other) { return other.table == table && other.path == path; });
                if (isNew) documents.push_back({project.basePath, table, path});
            }
        }
    }
    return documents;
}

std::string RecordOf(const ProjectName& project, const ProjectReport& report, long long milliseconds) {
    Json record;
    record["project"] = project.name;
    record["status"] = static_cast<int>(report.status);
    record["files"] = Json::array();
    for (const std::string& file : report.files) record["files"].push_back(ForUser(file));
    record["findings"] = FindingsJson(report.findings);
    record["messages"] = report.messages;
    record["milliseconds"] = milliseconds;
    return RecordLine(std::move(record));
}

// Writes the documents that the dialogs do not have, from one pass over the forces.
class OwnDocumentWriter {
  public:
    OwnDocumentWriter(const ReportRequest& options, const ProjectName& project, ProjectReport& report,
                      std::ostream& out, std::ostream& err)
        : m_options(options), m_project(project), m_report(report), m_out(out), m_err(err) {}

    void Write() {
        try {
            const std::unique_ptr<OpenProject> opened = LoadByName(m_project);
            const Evaluation evaluation(*opened, m_options.cases, m_options.limits,
                                        NeedsOf(m_options.documents));
            AddFindings(*opened, evaluation.Findings());
            if (m_options.strict && HasError(evaluation.Findings())) return;
            for (const OwnDocument* document : m_options.documents) WriteDocument(*document, evaluation);
        } catch (const std::invalid_argument& fault) {
            Fail(kExitUsage, fault);
        } catch (const std::exception& fault) {
            Fail(kExitNotLoaded, fault);
        }
    }

  private:
    void WriteDocument(const OwnDocument& document, const Evaluation& evaluation) {
        try {
            const std::string path = PathOf(m_options.output, PlanOf(document, m_project));
            document.write(evaluation, m_options.common, path);
            m_report.files.push_back(path);
            if (!m_options.json) m_out << ForUser(path) << std::endl;
        } catch (const ExportError& fault) {
            Fail(kExitIncomplete, fault);
        }
    }

    void AddFindings(const OpenProject& opened, const std::vector<Finding>& findings) {
        if (HasError(findings)) m_report.status = Worse(m_report.status, kExitUnsound);
        // The other formats have reported the load and the data.
        if (!m_options.formats.empty()) return;
        m_report.findings = findings;
        for (const std::string& message : opened.messages) Say(message);
        for (const Finding& finding : findings) {
            if (finding.severity == Severity::note) continue;
            PrintLine(m_err, m_project.inputFile + ": " + LineOf(finding));
        }
    }

    void Fail(ExitStatus status, const std::exception& fault) {
        Say(fault.what());
        m_report.status = Worse(m_report.status, status);
    }

    void Say(const std::string& text) {
        PrintLine(m_err, m_project.inputFile + ": " + text);
        m_report.messages.push_back(ForUser(text));
    }

    const ReportRequest& m_options;
    const ProjectName& m_project;
    ProjectReport& m_report;
    std::ostream& m_out;
    std::ostream& m_err;
};

// One project in all formats.
ProjectReport ReportProject(const ReportRequest& options, const ProjectName& project,
                            const std::string& place, std::ostream& out, std::ostream& err) {
    if (!ProjectExists(project)) {
        const std::string text = MissingText(project);
        PrintLine(err, "lumerin: " + text);
        return {kExitNotLoaded, {}, {ForUser(text)}, {}};
    }
    const SharedLoad shared;
    ReportDriver driver(options, project, place, out, err);
    for (const int format : options.formats) {
        const ExitStatus status = driver.Run(format);
        // What cannot be loaded, or has no such cases, is the same in the next format.
        if (status == kExitUsage || status == kExitNotLoaded) break;
        if (options.strict && HasError(driver.Report().findings)) break;
    }
    ProjectReport report = driver.Report();
    if (!options.documents.empty() && Worse(report.status, kExitNotLoaded) != report.status) {
        OwnDocumentWriter(options, project, report, out, err).Write();
    }
    return report;
}

ExitStatus ReportToStandardOutput(ReportRequest options, const ProjectName& project, std::ostream& out,
                                  std::ostream& err) {
    const TemporaryFolder folder;
    options.output.folder = folder.Path();
    // The document goes to `out`, so the path of its temporary file is printed nowhere.
    options.json = true;
    const ProjectReport report = ReportProject(options, project, "", out, err);
    for (const std::string& path : report.files) {
        std::ifstream document(NativePath(path), std::ios::binary);
        out << document.rdbuf();
    }
    out.flush();
    return report.status;
}

// Throws std::invalid_argument when two documents would get one path. The documents of thousands of projects
// would be most of the program's memory, so they are all listed only if two paths have the same hash.
void RequireOwnDocuments(const ReportRequest& options, const std::vector<ProjectName>& projects) {
    std::unordered_set<std::size_t> hashes;
    bool mayClash = options.output.ToStandardOutput();
    for (const ProjectName& project : projects) {
        for (const PlannedDocument& document : DocumentsOf(options, {project})) {
            const std::string path = NormalPath(PathOf(options.output, document));
            mayClash = !hashes.insert(std::hash<std::string>{}(path)).second || mayClash;
        }
    }
    if (mayClash) RequireOwnPaths(options.output, DocumentsOf(options, projects));
}

// A project with its paths or its record on `out`.
ProjectReport ReportAndPrint(const ReportRequest& options, const ProjectName& project,
                             const std::string& place, std::ostream& out, std::ostream& err) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    ProjectReport report = ReportProject(options, project, place, out, err);
    if (options.json) {
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
        out << RecordOf(project, report, took.count()) << std::flush;
    }
    return report;
}

// Passes over a project that an earlier run has done.
void ReportOnce(const ReportRequest& options, const ProjectName& project, const std::string& place,
                RunStamps& stamps, BatchSummary& summary, std::ostream& out, std::ostream& err) {
    const std::string inputs = InputStamp(project);
    if (const std::optional<ProjectOutcome> earlier = stamps.Earlier(project, inputs)) {
        summary.AddUnchanged(earlier->status);
        out << earlier->output << std::flush;
        return;
    }
    std::ostringstream text;
    const ProjectReport report = ReportAndPrint(options, project, place, text, err);
    out << text.str() << std::flush;
    summary.Add(report.status);
    // A message can be about a document that was not written; such a project is done again.
    if (report.messages.empty() && report.status != kExitIncomplete) {
        stamps.Add(project, inputs, {report.status, text.str(), report.files});
    }
}

}  // namespace

ExitStatus RunReports(const ReportRequest& options, std::ostream& out, std::ostream& err) {
    std::vector<ProjectName> projects;
    for (const std::string& name : options.projects) projects.emplace_back(name);
    RequireOwnDocuments(options, projects);
    if (options.output.ToStandardOutput()) {
        return ReportToStandardOutput(options, projects.at(0), out, err);
    }
    if (!options.output.folder.empty()) {
        // Each document says why it cannot be written there.
        MakeFolders(options.output.folder);
    }
    std::optional<RunStamps> stamps;
    if (!options.stamps.empty()) stamps.emplace(options.stamps, options.resumeOptions);
    BatchSummary summary("done", "incomplete");
    const WholeFile::Batch batch;
    for (std::size_t i = 0; i < projects.size(); ++i) {
        const std::string place =
            projects.size() > 1 ? std::to_string(i + 1) + " of " + std::to_string(projects.size()) + ": "
                                : "";
        if (stamps) {
            ReportOnce(options, projects[i], place, *stamps, summary, out, err);
        } else {
            summary.Add(ReportAndPrint(options, projects[i], place, out, err).status);
        }
    }
    const std::string fault = stamps ? stamps->Close() : std::string();
    if (!fault.empty()) PrintLine(err, "lumerin: " + fault);
    summary.Print(err);
    return summary.Worst();
}

}  // namespace lumerin
