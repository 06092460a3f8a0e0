// Two small servers on 127.0.0.1: one that serves a folder, and an order server that keeps what is posted.
import fs from 'node:fs';
import http from 'node:http';
import path from 'node:path';

const types = { '.html': 'text/html', '.htm': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.gif': 'image/gif',
  '.jpg': 'image/jpeg', '.jpeg': 'image/jpeg', '.png': 'image/png', '.svg': 'image/svg+xml' };

function listen(handler) {
  return new Promise((resolve) => {
    const server = http.createServer(handler);
    server.listen(0, '127.0.0.1', () => resolve({
      address: `http://127.0.0.1:${server.address().port}`,
      close: () => new Promise((done) => { server.closeAllConnections(); server.close(done); }),
    }));
  });
}

// Serves a folder. `delays` maps a file name to the milliseconds it is held back.
export async function serveFolder(folder, delays = {}) {
  return listen((request, response) => {
    const name = decodeURIComponent(new URL(request.url, 'http://x').pathname).replace(/^\/$/, '/index.html');
    const file = path.join(folder, path.normalize(name));
    setTimeout(() => fs.readFile(file, (error, bytes) => {
      if (error || !file.startsWith(path.resolve(folder))) {
        response.writeHead(404).end('not found');
        return;
      }
      response.writeHead(200, { 'Content-Type': types[path.extname(file).toLowerCase()] ?? 'application/octet-stream', 'Cache-Control': 'no-store' });
      response.end(bytes);
    }), delays[path.basename(file)] ?? 0);
  });
}

// An order server. `orders` holds what was posted, as lists of name and value; `answer(order, request)` gives
// the page or the address to go on to, and can be changed at any time.
export async function orderServer() {
  const self = { orders: [], headers: [], answer: () => accepted('1001') };
  const server = await listen((request, response) => {
    if (request.method !== 'POST') { response.writeHead(405).end(); return; }
    let body = '';
    request.setEncoding('latin1');
    request.on('data', (part) => { body += part; });
    request.on('end', () => {
      const order = [...new URLSearchParams(body)];
      self.orders.push(order);
      self.headers.push(request.headers);
      const answer = self.answer(Object.fromEntries(order), request);
      if (answer === null) return;                 // never answers
      if (answer.goTo) response.writeHead(303, { Location: answer.goTo }).end();
      else response.writeHead(answer.status ?? 200, { 'Content-Type': 'text/html; charset=utf-8' }).end(answer.page);
    });
  });
  return Object.assign(self, server);
}

const saying = (message) => ({ page: `<!DOCTYPE html><title>Answer</title><script>parent.postMessage(${JSON.stringify(message)}, '*')</script>` });
export const accepted = (order) => saying({ shop: 'answer', result: 'accepted', order });
export const refused = (message) => saying({ shop: 'answer', result: 'refused', message });
export const plainPage = (words) => ({ page: `<!DOCTYPE html><title>Answer</title><p>${words}</p>` });
