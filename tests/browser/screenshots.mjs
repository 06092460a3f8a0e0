// screenshots.mjs [FOLDER]: photographs the demo store in each style, at the width of a desk and of a telephone,
// for people to look at. Needs varlo-cli; VARLO_CLI names another than that of the preset "sanitize".
import fs from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { startBrowser } from './lib/browser.mjs';
import { makeInstallation } from './lib/real_store.mjs';
import { serveFolder } from './lib/servers.mjs';
import { openShop } from './lib/shop.mjs';

const target = path.resolve(process.argv[2] ?? fileURLToPath(new URL('../../build/screenshots', import.meta.url)));
const styles = { meadow: 'Meadow/Sage', gallery: 'Gallery/Paper', market: 'Market/Marigold' };
const views = { desk: { width: 1280, height: 900 }, telephone: { width: 390, height: 844 } };
const pages = { front: 'home.htm', category: 'kettles.htm', product: 'stoneware_teapot.htm', shelf: 'cups.htm', list: 'herbal.htm' };

async function photograph(browser, root, folder, view) {
  const t = { after() {} };
  const shop = await openShop(t, browser, `${root}/index.html`);
  const shoot = async (name) => {
    await shop.page.mouse.move(2, 2);        // off what it would light up
    await shop.page.waitForTimeout(350);   // pictures, and what moves
    await shop.page.screenshot({ path: path.join(folder, `${name}_${view}.png`) });
  };
  await shop.page.setViewportSize(views[view]);
  for (const [name, page] of Object.entries(pages)) {
    if (name !== 'front') await shop.visit(page);
    await shoot(name);
  }
  await shop.add('stoneware_teapot.htm');
  await shop.add('cups.htm', 'Speckled Mug');
  await shop.count(2);
  await shop.choose('region', 'GB');
  await shop.frames.trolley.waitForSelector('#method');
  if (view === 'telephone') await shop.frames.register.click('.view');
  await shop.page.waitForTimeout(2600);    // the word at the foot of the page has gone
  await shoot('cart');
  if (view === 'desk') {
    await shop.visit('home.htm');
    await shoot('front_with_cart');        // docs/demo-store.png, made smaller, is this one of Meadow
  }
  await shop.checkout();
  await shoot('order');
  await shop.frames.main.evaluate(() => document.querySelector('[name=CardNumber]').scrollIntoView({ block: 'center' }));
  await shop.frames.main.evaluate(() => document.querySelector('.send').click());
  await shoot('order_checked');
  await shop.page.close();
}

const browser = await startBrowser();
const installation = makeInstallation({ server: 'orders.example/order', account: 'FK-2042' });
try {
  for (const [set, layout] of Object.entries(styles)) {
    const folder = path.join(target, set);
    fs.mkdirSync(folder, { recursive: true });
    const site = await serveFolder(installation.build('Demo', layout, set).folder);
    for (const view of Object.keys(views)) await photograph(browser, site.address, folder, view);
    await site.close();
    console.log(folder);
  }
} finally {
  await browser.close();
  installation.remove();
}
