// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace lumerin {

// A web page in one file: no link out of it, readable without its script, light and dark, ready to print. Web
// features as of November 2021 alone.

// Any text of the program as text of a page: UTF-8, escaped, whatever its bytes are.
std::string HtmlText(std::string_view text);

// Markup that is being written.
class Html {
  public:
    // Adds markup as it is.
    Html& Raw(std::string_view markup);
    Html& Text(std::string_view text);
    // An element with a text; `tag` may have attributes: "p class=\"note\"".
    Html& Element(std::string_view tag, std::string_view text);
    // What was added since the last call.
    std::string Take() { return std::exchange(m_markup, {}); }

  private:
    std::string m_markup;
};

struct PageHead {
    std::string title;         // of the window
    std::string generator;     // "lumerin 1.0.0"
    bool letterPaper = false;  // else A4
};

// Takes the bytes of a page in order.
using PageOutput = std::function<void(std::string_view bytes)>;

// The shell around the content. The content begins with a <header> and has an element with the id "main" for
// the link that skips to it.
void BeginPage(const PageHead& head, const PageOutput& output);
void EndPage(const PageOutput& output);

}  // namespace lumerin
