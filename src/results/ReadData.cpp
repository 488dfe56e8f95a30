// SPDX-License-Identifier: MIT
#include "results/ReadData.h"

#include <algorithm>
#include <string>

#include "framework/Index.h"
#include "text/Format.h"

namespace lumerin {

namespace {

constexpr int kLineLength = 128;

struct ProjectText {
    std::string_view key;
    std::string CDataSet::*field;
};
// In the order in which the file has them. The blank belongs to the key.
constexpr ProjectText kProjectTexts[] = {
    {"N= ", &CDataSet::m_sProjectN},
    {"D= ", &CDataSet::m_sProjectD},
    {"T= ", &CDataSet::m_sProjectT},
    {"C= ", &CDataSet::m_sProjectC},
};

}  // namespace

bool FindSection(ifstreamex& file, std::string_view keyword) {
    if (!file.bad()) file.clear(file.is_open() ? std::ios::goodbit : std::ios::failbit);
    std::string line;
    while (file.GetLineEx(line, kLineLength)) {
        if (line.starts_with(keyword)) return true;
    }
    return false;
}

bool ReadProjectData(ifstreamex& file, CDataSet& data) {
    if (!FindSection(file, "PROJECTDATA")) return false;
    std::string line;
    int length = 0;
    for (const ProjectText& text : kProjectTexts) {
        file.GetLineEx(line, kLineLength);
        ReadKeyedInt(line, "L", length);
        const std::size_t at = line.find(text.key);
        if (at == std::string::npos) continue;
        const std::string_view value = Trim(std::string_view(line).substr(at + text.key.size()));
        data.*text.field = value.substr(0, Index(std::max(length, 0)));
    }
    return true;
}

bool ReadPierData(ifstreamex& file, CDataSet& data) {
    if (!FindSection(file, "PIERDATA")) return false;
    std::string line;
    int lines = 0;
    file.GetLineEx(line, kLineLength);
    ReadKeyedInt(line, "N", lines);
    int number = 0;
    double location = 0.0;
    for (int i = 0; i < lines && file.GetLineEx(line, kLineLength); ++i) {
        ReadKeyedInt(line, "P", number);
        ReadKeyedDouble(line, "X", location);
        if (number >= 1 && number <= static_cast<int>(data.m_Piers.size())) {
            data.m_Piers[Index(number - 1)].m_dLocationX = location;
        }
    }
    return true;
}

}  // namespace lumerin
