// SPDX-License-Identifier: MIT
#include "web/PageParts.h"

namespace lumerin {

// Figures keep their white card in the dark: their colours are chosen for white and for print. A column of
// text is named by a class of its table (l1, l2, ...), so that the cells, of which there are many, need none.
const std::string_view kPageStyle = R"css(
:root {
  --page: #ffffff; --card: #f6f7f9; --ink: #1b1f24; --soft: #57606a; --rule: #d5d9de; --link: #0b559f;
  --good: #1a6b34; --bad: #b42318; --bad-soft: #fdecea; --mark: #fff3c4; --stripe: #f8f9fb;
}
@media (prefers-color-scheme: dark) {
  :root {
    --page: #14171a; --card: #1e2327; --ink: #e4e7ea; --soft: #a3acb5; --rule: #3a4249; --link: #85b8ee;
    --good: #6fcf8d; --bad: #ff9a8f; --bad-soft: #40201d; --mark: #4a3f12; --stripe: #191d21;
  }
}
* { box-sizing: border-box; }
html { scroll-behavior: auto; -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }
body {
  margin: 0 auto; padding: 0 1.25rem 4rem; max-width: 76rem; background: var(--page); color: var(--ink);
  font: 1rem/1.5 "Helvetica Neue", Arial, "Liberation Sans", sans-serif; overflow-wrap: break-word;
}
h1 { margin: 0.25rem 0; font-size: 1.9rem; line-height: 1.2; font-weight: 600; }
h2 { margin: 3rem 0 0.75rem; padding-top: 0.75rem; border-top: 1px solid var(--rule); font-size: 1.35rem; font-weight: 600; }
h3 { margin: 2.25rem 0 0.5rem; font-size: 1.08rem; font-weight: 600; }
p { margin: 0.5rem 0; max-width: 48rem; }
a { color: var(--link); }
a:focus, button:focus, input:focus, .scroll:focus { outline: 2px solid var(--link); outline-offset: 2px; }
code { font-family: Consolas, "Liberation Mono", monospace; font-size: 0.92em; overflow-wrap: anywhere; }
.skip { position: absolute; left: -100rem; top: 0; padding: 0.5rem 1rem; background: var(--page); }
.skip:focus { left: 0; z-index: 1; }
.soft, small { color: var(--soft); }
.kicker { margin: 2rem 0 0; color: var(--soft); letter-spacing: 0.04em; }
header dl { display: grid; grid-template-columns: max-content 1fr; gap: 0.2rem 1.5rem; margin: 1.25rem 0; }
header dt { color: var(--soft); }
dd { margin: 0; min-width: 0; }
nav ul { display: flex; flex-wrap: wrap; gap: 0.25rem 1.5rem; margin: 0.5rem 0; padding: 0; list-style: none; }
nav li li { color: var(--soft); }
nav { margin: 1.5rem 0; padding: 0.75rem 1rem; background: var(--card); border-radius: 6px; font-size: 0.93rem; }
nav > ul > li > ul { display: block; margin: 0.2rem 0 0; columns: 22rem; }
nav > ul > li { break-inside: avoid; }
nav .group { flex-basis: 100%; }
.verdict { margin: 1rem 0; padding: 1rem 1.25rem; border-left: 0.5rem solid var(--soft); background: var(--card); }
.verdict p { margin: 0; }
.verdict strong { display: block; font-size: 1.5rem; line-height: 1.3; }
.pass { border-color: var(--good); } .pass strong { color: var(--good); }
.fail { border-color: var(--bad); } .fail strong { color: var(--bad); }
.findings { padding: 0; list-style: none; }
.findings li { break-inside: avoid; margin: 0.75rem 0; padding-left: 1rem; border-left: 4px solid var(--rule); max-width: 52rem; }
.findings .error { border-color: var(--bad); }
.findings b { margin-right: 0.5rem; }
figure { margin: 1rem 0 2rem; }
figure .scroll { background: #ffffff; border: 1px solid var(--rule); border-radius: 6px; }
figure svg { display: block; width: 100%; min-width: 44rem; max-width: 64rem; height: auto; margin: 0 auto; }
svg a:focus { outline: 2px solid #0b559f; }
svg g:target > * { stroke: #d9480f; stroke-width: 3px; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; font-size: 0.86rem; line-height: 1.35; font-variant-numeric: tabular-nums; }
caption { padding: 0.25rem 0; text-align: left; }
caption h3 { margin: 1rem 0 0; font-size: 1rem; }
caption small { display: block; font-size: 0.85rem; }
.heard { position: absolute; width: 1px; height: 1px; margin: 0; overflow: hidden; clip-path: inset(50%); white-space: nowrap; }
th, td { padding: 0.22rem 0.6rem; text-align: right; white-space: nowrap; }
thead th { vertical-align: bottom; border-bottom: 2px solid var(--soft); font-weight: 600; }
thead th small { display: block; min-height: 1.2em; font-weight: 400; }
td, tbody th { border-bottom: 1px solid var(--rule); font-weight: 400; }
tbody tr:nth-child(even) { background: var(--stripe); }
tbody tr:target { background: var(--mark); outline: 2px solid var(--bad); }
.w { white-space: normal; }
.over { background: var(--bad-soft); color: var(--bad); font-weight: 700; }
.over em { font-size: 0.85em; }
thead button { display: inline; margin: 0; padding: 0; border: 0; background: none; color: inherit; font: inherit; text-align: inherit; cursor: pointer; }
thead button:hover { text-decoration: underline; }
th[aria-sort="ascending"] button::after { content: " \25b2"; }
th[aria-sort="descending"] button::after { content: " \25bc"; }
.filter { display: flex; flex-wrap: wrap; align-items: center; gap: 0.5rem 1rem; margin: 2rem 0 -0.5rem; font-size: 0.9rem; }
.filter label { display: flex; flex-wrap: wrap; align-items: center; gap: 0.5rem; }
.filter input { width: 15rem; max-width: 100%; padding: 0.25rem 0.5rem; border: 1px solid var(--soft); border-radius: 4px; background: var(--page); color: var(--ink); font: inherit; }
.words { display: grid; grid-template-columns: max-content 1fr; gap: 0.15rem 1rem; margin: 0.75rem 0; font-size: 0.9rem; }
.words dt { font-weight: 600; }
footer { margin-top: 3rem; padding-top: 0.75rem; border-top: 1px solid var(--rule); color: var(--soft); font-size: 0.9rem; }
.l1 tr > :nth-child(1), .l2 tr > :nth-child(2), .l3 tr > :nth-child(3), .l4 tr > :nth-child(4),
.l5 tr > :nth-child(5), .l6 tr > :nth-child(6), .l7 tr > :nth-child(7), .l8 tr > :nth-child(8),
.l9 tr > :nth-child(9), .l10 tr > :nth-child(10), .l11 tr > :nth-child(11), .l12 tr > :nth-child(12) { text-align: left; }
@media (max-width: 40rem) {
  body { padding: 0 0.75rem 3rem; }
  h1 { font-size: 1.5rem; }
  header dl, .words { grid-template-columns: 1fr; gap: 0; }
  header dd, .words dd { margin-bottom: 0.4rem; }
}
@media print {
  :root {
    --page: #ffffff; --card: #ffffff; --ink: #000000; --soft: #444444; --rule: #bbbbbb; --link: #000000;
    --good: #000000; --bad: #000000; --bad-soft: #eeeeee; --stripe: #ffffff; --mark: #ffffff;
  }
  body { max-width: none; padding: 0; font-size: 10pt; }
  nav, .skip, .filter { display: none; }
  a { text-decoration: none; }
  h2, h3, caption { break-after: avoid; }
  h2 { margin-top: 0; border: 0; }
  .sheet { break-before: page; }
  #figures > h2, #figures > p { break-after: avoid; }
  #tables > h2 { position: absolute; left: -100rem; }
  .words { display: block; columns: 3; }
  .words dt { float: left; clear: left; width: 6rem; }
  .words dd { margin-left: 6rem; break-inside: avoid; }
  .scroll { overflow: visible; }
  figure { break-inside: avoid; margin: 0; }
  figure .scroll { border: 0; }
  figure svg { min-width: 0; max-width: 100%; max-height: 158mm; }
  table { font-size: 7.5pt; }
  th, td { padding: 0.1rem 0.35rem; }
  thead { display: table-header-group; break-inside: avoid; }
  /* Chromium repeats no head with a box of its own in it. */
  thead button { display: contents; }
  tr { break-inside: avoid; }
  tbody tr:target { outline: 0; }
}
@page { margin: 14mm 12mm 16mm; @bottom-right { content: "Page " counter(page) " of " counter(pages); font: 8pt Arial, "Liberation Sans", sans-serif; } }
)css";

}  // namespace lumerin
