// SPDX-License-Identifier: MIT
// check.mjs LUMERIN MAKE-SAMPLE: looks at the web reports of sample projects in Chromium and Firefox. Ends with
// status 1 and a line at the first check that does not hold.
import { readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { checkFigures } from "./figures.mjs";
import { checkFirefox } from "./firefox.mjs";
import { checkPrint } from "./print.mjs";
import { check, makePage, note, openPage, report, startChromium } from "./pages.mjs";

const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");
const kWidths = [360, 480, 768, 1024, 1440, 1920];

// The texts of a column as they are shown, from top to bottom.
function column(page, table, index) {
  return page.$$eval(`#${table} tbody tr`, (rows, at) =>
    rows.filter((row) => !row.hidden).map((row) => row.cells[at]?.textContent ?? ""), index);
}

async function headIndex(page, table, name) {
  const heads = await page.$$eval(`#${table} thead th`, (cells) => cells.map((cell) => cell.dataset.name));
  check(heads.includes(name), `${table} has no column ${name}`);
  return heads.indexOf(name);
}

function inOrder(numbers, sign) {
  return numbers.every((number, i) => i === 0 || (number - numbers[i - 1]) * sign >= 0);
}

async function checkSorting(page) {
  const at = await headIndex(page, "t5", "FAX");
  const head = page.locator("#t5 thead th").nth(at);
  const written = await column(page, "t5", at);
  const numbers = written.map(Number).filter((number) => !Number.isNaN(number));
  check(numbers.length > 20 && numbers.some((number) => number < -99) && numbers.some((number) => number > 0),
    "the column FAX has numbers of both signs and several lengths");
  for (const [sign, state] of [[1, "ascending"], [-1, "descending"]]) {
    await head.getByRole("button").click();
    const shown = (await column(page, "t5", at)).map(Number);
    const firstWithout = shown.findIndex(Number.isNaN);
    const sorted = firstWithout < 0 ? shown : shown.slice(0, firstWithout);
    check(sorted.length === numbers.length, "what is no number comes last");
    check(inOrder(sorted, sign), `FAX is sorted ${state} as numbers`);
    check(await head.getAttribute("aria-sort") === state, `the head says ${state}`);
  }
  await head.getByRole("button").click();
  check(JSON.stringify(await column(page, "t5", at)) === JSON.stringify(written), "the third click restores the order");
}

async function checkFilter(page) {
  const field = page.getByRole("searchbox", { name: /Maximum Forces for All Pile/ });
  const at = await headIndex(page, "t5", "D/C");
  const all = await column(page, "t5", at);
  const expected = all.filter((text) => parseFloat(text) > 0.5).length;
  check(expected > 0 && expected < all.length, "the filter has something to do");
  await field.fill("D/C>0.5");
  const shown = await column(page, "t5", at);
  check(shown.length === expected && shown.every((text) => parseFloat(text) > 0.5), "D/C>0.5 shows those rows");
  check((await page.locator(".filter", { has: field }).getByRole("status").textContent()) ===
    `${expected} of ${all.length} rows`, "the count is said");
  await field.fill("service max f22");
  const rows = await page.$$eval("#t5 tbody tr:not([hidden])", (list) => list.map((row) => row.textContent));
  check(rows.length > 0 && rows.every((text) => /service/i.test(text) && /max f22/i.test(text)), "words are found");
  await field.fill("");
  check((await column(page, "t5", at)).length === all.length, "an empty field shows all");
}

// Whether the element is on the screen and is the target of the address.
function isShown(page, id) {
  return page.evaluate((name) => {
    const element = document.getElementById(name);
    const box = element.getBoundingClientRect();
    return element.matches(":target") && box.bottom > 0 && box.top < innerHeight;
  }, id);
}

async function checkLinks(page) {
  const mark = "f-pile-heads-1-pile-7";
  await page.locator(`#t0 a[href="#${mark}"]`).first().click();
  check(await isShown(page, mark), "a row leads to its mark");
  const row = (await page.locator(`a:has(> #${mark})`).getAttribute("href")).slice(1);
  await page.locator(`a:has(> #${mark})`).click();
  check(await isShown(page, row), "a mark leads to its row");
  check((await page.locator(`#${row} td`).nth(2).textContent()) === "7", "the row is that of the pile");
  for (const entry of await page.locator("nav a").all()) {
    const target = (await entry.getAttribute("href")).slice(1);
    await entry.click();
    check(await isShown(page, target), `the contents lead to ${target}`);
  }
  // A row that a filter hides is shown when a mark leads to it.
  await page.getByRole("searchbox", { name: /Maximum Axial Forces/ }).fill("no such row");
  await page.locator(`a:has(> #${mark})`).click();
  await page.waitForFunction((id) => !document.getElementById(id).hidden, row);
  check(await isShown(page, row), "a hidden row is shown again");
}

async function checkKeyboard(page) {
  const focused = () => page.evaluate(() => document.activeElement.textContent.trim());
  await page.keyboard.press("Tab");
  check(await focused() === "Skip to the content", "the first stop is the link to the content");
  check(await page.locator(".skip").evaluate((link) => link.getBoundingClientRect().left >= 0), "it is seen then");
  await page.keyboard.press("Enter");
  check(page.url().endsWith("#main"), "it leads to the content");
  // From the head of a table to the next one, and a sort.
  await page.locator("#families thead button").first().focus();
  await page.keyboard.press("Tab");
  await page.keyboard.press("Tab");
  check((await focused()).startsWith("D/C"), "heads follow one another");
  const outline = await page.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
  check(outline === "solid", "what has the focus is outlined");
  await page.keyboard.press("Enter");
  check(await page.locator("#families thead th").nth(2).getAttribute("aria-sort") === "ascending", "Enter sorts");
  await page.keyboard.press("Space");
  check(await page.locator("#families thead th").nth(2).getAttribute("aria-sort") === "descending", "so does Space");
  // A wide table scrolls with the arrow keys.
  await page.setViewportSize({ width: 360, height: 700 });
  const box = page.locator(".scroll", { has: page.locator("#families") });
  await box.focus();
  await page.keyboard.press("ArrowRight");
  await page.waitForFunction((element) => element.scrollLeft > 0, await box.elementHandle());
  check(true, "a box scrolls by keys");
}

async function checkWidths(page, address) {
  for (const width of kWidths) {
    await page.setViewportSize({ width, height: 900 });
    const over = await page.evaluate(() =>
      document.documentElement.scrollWidth - document.documentElement.clientWidth);
    check(over <= 0, `${address} at ${width} pixels is ${over} pixels too wide`);
  }
}

// The rows of a table are alike: of each the first ones are looked at, and those with a mark.
async function checkAccess(page, address, scheme) {
  await page.evaluate(() => document.querySelectorAll("tbody tr").forEach((row) => {
    if (row.sectionRowIndex > 3 && !row.querySelector(".over")) row.dataset.alike = "";
  }));
  await page.evaluate(() => document.querySelectorAll("[data-alike]").forEach((row) => row.remove()));
  // In the dark nothing differs but the colours.
  const rules = scheme === "dark" ? ", runOnly: ['color-contrast']" : "";
  const found = await page.evaluate(`${axe}; axe.run({ resultTypes: ["violations"]${rules} })`);
  const words = found.violations.map((violation) =>
    `${violation.id}: ${violation.help}: ${violation.nodes.slice(0, 3).map((node) => node.html.slice(0, 160)).join(" | ")}`);
  check(words.length === 0, `${address} in ${scheme}: ${words.join("\n")}`);
}

async function checkWithoutScripts(browser, address) {
  const context = await browser.newContext({ javaScriptEnabled: false });
  const page = await openPage(context, address);
  check(await page.locator("#t5 tbody tr").first().isVisible(), "tables are there without scripts");
  check(await page.locator("figure svg").first().isVisible(), "figures are there without scripts");
  check(await page.locator("button, input").count() === 0, "nothing is there that needs scripts");
  await context.close();
}

const browser = await startChromium();
try {
  const pages = Object.fromEntries(["pier", "bridge", "walls"].map((preset) => [preset, makePage(preset)]));
  for (const scheme of ["light", "dark"]) {
    const context = await browser.newContext({ colorScheme: scheme, viewport: { width: 1280, height: 900 } });
    for (const address of Object.values(pages)) {
      const page = await openPage(context, address);
      if (scheme === "light") await checkWidths(page, address);
      await page.setViewportSize({ width: 1280, height: 900 });
      await checkAccess(page, address, scheme);
      await page.close();
      note(address, scheme);
    }
    await context.close();
  }
  const context = await browser.newContext({ viewport: { width: 1280, height: 900 } });
  for (const look of [checkSorting, checkFilter, checkLinks, checkKeyboard, checkPrint]) {
    const page = await openPage(context, pages.pier);
    await look(page);
    await page.close();
    note(look.name);
  }
  await checkWithoutScripts(browser, pages.pier);
  await checkFigures(context);
  await checkFirefox(context, pages.bridge);
  report();
} finally {
  await browser.close();
}
