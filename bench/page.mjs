// The page beside a bare one with the same elements and style, in Chromium, in one run: prints the
// figures. The status is 1 when one is above what is wanted of it.
import { readFileSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { start } from '../tests/web/browsers.mjs';
import { addressOf, html, library, libraryOf, line, pageOn } from '../tests/web/page.mjs';

const missed = new Set();
function print(what, value, unit, wanted, details = '') {
  const number = (n) => (n === undefined ? '-' : n.toFixed(2));
  const figures = number(value).padStart(10) + ` ${unit}`.padEnd(7) + number(wanted).padStart(8);
  console.log(`${what.padEnd(32)}${figures}   ${details}`.trimEnd());
  if (value > wanted) missed.add(what);
}
const median = (values) => values.sort((a, b) => a - b)[values.length >> 1];
async function open(page, url) {
  await page.open(url);
  await page.puppet.waitForSelector('#lbScale');
}

/// The page as it stands when it has opened, without its scripts: a text that needs no program.
async function bareOf(page) {
  await open(page, addressOf(html));
  return addressOf('<!DOCTYPE html>' + await page.run(() => {
    document.querySelectorAll('script, meta[http-equiv]').forEach((one) => one.remove());
    return document.documentElement.outerHTML;
  }));
}

/// In a page that opens: notes when the first frame that has the last control is drawn.
function noteTheControls() {
  requestAnimationFrame(function look() {
    if (!document.getElementById('lbScale')) return requestAnimationFrame(look);
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = () => { window.stand = performance.now(); };
    port2.postMessage(null);
  });
}
/// Milliseconds from the navigation to the browser's first paint, and to that frame.
async function paints(page, url) {
  await page.open('about:blank');
  await page.open(url);
  await page.puppet.waitForFunction(
    () => window.stand && performance.getEntriesByName('first-paint').length > 0);
  return page.run(
    () => [performance.getEntriesByName('first-paint')[0].startTime, window.stand]);
}

/// In the page: clicks a box, or scrolls the list below to a share of its height. Milliseconds of
/// that and of the next frame, and whether so many rows are there then, and some of them in sight.
async function actAndDraw(box, share, count) {
  const list = document.getElementById('lbContaining');
  await new Promise(requestAnimationFrame);
  const began = performance.now();
  if (box) document.querySelector(`#${box} input`).click();
  else list.scrollTop = share * (list.scrollHeight - list.clientHeight);
  const acted = performance.now();
  return new Promise((done) => requestAnimationFrame(() => {
    const frame = performance.now();
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = () => {
      const drawn = performance.now();
      const { left, top } = list.getBoundingClientRect();
      const there = Number(list.getAttribute('aria-rowcount')) === count &&
        document.elementFromPoint(left + 20, top + 40).closest('[role=row]') !== null;
      done({ handler: acted - began, frame: drawn - frame, there });
    };
    port2.postMessage(null);
  }));
}
async function frames(page, what, wanted, acts) {
  const all = [];
  for (const act of acts) {
    const one = await page.run(actAndDraw, ...act);
    if (!one.there) missed.add(`${what}: the next frame has no rows`);
    all.push(one);
  }
  const every = acts[0][0] ? all.filter((_, i) => i % 2 === 0) : all;  // where the box was ticked
  const [handler, frame] = ['handler', 'frame'].map((part) => median(every.map((one) => one[part])));
  const details = `${handler.toFixed(1)} ms handler, ${frame.toFixed(1)} ms frame`;
  print(what, handler + frame, 'ms', wanted, details);
}

/// Megabytes that the page's process has for itself, with its share of what it has with others.
async function memory(url) {
  const page = await start.Chromium();
  await open(page, url);
  await new Promise((done) => setTimeout(done, 500));
  const browser = await page.browser.target().createCDPSession();
  const { processInfo } = await browser.send('SystemInfo.getProcessInfo');
  const sizes = processInfo.filter(({ type }) => type === 'renderer').map(({ id }) => {
    const [, kilobytes] = /^Pss: +(\d+)/m.exec(readFileSync(`/proc/${id}/smaps_rollup`, 'latin1'));
    return Number(kilobytes) / 1024;
  });
  await page.close();
  return Math.max(...sizes);
}

console.log(' '.repeat(51) + 'wanted');
print('The file', Buffer.byteLength(html) / 1000, 'KB', 500);
print('The file, compressed', gzipSync(html, { level: 9 }).length / 1000, 'KB', 150);

const page = await start.Chromium();
const ours = addressOf(html);
const bare = await bareOf(page);
await page.puppet.evaluateOnNewDocument(noteTheControls);
const times = { [ours]: [], [bare]: [] };
for (let i = 0; i < 50; ++i) {
  for (const url of i % 2 ? [ours, bare] : [bare, ours]) times[url].push(await paints(page, url));
}
for (const [i, what] of ['First paint', 'First paint with every control'].entries()) {
  const [mine, its] = [ours, bare].map((url) => median(times[url].map((both) => both[i])));
  print(what, mine / its, 'times', 1.5, `${mine.toFixed(1)} ms, bare ${its.toFixed(1)} ms`);
}

// No note is ticked: a row for each scale and root, then one for each scale.
const answers = (scales, count) => Array.from({ length: count }, (_, i) =>
  ['cbOther', 0, i % 2 ? scales : 12 * scales]);
const frameOf60 = 1000 / 60;
await open(page, ours);
const shipped = libraryOf(html).trim().split('\n').length - 2;
await frames(page, 'Largest answer', frameOf60, answers(shipped, 60));
const many = Array.from({ length: 50000 }, (_, i) =>
  line(`S${i}`, (i % 4095 + 1).toString(2).padStart(12, '0')));
await open(page, pageOn(library(...many)));
await frames(page, 'Answer of 600,000 rows', undefined, answers(many.length, 5));
await frames(page, 'Scroll in 600,000 rows', frameOf60,
  Array.from({ length: 40 }, (_, i) => [null, (i * 7 % 40) / 40, 12 * many.length]));
await page.close();

const [mine, its] = [await memory(ours), await memory(bare)];
const details = `${mine.toFixed(1)} MB, bare ${its.toFixed(1)} MB`;
print('Memory', mine / its, 'times', undefined, details);
for (const what of missed) console.log(`missed: ${what}`);
process.exitCode = missed.size > 0 ? 1 : 0;
