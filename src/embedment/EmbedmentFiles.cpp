// SPDX-License-Identifier: MIT
#include "embedment/EmbedmentFiles.h"

#include <fstream>

#include "framework/Backend.h"
#include "framework/File.h"
#include "framework/NativePath.h"
#include "text/KeyedLine.h"

namespace lumerin {

namespace {

constexpr std::size_t kLongestLine = 256;
constexpr int kProblemLines = 9;  // the lines after "PROBLEM" that are skipped

// The lines of the input file. A line longer than the host's ends the reading after its first part.
class InputLines {
  public:
    explicit InputLines(const std::string& path) : m_stream(NativePath(path), std::ios::binary) {}

    bool IsOpen() const { return m_stream.is_open(); }
    bool Next() {
        m_line.clear();
        if (m_ended) return false;
        int c = m_stream.get();
        if (c == std::char_traits<char>::eof()) return false;
        while (c != std::char_traits<char>::eof() && c != '\n') {
            if (m_line.size() == kLongestLine) {
                // The carriage return at a line's end is removed.
                m_ended = c != '\r' || m_stream.peek() != '\n';
                if (m_ended) break;
            }
            m_line.push_back(static_cast<char>(c));
            c = m_stream.get();
        }
        if (!m_line.empty() && m_line.back() == '\r') m_line.pop_back();
        return true;
    }
    bool StartsWith(const char* word) const { return m_line.rfind(word, 0) == 0; }
    const std::string& Line() const { return m_line; }

  private:
    std::ifstream m_stream;
    std::string m_line;
    bool m_ended = false;
};

}  // namespace

std::string EmbedmentBaseFile(const std::string& inputFile) {
    const std::size_t point = inputFile.rfind('.');
    for (std::size_t at = point; at < inputFile.size(); ++at) {
        if (services::IsFolderSeparator(inputFile[at]))
            return inputFile + ".PEL";  // the point is in a folder's name
    }
    return inputFile.substr(0, point) + ".PEL";
}

bool HasEmbedmentFile(const std::string& inputFile) {
    return !inputFile.empty() && !FindFileAnyCase(EmbedmentBaseFile(inputFile)).empty();
}

bool IsEmbedmentRequested(const std::string& inputFile) {
    InputLines lines(FindFileAnyCase(inputFile));
    if (!lines.IsOpen()) return false;
    do {
        if (!lines.Next()) return false;
    } while (!lines.StartsWith("PROBLEM"));
    for (int i = 0; i < kProblemLines; ++i) {
        if (!lines.Next()) return false;
    }
    while (!lines.StartsWith("MPTE")) {
        if (!lines.Next()) return false;
    }
    int requested = 0;
    return lines.Next() && ReadKeyedInt(lines.Line(), "M=", requested) && requested == 1;
}

bool HasEmbedmentStudy(const std::string& inputFile) {
    return HasEmbedmentFile(inputFile) && IsEmbedmentRequested(inputFile);
}

}  // namespace lumerin
