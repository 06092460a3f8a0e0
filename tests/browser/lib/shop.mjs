// A store that is open in a page: what a customer reads in it and does with it.
import assert from 'node:assert/strict';
import { framesOf, watchErrors } from './browser.mjs';

// Polls until `read` gives `expected`; the last value is in the failure.
export async function eventually(read, expected) {
  let value;
  for (const end = Date.now() + 8000; Date.now() < end; await new Promise((r) => setTimeout(r, 40))) {
    try { value = await read(); } catch (error) { value = String(error); }
    try { assert.deepEqual(value, expected); return; } catch { /* not yet */ }
  }
  assert.deepEqual(value, expected);
}

export const customer = { Name: 'Ana Ruiz', Address: 'Calle R\u00edo Bravo 17', City: 'M\u00e9xico \u4e2d', Postcode: '06700', Country: 'Mexico',
  Email: 'ana@example.com', Phone: '(5) 555-0142', CardName: 'ANA RUIZ', CardNumber: '4111 1111 1111 1111', CardExpiry: '09/39' };

// Opens `address` in a new page and waits until the three frames are there. After the test `t`, the page is
// closed and no script may have failed.
export async function openShop(t, browser, address) {
  const page = await browser.newPage();
  const errors = watchErrors(page);
  await page.goto(address);
  const frames = framesOf(page);
  await frames.register.waitForSelector('.checkout');
  await frames.main.waitForSelector('body');
  t.after(async () => {
    await page.close();
    if (t.passed !== false) assert.deepEqual(errors, [], 'errors of scripts');
  });
  const texts = (frame, selector) => frame.$$eval(selector, (all) => all.map((one) => one.textContent));
  const shop = {
    page, errors, frames,
    // What the trolley shows: title, quantity and amount of each line.
    lines: () => frames.trolley.$$eval('#cart li', (rows) => rows.map((row) => [row.querySelector('a').textContent, row.querySelector('input').value,
      row.querySelector('.amount').textContent].join(' | '))),
    costs: () => frames.trolley.$$eval('#cart dl dt', (names) => names.map((name) => name.textContent + ' ' + name.nextSibling.textContent)),
    methods: () => texts(frames.trolley, '#method option'),
    total: () => frames.register.$eval('.sum', (sum) => sum.children[0].textContent + ' ' + sum.children[1].textContent),
    choose: (what, value) => frames.trolley.selectOption('#' + what, value),
    count: async (n) => eventually(async () => (await shop.lines()).length, n),
    checkout: async () => { await frames.register.click('.checkout'); await frames.main.waitForSelector('form .order-items, form .notice'); },
    fill: async (entries) => { for (const [name, value] of Object.entries(entries)) await frames.main.fill(`[name=${name}]`, value); },
    problems: () => frames.main.$$eval('.field .problem', (notes) => notes.map((note) => note.id + ': ' + note.textContent)),
    text: (selector) => frames.main.$eval(selector, (element) => element.textContent),
    // The name of the page that the shop shows.
    where: () => decodeURIComponent(frames.main.url().replace(/^.*\//, '').replace(/\?x$/, '')),
    // Follows the link with these words, in a part of the page, to the page of that name.
    follow: async (part, words, name) => {
      await frames.main.click(`${part} a:text-is("${words}")`);
      await eventually(shop.where, name);
      await frames.main.waitForSelector('.foot');
    },
    // Opens a page of the store as a link in the shop would.
    visit: async (name) => {
      await frames.main.evaluate((to) => { location.href = to; }, name);
      await eventually(shop.where, name);
      await frames.main.waitForSelector('.foot');
    },
    // The add link of a product: the only one of its page, or the one with its title in the words of the button.
    addLink: (title) => (title ? `a.add:has(img[alt="Add to cart: ${title}"])` : 'a.add'),
    add: async (page, title) => {
      if (shop.where() !== page) await shop.visit(page);
      await frames.main.click(shop.addLink(title));
      await shop.seeAdded();
    },
    // What a customer sees before leaving the page.
    seeAdded: () => frames.main.waitForSelector('[role=status]:not([hidden])'),
  };
  return shop;
}
