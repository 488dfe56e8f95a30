// SPDX-License-Identifier: MIT
#include "cli/OwnDocuments.h"

#include <algorithm>
#include <array>

#include "cli/WorkbookReport.h"
#include "export/ByteSink.h"
#include "text/Clock.h"
#include "text/Utf8.h"
#include "web/WebReport.h"

namespace lumerin {

namespace {

void WriteWorkbook(const Evaluation& evaluation, const CommonOptions&, const std::string& path) {
    WriteWorkbookReport(evaluation, path);
}

void WritePage(const Evaluation& evaluation, const CommonOptions& common, const std::string& path) {
    FileSink file(path);
    WriteWebReport(evaluation, {DocumentTime(), ToUtf8(common.version)},
                   [&file](std::string_view bytes) { file.Write(bytes); });
    file.Commit();
}

constexpr std::array<OwnDocument, 2> kDocuments{{
    {"xlsx", "_Report.xlsx", WorkbookReportNeeds, WriteWorkbook},
    {"html", "_Report.html", WebReportNeeds, WritePage},
}};

}  // namespace

std::span<const OwnDocument> OwnDocuments() {
    return kDocuments;
}

const OwnDocument* FindOwnDocument(std::string_view format) {
    const auto found = std::ranges::find(kDocuments, format, &OwnDocument::format);
    return found == kDocuments.end() ? nullptr : &*found;
}

std::vector<std::string> ReportFormats() {
    std::vector<std::string> formats{"text", "pdf", "excel"};
    for (const OwnDocument& document : OwnDocuments()) formats.emplace_back(document.format);
    return formats;
}

TableNeeds NeedsOf(std::span<const OwnDocument* const> documents) {
    TableNeeds needs;
    for (const OwnDocument* document : documents) needs.Add(document->needs());
    return needs;
}

}  // namespace lumerin
