// Fills in the cart's data files as a build does, and writes a small site around them, in the markup that
// a build writes. It stands in for a build of a whole store, so that the cart can be tested alone.
import fs from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

export const installation = fileURLToPath(new URL('../../../installation/', import.meta.url));
const template = (name) => fs.readFileSync(path.join(installation, 'template', name), 'latin1');

// Replacements are literal: a "$&" in a value means nothing.
const all = (text, key, value) => text.split(key).join(value);
const first = (text, key, value) => {
  const at = text.indexOf(key);
  return at < 0 ? text : text.slice(0, at) + value + text.slice(at + key.length);
};
const times = (text, key, value, most) => {
  for (let i = 0; i < most; i++) text = first(text, key, value);
  return text;
};

export const defaultStore = {
  title: 'Corner Kitchen',
  server: '127.0.0.1',
  account: 'CK-42',
  currency: '$',
  freight: '',
  cards: ['Visa', 'MasterCard', 'American Express'],
  orderMessage: 'This form is running on an Varlo Secure Server.<br>\r\nAll information will be encrypted before transmission.',
  confirmMessage: 'Thank you for your order.',
  heading2: '',
  heading3: '',
  cart: { background: '#f6f3ee', text: '#2b2622', link: '#8a2f1d', visited: '#8a2f1d', active: '#c04a30' },
  page: { background: 'WHITE', text: '#2b2622', link: '#8a2f1d', visited: '#6b2a4a', active: '#c04a30' },
  form: { background: '#faf8f5', text: '#2b2622', link: '#8a2f1d', visited: '#6b2a4a', active: '#c04a30' },
  list: '#ffffff',
  frame: '#d8cfc2',
  formColour: '#ffffff',
  heading: '#8a2f1d',
  headingText: 'WHITE',
  orderTemplate: null,
  confirmTemplate: null,
};

// A colour that is not set leaves its key.
function colours(text, set, keys) {
  for (const [key, name] of keys) if (set[name] !== undefined) text = all(text, key, set[name]);
  return text;
}
const pageKeys = [['$BGCOLOR', 'background'], ['$BG_COLOR', 'background'], ['$TEXT_COLOR', 'text'], ['$VLINK_COLOR', 'visited'],
  ['$ALINK_COLOR', 'active'], ['$LINK_COLOR', 'link']];

function orderText(store) {
  const select = '<SELECT NAME="CardType">\n' + store.cards.map((c) => `<OPTION VALUE="${c}">${c}\n`).join('') + '</SELECT>';
  let text = store.orderTemplate ?? template('order.dat');
  text = first(text, '$MESSAGE', store.orderMessage);
  text = first(text, '$ACCEPTED_CARDS', select);
  text = all(text, '"', '%22');
  text = all(text, '$FORMCOLOR', store.formColour);
  text = all(text, '$HEADINGTEXTCOLOR', store.headingText);
  text = all(text, '$HEADINGCOLOR', store.heading);
  return colours(text, store.form, pageKeys);
}

function confirmText(store) {
  let text = store.confirmTemplate ?? template('confirm.dat');
  text = first(text, '$CONFIRM', store.confirmMessage);
  return colours(all(text, '"', '%22'), store.page, pageKeys);
}

export function registerText(store) {
  let text = template('register.dat');
  text = all(text, '$HEADING2', all(store.heading2, "'", '"'));
  text = all(text, '$HEADING3', store.heading3);
  text = all(text, '$LISTCOLOR', store.list);
  text = all(text, '$FRAMECOLOR', store.frame);
  text = all(text, '$VARLO_SERVER', store.server);
  text = first(text, '$FREIGHT', store.freight);
  text = first(text, '$FORM', orderText(store));
  text = first(text, '$CONFIRM', confirmText(store));
  text = times(text, '$USER', store.account, 4);
  text = times(text, '$VERSION', '1.07', 4);
  text = all(text, '$CURRENCY', store.currency);
  return colours(text, store.cart, pageKeys);
}

export const trolleyText = (store) => colours(template('trolley.dat'), store.cart, pageKeys);

const frameScript = `<SCRIPT>if (name != "shopmain")document.writeln('<FRAMESET COLS="*,208" BORDER=0 FRAMEBORDER=NO ' +'FRAMESPACING=0>' +'<FRAME SRC="' + location + '?x" NAME="shopmain" MARGINWIDTH=2>' +'<FRAMESET ROWS="*,110">' +'<FRAME SRC="trolley.html" NAME="shoptrolley" MARGINWIDTH=13' +' MARGINHEIGHT=5>' +'<FRAME SRC="register.html' + location.search +'" NAME="shopregister">' +'</FRAMESET>' +'</FRAMESET>' +'<NOFRAMES>');</SCRIPT>`;

const frameLoader = (title, page) =>
  `<HEAD>\n<TITLE>${title}</TITLE>\n<FRAMESET COLS="*,208" BORDER=0 FRAMEBORDER=NO FRAMESPACING=0><FRAME SRC="${page}" NAME="shopmain" MARGINWIDTH=2>` +
  '<FRAMESET ROWS="*,110"><FRAME SRC="trolley.html" NAME="shoptrolley" MARGINWIDTH=13 MARGINHEIGHT=5>' +
  '<FRAME SRC="register.html" NAME="shopregister" MARGINWIDTH=13 MARGINHEIGHT=5></FRAMESET></FRAMESET>';

// The add link of a product, as pages hold it.
export const addLink = (p, page) =>
  `javascript:parent.shopregister.addItem('${page}','${p.code}','${p.title}','${p.price}','${p.image ?? ''}',1,${p.weight ?? 0},${p.freight ?? 0},${p.tax ?? 0})`;

function productPage(products, page, withScript) {
  const rows = products.map((p) => `<article id="${p.code}"><h2>${p.title}</h2><p>${p.price}</p>` +
    `<p><a class="add" href="${addLink(p, page)}"><span>Add to cart</span></a> ` +
    `<a class="remove" href="javascript:parent.shopregister.removeItem('${p.code}')">Remove</a></p></article>\n`).join('');
  return '<!DOCTYPE html>\n<html lang="en"><head><meta http-equiv="Content-Type" content="text/html; charset=windows-1252">' +
    `<meta name="viewport" content="width=device-width"><title>Products</title>${frameScript}` +
    (withScript ? '<script src="cart.js"></script>' : '') +
    '<style>body{font:16px/1.5 sans-serif;margin:24px}</style></head><body>\n<h1>Products</h1>\n' + rows +
    '<p><a href="second.htm">Second page</a></p></body></html>\n';
}

// Writes the site into a folder: index.html, page.htm and second.htm with the given products.
export function buildSite(folder, changes, products, { withScript = true } = {}) {
  const store = { ...defaultStore, ...changes };
  const write = (name, text) => fs.writeFileSync(path.join(folder, name), text, 'latin1');
  fs.mkdirSync(folder, { recursive: true });
  write('index.html', frameLoader(store.title, 'page.htm'));
  write('page.htm', productPage(products, 'page.htm', withScript));
  write('second.htm', productPage(products.slice(0, 1), 'second.htm', withScript));
  write('register.html', registerText(store));
  write('trolley.html', trolleyText(store));
  write('cart.js', template('cart.js'));
  return folder;
}
