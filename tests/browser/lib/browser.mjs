// Debian's Chromium under playwright-core, and the frames of a store in it.
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { chromium } from 'playwright-core';

// A new browser with an empty profile. `close` ends it and removes the profile.
export async function startBrowser() {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'varlo-browser-'));
  const root = process.getuid?.() === 0;
  const browser = await chromium.launchPersistentContext(profile, {
    executablePath: process.env.VARLO_CHROMIUM ?? '/usr/bin/chromium',
    headless: true,
    // Pages scroll smoothly otherwise, away from under the mouse between its button's down and up.
    reducedMotion: 'reduce',
    args: [...(root ? ['--no-sandbox'] : []), '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
      '--disable-component-update', '--disable-sync'],
  });
  browser.setDefaultTimeout(10000);
  return {
    newPage: () => browser.newPage(),
    close: async () => { await browser.close(); fs.rmSync(profile, { recursive: true, force: true }); },
  };
}

// The three frames of a store that is open in a page. Frames are looked up anew each time: navigation keeps
// a frame, but a reload of the frameset makes new ones.
export function framesOf(page) {
  const frame = (name) => page.frame({ name }) ?? fail(name);
  const fail = (name) => { throw new Error(`no frame ${name}`); };
  return {
    get main() { return frame('shopmain'); },
    get trolley() { return frame('shoptrolley'); },
    get register() { return frame('shopregister'); },
  };
}

// Every error that a script of the page throws or logs, as text.
export function watchErrors(page) {
  const errors = [];
  page.on('pageerror', (error) => errors.push(String(error)));
  page.on('console', (message) => { if (message.type() === 'error') errors.push(message.text()); });
  return errors;
}
