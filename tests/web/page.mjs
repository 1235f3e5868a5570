// The page that is tested, as it was built, and on libraries of the tests'.
import { once } from 'node:events';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const built = new URL('../../build/web/orrel-pitchsieve.html', import.meta.url);
export const html = readFileSync(process.env.PAGE ?? fileURLToPath(built), 'utf8');

const folder = mkdtempSync(join(tmpdir(), 'pitchsieve-'));
process.on('exit', () => rmSync(folder, { recursive: true, force: true }));
let files = 0;
/// Writes a file for as long as the test runs. Its path.
export function file(name, content) {
  const path = join(folder, `${++files}-${name}`);
  writeFileSync(path, content);
  return path;
}

/// A line of the library, from the name and twelve digits for the notes from the root up.
export const line = (name, notes, bank = 'Bank') =>
  [bank, name, ...[...notes].map((note) => (note === '1' ? 'TRUE' : 'FALSE'))].join();
export const library = (...lines) => ['a', 'b', ...lines].join('\n');
export const fourScales = library(line('Major', '101011010101'), line('Minor', '101101011010'),
  line('Whole Tone', '101010101010'), line('Triad', '100010010000'));
/// As a file has it that is not in UTF-8.
export const latin = (text) => Buffer.from(text, 'latin1');

/// The address of a page on the disk.
export const addressOf = (page) => pathToFileURL(file('page.html', page)).href;

const element = /(<(\w+)[^>]*\bid="library"[^>]*>)([^]*?)<\/\2>/;
export const libraryOf = (page) => element.exec(page)[3];
/// The address of the page with another library, as a text editor would leave it; without one for
/// null.
export function pageOn(text) {
  const { index, 0: whole, 1: opening, 2: name } = element.exec(html);
  const parts = text === null ? [] : [opening, text, `</${name}>`];
  parts.unshift(html.slice(0, index));
  parts.push(html.slice(index + whole.length));
  return addressOf(Buffer.concat(parts.map((part) => Buffer.from(part))));
}

/// A server on this machine that has one page, and keeps what was asked of it.
export async function serve(page) {
  const asked = [];
  const server = createServer((request, response) => {
    asked.push(request.url);
    const status = request.url === '/' ? 200 : 404;
    response.writeHead(status, { 'Content-Type': 'text/html; charset=utf-8' }).end(page);
  }).listen(0, '127.0.0.1');
  await once(server, 'listening');
  const close = () => server.close();
  return { asked, url: `http://127.0.0.1:${server.address().port}/`, close };
}
