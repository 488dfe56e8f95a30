// SPDX-License-Identifier: MIT
// The page on paper, read back with poppler.
import { join } from "node:path";
import { check, folder, run } from "./pages.mjs";

export async function checkPrint(page) {
  const path = join(folder, "print.pdf");
  await page.pdf({ path, preferCSSPageSize: true, printBackground: false });
  const pages = Number(/^Pages:\s+(\d+)/m.exec(run("pdfinfo", [path]))[1]);
  check(/792 x 612/.test(run("pdfinfo", [path])), "the sample in US units is on Letter, landscape");
  const sheets = run("pdftotext", ["-layout", path, "-"]).split("\f").slice(0, pages);
  sheets.forEach((sheet, i) => {
    check(sheet.includes(`Page ${i + 1} of ${pages}`), `page ${i + 1} has its number`);
  });
  // Each table begins a page, and its head is on each page of it.
  const titles = await page.$$eval("section.sheet caption h3", (heads) => heads.map((head) => head.textContent.trim()));
  check(titles.length > 5, "the sample has tables");
  for (const title of titles) {
    const words = title.replace(/\s+/g, " ");
    const first = sheets.findIndex((sheet) => sheet.trim().replace(/\s+/g, " ").startsWith(words) ||
      sheet.trim().replace(/\s+/g, " ").startsWith(`Tables ${words}`) ||
      sheet.trim().replace(/\s+/g, " ").startsWith(`Cases used ${words}`));
    check(first >= 0, `the table "${words}" begins a page`);
  }
  const forces = sheets.filter((sheet) => (sheet.match(/(Max|Min) (f22|m33)/g) ?? []).length > 3);
  check(forces.length >= 2, "the table of forces has several pages");
  for (const sheet of forces) check(/PROP\s+(PILE|COLUMN)?/.test(sheet) && sheet.includes("TORQUE"), "heads are repeated");
  check(!sheets.join("").includes("Skip to the content"), "what is for the screen is not printed");
}
