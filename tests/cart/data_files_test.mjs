// What the build and the browser ask of the cart's data files.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import test from 'node:test';

const read = (name) => fs.readFileSync(new URL(`../../installation/template/${name}`, import.meta.url), 'latin1');
const keys = (text) => [...text.matchAll(/\$[A-Z_+\-][A-Z0-9_]*/g)].map(([key]) => key);
const colours = ['$BGCOLOR', '$TEXT_COLOR', '$LINK_COLOR', '$VLINK_COLOR', '$ALINK_COLOR'];

const known = {
  'trolley.dat': colours,
  'register.dat': ['$BGCOLOR', '$TEXT_COLOR', '$LINK_COLOR', '$USER', '$CURRENCY', '$VARLO_SERVER', '$LISTCOLOR', '$FRAMECOLOR', '$HEADING2', '$HEADING3', '$CONFIRM', '$FORM', '$FREIGHT'],
  'order.dat': [...colours, '$MESSAGE', '$ACCEPTED_CARDS', '$FORMCOLOR', '$HEADINGCOLOR', '$HEADINGTEXTCOLOR'],
  'confirm.dat': [...colours, '$CONFIRM'],
};

for (const [name, allowed] of Object.entries(known)) {
  test(`${name} holds only variables that the build replaces there, and all of them`, () => {
    assert.deepEqual([...new Set(keys(read(name)))].sort(), [...allowed].sort());
  });
  test(`${name} declares its character set and is plain ASCII`, () => {
    assert.match(read(name), /charset=windows-1252/);
    assert.doesNotMatch(read(name), /[^\t\n\x20-\x7e]/);
  });
}

test('what is replaced once stands once, before any text that could hold its name', () => {
  const text = read('register.dat');
  const order = ['$USER', '$CONFIRM', '$FORM', '$FREIGHT'];
  for (const key of order) assert.equal(text.split(key).length, 2, key);
  assert.deepEqual([...order].sort((a, b) => text.indexOf(a) - text.indexOf(b)), order);
});

test('the owner\'s templates are below 20,000 bytes, and the default set is made of them', () => {
  for (const name of ['order', 'confirm']) {
    assert.ok(read(`${name}.dat`).length < 20000);
    assert.equal(read(`${name}.htm`), read(`${name}.dat`));
    // A script would end the element that holds the template in register.html.
    assert.doesNotMatch(read(`${name}.dat`), /<\/?script|%22/i);
  }
});

test('no line is long enough to be cut, and cart.js holds nothing that a page would lose', () => {
  for (const name of ['cart.js', ...Object.keys(known)]) assert.ok(read(name).split('\n').every((line) => line.length < 3000), name);
  assert.doesNotMatch(read('cart.js'), /\$|<!--|^;/m);
});

test('the cart names the groups of regions as domain.dat does', () => {
  const [, text] = /var groups = \{([\s\S]*?)\};/.exec(read('register.dat'));
  const named = [...text.matchAll(/(\w\w): '([^']*)'/g)].map(([, code, name]) => `${code} ${name}`);
  const shipped = fs.readFileSync(new URL('../../installation/domain.dat', import.meta.url), 'latin1').split(/\r?\n/)
    .filter((line) => /^(EU|X[A-Z]) /.test(line));
  assert.deepEqual(named.sort(), shipped.sort());
});
