// The freight script of the shipped register.dat against the tables that were worked out by hand.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import test from 'node:test';
import { loadFreightRules } from './freight_rules.mjs';

const folder = new URL('../commerce/freight_golden/', import.meta.url);
const Freight = loadFreightRules();
const itemForm = /^(\S+) (\S+) x (\S+?)(?:, weight ([^,]+))?(?:, surcharge ([^,]+))?(?:, tax ([^,]+))?$/;

function readItem(text) {
  const [, code, price, quantity, weight = '0', surcharge = '0', tax = '0'] = itemForm.exec(text) ?? assert.fail(`not an item: ${text}`);
  return { code, price, quantity, weight, surcharge, tax };
}

// A golden file as { expression, count, problems, orders }.
function read(file) {
  const table = { expression: null, count: 0, problems: [], orders: [] };
  const last = () => table.orders.at(-1) ?? assert.fail('a line stands before its order');
  const lines = {
    expression: (text) => { table.expression = text; },
    problems: (text) => { table.count = Number(text); },
    'table problem': (text) => table.problems.push(text),
    order: (text) => table.orders.push({ to: text, items: [] }),
    item: (text) => last().items.push(readItem(text)),
    pays: (text) => { last().expected = text; },
    problem: (text) => { last().expected = text; },
  };
  for (const line of fs.readFileSync(new URL(file, folder), 'latin1').split('\n')) {
    if (line === '' || line.startsWith('#')) continue;
    const colon = line.indexOf(':');
    (lines[line.slice(0, colon)] ?? assert.fail(`not understood: ${line}`))(line.slice(colon + 1).trim());
  }
  return table;
}

function outcome(tables, order) {
  const to = order.to.lastIndexOf(' to ');
  const name = order.to.slice(0, to);
  const method = order.to === 'no delivery' ? null : tables.methods.find((m) => m.name === name) ?? assert.fail(`no method ${name}`);
  const result = Freight.evaluate(method, order.to.slice(to + 4), order.items);
  if (result.problem) return result.problem;
  const [goods, freight, goodsTax, freightTax, total] =
    [result.goods, result.freight, result.goodsTax, result.freightTax, result.total].map(Freight.money);
  return `${goods} + ${freight} + ${goodsTax} + ${freightTax} = ${total}`;
}

const files = fs.readdirSync(folder).filter((name) => name.endsWith('.txt'));

test('there are the six tables', () => assert.equal(files.length, 6));

for (const file of files) {
  const table = read(file);
  test(`${file}: problems of the expression`, () => {
    const { problems } = Freight.parse(table.expression);
    assert.equal(problems.length, table.count);
    assert.deepEqual([...problems], table.problems);
  });
  test(`${file}: has orders`, () => assert.ok(table.orders.length >= 8 && table.orders.every((o) => o.expected)));
  for (const [i, order] of table.orders.entries()) {
    test(`${file}: order ${i + 1}, ${order.to}`, () => assert.equal(outcome(Freight.parse(table.expression), order), order.expected));
  }
}
