// The page asks for nothing, lets nothing in and keeps nothing, from a server and from the disk.
import assert from 'node:assert/strict';
import { createHash } from 'node:crypto';
import { eventually, testInEach } from './hand.mjs';
import { addressOf, file, html, library, line, serve } from './page.mjs';

// What a script of the page could try, with an address that is not the page's. Each says whether it
// got through.
const attempts = {
  script: () => {
    const script = document.createElement('script');
    script.textContent = 'window.broken = true';
    document.body.append(script);
    return window.broken === true;
  },
  handler: () => {
    const button = document.createElement('button');
    button.setAttribute('onclick', 'window.handled = true');
    document.body.append(button);
    button.click();
    button.remove();
    return window.handled === true;
  },
  style: () => {
    const style = document.createElement('style');
    style.textContent = 'body { min-height: 54321px }';
    document.body.append(style);
    return getComputedStyle(document.body).minHeight === '54321px';
  },
  fetch: (outside) => fetch(outside, { mode: 'no-cors' }).then(() => true, () => false),
  image: () => new Promise((done) => {
    const image = new Image();
    image.onload = () => done(true);
    image.onerror = () => done(false);
    image.src = 'data:image/gif;base64,R0lGODlhAQABAAAAACwAAAAAAQABAAA=';
  }),
  worker: () => new Promise((done) => {
    const worker = new Worker(URL.createObjectURL(new Blob(['postMessage(1)'])));
    worker.onmessage = () => done(true);
    worker.onerror = () => done(false);
  }).catch(() => false),
};
const refused = Object.fromEntries(Object.keys(attempts).map((what) => [what, false]));

/// The page with one more script that is its own, by its hash, and makes the attempts: those of a
/// driver's are not bound by the policy.
function tempted(outside) {
  const calls = Object.entries(attempts).map(([what, f]) => `${what}: await (${f})('${outside}')`);
  const script = `window.attempted = (async () => ({ ${calls} }))()`;
  const hash = createHash('sha256').update(script).digest('base64');
  return html.replace('script-src ', `script-src 'sha256-${hash}' `) + `<script>${script}</script>`;
}

const kept = async () => ({
  local: localStorage.length, session: sessionStorage.length, cookies: document.cookie,
  databases: (await indexedDB.databases?.())?.length ?? 0,
  caches: (await globalThis.caches?.keys().catch(() => []))?.length ?? 0,
  workers: (await navigator.serviceWorker?.getRegistrations().catch(() => []))?.length ?? 0,
});
const nothing = { local: 0, session: 0, cookies: '', databases: 0, caches: 0, workers: 0 };

testInEach('the page asks for nothing, lets nothing in and keeps nothing', async (hand, t) => {
  const outside = await serve('');
  const page = tempted(outside.url);
  const server = await serve(page);
  t.after(() => [outside, server].forEach((one) => one.close()));
  for (const url of [server.url, addressOf(page)]) {
    await hand.open(url);
    assert.deepEqual(await hand.page.run(() => window.attempted), refused);
    for (const note of [0, 4, 7]) await hand.tick(note);
    await hand.chooseRow(0);
    await eventually(async () => assert.ok((await hand.look()).stars.includes(7), 'it works'));
    const policy = await hand.page.run(
      () => document.querySelector('meta[http-equiv=Content-Security-Policy]').content);
    assert.match(policy, /^default-src 'none'/);
    assert.doesNotMatch(policy, /'unsafe-|https?:|\*|data:|blob:/);
    await hand.drop(file('mine.csv', library(line('Mine', '110000000000'))));
    const expectRows = (count) => eventually(async () => {
      const { ticked, lbContaining } = await hand.look();
      if (ticked.length === 0) await hand.tick(0);
      assert.equal(lbContaining.count, count);
    });
    await expectRows(1);
    await hand.page.reload();
    await expectRows(682);
    assert.deepEqual(await hand.page.run(kept), nothing, url);
  }
  assert.deepEqual([server.asked, outside.asked], [['/', '/'], []], 'no request after the file itself');
  assert.deepEqual(await hand.page.hear(), []);
});
