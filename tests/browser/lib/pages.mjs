// Built pages as text: what they refer to, and the parts of them that the generator writes.
import fs from 'node:fs';
import path from 'node:path';

export const readPage = (folder, name) => fs.readFileSync(path.join(folder, name), 'latin1');

const entities = { amp: '&', lt: '<', gt: '>', quot: '"', '#39': "'" };
const decoded = (text) => text.replace(/&(amp|lt|gt|quot|#39);/g, (_, name) => entities[name]);

// Every address in an attribute of a page's markup, as { tag, attribute, value }. Scripts, styles and comments
// are no markup; templates that the cart carries as text are.
export function references(text) {
  const markup = text.replace(/<!--[\s\S]*?-->/g, '').replace(/<style[\s\S]*?<\/style>/gi, '')
    .replace(/<script(?![^>]*text\/plain)([^>]*)>[\s\S]*?<\/script>/gi, '<script$1></script>').replaceAll('%22', '"');
  const found = [];
  for (const [, tag, attributes] of markup.matchAll(/<([a-z][a-z0-9]*)((?:\s+[^\s"'<>=]+(?:\s*=\s*(?:"[^"]*"|'[^']*'|[^\s"'>]+))?)*)\s*\/?>/gi)) {
    for (const [, attribute, a, b, c] of attributes.matchAll(/\s(href|src|background|action|data|srcset)\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'>]+))/gi)) {
      found.push({ tag: tag.toLowerCase(), attribute: attribute.toLowerCase(), value: decoded(a ?? b ?? c) });
    }
  }
  return found;
}

// The script that puts the frames around a page; the generator writes exactly this.
export const frameScript = `<SCRIPT>if (name != "shopmain")document.writeln('<FRAMESET COLS="*,208" BORDER=0 FRAMEBORDER=NO ' +'FRAMESPACING=0>' +'<FRAME SRC="' + location + '?x" NAME="shopmain" MARGINWIDTH=2>' +'<FRAMESET ROWS="*,110">' +'<FRAME SRC="trolley.html" NAME="shoptrolley" MARGINWIDTH=13' +' MARGINHEIGHT=5>' +'<FRAME SRC="register.html' + location.search +'" NAME="shopregister">' +'</FRAMESET>' +'</FRAMESET>' +'<NOFRAMES>');</SCRIPT>`;

// A page without the tables of $INDEX and $PRODUCT, nested ones included: { rest, tables }.
export function withoutListings(text) {
  const tables = [];
  let rest = '', depth = 0, from = 0;
  for (const tag of text.matchAll(/<table(?: width=100%| cellspacing=0)?>|<\/table>/g)) {
    if (tag[0] !== '</table>') {
      if (depth++ === 0) { rest += text.slice(from, tag.index); from = tag.index; }
    } else if (depth > 0 && --depth === 0) {
      tables.push(text.slice(from, tag.index + tag[0].length));
      from = tag.index + tag[0].length;
    }
  }
  return { rest: rest + text.slice(from), tables };
}
