// Libraries in the page and such as the user brings, good and bad: what is told of them, and that the
// program goes on.
import assert from 'node:assert/strict';
import { writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename } from 'node:path';
import { eventually, testIn, testInEach } from './hand.mjs';
import { addressOf, file, fourScales, html, latin, library, line, pageOn } from './page.mjs';

const major = line('Major', '101011010101');
const triad = line('Triad', '100010010000');
const noText = latin(library(line('S\xC3', '110000000000', '\xFF&')));
const shownAs = '\uFFFD&|S\uFFFD|C';
const outOfBounds = /OutOfBoundsException/;

const expectTold = (hand, patterns) => eventually(async () => {
  const told = await hand.page.hear();
  assert.equal(told.length, patterns.length, `told: ${told}`);
  patterns.forEach((pattern, i) => assert.match(told[i], pattern));
});
const expectRows = (hand, ...rows) => eventually(async () => {
  assert.deepEqual((await hand.look()).lbContaining.rows.map(({ text }) => text), rows);
});

// The library in the page, the messages, the rows behind a tick, and whether notes have their names.
const inThePage = [
  ['a short line', library(major, 'Bank,short', triad), [outOfBounds], ['Bank|Major|C'], false],
  ['a blank line', library(major) + '\n\n', [outOfBounds], ['Bank|Major|C'], false],
  ['no scale', library(), [], [], true],
  ['no library at all', null, [], [], true],
  ['bytes that are no text', noText, [], [shownAs], true],
];
testInEach('a fault in the library is told and the program goes on', async (hand, t) => {
  for (const [what, text, told, rows, named] of inThePage) {
    await t.test(what, async () => {
      await hand.open(pageOn(text));
      await expectTold(hand, told);
      await hand.tick(0);
      await expectRows(hand, ...rows);
      await hand.chooseRoot(4);
      await hand.tick(1);
      await eventually(async () => {
        const { captions, value } = await hand.look();
        assert.deepEqual([captions[0], value], [named ? 'C# / Db' : 'C', '110000000000']);
      });
      await expectTold(hand, named ? told : [...told, outOfBounds]);
    });
  }
});

// A file that is dropped on the page, the messages, what the report says of it, the rows behind a tick.
const markup = '</script><script>alert(1)</script>';
const dropped = [
  ['a good one', library(major, triad), [], /2 scales/, ['Bank|Major|C', 'Bank|Triad|C']],
  ['markup in it', library(line(markup, '110000000000', '<b>&amp;"')), [], /1 scale/,
    [`<b>&amp;"|${markup}|C`]],
  ['bytes that are no text', noText, [], /line 3/i, [shownAs]],
  ['a short line', library(major, 'Bank,short'), [outOfBounds], /line 4/i, ['Bank|Major|C']],
  ['semicolons', fourScales.replaceAll(',', ';'), [outOfBounds], /\nerror: found semicolons/, []],
  ['nothing in it', '', [], /0 scales/, []],
];
const report = () => document.getElementById('report').innerText;
/// What is said of a library stands before the window, where it was heard as it came.
const isBefore = () => document.getElementById('report').getBoundingClientRect().bottom
  <= document.getElementById('desk').getBoundingClientRect().top;
const isHeard = () => document.getElementById('report-summary').checkVisibility();

testInEach('a dropped library opens anew', async (hand, t) => {
  await hand.open(pageOn(fourScales));
  assert.ok(await hand.page.run(isHeard));
  for (const [what, bytes, told, reported, rows] of dropped) {
    await t.test(what, async () => {
      await hand.tick(4);
      hand.page.told.length = 0;
      await hand.drop(file('mine.csv', bytes));
      await eventually(async () => {
        const { ticked, lbContaining, value } = await hand.look();
        assert.deepEqual([ticked, lbContaining.count, value], [[], 0, ' ']);
        assert.match(await hand.page.run(report), reported);
        assert.ok(await hand.page.run(isBefore));
        assert.equal(await hand.page.run(() => document.getElementById('tally').textContent), '');
      });
      await expectTold(hand, told);
      await hand.tick(0);
      await expectRows(hand, ...rows);
    });
  }
});

testIn('Chromium', 'what cannot be taken leaves the library that is in use, and says so', async (hand) => {
  await hand.open(pageOn(fourScales));
  const unreadable = tmpdir();
  const mine = file('mine.csv', library(triad));
  const inUse = '\nLoad the page again to go back to its own library.';
  const expectReport = (start, end) => eventually(async () => {
    const text = await hand.page.run(report);
    assert.ok(text.startsWith(start) && text.endsWith(end), text);
    assert.equal(text.includes(inUse), end === inUse);
    await hand.look();
  });
  const name = basename(unreadable);
  await hand.drop(unreadable);
  await expectReport(`${name} cannot be read.`, '.');
  await hand.drop(mine);
  await expectReport(basename(mine), inUse);
  await hand.tick(0);
  for (const [files, why] of [[[unreadable], `${name} cannot be read.\n`],
    [[file('other.csv', fourScales), mine], 'One library at a time: drop its file alone.\n']]) {
    await hand.drop(...files);
    await expectReport(why, inUse);
    await expectRows(hand, 'Bank|Triad|C');
  }
  await hand.drop(mine);
  await expectReport(basename(mine), inUse);
});

testIn('Chromium', 'a library too large for the memory is told of, and ends the program', async (hand) => {
  await hand.page.puppet.evaluateOnNewDocument(() => {
    WebAssembly.Memory.prototype.grow = () => { throw new RangeError('no memory'); };
  });
  await hand.open(pageOn(fourScales));
  await hand.tick(0);
  await hand.drop(file('mine.csv', library(`${major}\n`.repeat(200_000))));
  await expectTold(hand, [/^OutOfMemoryException: The system has no memory left\./]);
  await hand.page.puppet.waitForSelector('#ended', { visible: true });
});

testIn('Chromium', 'of two libraries dropped in a row the last one stays', async (hand) => {
  await hand.open(pageOn(fourScales));
  await hand.page.run((texts) => {
    const title = document.getElementById('report-title');
    window.titles = [];
    new MutationObserver(() => titles.push(title.textContent)).observe(title, { childList: true });
    const read = File.prototype.arrayBuffer;
    File.prototype.arrayBuffer = async function () {
      if (this.name === 'library 0') await new Promise((done) => setTimeout(done, 300));  // a large one
      return read.call(this);
    };
    for (const [i, text] of texts.entries()) {
      const dataTransfer = new DataTransfer();
      dataTransfer.items.add(new File([text], `library ${i}`));
      document.body.dispatchEvent(new DragEvent('drop', { dataTransfer, bubbles: true }));
    }
  }, [library(major, 'Bank,short', 'Bank,shorter'), library(triad, 'Bank,too short')]);
  await eventually(async () => {
    assert.deepEqual(await hand.page.run(() => titles), ['library 0', 'library 1']);
    assert.match(await hand.page.run(report), /^library 1\n/);
    await hand.look();
    assert.equal(await hand.page.run(() => document.querySelectorAll('#report li').length), 1);
  });
  await hand.tick(0);
  await expectRows(hand, 'Bank|Triad|C');
});

testIn('Chromium', 'a library is chosen by the keyboard, and again once it is mended', async (hand) => {
  await hand.open(pageOn(fourScales));
  const { puppet } = hand.page;
  for (let tabs = 0; await puppet.evaluate(() => document.activeElement.type) !== 'file'; ++tabs) {
    assert.ok(tabs < 25, 'no button for a file');
    await hand.page.key('Tab');
  }
  const press = async () => {
    const asked = puppet.waitForFileChooser({ timeout: 5000 });
    await hand.page.key(' ');
    return asked;
  };
  const chooser = await press().catch(press);  // a busy machine can take the first key for no user's
  const mine = file('mine.csv', library(line('Mine', '110000000000')));
  await chooser.accept([mine]);
  await eventually(async () => {
    assert.match(await hand.page.run(report), /mine\.csv/);
    await hand.look();
  });
  await hand.tick(0);
  await expectRows(hand, 'Bank|Mine|C');
  writeFileSync(mine, library(line('Mended', '110000000000')));
  const again = puppet.waitForFileChooser({ timeout: 5000 });
  await puppet.click('#own');
  await (await again).accept([mine]);
  await eventually(async () => assert.deepEqual((await hand.look()).ticked, []));
  await hand.tick(0);
  await expectRows(hand, 'Bank|Mended|C');
});

testIn('Chromium', 'a browser that cannot run the program gets a sentence', async (hand) => {
  const { puppet } = hand.page;
  const said = () => eventually(async () => {
    const text = await puppet.$eval('body', (body) => body.innerText);
    assert.match(text, /WebAssembly/);
    assert.doesNotMatch(text, /Open a library|has ended/);
  });
  await hand.page.open(addressOf(html.replace(" 'wasm-unsafe-eval'", '')));  // as an older one has it
  await said();
  const { identifier } = await puppet.evaluateOnNewDocument(() => {
    const refuse = async () => { throw new WebAssembly.CompileError('no exceptions'); };
    Object.assign(WebAssembly, { compile: refuse, instantiate: refuse });
  });
  await hand.page.open(addressOf(html));
  await said();
  await puppet.removeScriptToEvaluateOnNewDocument(identifier);
  await puppet.evaluateOnNewDocument(() => { delete globalThis.WebAssembly; });
  await hand.page.open(addressOf(html));
  await said();
});

// A browser in which what an element is told fails with a certain text, as if the program were broken.
function breakOn(text) {
  const whole = Element.prototype.setAttribute;
  Element.prototype.setAttribute = function (name, value) {
    if (value === text) throw new Error('provoked');
    return whole.call(this, name, value);
  };
}
function keepLog() {
  window.logged = [];
  for (const level of ['warn', 'error']) console[level] = (what) => logged.push(String(what));
}

async function ends(hand) {
  const { puppet } = hand.page;
  const ended = () => puppet.$eval('#ended', (element) => element.checkVisibility());
  const expectEnd = () => eventually(async () => {
    assert.equal(await ended(), true);
    assert.deepEqual(await puppet.evaluate(() => logged), ['Error: provoked']);
  });
  await puppet.evaluateOnNewDocument(keepLog);
  await hand.open(addressOf(html));
  await puppet.evaluate(() => new Promise((done) => {
    addEventListener('error', () => setTimeout(done));
    setTimeout(() => { throw new Error('of an extension'); });
  }));
  await hand.tick(0);
  await eventually(async () => assert.equal((await hand.look()).lbContaining.count, 682));
  assert.equal(await ended(), false);
  await puppet.evaluate(breakOn, 'true');
  await hand.chooseRow(0);
  await expectEnd();
  assert.equal(await puppet.$('#lbContaining'), null);
  await puppet.evaluateOnNewDocument(breakOn, 'lbContaining');  // at the start already
  await puppet.reload();
  await expectEnd();
}
for (const browser of ['Chromium', 'Firefox']) {
  testIn(browser, 'the page says so when the program has ended, and of no other failure', ends);
}
