// SPDX-License-Identifier: MIT
#include "cli/ExportRequest.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "cli/Suggest.h"
#include "export/CsvWriter.h"
#include "export/JsonLinesWriter.h"
#include "export/SqliteWriter.h"
#include "export/WorkbookWriter.h"
#include "framework/Backend.h"
#include "framework/File.h"
#include "text/Clock.h"
#include "text/Lists.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

constexpr std::string_view kStandardOutput = "-";

bool IsTextForm(ExportForm form) {
    return form == ExportForm::csv || form == ExportForm::jsonLines;
}

bool IsFolderName(const std::string& path) {
    return (!path.empty() && services::IsFolderSeparator(path.back())) || IsFolder(path);
}

std::string FolderPath(const std::string& folder) {
    const bool ends = !folder.empty() && services::IsFolderSeparator(folder.back());
    return ends ? folder : folder + services::FolderSeparator();
}

void AddTable(const Table& table, ExportRequest& request) {
    if (std::ranges::find(request.tables, &table) == request.tables.end()) request.tables.push_back(&table);
}

std::vector<std::string> AllTableNames() {
    std::vector<std::string> names{"all"};
    for (const Table& table : AllTables()) names.emplace_back(table.name);
    return names;
}

void CheckOutput(const ExportRequest& request) {
    const bool isText = IsTextForm(request.form);
    if (!isText && request.output == kStandardOutput) {
        throw std::invalid_argument("this form needs a file: -o FILE");
    }
    if (!isText && IsFolderName(request.output)) {
        throw std::invalid_argument(request.output + " is a folder; this form needs a file: -o FILE");
    }
    if (request.form == ExportForm::csv && HasOneOutput(request) && request.tables.size() > 1) {
        throw std::invalid_argument(
            "a CSV file holds one table: choose one, or name a folder with -o for a file a table");
    }
}

// No name is written twice, and no project is in an output twice.
void CheckNames(const ExportRequest& request) {
    std::set<std::string> projects, files;
    for (const ProjectName& project : request.projects) {
        if (!projects.insert(project.basePath).second) {
            throw std::invalid_argument("the project " + project.name + " is given twice");
        }
        if (HasOneOutput(request)) continue;
        for (const Table* table : request.tables) {
            const std::string file = FileOf(request, project, *table);
            if (!files.insert(file).second) {
                throw std::invalid_argument("two projects would write " + file +
                                            "; export them to folders of their own");
            }
        }
    }
}

// The unit system of a project; none where it cannot be loaded.
std::optional<UnitSystem> UnitsOf(const ProjectName& project) {
    try {
        return UnitSystemOf(LoadByName(project)->project.data.m_nUnits);
    } catch (const std::runtime_error&) {
        return std::nullopt;  // reported when its turn comes
    }
}

[[noreturn]] void RefuseUnits(const std::string& where, UnitSystem holds, const std::string& what,
                              UnitSystem other) {
    throw std::invalid_argument(where + " has units " + std::string(UnitSystemName(holds)) + ", and " + what +
                                " has " + std::string(UnitSystemName(other)) +
                                "; one output has one unit system: give --units us or --units si");
}

void CheckUnits(const ExportRequest& request) {
    if (!HasOneOutput(request)) return;
    std::optional<UnitSystem> first;
    std::string where;
    if (request.form == ExportForm::sqlite) {
        first = UnitsOfDatabase(request.output);
        where = request.output;
    }
    if (request.units) {
        if (!first || *first == *request.units) return;
        throw std::invalid_argument(where + " has units " + std::string(UnitSystemName(*first)) +
                                    "; choose another file, or --units " +
                                    std::string(UnitSystemName(*first)));
    }
    if (!first && request.projects.size() < 2) return;
    for (const ProjectName& project : request.projects) {
        const std::optional<UnitSystem> units = UnitsOf(project);
        if (!units) continue;
        if (first && *first != *units) RefuseUnits(where, *first, project.name, *units);
        if (first) continue;
        first = units;
        where = project.name;
    }
}

std::unique_ptr<TableWriter> MakeTextWriter(const ExportRequest& request, std::unique_ptr<ByteSink> sink) {
    if (request.form == ExportForm::csv)
        return std::make_unique<CsvWriter>(std::move(sink), request.separator);
    const bool namesTable = HasOneOutput(request) && request.tables.size() > 1;
    return std::make_unique<JsonLinesWriter>(std::move(sink), namesTable);
}

}  // namespace

ExportForm ReadForm(std::string_view name) {
    const std::string lower = LowerCase(name);
    if (lower == "csv") return ExportForm::csv;
    if (lower == "jsonl") return ExportForm::jsonLines;
    if (lower == "sqlite") return ExportForm::sqlite;
    if (lower == "xlsx") return ExportForm::workbook;
    throw std::invalid_argument(UnknownWord(name, "format", {"csv", "jsonl", "sqlite", "xlsx"}));
}

void ReadTables(std::string_view names, ExportRequest& request) {
    while (true) {
        const std::size_t comma = names.find(',');
        const std::string name = LowerCase(names.substr(0, comma));
        if (name == "all") {
            request.wantsAll = true;
            for (const Table& table : AllTables()) AddTable(table, request);
        } else if (const Table* table = FindTable(name)) {
            AddTable(*table, request);
        } else {
            throw std::invalid_argument(UnknownWord(name, "table", AllTableNames()));
        }
        if (comma == std::string_view::npos) return;
        names.remove_prefix(comma + 1);
    }
}

bool HasOneOutput(const ExportRequest& request) {
    return request.output == kStandardOutput || !IsFolderName(request.output);
}

std::string FileOf(const ExportRequest& request, const ProjectName& project, const Table& table) {
    const std::string name = project.basePath.substr(FolderOf(project.basePath).size());
    const char* ending = request.form == ExportForm::csv ? ".csv" : ".jsonl";
    return FolderPath(request.output) + name + '-' + std::string(table.name) + ending;
}

std::string StampsOf(const ExportRequest& request) {
    return FolderPath(request.output) + "lumerin-export.stamps";
}

void CheckExport(const ExportRequest& request) {
    if (request.tables.empty()) throw std::invalid_argument("no table is given: --table NAME");
    if (request.output.empty()) throw std::invalid_argument("the name of the output is empty");
    CheckOutput(request);
    // In one output of all projects nobody could say whose rows are those of an earlier run.
    if (request.resume && HasOneOutput(request)) {
        throw std::invalid_argument(
            "--resume needs a folder, for a file for each project and table: -o DIR/");
    }
    CheckNames(request);
    CheckUnits(request);
}

std::unique_ptr<TableWriter> MakeWriter(const ExportRequest& request, std::ostream& out) {
    switch (request.form) {
        case ExportForm::sqlite:
            return std::make_unique<SqliteWriter>(request.output, std::string(ProgramVersion()));
        case ExportForm::workbook:
            return std::make_unique<WorkbookWriter>(request.output, DocumentTime(), request.limits.ratio);
        case ExportForm::csv:
        case ExportForm::jsonLines:
            break;
    }
    if (request.output != kStandardOutput) return MakeFileWriter(request, request.output);
    return MakeTextWriter(request, std::make_unique<StreamSink>(out));
}

std::unique_ptr<TableWriter> MakeFileWriter(const ExportRequest& request, const std::string& path) {
    return MakeTextWriter(request, std::make_unique<FileSink>(path));
}

}  // namespace lumerin
