// SPDX-License-Identifier: MIT
// Firefox lays the page out as Chromium does: a picture of the window by its own command line, compared tile by tile.
// Its marks, links and sorting are those of the standards that Chromium was checked with.
import { join } from "node:path";
import { check, folder, note, openPage, run } from "./pages.mjs";

const kWidth = 1280, kHeight = 1000;
// Measured: 0.012. A page without its style sheet is 0.1 and more.
const kBound = 0.03;

export async function checkFirefox(context, address) {
  const page = await openPage(context, address);
  await page.setViewportSize({ width: kWidth, height: kHeight });
  await page.screenshot({ path: join(folder, "chromium.png") });
  await page.close();
  const picture = join(folder, "firefox.png");
  run(process.env.FIREFOX ?? "/usr/bin/firefox-esr", ["--headless", "--profile", folder, "--window-size",
    `${kWidth},${kHeight}`, "--screenshot", picture, address], { env: { ...process.env, HOME: folder } });
  const [width, height] = run("identify", ["-format", "%w %h", picture]).split(" ").map(Number);
  check(width === kWidth && height >= kHeight, `Firefox's picture is ${width} by ${height}`);
  const size = `${kWidth}x${kHeight}+0+0`;
  const found = Number(run("convert", [join(folder, "chromium.png"), "(", picture, "-crop", size, "+repage", ")",
    "-crop", size, "-compose", "difference", "-composite", "-colorspace", "Gray", "-format", "%[fx:mean]", "info:"]));
  note("Firefox", found, width, height);
  check(found < kBound, `Firefox and Chromium differ by ${found}`);
}
