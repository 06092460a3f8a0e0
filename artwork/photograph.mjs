// photograph.mjs NODE_FOLDER SITE PICTURE: the front page of a built store, in its frames, as a PNG.
// The store is opened from disk; the pictures and colours are the same as over http.
import { createRequire } from 'node:module';
import { resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

const [nodeFolder, site, picture] = process.argv.slice(2);
const { chromium } = createRequire(resolve(nodeFolder, 'package.json'))('playwright-core');

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
    '--disable-component-update', '--disable-sync'],
});
try {
  const page = await browser.newPage({ viewport: { width: 1200, height: 900 } });
  await page.goto(pathToFileURL(resolve(site, 'index.html')).href);
  await page.waitForLoadState('load');
  await page.waitForTimeout(500);  // pictures of the frames
  await page.screenshot({ path: picture });
} finally {
  await browser.close();
}
