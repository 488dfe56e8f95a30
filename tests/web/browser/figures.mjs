// SPDX-License-Identifier: MIT
// Every figure looks the same in Chromium and in librsvg: the greatest difference of the mean grey of tiles of 12
// pixels. Edges that the two smooth in their own ways differ little in a tile; a text that moved differs much.
import { readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { check, folder, lumerin, makePage, note, run } from "./pages.mjs";

// Measured: 0.06 to 0.18 for the figures below, 0.30 for a text that moved by 8 pixels.
const kBound = 0.23, kTile = 12;

const kFigures = [
  ["pier", "cap-shear", []], ["pier", "cap-moment", []], ["pier", "pile-heads", []], ["pier", "dc", []],
  ["pier", "elevation", []], ["pier", "case-scan", []], ["pier", "embedment", []],
  ["bridge", "cap-moment", ["--substructure", "2"]], ["bridge", "dc", ["--substructure", "1"]],
  ["bent", "pile-heads", ["--pile-compression", "300"]], ["walls", "elevation", ["--substructure", "1"]],
];

function tileDifference(first, second) {
  return Number(run("convert", [first, second, "-compose", "difference", "-composite", "-colorspace", "Gray",
    "-filter", "Box", "-resize", `${100 / kTile}%`, "-format", "%[fx:maxima]", "info:"]));
}

async function distance(page, path) {
  const [, width, height] = /width="([\d.]+)" height="([\d.]+)"/.exec(readFileSync(path, "utf8")).map(Number);
  const size = { width: Math.ceil(width), height: Math.ceil(height) };
  await page.setViewportSize(size);
  await page.goto(pathToFileURL(path).href);
  await page.screenshot({ path: `${path}.chromium.png` });
  run("rsvg-convert", ["-w", String(size.width), "-h", String(size.height), "-b", "white", path, "-o", `${path}.librsvg.png`]);
  return tileDifference(`${path}.chromium.png`, `${path}.librsvg.png`);
}

export async function checkFigures(context) {
  makePage("bent");
  const page = await context.newPage();
  for (const [preset, figure, options] of kFigures) {
    const path = join(folder, `${preset}-${figure}.svg`);
    lumerin(["plot", join(folder, preset), figure, ...options, "-o", path]);
    const found = await distance(page, path);
    note(preset, figure, found);
    check(found < kBound, `${preset} ${figure}: Chromium and librsvg differ by ${found}`);
  }
  // A text that moved in one of the two is found.
  const path = join(folder, "pier-cap-moment.svg");
  const moved = readFileSync(path, "utf8").replace(/(<text [^>]*?x=")([\d.]+)/, (all, before, x) => before + (Number(x) + 8));
  await page.goto(pathToFileURL(path).href);
  writeFileSync(join(folder, "moved.svg"), moved);
  run("rsvg-convert", ["-b", "white", join(folder, "moved.svg"), "-o", join(folder, "moved.png")]);
  const found = tileDifference(`${path}.chromium.png`, join(folder, "moved.png"));
  check(found > kBound, `a text that moved by 8 pixels is ${found}`);
  note("moved text", found);
  await page.close();
}
