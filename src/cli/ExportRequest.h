// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "export/TableWriter.h"
#include "records/CaseChoice.h"
#include "records/Evaluation.h"
#include "records/OpenProject.h"
#include "records/Table.h"

namespace lumerin {

enum class ExportForm { csv, jsonLines, sqlite, workbook };

// What is exported, and where to.
struct ExportRequest {
    std::vector<ProjectName> projects;
    std::vector<const Table*> tables;
    bool wantsAll = false;  // "all": a table without rows is no news then
    ExportForm form = ExportForm::csv;
    std::string output = "-";  // a file, an existing folder or a name that ends as one, or standard output
    std::optional<UnitSystem> units;  // none: those of each project
    CaseChoice cases;
    Limits limits;
    char separator = ',';
    // Whether projects are passed over that an earlier run has done, and the options that this holds for.
    bool resume = false;
    std::string options;
};

// Each reader throws std::invalid_argument with a text for the user.

// "csv", "jsonl", "sqlite", "xlsx", in letters of either case.
ExportForm ReadForm(std::string_view name);
// Names with commas between them, in the order that is given, each once; "all" for all tables.
void ReadTables(std::string_view names, ExportRequest& request);

// Whether the rows of all projects go to one file or stream.
bool HasOneOutput(const ExportRequest& request);
// The file of a project and table in a folder: PROJECT-TABLE.csv.
std::string FileOf(const ExportRequest& request, const ProjectName& project, const Table& table);

// Where the stamps of --resume are kept.
std::string StampsOf(const ExportRequest& request);

// Throws std::invalid_argument for what cannot be written as it is asked for. Nothing is written before.
// Loads the projects where their units must be known: one output has one unit system, or a reader would
// compare kips with kilonewtons. A project that cannot be loaded is passed over.
void CheckExport(const ExportRequest& request);

// The writer of a request with one output. Throws ExportError.
std::unique_ptr<TableWriter> MakeWriter(const ExportRequest& request, std::ostream& out);
// That of a file for a table; text forms alone.
std::unique_ptr<TableWriter> MakeFileWriter(const ExportRequest& request, const std::string& path);

}  // namespace lumerin
