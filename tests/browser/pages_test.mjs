// Every page of the shipped stores, in every style: all that it refers to is there, it sells what the project
// says, and its HTML is valid. No browser is needed for this.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, describe, test } from 'node:test';
import { HtmlValidate, StaticConfigLoader } from 'html-validate';
import { frameScript, readPage, references, withoutListings } from './lib/pages.mjs';
import { makeInstallation } from './lib/real_store.mjs';

// The three template sets; the projects as they are shipped use the first and the third.
const stores = [
  { project: 'Demo', address: 'https://www.fernandkettle.example/', pages: 64 },
  { project: 'Bookshop', address: 'https://www.paperlane.example/', pages: 9 },
  { project: 'Demo', layout: 'Gallery/Paper', set: 'gallery', address: 'https://www.fernandkettle.example/', pages: 64 },
];
// Where pages may lead outside of the store: the directory of stores that the generator puts into the index.
const outside = ['https://www.varlo.example/directory.htm'];
const starts = { gif: 'GIF8', jpg: '\xff\xd8\xff', png: '\x89PNG' };

let installation;
before(() => {
  installation = makeInstallation({ server: 'orders.example/order', account: 'FK-2042' });
  for (const store of stores) {
    Object.assign(store, installation.build(store.project, store.layout, store.set));
    store.names = fs.readdirSync(store.folder);
    store.documents = store.names.filter((name) => name.endsWith('.htm') && name !== 'ftmp.htm');
  }
});
after(() => installation?.remove());

// The list of the accepted cards, as the generator writes it into the order form.
const cardList = /<SELECT NAME=%22CardType%22>\n(?:<OPTION VALUE=%22[^<>%]*%22>[^<>%]*\n)+<\/SELECT>/;

// The rules that the generator's own markup breaks, each for a reason that no template can mend. They are off
// for its listings alone; what templates hold is checked with all recommended rules.
const listingRules = {
  'attr-quotes': 'off',              // width=100%, valign=top, size=-1: as the rows have always been written
  'close-order': 'off',              // the cells' <font> is never closed
  'deprecated': 'off',               // <font>
  'element-permitted-content': 'off', // <font> in a cell
  'no-deprecated-attr': 'off',       // width, valign and cellspacing of tables
  'no-implicit-close': 'off',        // the row in front of the directory's row is opened twice
  'prefer-tbody': 'off',             // rows directly in the table
};
const recommended = new HtmlValidate(new StaticConfigLoader({ root: true, extends: ['html-validate:recommended'] }));
const lenient = new HtmlValidate(new StaticConfigLoader({ root: true, extends: ['html-validate:recommended'], rules: listingRules }));

function complaints(validator, text, name) {
  return validator.validateStringSync(text).results.flatMap(({ messages }) =>
    messages.map((m) => `${name}:${m.line}:${m.column} ${m.ruleId}: ${m.message}`));
}

for (const store of stores) {
  describe(`${store.project} in ${store.layout ?? 'its own layout'}`, () => {
    test('is built without errors and warnings', () => {
      assert.equal(store.result, 'Store Build Complete. (0 errors, 0 warnings)');
      assert.equal(store.documents.length, store.pages);
    });

    test('every link and picture is there, letter for letter, and every page can be reached', () => {
      const reached = new Set(['index.html']);
      for (const name of reached) {
        if (!/\.html?$/.test(name)) continue;
        const text = readPage(store.folder, name);
        for (const { tag, value } of references(text)) {
          if (/^(javascript|mailto):/.test(value) || outside.includes(value)) continue;
          if (value === store.address + name) { assert.equal(tag, 'link'); continue; }   // where the page will stand
          const [file, mark] = value.split('#');
          assert.ok(!file.includes(':'), `${name} leads out of the store: ${value}`);
          if (mark) assert.ok(readPage(store.folder, file || name).includes(` id="${mark}"`), `${name}: no place #${mark}`);
          if (!file) continue;
          assert.ok(fs.existsSync(path.join(store.folder, file)), `${name}: no file ${value}`);
          const start = starts[path.extname(file).slice(1)];
          if (start) assert.equal(fs.readFileSync(path.join(store.folder, file), 'latin1').slice(0, start.length), start, file);
          reached.add(file);
        }
      }
      assert.deepEqual(store.documents.filter((name) => !reached.has(name)), []);
    });

    test('what has an add link is what the project sells, with its price, weight, freight and tax', () => {
      const wanted = new Map();
      const collect = (node) => {
        if (node.kind === 1 && node.status === 0) {
          wanted.set(node.productCode, [node.cost, node.weight ?? '0', node.freight ?? '0', (node.tax ?? '0').replace('%', '')]);
        }
        (node.children ?? []).forEach(collect);
      };
      installation.dump(store.project).nodes.forEach(collect);
      const found = new Map();
      for (const name of store.documents) {
        const text = readPage(store.folder, name);
        for (const [, page, code, price, image, weight, freight, tax] of
          text.matchAll(/shopregister\.addItem\('([^']*)','([^']*)','.*?','([^']*)','([^']*)',1,([^,]*),([^,]*),([^,)]*)\)"/g)) {
          assert.ok(!found.has(code), `${code} is sold twice`);
          assert.ok(page === '' || page === name, `${code} of ${name} says that it is of ${page}`);
          assert.ok(image === '' || store.names.includes(image.split('/')[0]), image);
          assert.ok(text.includes(`shopregister.removeItem('${code}')`), `${code} cannot be taken out on its page`);
          found.set(code, [price, weight, freight, tax]);
        }
      }
      assert.deepEqual([...found].sort(), [...wanted].sort());
    });

    test('the HTML of every page is valid', () => {
      const broken = new Set();
      for (const name of store.documents) {
        const text = readPage(store.folder, name);
        assert.equal(text.split(frameScript).length, 2, `${name} has no frame script`);
        // The validator takes no tag in capitals for a script.
        const page = text.replace(frameScript, frameScript.replace(/SCRIPT>/g, 'script>'));
        const { rest, tables } = withoutListings(page);
        assert.ok(tables.length >= 1, `${name} has no index`);
        assert.deepEqual(complaints(recommended, rest, name), []);
        const listings = `<main>${tables.join('\n')}</main>`;
        assert.deepEqual(complaints(lenient, listings, name), []);
        for (const complaint of complaints(recommended, listings, name)) broken.add(complaint.split(' ')[1].slice(0, -1));
      }
      // No rule is off without need.
      assert.deepEqual([...broken].sort(), Object.keys(listingRules));
    });

    test('the HTML of the cart, the order form and the confirmation is valid', () => {
      for (const name of ['register.html', 'trolley.html']) {
        assert.deepEqual(complaints(recommended, readPage(store.folder, name), name), []);
      }
      const register = readPage(store.folder, 'register.html');
      for (const id of ['order-template', 'confirm-template']) {
        const [, text] = new RegExp(`<script type="text/plain" id="${id}">([\\s\\S]*?)\\[end\\]</script>`).exec(register);
        const cards = cardList.exec(text);
        assert.equal(cards === null, id !== 'order-template');
        // In the spelling that the validator takes for the same.
        const page = text.replace(cardList, (list) => list.toLowerCase().replace(/(<option.*)/g, '$1</option>'));
        assert.deepEqual(complaints(recommended, page.replaceAll('%22', '"'), id), []);
      }
    });

    test('the two framesets are the fixed text around the first page and a previewed one', () => {
      // Documents of frames are obsolete altogether, so a validator has nothing to say about them.
      const frames = (page) => `<HEAD>\n<TITLE>${installation.dump(store.project).storeTitle}</TITLE>\n` +
        `<FRAMESET COLS="*,208" BORDER=0 FRAMEBORDER=NO FRAMESPACING=0><FRAME SRC="${page}" NAME="shopmain" MARGINWIDTH=2>` +
        '<FRAMESET ROWS="*,110"><FRAME SRC="trolley.html" NAME="shoptrolley" MARGINWIDTH=13 MARGINHEIGHT=5>' +
        '<FRAME SRC="register.html" NAME="shopregister" MARGINWIDTH=13 MARGINHEIGHT=5></FRAMESET></FRAMESET>';
      for (const name of ['index.html', 'ftmp.htm']) {
        assert.equal(readPage(store.folder, name).replaceAll('\r\n', '\n').trim(), frames('home.htm'), name);
      }
    });
  });
}

test('the validator and the search for links would tell', () => {
  const bad = '<!DOCTYPE html>\n<html lang="en"><head><title>x</title></head><body><p><div>x</div></p><img src="x.gif"></body></html>';
  assert.ok(complaints(recommended, bad, 'bad').length >= 2);
  assert.ok(complaints(lenient, '<main><table><tr><td><img src=x></td></tr></table></main>', 'bad').some((one) => one.includes('alt')));
  assert.deepEqual(references('<a class=x href=\'a.htm\'>a</a><!-- <a href="no"> --><script>"<a href=no>"</script><img alt="" src=b.gif>').map((r) => r.value),
    ['a.htm', 'b.gif']);
});
