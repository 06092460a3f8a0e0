// The cart alone in a real browser: the shipped data files around hand-made product pages, for what the shipped
// stores do not have. What works over http must work from disk.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { after, before, beforeEach, describe, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { framesOf, startBrowser } from './lib/browser.mjs';
import { buildSite, defaultStore } from './lib/build_site.mjs';
import { accepted, orderServer, plainPage, refused, serveFolder } from './lib/servers.mjs';
import { customer, eventually, openShop } from './lib/shop.mjs';

const products = [
  { code: 'MIX', title: "Baker's Spice Mix", price: '19.95', image: 'img/mix.gif', weight: '0.4', tax: '10' },
  { code: 'BOWL', title: 'Bowl &amp; spoon', price: '34.50', weight: '2', freight: '1.5', tax: '5' },
  { code: 'ODD', title: "a','b' and %27", price: '$1,249.00', weight: '3' },
];
const freight = 'Economy+Air(AU,NZ(10%,2f,5<=0.5k,7<=1k,9<=2k,14<=5k,30<=10k,30+5k>10k);US,GB(12<=0.5k,18<=1k,25<=5k););' +
  'Express(AU(*%,2f,20<=0.5k);FR(abc<=0.5k););';

let browser;
let orders;
let scratch;
before(async () => {
  browser = await startBrowser();
  orders = await orderServer();
  scratch = fs.mkdtempSync(path.join(os.tmpdir(), 'varlo-cart-'));
});
after(async () => {
  await browser.close();
  await orders.close();
  fs.rmSync(scratch, { recursive: true, force: true });
});

let sites = 0;
// Opens a store in a new page: `way` is "http" or "file".
async function openStore(t, way, { changes = {}, start = 'index.html', options = {}, delays = {}, goods = products } = {}) {
  const folder = buildSite(path.join(scratch, String(sites++)), { server: orders.address + '/order', freight, ...changes }, goods, options);
  fs.mkdirSync(path.join(folder, 'img'));
  fs.writeFileSync(path.join(folder, 'img', 'mix.gif'), Buffer.from('R0lGODlhAQABAIAAAAAAAP///ywAAAAAAQABAAACAUwAOw==', 'base64'));
  fs.writeFileSync(path.join(folder, 'favicon.ico'), '');
  let root = pathToFileURL(folder).href;
  let server = null;
  if (way === 'http') {
    server = await serveFolder(folder, delays);
    root = server.address;
  }
  // The page is closed first: a server that goes away under it would look like an error of the page.
  const shop = await openShop(t, browser, `${root}/${start}`).finally(() => t.after(() => server?.close()));
  // The hand-made pages know their products by the code.
  return { ...shop, folder, root, add: (code) => shop.frames.main.click(`#${code} .add span`) };
}

// All tests of one way to open a store, "http" or "file".
export function cartTests(way) {
  describe(`the cart, opened by ${way}`, () => {
    beforeEach(() => {
      orders.orders.length = 0;
      orders.headers.length = 0;
      orders.answer = () => accepted('1001');
    });

    test('takes items by click and by Enter, with apostrophes, entities and thousands', async (t) => {
      const store = await openStore(t, way);
      await store.add('MIX');
      await store.frames.main.focus('#BOWL .add');
      await store.page.keyboard.press('Enter');
      await store.add('ODD');
      await store.add('MIX');
      await eventually(store.lines, ["Baker's Spice Mix | 2 | $39.90", 'Bowl & spoon | 1 | $34.50', "a','b' and %27 | 1 | $1,249.00"]);
      assert.equal(await store.total(), 'Subtotal $1,323.40');
      assert.equal(await store.frames.main.textContent('[role=status]'), "Baker's Spice Mix is in the cart.");
      assert.equal(await store.frames.trolley.getAttribute('#cart li img', 'src'), 'img/mix.gif');
    });

    test('changes quantities by button, by typing and down to nothing', async (t) => {
      const store = await openStore(t, way);
      await store.add('MIX');
      await store.add('BOWL');
      await store.count(2);
      await store.frames.trolley.click('[aria-label="One more of Bowl & spoon"]');
      await eventually(store.lines, ["Baker's Spice Mix | 1 | $19.95", 'Bowl & spoon | 2 | $69.00']);
      await store.frames.trolley.fill('[aria-label="Quantity of Bowl & spoon"]', '12');
      await store.page.keyboard.press('Tab');
      await eventually(store.lines, ["Baker's Spice Mix | 1 | $19.95", 'Bowl & spoon | 12 | $414.00']);
      await store.frames.trolley.click(`[aria-label="One less of Baker's Spice Mix"]`);
      await eventually(store.lines, ['Bowl & spoon | 12 | $414.00']);
      await store.frames.trolley.fill('input', '2.5');
      await store.page.keyboard.press('Enter');
      await eventually(store.lines, ['Bowl & spoon | 12 | $414.00']);
    });

    test('keeps the keyboard on the control that was used', async (t) => {
      const store = await openStore(t, way);
      await store.add('BOWL');
      await store.count(1);
      await store.frames.trolley.focus('[aria-label="One more of Bowl & spoon"]');
      await store.page.keyboard.press('Enter');
      await store.page.keyboard.press('Enter');
      await eventually(store.lines, ['Bowl & spoon | 3 | $103.50']);
      assert.equal(await store.frames.trolley.evaluate(() => document.activeElement.getAttribute('aria-label')), 'One more of Bowl & spoon');
    });

    test('removes from the trolley and from the page', async (t) => {
      const store = await openStore(t, way);
      await eventually(() => store.frames.main.isVisible('#MIX .remove'), false);   // there is nothing to remove yet
      await store.add('MIX');
      await eventually(() => store.frames.main.isVisible('#MIX .remove'), true);
      assert.equal(await store.frames.main.isVisible('#BOWL .remove'), false);
      await store.add('BOWL');
      await store.add('ODD');
      await store.count(3);
      await store.frames.main.evaluate(() => location.reload());
      await eventually(() => store.frames.main.isVisible('#ODD .remove'), true);
      await store.frames.trolley.click('[aria-label="Remove Bowl & spoon"]');
      await store.count(2);
      await store.frames.main.click('#MIX .remove');
      await eventually(store.lines, ["a','b' and %27 | 1 | $1,249.00"]);
      assert.equal(await store.frames.trolley.textContent('#said'), "Baker's Spice Mix was taken out of the cart.");
    });

    test('says what is too heavy, and what is wrong with a table', async (t) => {
      const store = await openStore(t, way);
      await store.add('BOWL');
      await store.count(1);
      await store.choose('region', 'US');
      await eventually(store.total, 'Total $61.00');
      await store.frames.trolley.fill('input', '3');
      await store.page.keyboard.press('Enter');
      await eventually(() => store.frames.trolley.textContent('p.problem'), 'The order weighs 6, too heavy for delivery "Economy Air" to United States.');
      assert.equal(await store.total(), 'Subtotal $103.50');
      await store.choose('region', 'FR');
      await eventually(() => store.frames.trolley.textContent('p.problem'), 'Delivery "Express" to FR: a number is missing before "abc".');
      await store.frames.trolley.click('summary');
      assert.equal(await store.frames.trolley.textContent('details p'), 'Delivery "Express" to FR: a number is missing before "abc".');
    });

    test('checks the order form and says under each field what is wrong', async (t) => {
      const store = await openStore(t, way);
      await store.add('MIX');
      await store.count(1);
      await store.checkout();
      await store.frames.main.click('.send');
      assert.deepEqual(await store.problems(), ['problem-name: Please enter your name.', 'problem-address: Please enter your street and number.',
        'problem-city: Please enter your town or city.', 'problem-postcode: Please enter your postcode.', 'problem-country: Please enter your country.',
        'problem-email: Please enter your e-mail address.', 'problem-phone: Please enter a telephone number.',
        'problem-card-name: Please enter the name on the card.', 'problem-card-number: Please enter the card number.',
        'problem-card-expiry: Please enter the month and year in which the card expires.']);
      assert.equal(await store.text('.status'), 'Please choose where to deliver to.');
      assert.equal(await store.frames.main.evaluate(() => document.activeElement.name), 'Name');
      assert.equal(await store.frames.main.getAttribute('#email', 'aria-describedby'), 'problem-email');
      await store.fill({ ...customer, Email: 'ana at example', CardNumber: '4111 1111 1111 1112', CardExpiry: '13/39', Phone: 'call me' });
      await store.frames.main.selectOption('#order-region', 'NZ');
      await store.frames.main.waitForSelector('#order-method');
      await store.frames.main.click('.send');
      assert.deepEqual(await store.problems(), ['problem-email: Please check the e-mail address, as in name@example.com.', 'problem-phone: Please check the telephone number.',
        'problem-card-number: Please check the card number: a digit is wrong or missing.', 'problem-card-expiry: Please give a month that is not over yet, as in 09/30.']);
      assert.equal(await store.text('.status'), '4 entries need a look; they are marked above.');
      await store.fill({ CardExpiry: '01/20' });
      await store.frames.main.click('.send');
      assert.equal((await store.problems()).length, 4);
      assert.deepEqual(orders.orders, []);
    });

    // A cart of one bowl to Australia (2: 9 and 1.50), with the form filled in.
    async function readyToSend(t, setting) {
      const store = await openStore(t, way, setting);
      await store.add('BOWL');
      await store.count(1);
      await store.checkout();
      if (await store.frames.main.$('#order-region')) await store.frames.main.selectOption('#order-region', 'AU');
      await store.fill(customer);
      return store;
    }
    const stillThere = ['Bowl & spoon | 1 | $34.50'];

    test('keeps cart and entries when the server refuses, and sends the same order again', async (t) => {
      const store = await readyToSend(t);
      orders.answer = () => refused('The card was declined.');
      await store.frames.main.click('.send');
      await eventually(() => store.text('.status'), 'The card was declined.');
      assert.deepEqual(await store.lines(), stillThere);
      assert.equal(await store.frames.main.inputValue('[name=CardNumber]'), customer.CardNumber);
      orders.answer = () => accepted('7');
      await store.frames.main.click('.send');
      await eventually(() => store.text('.order-number'), 'Your order number is 7.');
      await eventually(store.lines, []);
      const tokens = orders.orders.map((order) => Object.fromEntries(order).OrderToken);
      assert.equal(tokens.length, 2);
      assert.equal(tokens[0], tokens[1]);
      await store.frames.main.click('text=Back to the shop');
      await eventually(() => store.frames.main.url().endsWith('page.htm'), true);
      await store.add('MIX');
      await store.count(1);
      await store.checkout();
      await store.fill(customer);
      await store.frames.main.click('.send');
      await eventually(() => orders.orders.length, 3);
      assert.notEqual(Object.fromEntries(orders.orders[2]).OrderToken, tokens[0]);
    });

    test('shows the page of a server that knows nothing of the shop, and asks', async (t) => {
      const store = await readyToSend(t);
      orders.answer = () => plainPage('We have got your order.');
      await store.frames.main.click('.send');
      await eventually(() => store.text('.status'), 'This is the answer of the order server. Was your order taken?');
      assert.equal(await store.frames.main.isVisible('iframe[name=orderanswer]'), true);
      assert.equal(await store.page.frame({ name: 'orderanswer' }).textContent('p'), 'We have got your order.');
      await store.frames.main.click('text=No, back to the form');
      assert.equal(await store.frames.main.isVisible('iframe[name=orderanswer]'), false);
      assert.deepEqual(await store.lines(), stillThere);
      await store.frames.main.click('.send');
      await store.frames.main.click('text=Yes, finish');
      await eventually(() => store.frames.main.url().endsWith('register.html?confirm'), true);
      await eventually(store.lines, []);
    });

    test('does not send an order twice while the server thinks', async (t) => {
      const store = await readyToSend(t);
      orders.answer = () => null;
      await store.frames.main.click('.send');
      await eventually(() => orders.orders.length, 1);
      assert.equal(await store.frames.main.isDisabled('.send'), true);
      await store.frames.main.focus('[name=Name]');
      await store.page.keyboard.press('Enter');
      assert.equal(await store.text('.status'), 'Your order is being sent. Please wait.');
      assert.equal(orders.orders.length, 1);
      assert.deepEqual(await store.lines(), stillThere);
    });

    test('keeps entries over a reload of the form, but none of the card', async (t) => {
      const store = await readyToSend(t);
      await store.page.keyboard.press('Tab');
      await store.frames.main.evaluate(() => location.reload());
      await eventually(() => store.frames.main.inputValue('[name=City]'), customer.City);
      await store.frames.main.waitForSelector('.order-items');
      for (const name of ['CardName', 'CardNumber', 'CardExpiry']) assert.equal(await store.frames.main.inputValue(`[name=${name}]`), '');
      const stored = await store.frames.main.evaluate(() => JSON.stringify(sessionStorage));
      assert.match(stored, /Ana Ruiz/);
      assert.doesNotMatch(stored, /4111/);
      await store.frames.main.evaluate(() => history.back());
      await eventually(() => store.frames.main.url().endsWith('page.htm'), true);
    });

    test('the checkout button leaves a form alone that is open already', async (t) => {
      const store = await readyToSend(t);
      await store.frames.register.click('.checkout');
      await new Promise((r) => setTimeout(r, 600));
      assert.equal(await store.frames.main.inputValue('[name=CardNumber]'), customer.CardNumber);
    });

    test('puts https in front of a server without a scheme', async (t) => {
      const store = await readyToSend(t, { changes: { server: 'orders.example/take' } });
      const seen = [];
      await store.page.route('https://orders.example/**', (route) => {
        seen.push(route.request().method() + ' ' + route.request().url());
        return route.fulfill({ contentType: 'text/html', body: accepted('8').page });
      });
      await store.frames.main.click('.send');
      await eventually(() => store.text('.order-number'), 'Your order number is 8.');
      assert.deepEqual(seen, ['POST https://orders.example/take']);
    });

    test('does not pretend to send without a server, and warns of one without encryption', async (t) => {
      const none = await readyToSend(t, { changes: { server: '' } });
      await none.frames.main.click('.send');
      assert.equal(await none.text('.status'), 'This store has no order server yet, so the order cannot be sent.');
      const port = await readyToSend(t, { changes: { server: 'orders.example:8443/take' } });
      await port.frames.main.click('.send');
      assert.equal(await port.text('.status'), 'This store has no order server yet, so the order cannot be sent.');
      const open = await readyToSend(t, { changes: { server: 'http://orders.example/take' } });
      assert.match(await open.text('form > .problem'), /without encryption/);
    });

    test('sells without delivery tables and in a currency that is a word', async (t) => {
      const store = await openStore(t, way, { changes: { freight: '', currency: 'AUD' } });
      await store.add('BOWL');
      await store.add('ODD');
      await eventually(store.costs, ['Subtotal AUD 1,283.50', 'Delivery AUD 1.50']);
      assert.equal(await store.total(), 'Total AUD 1,285.00');
      assert.equal(await store.frames.trolley.$('#region'), null);
      await store.checkout();
      await store.fill(customer);
      await store.frames.main.click('.send');
      await eventually(() => store.text('tr.total td'), 'AUD 1,285.00');
      const posted = Object.fromEntries(orders.orders[0]);
      assert.deepEqual([posted.Region, posted.Method, posted.Total, posted.Currency], ['', '', '1285.00', 'AUD']);
      assert.deepEqual([posted.Title2, posted.Price2, posted.Amount2], ["a','b' and %27", '1249.00', '1249.00']);
    });

    test('has nothing to order or to confirm with an empty cart', async (t) => {
      const store = await openStore(t, way);
      await store.frames.main.evaluate(() => { location.href = 'register.html?order'; });
      await eventually(() => store.text('.notice'), 'Your cart is empty.');
      assert.equal(await store.frames.main.isVisible('.send'), false);
      await store.frames.main.evaluate(() => { location.href = 'register.html?confirm'; });
      await eventually(() => store.text('p'), 'No order has been sent yet.');
    });

    test('an item whose price is no number is told and cannot be ordered', async (t) => {
      const store = await openStore(t, way, { goods: [{ code: 'X', title: 'Antique', price: 'on request' }] });
      await store.add('X');
      await eventually(() => store.frames.trolley.textContent('p.problem'), 'The price "on request" of item X is not a number with at most 9 digits and 4 decimals.');
      await store.checkout();
      await store.fill(customer);
      await store.frames.main.click('.send');
      assert.equal(await store.text('.status'), 'Please choose where to deliver to.');
      await store.frames.main.selectOption('#order-region', 'AU');
      await store.frames.main.waitForSelector('#order-method');
      await store.frames.main.click('.send');
      assert.match(await store.text('.status'), /^The price "on request" of item X is not a number/);
      assert.deepEqual(orders.orders, []);
    });

    test('shows an order form without a form, or with a script of its own, as a problem and not as a ruin', async (t) => {
      const store = await openStore(t, way, { changes: { orderTemplate: '<p>Call us</p>' } });
      await store.frames.main.evaluate(() => { location.href = 'register.html?order'; });
      await eventually(() => store.text('[role=alert]'), 'The order form has no form in it.');
      const scripted = await openStore(t, way, { changes: { orderTemplate: '<form><script>var x = "1";</script></form>' } });
      await scripted.frames.main.evaluate(() => { location.href = 'register.html?order'; });
      await eventually(() => scripted.text('[role=alert]'), 'This template holds a script of its own, which cannot be shown here.');
    });

    test('hears the frames of the shop and no one else', async (t) => {
      const store = await openStore(t, way);
      const forged = { shop: 'add', args: ['p.htm', 'EVIL', 'Forged', '0.01', '', 1, '0', '0', '0'] };
      await store.page.evaluate((m) => { window.frames.shopregister.postMessage(m, '*'); window.frames.shoptrolley.postMessage({ shop: 'cart', view: {} }, '*'); }, forged);
      await store.add('MIX');
      await eventually(store.lines, ["Baker's Spice Mix | 1 | $19.95"]);
    });

    test('shows the scheme\'s headings, and words where the picture is missing', async (t) => {
      const store = await openStore(t, way, { changes: { heading2: "<IMG SRC='img/mix.gif'><BR>", heading3: '<b>Till</b>' } });
      await eventually(() => store.frames.trolley.getAttribute('#heading img', 'alt'), 'Your cart');
      assert.equal(await store.frames.register.textContent('.heading'), 'Till');
      const missing = await openStore(t, way, { changes: { heading2: '<IMG SRC="img/none.gif"><BR>' } });
      await eventually(() => missing.frames.trolley.textContent('#heading'), 'Your cart');
      missing.errors.length = 0;   // the picture that is missing on purpose
    });

    test('is readable on a dark cart whose scheme sets no text colour', async (t) => {
      const store = await openStore(t, way, { changes: { cart: { ...defaultStore.cart, background: '#202020', text: undefined }, list: '#C3C3C3' } });
      await store.add('MIX');
      await store.count(1);
      assert.equal(await store.frames.trolley.evaluate(() => getComputedStyle(document.body).color), 'rgb(255, 255, 255)');
      assert.equal(await store.frames.trolley.$eval('li', (row) => getComputedStyle(row).color), 'rgb(0, 0, 0)');
      assert.equal(await store.frames.register.$eval('.sum', (sum) => getComputedStyle(sum).color), 'rgb(255, 255, 255)');
    });
  });
  if (way === 'http') httpTests();
}

function httpTests() {
  describe('the cart over http alone', () => {
    beforeEach(() => { orders.orders.length = 0; orders.answer = () => accepted('1'); });

    test('keeps a click that comes before the register frame is there', async (t) => {
      const folder = buildSite(path.join(scratch, 'late'), { server: orders.address, freight }, products);
      const server = await serveFolder(folder, { 'register.html': 1500 });
      t.after(() => server.close());
      const page = await browser.newPage();
      t.after(() => page.close());
      await page.goto(server.address + '/index.html', { waitUntil: 'commit' });
      await eventually(async () => Boolean(await framesOf(page).main.$('#MIX .add')), true);
      await framesOf(page).main.click('#MIX .add', { noWaitAfter: true });
      await eventually(() => framesOf(page).trolley.textContent('#cart li a'), "Baker's Spice Mix");
    });

    test('takes items from pages without the page script', async (t) => {
      const store = await openStore(t, 'http', { options: { withScript: false } });
      await store.add('BOWL');
      await store.count(1);
      await store.frames.main.click('#BOWL .remove');
      await store.count(0);
      assert.match(store.frames.main.url(), /page\.htm$/);
    });

    test('confirms when the server sends its answer on to ConfirmURL', async (t) => {
      const store = await openStore(t, 'http');
      await store.add('BOWL');
      await store.count(1);
      await store.checkout();
      await store.frames.main.selectOption('#order-region', 'AU');
      await store.fill(customer);
      orders.answer = (order) => ({ goTo: order.ConfirmURL + '&order=A-77' });
      await store.frames.main.click('.send');
      await eventually(() => store.text('.order-number'), 'Your order number is A-77.');
      await eventually(store.lines, []);
    });

    test('becomes a bar at the foot of a narrow window', async (t) => {
      const store = await openStore(t, 'http');
      await store.page.setViewportSize({ width: 390, height: 844 });
      const width = (frame) => frame.evaluate(() => innerWidth + ' x ' + innerHeight);
      await eventually(() => width(store.frames.main), '390 x 780');
      await store.add('MIX');
      await eventually(() => store.frames.register.textContent('.view'), 'Cart (1)');
      await store.frames.register.click('.view');
      await eventually(() => width(store.frames.main), '390 x 211');
      await store.frames.trolley.click(`[aria-label="One more of Baker's Spice Mix"]`);
      await eventually(() => store.frames.register.textContent('.view'), 'Hide cart (2)');
      await store.frames.register.click('.checkout');
      await store.frames.main.waitForSelector('.order-items');
      await eventually(() => width(store.frames.main), '390 x 780');
      assert.equal(await store.frames.main.evaluate(() => document.documentElement.scrollWidth), 390);
      await store.page.setViewportSize({ width: 1280, height: 800 });
      await eventually(() => width(store.frames.main), '1072 x 800');
      await eventually(() => width(store.frames.register), '208 x 110');
    });

    test('shows the register page itself only in the shop', async (t) => {
      const store = await openStore(t, 'http', { start: 'index.html' });
      const page = await browser.newPage();
      t.after(() => page.close());
      await page.goto(store.root + '/register.html');
      await page.waitForURL(/index\.html$/);
      await page.goto(store.root + '/trolley.html');
      await page.waitForURL(/index\.html$/);
    });
  });
}
