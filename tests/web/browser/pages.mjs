// SPDX-License-Identifier: MIT
// What the checks of the web report share: the pages of the sample projects and a browser for them.
import { execFileSync } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

const [program, makeSample] = process.argv.slice(2);
export const folder = mkdtempSync(join(tmpdir(), "lumerin-web-"));
process.on("exit", () => rmSync(folder, { recursive: true, force: true }));

export function run(command, args, options = {}) {
  return execFileSync(command, args, { encoding: "utf8", stdio: ["ignore", "pipe", "pipe"], ...options });
}

export function lumerin(args, options = {}) {
  return run(program, args, { ...options, env: { ...process.env, LUMERIN_CLOCK: "2026-11-16T09:30:00" } });
}

// The address of the page of a sample project, which is made with it.
export function makePage(preset) {
  run(makeSample, [folder, "--preset", preset]);
  lumerin(["report", join(folder, preset), "--format", "html"]);
  return pathToFileURL(join(folder, `${preset}_Report.html`)).href;
}

const started = Date.now();
export function note(...words) {
  if (process.env.LUMERIN_WEB_VERBOSE) console.log(`${((Date.now() - started) / 1000).toFixed(1)} s`, ...words);
}

let passed = 0;
export function check(holds, words) {
  if (!holds) throw new Error(words);
  passed += 1;
}
export function report() {
  console.log(`${passed} checks of the web report passed`);
}

export function startChromium() {
  // A browser of root has no sandbox.
  const args = process.getuid() === 0 ? ["--no-sandbox"] : [];
  return chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args });
}

// A page that fails the run when it says something or asks for something.
export async function openPage(context, address) {
  const page = await context.newPage();
  page.on("console", (message) => { throw new Error(`${address}: console: ${message.text()}`); });
  page.on("pageerror", (fault) => { throw new Error(`${address}: ${fault}`); });
  page.on("request", (request) => {
    if (request.url().split("#")[0] !== address && !request.url().startsWith("data:")) {
      throw new Error(`${address} asks for ${request.url()}`);
    }
  });
  await page.goto(address);
  return page;
}
