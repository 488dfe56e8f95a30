// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <span>
#include <string>

#include "records/Findings.h"
#include "records/Table.h"

namespace lumerin {

// What the records that commands print as JSON have in common.

// Findings as JSON: an array of objects. Substructure, file and place are null where a finding has none.
inline nlohmann::ordered_json FindingsJson(std::span<const Finding> findings) {
    using Json = nlohmann::ordered_json;
    const auto text = [](const std::string& value) { return value.empty() ? Json() : Json(value); };
    Json array = Json::array();
    for (const Finding& finding : findings) {
        array.push_back({{"code", finding.code},
                         {"severity", SeverityName(finding.severity)},
                         {"substructure", finding.substructure == 0 ? Json() : Json(finding.substructure)},
                         {"file", text(finding.file)},
                         {"text", finding.text},
                         {"count", finding.count},
                         {"first_place", text(finding.firstPlace)}});
    }
    return array;
}

// The record on one line, after the versions of the program and of the tables. Bytes that are no UTF-8 are
// replaced.
inline std::string RecordLine(nlohmann::ordered_json record) {
    record["version"] = ProgramVersion();
    record["tables_version"] = kTablesVersion;
    return record.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
}

}  // namespace lumerin
