// SPDX-License-Identifier: MIT
#pragma once

#include <cctype>
#include <string>
#include <vector>

namespace lumerin {

// Whether a text is well-formed XML, as far as workbooks use it: a declaration, processing instructions,
// elements with quoted attributes, text, the five entities. The first fault is named; empty: well formed.
namespace xml {

class Checker {
  public:
    explicit Checker(const std::string& text) : m_text(text) {}

    std::string Fault() {
        while (m_at < m_text.size() && m_fault.empty()) {
            if (m_text[m_at] == '<') {
                Tag();
            } else {
                Text();
            }
        }
        if (m_fault.empty() && !m_open.empty()) Fail("no end of " + m_open.back());
        if (m_fault.empty() && m_roots != 1) Fail("not one root");
        return m_fault;
    }

  private:
    void Fail(const std::string& what) { m_fault = what + " at " + std::to_string(m_at); }

    void Text() {
        for (; m_at < m_text.size() && m_text[m_at] != '<' && m_fault.empty(); ++m_at) {
            if (m_text[m_at] == '&') Entity();
            if (m_open.empty() && std::isspace(static_cast<unsigned char>(m_text[m_at])) == 0)
                Fail("text outside");
        }
    }
    void Entity() {
        for (const char* name : {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"}) {
            if (m_text.compare(m_at, std::string(name).size(), name) == 0) return;
        }
        Fail("bare ampersand");
    }
    bool Name(std::string& name) {
        const std::size_t from = m_at;
        while (m_at < m_text.size() && (std::isalnum(static_cast<unsigned char>(m_text[m_at])) != 0 ||
                                        m_text[m_at] == ':' || m_text[m_at] == '-')) {
            ++m_at;
        }
        name = m_text.substr(from, m_at - from);
        return !name.empty() && std::isalpha(static_cast<unsigned char>(name[0])) != 0;
    }
    bool Blanks() {
        const std::size_t from = m_at;
        while (m_at < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_at])) != 0) ++m_at;
        return m_at > from;
    }
    char Here() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    void Tag() {
        ++m_at;
        if (Here() == '?') {
            m_at = m_text.find("?>", m_at);
            if (m_at == std::string::npos) return Fail("open instruction");
            m_at += 2;
            return;
        }
        const bool closing = Here() == '/';
        if (closing) ++m_at;
        std::string name;
        if (!Name(name)) return Fail("no name behind <");
        if (closing) return Close(name);
        std::vector<std::string> seen;
        while (m_fault.empty()) {
            const bool blanks = Blanks();
            if (Here() == '>' || Here() == '/') break;
            if (!blanks) return Fail("no blank before an attribute");
            ReadAttribute(seen);
        }
        if (!m_fault.empty()) return;
        if (m_open.empty()) ++m_roots;
        if (Here() == '/') {
            ++m_at;
        } else {
            m_open.push_back(name);
        }
        if (Here() != '>') return Fail("no end of tag");
        ++m_at;
    }
    void Close(const std::string& name) {
        Blanks();
        if (Here() != '>') return Fail("no end of closing tag");
        if (m_open.empty() || m_open.back() != name) return Fail("closing " + name);
        m_open.pop_back();
        ++m_at;
    }
    void ReadAttribute(std::vector<std::string>& seen) {
        std::string name;
        if (!Name(name)) return Fail("no attribute name");
        for (const std::string& other : seen) {
            if (other == name) return Fail("attribute twice");
        }
        seen.push_back(name);
        if (Here() != '=') return Fail("no value");
        ++m_at;
        if (Here() != '"') return Fail("no quote");
        for (++m_at; m_at < m_text.size() && m_text[m_at] != '"' && m_fault.empty(); ++m_at) {
            if (m_text[m_at] == '<') return Fail("< in a value");
            if (m_text[m_at] == '&') Entity();
        }
        if (!m_fault.empty()) return;
        if (Here() != '"') return Fail("open value");
        ++m_at;
    }

    const std::string& m_text;
    std::size_t m_at = 0;
    std::vector<std::string> m_open;
    int m_roots = 0;
    std::string m_fault;
};

inline std::string Fault(const std::string& text) {
    return Checker(text).Fault();
}

}  // namespace xml

}  // namespace lumerin
