// Shopping in the shipped stores, as varlo-cli builds them: over http, or opened from disk.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, describe, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { startBrowser } from './lib/browser.mjs';
import { makeInstallation } from './lib/real_store.mjs';
import { accepted, orderServer, refused, serveFolder } from './lib/servers.mjs';
import { customer, eventually, openShop } from './lib/shop.mjs';

// All tests of one way to open a store, "http" or "file".
export function storeTests(way) {
  let browser;
  let orders;
  let installation;
  const roots = {};
  const servers = [];
  const folders = {};
  before(async () => {
    browser = await startBrowser();
    orders = await orderServer();
    installation = makeInstallation({ server: orders.address + '/order', account: 'FK-2042' });
    for (const project of ['Demo', 'Bookshop']) {
      const { folder, result } = installation.build(project);
      assert.equal(result, 'Store Build Complete. (0 errors, 0 warnings)');
      // A browser asks every server for it.
      fs.writeFileSync(path.join(folder, 'favicon.ico'), '');
      folders[project] = folder;
      roots[project] = pathToFileURL(folder).href;
      if (way === 'file') continue;
      const server = await serveFolder(folder);
      servers.push(server);
      roots[project] = server.address;
    }
  });
  after(async () => {
    await browser?.close();
    await orders?.close();
    for (const server of servers) await server.close();
    installation?.remove();
  });

  const open = (t, project, start = 'index.html') => openShop(t, browser, `${roots[project]}/${start}`);

  describe(`a shipped store, opened by ${way}`, () => {
    test('is walked through by its index, its listings, its pictures and its ways back', async (t) => {
      const shop = await open(t, 'Demo');
      assert.equal(await shop.page.title(), 'Fern and Kettle');
      assert.equal(shop.where(), 'home.htm');
      await shop.follow('.menu', 'Tea', 'tea.htm');
      await shop.follow('.menu', 'Black tea', 'black.htm');
      await shop.follow('.listing', 'Darjeeling First Flush', 'darjeeling.htm');
      assert.equal(await shop.text('h1'), 'Darjeeling First Flush');
      assert.equal(await shop.text('.menu b'), 'Darjeeling First Flush');
      await shop.follow('.menu', 'Earl Grey with Cornflower', 'earl_grey.htm');
      await shop.frames.main.click('.back');
      await eventually(shop.where, 'darjeeling.htm');
      await shop.frames.main.click('.back');
      await eventually(shop.where, 'assam.htm');
      await shop.frames.main.click('.back');   // before the first of a branch lies the branch itself
      await eventually(shop.where, 'black.htm');
      await shop.follow('.picks', 'Lapsang Souchong', 'lapsang.htm');
      await shop.follow('.way', 'Home', 'home.htm');
      await shop.follow('.picks', 'Copper Kettle', 'copper_kettle.htm');
      await shop.frames.main.evaluate(() => history.back());
      await eventually(shop.where, 'home.htm');
    });

    test('shows every page without an error of a script and with all its pictures', async (t) => {
      for (const project of ['Demo', 'Bookshop']) {
        const shop = await open(t, project);
        const failed = [];
        shop.page.on('requestfailed', (request) => failed.push(request.url()));
        shop.page.on('response', (response) => { if (response.status() >= 400) failed.push(response.url()); });
        const pages = fs.readdirSync(folders[project]).filter((name) => name.endsWith('.htm') && name !== 'ftmp.htm');
        assert.equal(pages.length, { Demo: 64, Bookshop: 9 }[project]);
        for (const name of pages) {
          await shop.frames.main.goto(`${roots[project]}/${name}`);
          assert.deepEqual(await shop.frames.main.$$eval('img', (all) => all.filter((one) => !one.naturalWidth).map((one) => one.src)), [], name);
        }
        assert.deepEqual(failed, []);
      }
    });

    test('sells from a page, a shelf and a list, by click and by keyboard', async (t) => {
      const shop = await open(t, 'Demo');
      await eventually(() => shop.frames.trolley.textContent('#cart .empty'), 'Your cart is empty.');
      assert.equal(await shop.total(), 'Total \u00a30.00');
      assert.equal(await shop.frames.register.isDisabled('.checkout'), true);

      await shop.add('taster.htm');                                        // a page of its own, with an apostrophe
      await shop.add('knives.htm', "Cook's Knife, 20 cm");                 // on a shelf, with an apostrophe
      await shop.visit('herbal.htm');                                      // in a list
      await shop.frames.main.focus(shop.addLink('Peppermint Leaf'));
      await shop.page.keyboard.press('Enter');
      await shop.seeAdded();
      await shop.visit('cups.htm');                                        // on a shelf
      await shop.frames.main.focus(shop.addLink('Caf\u00e9 Bowl'));
      await shop.page.keyboard.press('Enter');
      await shop.seeAdded();
      await shop.add('teapot_for_one.htm');                                // its title holds a tag
      await eventually(shop.lines, ["The Tea Taster's Chest | 1 | \u00a329.00", "Cook's Knife, 20 cm | 1 | \u00a364.00",
        'Peppermint Leaf | 1 | \u00a35.40', 'Caf\u00e9 Bowl | 1 | \u00a314.00', 'Teapot for One new | 1 | \u00a324.00']);
      assert.equal(await shop.total(), 'Subtotal \u00a3136.40');
      // The way back from the cart to the product, and its picture.
      await shop.frames.trolley.click("#cart li a:text-is(\"The Tea Taster's Chest\")");
      await eventually(shop.where, 'taster.htm');
      assert.ok(await shop.frames.trolley.$$eval('#cart li img', (all) => all.length === 5 && all.every((one) => one.complete && one.naturalWidth > 0)));
    });

    test('changes quantities and takes items out, in the trolley and on the page', async (t) => {
      const shop = await open(t, 'Demo');
      for (const title of ['Speckled Mug', 'Tall Mug, Navy', 'Speckled Mug']) await shop.add('cups.htm', title);
      await eventually(shop.lines, ['Speckled Mug | 2 | \u00a324.00', 'Tall Mug, Navy | 1 | \u00a313.50']);
      await shop.frames.trolley.click('[aria-label="One more of Tall Mug, Navy"]');
      await shop.frames.trolley.fill('[aria-label="Quantity of Speckled Mug"]', '6');
      await shop.page.keyboard.press('Tab');
      await eventually(shop.lines, ['Speckled Mug | 6 | \u00a372.00', 'Tall Mug, Navy | 2 | \u00a327.00']);
      await shop.frames.trolley.click('[aria-label="One less of Tall Mug, Navy"]');
      await shop.frames.trolley.click('[aria-label="One less of Tall Mug, Navy"]');
      await eventually(shop.lines, ['Speckled Mug | 6 | \u00a372.00']);
      await shop.add('cups.htm', 'Double Wall Glass');
      await shop.count(2);
      await shop.frames.main.click('a.remove:has(img[alt="Remove from cart: Speckled Mug"])');
      await eventually(shop.lines, ['Double Wall Glass | 1 | \u00a311.50']);
      await shop.frames.trolley.click('[aria-label="Remove Double Wall Glass"]');
      await eventually(() => shop.frames.trolley.textContent('#cart .empty'), 'Your cart is empty.');
      assert.equal(await shop.frames.register.isDisabled('.checkout'), true);
    });

    test('is rebuilt around a page that is opened alone, and keeps the cart over reloads', async (t) => {
      const shop = await open(t, 'Demo', 'skillet.htm');
      assert.equal(shop.where(), 'skillet.htm');
      assert.equal(shop.page.frames().length, 4);                          // the frameset and its three
      await shop.add('skillet.htm');
      await eventually(shop.lines, ['Iron Skillet | 1 | \u00a342.00']);
      await shop.choose('region', 'NO');
      // 2.3: up to 3 costs 19.80; 20% of it is 3.96. 42 + 19.80 + 3.96 = 65.76.
      await eventually(shop.total, 'Total \u00a365.76');
      await shop.page.reload();
      await eventually(shop.lines, ['Iron Skillet | 1 | \u00a342.00']);
      await eventually(shop.total, 'Total \u00a365.76');
      // Back in the history, and on.
      await shop.visit('cups.htm');
      await shop.frames.main.evaluate(() => history.back());
      await eventually(shop.where, 'skillet.htm');
      await shop.frames.main.waitForSelector('.foot');
      await shop.add('skillet.htm');
      await eventually(shop.lines, ['Iron Skillet | 2 | \u00a384.00']);
      await shop.frames.trolley.click('[aria-label="One less of Iron Skillet"]');
      await eventually(shop.lines, ['Iron Skillet | 1 | \u00a342.00']);
      // Another page opened alone, in the same tab: the same cart.
      await shop.page.goto(`${roots.Demo}/cups.htm`);
      await eventually(shop.lines, ['Iron Skillet | 1 | \u00a342.00']);
      await shop.add('cups.htm', 'Speckled Mug');
      await shop.count(2);
      await shop.checkout();
      assert.match(shop.frames.main.url(), /register\.html\?order$/);
    });

    // Chooses a region and a method and compares what the cart then says.
    async function costs(shop, region, method, rows, total) {
      await shop.choose('region', region);
      await eventually(() => shop.frames.trolley.$eval('#region', (select) => select.value), region);
      if (method !== '0') await eventually(async () => (await shop.frames.trolley.$(`#method option[value="${method}"]`)) !== null, true);
      await shop.choose('method', method);
      await eventually(shop.costs, rows);
      await eventually(shop.total, `Total ${total}`);
    }

    test('the demo charges what its tables, rule, surcharges and taxes say', async (t) => {
      const shop = await open(t, 'Demo');
      for (const page of ['stoneware_teapot.htm', 'stoneware_teapot.htm', 'skillet.htm', 'taster.htm']) {
        await shop.add(page);
        if (page === 'stoneware_teapot.htm') await shop.count(1);
      }
      await shop.count(3);
      const goods = 'Subtotal \u00a3139.00';
      await eventually(shop.costs, [goods]);
      const regions = await shop.frames.trolley.$$eval('#region option', (all) => all.map((one) => one.textContent));
      assert.deepEqual(regions, ['Please choose', 'Australia', 'Austria', 'Belgium', 'Canada', 'Czechia', 'Denmark', 'Finland', 'France', 'Germany',
        'Ireland', 'Italy', 'Japan', 'Luxembourg', 'Netherlands', 'New Zealand', 'Norway', 'Poland', 'Portugal', 'Singapore', 'Spain', 'Sweden',
        'Switzerland', 'United Kingdom', 'United States', 'Rest of the world']);

      // Goods: 2 x 34.00 + 42.00 + 29.00 = 139.00. Weight: 2 x 1.2 + 2.3 + 0.9 = 5.6. Surcharges: 2 x 2.50 = 5.00.
      // United Kingdom: 20% of 139.00 = 27.80 on goods, and 20% on delivery as everywhere.
      //   Standard: 5.6 lies in the band up to 10, 8.90; + 5.00 = 13.90; its tax 2.78; 139 + 13.90 + 27.80 + 2.78 = 183.48
      //   Express: up to 10 costs 12.50; + 5.00 = 17.50; its tax 3.50; 139 + 17.50 + 27.80 + 3.50 = 187.80
      //   Collection: one price for every weight, 0; + 5.00 = 5.00; its tax 1.00; 139 + 5 + 27.80 + 1 = 172.80
      const vat = 'Tax 20% \u00a327.80';
      await costs(shop, 'GB', '0', [goods, 'Delivery \u00a313.90', vat, 'Tax on delivery 20% \u00a32.78'], '\u00a3183.48');
      assert.deepEqual(await shop.methods(), ['Standard post, 3-5 days - \u00a313.90', 'Express courier, 1-2 days - \u00a317.50',
        'Collection from our shop - \u00a35.00']);
      await costs(shop, 'GB', '1', [goods, 'Delivery \u00a317.50', vat, 'Tax on delivery 20% \u00a33.50'], '\u00a3187.80');
      await costs(shop, 'GB', '2', [goods, 'Delivery \u00a35.00', vat, 'Tax on delivery 20% \u00a31.00'], '\u00a3172.80');
      // Germany: no tax on goods. Standard: up to 6 costs 13.80; + 5.00 = 18.80; tax 3.76; in all 161.56.
      //   Express: up to 10 costs 28.00; + 5.00 = 33.00; tax 6.60; in all 178.60.
      await costs(shop, 'DE', '0', [goods, 'Delivery \u00a318.80', 'Tax on delivery 20% \u00a33.76'], '\u00a3161.56');
      await costs(shop, 'DE', '1', [goods, 'Delivery \u00a333.00', 'Tax on delivery 20% \u00a36.60'], '\u00a3178.60');
      // United States. Standard: up to 6 costs 31.90; + 5.00 = 36.90; tax 7.38; in all 183.28.
      //   Express goes by the rule: up to 10 costs 79; + 5.00 = 84.00; tax 16.80; in all 239.80.
      await costs(shop, 'US', '0', [goods, 'Delivery \u00a336.90', 'Tax on delivery 20% \u00a37.38'], '\u00a3183.28');
      await costs(shop, 'US', '1', [goods, 'Delivery \u00a384.00', 'Tax on delivery 20% \u00a316.80'], '\u00a3239.80');
      // The rest of the world, standard alone: up to 6 costs 41.50; + 5.00 = 46.50; tax 9.30; in all 194.80.
      await costs(shop, 'XW', '0', [goods, 'Delivery \u00a346.50', 'Tax on delivery 20% \u00a39.30'], '\u00a3194.80');
      assert.deepEqual(await shop.methods(), ['Standard post, 3-5 days - \u00a346.50']);
    });

    test('the demo charges each unit above the last band', async (t) => {
      const shop = await open(t, 'Demo');
      await shop.add('casserole.htm');
      await shop.count(1);
      await shop.frames.trolley.fill('[aria-label="Quantity of Casserole, 4 Litres"]', '3');
      await shop.page.keyboard.press('Tab');
      await eventually(shop.lines, ['Casserole, 4 Litres | 3 | \u00a3288.00']);
      // Goods 3 x 96 = 288; weight 3 x 4.8 = 14.4, so 5 units are begun above 10; surcharges 3 x 4 = 12.
      // United Kingdom: 8.90 + 5 x 0.60 + 12 = 23.90; tax 57.60 and 4.78; 288 + 23.90 + 57.60 + 4.78 = 374.28.
      // United States by the rule: 79 + 5 x 7.50 + 12 = 128.50; tax 25.70; 288 + 128.50 + 25.70 = 442.20.
      const goods = 'Subtotal \u00a3288.00';
      await costs(shop, 'GB', '0', [goods, 'Delivery \u00a323.90', 'Tax 20% \u00a357.60', 'Tax on delivery 20% \u00a34.78'], '\u00a3374.28');
      await costs(shop, 'US', '1', [goods, 'Delivery \u00a3128.50', 'Tax on delivery 20% \u00a325.70'], '\u00a3442.20');
    });

    test('the bookshop taxes each product at its own rate, within the Union only', async (t) => {
      const shop = await open(t, 'Bookshop');
      await shop.add('paper.htm', 'Ruled Notebook');
      await shop.add('paper.htm', 'Pencils, Box of Three');
      await shop.count(2);
      // Goods 9.80 + 5.40 = 15.20; weight 0.3 + 0.05 = 0.35: 3.50. Tax 23% of each: 2.254 + 1.242 = 3.496, rounded
      // once: 3.50 (2.25 + 1.24 would be 3.49). 15.20 + 3.50 + 3.50 = 22.20.
      await costs(shop, 'IE', '0', ['Subtotal \u20ac15.20', 'Delivery \u20ac3.50', 'Tax \u20ac3.50'], '\u20ac22.20');
      await shop.frames.trolley.click('[aria-label="Remove Pencils, Box of Three"]');
      await shop.count(1);
      await shop.frames.trolley.fill('[aria-label="Quantity of Ruled Notebook"]', '3');
      await shop.page.keyboard.press('Tab');
      await shop.add('tides.htm');
      await shop.add('orchard.htm');                                        // a book, with an apostrophe
      await shop.add('paper.htm', 'Bottle of Ink, Blue');
      await eventually(shop.lines, ['Ruled Notebook | 3 | \u20ac29.40', 'Tides of the West | 1 | \u20ac24.00',
        "The Orchard Keeper's Diary | 1 | \u20ac19.50", 'Bottle of Ink, Blue | 1 | \u20ac11.90']);
      // Goods 29.40 + 24.00 + 19.50 + 11.90 = 84.80; weight 0.9 + 0.6 + 0.5 + 0.25 = 2.25: the band up to 5.
      // Books carry no tax; 23% of 29.40 + 11.90 = 41.30 is 9.499: 9.50.
      // Ireland 8.40: 84.80 + 8.40 + 9.50 = 102.70. France 16.90: 111.20. Britain 16.90, no tax: 101.70. United
      // States 34.00, no tax: 118.80.
      const goods = 'Subtotal \u20ac84.80';
      await costs(shop, 'IE', '0', [goods, 'Delivery \u20ac8.40', 'Tax \u20ac9.50'], '\u20ac102.70');
      await costs(shop, 'FR', '0', [goods, 'Delivery \u20ac16.90', 'Tax \u20ac9.50'], '\u20ac111.20');
      await costs(shop, 'GB', '0', [goods, 'Delivery \u20ac16.90'], '\u20ac101.70');
      await costs(shop, 'US', '0', [goods, 'Delivery \u20ac34.00'], '\u20ac118.80');
    });

    test('checks the order, posts it field by field, and confirms it', async (t) => {
      orders.orders.length = orders.headers.length = 0;
      const shop = await open(t, 'Demo');
      await shop.add('stoneware_teapot.htm');
      await shop.add('stoneware_teapot.htm');
      await shop.add('knives.htm', "Cook's Knife, 20 cm");
      await shop.add('herbal.htm', 'Peppermint Leaf');
      await eventually(shop.lines, ['Stoneware Teapot | 2 | \u00a368.00', "Cook's Knife, 20 cm | 1 | \u00a364.00", 'Peppermint Leaf | 1 | \u00a35.40']);
      await shop.checkout();
      assert.match(await shop.text('.lead'), /^Thank you for choosing Fern and Kettle\./);
      assert.deepEqual(await shop.frames.main.$$eval('[name=CardType] option', (all) => all.map((one) => one.textContent.trim())),
        ['Visa', 'Mastercard', 'American Express']);

      await shop.frames.main.click('.send');
      assert.equal(await shop.text('.status'), 'Please choose where to deliver to.');
      assert.equal((await shop.problems()).length, 10);
      await shop.frames.main.selectOption('#order-region', 'GB');
      await shop.fill({ ...customer, CardNumber: '4111 1111 1111 1112', Email: 'ana' });
      await shop.frames.main.click('.send');
      assert.deepEqual(await shop.problems(), ['problem-email: Please check the e-mail address, as in name@example.com.',
        'problem-card-number: Please check the card number: a digit is wrong or missing.']);
      assert.deepEqual(orders.orders, []);

      await shop.fill(customer);
      await shop.frames.main.fill('[name=Comments]', 'Ring twice,\n"please"');
      await shop.frames.main.selectOption('[name=CardType]', 'American Express');
      orders.answer = () => refused('The card was declined.');
      await shop.frames.main.click('.send');
      await eventually(() => shop.text('.status'), 'The card was declined.');
      assert.equal((await shop.lines()).length, 3);
      orders.answer = () => accepted('FK-77');
      await shop.frames.main.click('.send');
      await shop.frames.main.waitForURL(/register\.html\?confirm$/);
      await eventually(() => shop.text('.order-number'), 'Your order number is FK-77.');
      await shop.frames.main.evaluate(() => { window.before = true; location.reload(); });   // survives a reload
      await eventually(() => shop.frames.main.evaluate(() => window.before === undefined), true);
      await eventually(() => shop.text('.order-number'), 'Your order number is FK-77.');
      assert.match(await shop.text('body'), /We pack it with care and write to you as soon as it is on its way\./);
      await eventually(shop.lines, []);

      // Goods 68.00 + 64.00 + 5.40 = 137.40; weight 2 x 1.2 + 0.3 + 0.12 = 2.82: the band up to 4, 5.60; + 2 x 2.50 =
      // 10.60. 20% of 137.40 = 27.48, of 10.60 = 2.12. 137.40 + 10.60 + 27.48 + 2.12 = 177.60.
      assert.equal(await shop.text('tr.total td'), '\u00a3177.60');
      const tokens = orders.orders.map((order) => Object.fromEntries(order).OrderToken);
      assert.deepEqual([tokens.length, tokens[0] === tokens[1]], [2, true]);
      assert.match(tokens[0], /^[0-9a-f]{24}$/);
      const confirmAt = Object.fromEntries(orders.orders[1]).ConfirmURL;
      assert.equal(confirmAt, way === 'file' ? undefined : `${roots.Demo}/register.html?confirm`);
      assert.deepEqual(orders.orders[1].filter(([name]) => name !== 'OrderToken' && name !== 'ConfirmURL'), [
        ['SN', 'FK-20'], ['Currency', '\u00a3'], ['Items', '3'],
        ['Code1', 'P-101'], ['Title1', 'Stoneware Teapot'], ['Page1', 'stoneware_teapot.htm'], ['Price1', '34.00'], ['Quantity1', '2'],
        ['Amount1', '68.00'], ['Weight1', '1.2'], ['Surcharge1', '2.50'], ['TaxRate1', '0'],
        ['Code2', 'K-301'], ['Title2', "Cook's Knife, 20 cm"], ['Page2', 'knives.htm'], ['Price2', '64.00'], ['Quantity2', '1'],
        ['Amount2', '64.00'], ['Weight2', '0.3'], ['Surcharge2', '0'], ['TaxRate2', '0'],
        ['Code3', 'T-301'], ['Title3', 'Peppermint Leaf'], ['Page3', ''], ['Price3', '5.40'], ['Quantity3', '1'],
        ['Amount3', '5.40'], ['Weight3', '0.12'], ['Surcharge3', '0'], ['TaxRate3', '0'],
        ['Subtotal', '137.40'], ['Weight', '2.82'], ['Region', 'GB'], ['RegionName', 'United Kingdom'], ['Method', 'Standard post, 3-5 days'],
        ['Freight', '10.60'], ['GoodsTax', '27.48'], ['FreightTax', '2.12'], ['Total', '177.60'], ['_charset_', 'UTF-8'],
        ['Name', customer.Name], ['Company', ''], ['Address', customer.Address], ['Address2', ''], ['City', customer.City], ['State', ''],
        ['Postcode', customer.Postcode], ['Country', customer.Country], ['Email', customer.Email], ['Phone', customer.Phone],
        ['Comments', 'Ring twice,\r\n"please"'],
        ['CardType', 'American Express'], ['CardName', customer.CardName], ['CardNumber', customer.CardNumber], ['CardExpiry', customer.CardExpiry],
      ]);
      assert.equal(orders.headers[1].origin, way === 'file' ? 'null' : roots.Demo);

      await shop.frames.main.click('text=Back to the shop');
      await eventually(shop.where, 'home.htm');
    });
  });
}
