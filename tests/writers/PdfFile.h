// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

namespace lumerin {

// The parts of a stored PDF, found by its marks and not by its cross-reference table, which holds no
// offsets. A \r\n of the writer is stored as \r\r\n.
struct PdfPage {
    std::string content;             // the stored stream
    long declaredLength = -1;        // the number in its length object
    std::vector<std::string> lines;  // the shown lines of the body
    std::string footer;              // empty: no footer line
};

class PdfFile {
  public:
    explicit PdfFile(std::string bytes) : m_bytes(std::move(bytes)) {
        for (int page = 1; HasObject(4 * page + 1) && Object(4 * page + 1).starts_with("<</Type/Page/");
             ++page) {
            pages.push_back(ReadPage(page));
        }
    }

    bool HasObject(int number) const { return ObjectStart(number) != std::string::npos; }
    // From the end of the object's first line to the object's end.
    std::string Object(int number) const {
        const std::size_t at = ObjectStart(number);
        if (at == std::string::npos) return {};
        return m_bytes.substr(at, m_bytes.find("endobj\r\r\n", at) - at);
    }
    // The stored data of the object's stream.
    std::string Stream(int number) const {
        const std::string object = Object(number);
        const std::string open = "stream\r\r\n";
        const std::size_t at = object.find(open);
        if (at == std::string::npos) return {};
        return object.substr(at + open.size(), object.find("endstream", at) - at - open.size());
    }
    // The number after a mark, -1 without it.
    long NumberAfter(const std::string& mark) const {
        const std::size_t at = m_bytes.find(mark);
        return at == std::string::npos ? -1 : std::strtol(m_bytes.c_str() + at + mark.size(), nullptr, 10);
    }
    const std::string& Bytes() const { return m_bytes; }

    std::vector<PdfPage> pages;

  private:
    std::size_t ObjectStart(int number) const {
        const std::string mark = "\n" + std::to_string(number) + " 0 obj\r\r\n";
        const std::size_t at = m_bytes.find(mark);
        return at == std::string::npos ? at : at + mark.size();
    }

    PdfPage ReadPage(int number) const {
        PdfPage page;
        page.content = Stream(4 * number - 2);
        page.declaredLength = std::strtol(Object(4 * number - 1).c_str(), nullptr, 10);
        const std::string start = "90 Tz\r\r\n";
        const std::string end = "\r\r\nET\r\r\n";
        const std::size_t body = page.content.find(start) + start.size();
        const std::size_t bodyEnd = page.content.find(end, body);
        SplitLines(page.content.substr(body, bodyEnd - body), page.lines);
        const std::size_t footer = page.content.find("(", bodyEnd);
        if (footer != std::string::npos) {
            page.footer = page.content.substr(footer + 1, page.content.rfind(") Tj") - footer - 1);
        }
        return page;
    }

    // Every line is "(text)'", and no text holds ")'(".
    static void SplitLines(const std::string& body, std::vector<std::string>& lines) {
        std::size_t at = 0;
        while (at < body.size() && body[at] == '(') {
            std::size_t end = body.find(")'(", at);
            if (end == std::string::npos) end = body.size() - 2;
            lines.push_back(body.substr(at + 1, end - at - 1));
            at = end + 2;
        }
    }

    std::string m_bytes;
};

}  // namespace lumerin
