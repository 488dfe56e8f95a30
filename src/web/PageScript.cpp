// SPDX-License-Identifier: MIT
#include "web/PageParts.h"

namespace lumerin {

// Without it the page is whole. It makes the heads of tables into buttons that sort, and gives each table a
// field that filters.
const std::string_view kPageScript = R"js(
(function () {
  "use strict";

  // The number of a cell; a text such as "***" or "none" has none.
  function numberOf(text) {
    return /^[-+]?(\d|\.\d|inf|nan)/.test(text) ? parseFloat(text.replace("inf", "Infinity")) : NaN;
  }
  function cellText(row, column) {
    var cell = row.cells[column];
    return cell ? cell.textContent.trim() : "";
  }

  function makeSortable(table, rows) {
    var heads = Array.from(table.tHead.rows[0].cells);
    // 0 as written, 1 ascending, -1 descending.
    var sorted = -1, direction = 0;
    function sort(column) {
      direction = column !== sorted ? 1 : direction === 1 ? -1 : direction === -1 ? 0 : 1;
      sorted = column;
      var keys = rows.map(function (row, index) {
        var text = cellText(row, column);
        return { row: row, index: index, text: text, number: numberOf(text) };
      });
      if (direction !== 0) {
        keys.sort(function (a, b) {
          var first = isNaN(a.number), second = isNaN(b.number);
          // What has no number comes last in either direction, unless the column is one of texts.
          if (first !== second) return first ? 1 : -1;
          var order = first ? a.text.localeCompare(b.text) : a.number - b.number;
          return order !== 0 ? order * direction : a.index - b.index;
        });
      }
      keys.forEach(function (key) { table.tBodies[0].appendChild(key.row); });
      heads.forEach(function (head, index) {
        head.setAttribute("aria-sort",
          index !== column || direction === 0 ? "none" : direction === 1 ? "ascending" : "descending");
      });
    }
    heads.forEach(function (head, column) {
      var button = document.createElement("button");
      button.type = "button";
      button.title = "Sort";
      while (head.firstChild) button.appendChild(head.firstChild);
      head.appendChild(button);
      head.setAttribute("aria-sort", "none");
      button.addEventListener("click", function () { sort(column); });
    });
  }

  // "bent", "D/C>0.9": words that a row must have, and conditions on a column by its head.
  function conditionOf(word, names) {
    var parts = /^(.+?)(<=|>=|<|>|=)([-+]?[\d.]+)$/.exec(word);
    var columns = [];
    if (parts) {
      names.forEach(function (name, index) { if (name === parts[1]) columns.push(index); });
    }
    if (columns.length === 0) {
      return function (row) { return row.textContent.toLowerCase().indexOf(word) >= 0; };
    }
    var limit = parseFloat(parts[3]), sign = parts[2];
    return function (row) {
      return columns.some(function (column) {
        var number = numberOf(cellText(row, column));
        return sign === "<" ? number < limit : sign === ">" ? number > limit
          : sign === "<=" ? number <= limit : sign === ">=" ? number >= limit : number === limit;
      });
    };
  }

  function makeFilter(table, rows, index) {
    var names = Array.from(table.tHead.rows[0].cells).map(function (head) {
      return (head.getAttribute("data-name") || "").toLowerCase();
    });
    var line = document.createElement("div"), label = document.createElement("label");
    var field = document.createElement("input"), count = document.createElement("span");
    line.className = "filter";
    field.type = "search";
    field.id = "filter-" + index;
    field.placeholder = names.indexOf("d/c") >= 0 ? "words, or D/C>0.9" : "words";
    count.setAttribute("role", "status");
    field.setAttribute("aria-label", "Filter " + table.caption.firstChild.textContent.trim());
    label.append("Filter ", field);
    line.append(label, count);
    field.addEventListener("input", function () {
      var conditions = field.value.toLowerCase().split(/\s+/).filter(Boolean).map(function (word) {
        return conditionOf(word, names);
      });
      var shown = 0;
      rows.forEach(function (row) {
        row.hidden = !conditions.every(function (holds) { return holds(row); });
        if (!row.hidden) shown += 1;
      });
      count.textContent = conditions.length ? shown + " of " + rows.length + " rows" : "";
    });
    var box = table.parentNode;
    box.parentNode.insertBefore(line, box);
    return function () { field.value = ""; rows.forEach(function (row) { row.hidden = false; }); count.textContent = ""; };
  }

  Array.from(document.querySelectorAll("table.list")).forEach(function (table, index) {
    var rows = Array.from(table.tBodies[0].rows);
    if (rows.length < 2) return;
    makeSortable(table, rows);
    // A glance is quicker than a filter.
    if (rows.length < 12) return;
    var showAll = makeFilter(table, rows, index);
    // A link to a row that a filter hides shows it.
    window.addEventListener("hashchange", function () {
      var target = document.getElementById(decodeURIComponent(location.hash.slice(1)));
      if (!target || !table.contains(target) || !target.hidden) return;
      showAll();
      target.scrollIntoView();
    });
  });
})();
)js";

}  // namespace lumerin
