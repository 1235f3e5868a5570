// Rows are chosen and let go by keys, mouse and touch, whatever their number.
import assert from 'node:assert/strict';
import { eventually, testIn, testInEach } from './hand.mjs';
import { fourScales, library, line, pageOn } from './page.mjs';

/// expected: the chosen row, or the first and the last that it may be.
const expectRow = (hand, expected, after) => eventually(async () => {
  const { lbContaining, stars } = await hand.look();
  const row = lbContaining.rows.find(({ chosen }) => chosen)?.row ?? -1;
  const [first, last] = [expected].flat();
  assert.ok(row >= first && row <= (last ?? first), `row ${row} after ${after}`);
  assert.equal(stars.length > 0, row >= 0, `stars after ${after}`);
});

// What the Tab key comes by, and what is pressed there. There are 48 rows then, a dozen in sight.
const twelve = [...Array(12).keys()];
const road = [
  ['pmRoot', 'd'], ['cbOther', ' '], ['cbRinL'], ['cbScale-0', ' ', ' '],
  ...twelve.slice(1).map((i) => [`cbScale-${i}`]), ['lbExact'], ['lbContaining'],
];
const focused = () => document.activeElement.closest('[id]')?.id;
const keys = [
  ['ArrowDown', 0], ['ArrowDown', 1], ['ArrowUp', 0], ['ArrowUp', 0], ['End', 47],
  ['ArrowDown', 47], ['PageUp', [30, 40]], ['Home', 0], ['PageDown', [7, 17]], ['Escape', -1],
];

testInEach('the keyboard alone does all, and the mouse lets go of rows', async (hand) => {
  await hand.open(pageOn(fourScales));
  for (let tabs = 0; await hand.page.run(focused) !== 'pmRoot'; ++tabs) {
    assert.ok(tabs < 4, 'the first control has the focus soon');
    await hand.page.key('Tab');
  }
  for (const [id, ...pressed] of road) {
    assert.equal(await hand.page.run(focused), id);
    for (const key of pressed) await hand.page.key(key);
    if (id !== 'lbContaining') await hand.page.key('Tab');
  }
  assert.equal((await hand.look()).captions[0], 'D');
  await hand.press('cbScale-11', 'ArrowDown', 'ArrowUp', 'ArrowUp');
  assert.equal(await hand.page.run(focused), 'cbScale-9', 'arrows go among the notes, no further');
  await hand.press('lbContaining');
  for (const [key, expected] of keys) {
    await hand.page.key(key);
    await expectRow(hand, expected, key);
  }
  await hand.chooseRow(20);
  const scrolled = () => hand.page.run(() => document.getElementById('lbContaining').scrollTop);
  await expectRow(hand, 20, 'a click');
  const before = await scrolled();
  await hand.chooseRow(19);
  await expectRow(hand, 19, 'a click');
  assert.equal(await scrolled(), before, 'a row in sight stays where it is');
  await hand.chooseRow(19, 'lbContaining', { ctrl: true });
  await expectRow(hand, -1, 'a click with the Ctrl key');
  await hand.chooseRoot(4);
  await eventually(async () => assert.equal(await scrolled(), 0, 'another answer begins at its top'));
  await hand.tickOther();
  await hand.chooseRow(2);
  await expectRow(hand, 2, 'a click');
  const [left, bottom] = await hand.page.run(() => {
    const list = document.getElementById('lbContaining').getBoundingClientRect();
    return [list.left, list.bottom];
  });
  await hand.page.click(left + 100, bottom - 10);
  await expectRow(hand, -1, 'a click beside the rows');
});

testIn('Chromium', 'a finger chooses a row and lets it go', async (hand) => {
  // As in a browser whose click does not tell what made it.
  await hand.page.puppet.evaluateOnNewDocument(() => {
    const whole = Object.getOwnPropertyDescriptor(PointerEvent.prototype, 'pointerType').get;
    Object.defineProperty(PointerEvent.prototype, 'pointerType',
      { get() { return this.type === 'click' ? undefined : whole.call(this); } });
  });
  await hand.page.puppet.setViewport({ width: 390, height: 844, hasTouch: true, isMobile: true });
  hand.page.click = (x, y) => hand.page.puppet.touchscreen.tap(x, y);
  await hand.open(pageOn(fourScales));
  await hand.tick(0);
  await hand.chooseRow(2);
  await expectRow(hand, 2, 'a tap');
  await hand.chooseRow(2);
  await expectRow(hand, -1, 'a tap on the chosen row');
  await hand.chooseRow(1);
  await expectRow(hand, 1, 'a tap');
  await hand.page.run(() => document.querySelector('[aria-selected=true]').click());
  await expectRow(hand, 1, "a screen reader's click on the chosen row");
});

testIn('Chromium', 'rows follow the pointer', async (hand) => {
  const { puppet, protocol } = hand.page;
  const scales = [line('A long name '.repeat(9), '110000000000'), line('Short', '111000000000')];
  await hand.open(pageOn(library(...scales, ...Array(60).fill(scales[1]))));
  await hand.tick(0);
  const row = (i) => puppet.$(`#lbContaining-row-${i}`);
  const tips = () => puppet.$$eval('[role=gridcell][title]', (cells) => cells.map((cell) => cell.title));
  const box = await (await row(0)).boundingBox();
  const name = [box.x + box.width / 2, box.y + box.height / 2];
  await puppet.mouse.move(...name);
  await eventually(async () => assert.deepEqual(await tips(), ['A long name '.repeat(9)]));
  await hand.press('cbScale-1', ' ');  // the rows move up below the pointer
  await eventually(async () => assert.match((await hand.look()).lbContaining.rows[0].text, /Short/));
  assert.deepEqual(await tips(), []);
  await puppet.mouse.click(...name, { button: 'right' });
  await (await row(3)).evaluate((element) => element.click());
  await expectRow(hand, 3, 'a click without a press, as of a screen reader');

  await protocol.send('Emulation.setTouchEmulationEnabled', { enabled: true });
  await hand.press('lbContaining', 'End');
  await eventually(async () => {
    const { height, bottom, end } = await puppet.$eval('#lbContaining', (list) => {
      const { height, bottom } = list.querySelector('[aria-selected=true]').getBoundingClientRect();
      return { height, bottom, end: list.getBoundingClientRect().bottom };
    });
    assert.ok(height > 20 && bottom <= end, `${height} high, to ${bottom} in a list to ${end}`);
  });
});

testIn('Chromium', 'of 600,000 rows only those exist that are seen', async (hand) => {
  const scales = Array.from({ length: 50000 }, (_, i) =>
    line(`S${i}`, (i % 4095 + 1).toString(2).padStart(12, '0')));
  await hand.open(pageOn(library(...scales)));
  await hand.page.run(() => {
    window.counted = [];
    new MutationObserver((changes) => counted.push(...changes.map(({ target }) => target.id)))
      .observe(document.getElementById('lbContaining').parentNode,
        { subtree: true, attributeFilter: ['aria-rowcount'] });
  });
  await hand.tickOther();
  assert.deepEqual(await hand.page.run(() => counted), ['lbContaining'],
    'one refresh for an answer');
  await hand.press('lbContaining', 'End');
  await expectRow(hand, 599999, 'End');
  const list = async () => (await hand.look()).lbContaining;
  assert.equal((await list()).count, 600000);
  assert.equal((await list()).rows.at(-1).text, 'Bank|S49999|B');
  // The scroll bar in its middle shows the middle.
  await hand.page.run(() => {
    const list = document.getElementById('lbContaining');
    list.scrollTop = (list.scrollHeight - list.clientHeight) / 2;
  });
  await eventually(async () => {
    const { rows } = await list();
    const middle = rows[rows.length >> 1].row;
    assert.ok(Math.abs(middle - 300000) < 100, `row ${middle} in the middle`);
    assert.equal(rows[0].text.split('|')[1], `S${rows[0].row % 50000}`);
  });
  assert.ok(await hand.page.run(() => document.querySelectorAll('*').length) < 400);
  // The wheel passes no row over, also where the bar comes to its end first.
  const under = await hand.page.run(async () => {
    const list = document.getElementById('lbContaining');
    const scroll = async (top) => {
      list.scrollTop = top;
      for (let i = 0; i < 2; ++i) await new Promise(requestAnimationFrame);
      const { left, top: edge } = list.getBoundingClientRect();
      const row = document.elementFromPoint(left + 9, edge + 9).closest('[role=row]');
      return Number(row.getAttribute('aria-rowindex'));
    };
    const rows = [await scroll(1000)];
    while (rows.at(-1) > 1 && rows.length < 50) rows.push(await scroll(list.scrollTop - 90));
    return rows;
  });
  assert.ok(under.every((row, i) => i === 0 || under[i - 1] - row <= 5), `rows ${under}`);
  assert.equal(under.at(-1), 1);
});
