// Each control stands where tests/window/layout.txt says, on a screen of any size.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { eventually, testIn } from './hand.mjs';
import { library, line, pageOn } from './page.mjs';

const row = /^(\w+)(?:\((\d+)\))? at (\d+),(\d+) of (\d+)x(\d+) tab \d+ from '[^']*'( hidden)?(?: '([^']*)')?/;
const layout = readFileSync(new URL('../window/layout.txt', import.meta.url), 'utf8');
const controls = layout.split('\n').flatMap((text) => {
  const [, name, index, ...rest] = text.match(row) ?? [];
  if (!name) return [];
  const [left, top, width, height] = rest.slice(0, 4).map(Number);
  const id = index ? `${name}-${index}` : name;
  return { id, left, top, width, height, hidden: Boolean(rest[4]), text: rest[5] };
});

const frames = (ids) => Object.fromEntries(ids.map((id) => {
  const control = document.getElementById(id);
  const { left, top, width, height } = control.getBoundingClientRect();
  const shown = control.checkVisibility({ visibilityProperty: true });
  return [id, { left, top, width, height, text: control.textContent.trim(), shown }];
}));

// Width and height of the screen, and how large the window is on it if not as small as it must be.
const screens = [[800, 700, 1], [1600, 1200, 1], [700, 400, 1], [390, 844], [320, 568]];

testIn('Chromium', 'every control stands at its place, whatever the screen', async (hand) => {
  await hand.open(pageOn(library(line('All', '111111111111'))));
  await hand.tick(0);
  await hand.chooseRow(0);  // all stars show
  for (const [width, height, wanted] of screens) {
    await hand.page.puppet.setViewport({ width, height });
    await eventually(async () => {
      const seen = await hand.page.run(frames, controls.map(({ id }) => id));
      const list = seen.lbExact;
      const scale = list.width / 387;
      if (wanted) assert.equal(scale, wanted);
      else assert.ok(scale < 1 && list.left + list.width <= width, 'the whole window is smaller');
      const origin = { left: list.left - 208 * scale, top: list.top - 52 * scale };
      for (const { id, hidden, text, ...place } of controls) {
        const { shown, ...frame } = seen[id];
        assert.equal(shown, !hidden || id.startsWith('lbStar'), id);
        if (!shown) continue;
        if (text) assert.equal(frame.text, text);
        for (const [side, expected] of Object.entries(place)) {
          const value = (frame[side] - (origin[side] ?? 0)) / scale;
          assert.ok(Math.abs(value - expected) < 0.51, `${side} of ${id} on ${width}: ${value}`);
        }
      }
    });
  }
});

testIn('Chromium', 'the columns have 35, 50 and 15 percent of a list', async (hand) => {
  const long = 'A name that cannot stand whole in its column whatever its letters are like';
  await hand.open(pageOn(library(...Array(20).fill(line(long, '110000000000')))));
  for (const [tick, list] of [[0, 'lbContaining'], [1, 'lbExact']]) {
    await hand.tick(tick);
    await eventually(async () => {
      const edges = await hand.page.run((list) => {
        const inside = document.getElementById(list).getBoundingClientRect().left + 1;
        const cells = document.querySelectorAll(`#${list} [role=row]:first-of-type [role=gridcell]`);
        return [...cells].map((cell) => cell.getBoundingClientRect().left - inside);
      }, list);
      assert.equal(edges.length, 3);
      [0, 0.35, 0.85].forEach((share, i) => assert.ok(Math.abs(edges[i] - share * 385) < 1.5, edges));
    });
  }
});
