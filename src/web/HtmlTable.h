// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "web/Page.h"

namespace lumerin {

// A table of a page that can be sorted and filtered, in a box of its own that scrolls where it is too wide.

struct HtmlColumn {
    std::string words;
    std::string lower;  // below them: a unit
    bool isNumber = true;
};

struct HtmlCell {
    std::string_view text = {};
    bool isOver = false;         // over its limit: marked with a word too
    std::string_view link = {};  // the id of another place in the page; empty: none
    int span = 1;                // columns
};

struct HtmlTableHead {
    std::string_view id;  // one in the page
    std::string_view caption;
    std::string_view remark;  // below the caption
};

class HtmlTable {
  public:
    HtmlTable(Html& html, const HtmlTableHead& head, std::span<const HtmlColumn> columns);
    // `id` names the row as the target of links; empty: it has none.
    void Row(std::span<const HtmlCell> cells, std::string_view id = {});
    // Texts without links; the cell `over` is over its limit.
    void TextRow(std::span<const std::string> texts, std::optional<std::size_t> over = {});
    void Finish();

  private:
    Html& m_html;
};

}  // namespace lumerin
