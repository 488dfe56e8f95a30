// SPDX-License-Identifier: MIT
#include "embedment/EmbedmentResults.h"

#include <limits>

#include "framework/Backend.h"
#include "framework/File.h"
#include "framework/Index.h"
#include "text/Format.h"
#include "text/KeyedLine.h"
#include "text/OutOfRange.h"
#include "text/Paths.h"

namespace lumerin {

namespace {

constexpr int kLineLength = 256;  // 255 characters and the end of the line
constexpr const char* kEndMark = "EOF";

// More than any study has; a header beyond them is broken.
constexpr int kMostTrials = 10000;
constexpr int kMostCases = 1000000;

enum HeaderPlace {
    kSubstructurePlace = 0,
    kTrialPlace = 1,
    kCasePlace = 3,
    kEmbedmentPlace = 4,
    kHeaderPlaces
};
constexpr std::size_t kDataPlaces = 1 + 2 * kQuantityCount;

// Trial files write their integers as reals. A value that is not an int gives `fallback`.
int Truncated(double value, int fallback) {
    constexpr double kLow = std::numeric_limits<int>::min(), kHigh = std::numeric_limits<int>::max();
    return value >= kLow && value <= kHigh ? static_cast<int>(value) : fallback;
}

void RequireCount(const std::string& path, const char* what, int count, int most) {
    if (count >= 0 && count <= most) return;
    throw CFileException(CFileException::badCount, path, OutOfRange(what, count, 0, most));
}

}  // namespace

CEmbedmentResults::CEmbedmentResults(const std::string& inputFile, Messages& messages)
    : m_inputFile(inputFile), m_messages(messages) {
    ReadGlobalData();
    const std::string path = EmbedmentBaseFile(m_inputFile);
    RequireCount(path, "embedment trial count", m_nTrials, kMostTrials);
    RequireCount(path, "load case count", m_nCases, kMostCases);
    m_nTableCases = m_nCases;
    const auto trials = Index(m_nTrials);
    m_pppValues.resize(trials);
    m_pppLocations.resize(trials);
    m_pEmbedments.assign(trials, 0.0);
    m_pIncomplete.assign(trials, 1);
}

bool CEmbedmentResults::ReadGlobalData() {
    ifstreamex file(EmbedmentBaseFile(m_inputFile));
    if (!file.is_open()) {
        m_messages.Show("Error opening the base PEL results file.");
        return false;
    }
    std::string line;
    while (file.GetLineEx(line, kLineLength)) {
        std::array<int, kHeaderPlaces> header{};
        if (line.empty() || ReadKeyedInts(line, "", header) == 0) continue;
        m_nSubstructure = header[kSubstructurePlace];
        m_nTrials = header[kTrialPlace];
        m_nCases = header[kCasePlace];
        return true;
    }
    m_messages.Show("Error reading PEL global data.");
    return false;
}

std::string CEmbedmentResults::TrialPath(int trial) const {
    if (trial == 0) return EmbedmentBaseFile(m_inputFile);
    const std::string folder = FolderOf(m_inputFile);
    std::string name = m_inputFile.substr(folder.size());
    const std::size_t point = name.rfind('.');
    if (point != std::string::npos) name.erase(point);
    const std::string mark = "MPTE" + FormatInt(trial + 1);
    return folder + mark + services::FolderSeparator() + name + "_" + mark + ".PEL";
}

void CEmbedmentResults::LoadTrials() {
    for (int trial = 0; trial < m_nTrials; ++trial) {
        const std::string path = TrialPath(trial);
        if (IsTrialFileComplete(path)) ReadTrialFile(path, trial);
    }
}

bool CEmbedmentResults::IsTrialFileComplete(const std::string& path) {
    ifstreamex file(path);
    if (!file.is_open()) return false;
    std::string line;
    while (file.GetLineEx(line, kLineLength)) {
        if (line == kEndMark) return true;
    }
    return false;
}

void CEmbedmentResults::ReadTrialFile(const std::string& path, int trial) {
    ifstreamex file(path);
    if (!file.is_open()) {
        m_messages.Show("Error opening the PEL results file.");
        return;
    }
    if (!IsTrial(trial)) return;
    std::string line;
    if (file.GetLineEx(line, kLineLength) && !line.empty()) ReadHeader(line, trial);
    while (file.GetLineEx(line, kLineLength)) {
        if (line == kEndMark) {
            m_pIncomplete[Index(trial)] = 0;
        } else if (!line.empty()) {
            ReadCase(line, trial);
        }
    }
}

// The number of trials stays that of the base file, which sized the table.
void CEmbedmentResults::ReadHeader(const std::string& line, int trial) {
    std::array<double, kHeaderPlaces> header{};
    if (ReadKeyedDoubles(line, "", header) == 0) return;
    m_nSubstructure = Truncated(header[kSubstructurePlace], m_nSubstructure);
    const int cases = Truncated(header[kCasePlace], m_nCases);
    if (cases >= 0 && cases <= kMostCases) m_nCases = cases;
    m_pEmbedments[Index(trial)] = header[kEmbedmentPlace];
}

void CEmbedmentResults::ReadCase(const std::string& line, int trial) {
    std::array<double, kDataPlaces> data{};
    if (ReadKeyedDoubles(line, "", data) == 0) return;
    const int number = Truncated(data[0], 0);
    if (number < 1 || number > m_nTableCases) return;
    auto& values = m_pppValues[Index(trial)];
    auto& locations = m_pppLocations[Index(trial)];
    const auto row = Index(number - 1);
    ++m_nFreeRows;
    if (row >= values.size()) {
        const auto grown = static_cast<long long>(row + 1 - values.size());
        if (grown > m_nFreeRows) return;
        m_nFreeRows -= grown;
        values.resize(row + 1);
        locations.resize(row + 1);
    }
    for (std::size_t q = 0; q < kQuantityCount; ++q) {
        values[row][q] = data[1 + 2 * q];
        locations[row][q] = Truncated(data[2 + 2 * q], 0);
    }
}

double CEmbedmentResults::GetEmbedment(int trial) const {
    return IsTrial(trial) ? m_pEmbedments[Index(trial)] : 0.0;
}

namespace {

template <class Table>
auto ValueAt(const Table& table, int loadCase, int quantity) {
    using Value = typename Table::value_type::value_type;
    const bool known =
        loadCase >= 0 && Index(loadCase) < table.size() && quantity >= 0 && quantity < kQuantityCount;
    return known ? table[Index(loadCase)][Index(quantity)] : Value{};
}

}  // namespace

double CEmbedmentResults::GetValue(int trial, int loadCase, int quantity) const {
    return IsTrial(trial) ? ValueAt(m_pppValues[Index(trial)], loadCase, quantity) : 0.0;
}

int CEmbedmentResults::GetLocation(int trial, int loadCase, int quantity) const {
    return IsTrial(trial) ? ValueAt(m_pppLocations[Index(trial)], loadCase, quantity) : 0;
}

bool CEmbedmentResults::IsTrialIncomplete(int trial) const {
    return !IsTrial(trial) || m_pIncomplete[Index(trial)] != 0;
}

int CEmbedmentResults::FindAdjacentTrial(int trial, bool backwards) const {
    const int step = backwards ? -1 : 1;
    for (int at = trial + step; at >= 0 && at < m_nTrials; at += step) {
        if (!IsTrialIncomplete(at)) return at;
    }
    return -1;
}

CEmbedmentResults::Order CEmbedmentResults::GetTrialOrder() const {
    const int first = FirstTrial();
    const int second = first < 0 ? -1 : FindAdjacentTrial(first, false);
    if (second < 0) return kNoOrder;
    return GetEmbedment(first) <= GetEmbedment(second) ? kAscending : kDescending;
}

}  // namespace lumerin
