// A user's hands and eyes on the program, in whatever browser.
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { setTimeout as wait } from 'node:timers/promises';
import { start } from './browsers.mjs';

/// What the page shows. Of a list's rows only those exist that are seen, or nearly.
function look() {
  const by = (id) => document.getElementById(id);
  const twelve = [...Array(12).keys()];
  const shown = (id) => by(id).checkVisibility({ visibilityProperty: true, opacityProperty: true });
  const list = (id) => ({
    count: Number(by(id).getAttribute('aria-rowcount')),
    rows: [...by(id).querySelectorAll('[role=row]')].map((row) => ({
      row: Number(row.getAttribute('aria-rowindex')) - 1,
      text: [...row.querySelectorAll('[role=gridcell]')].map((cell) => cell.textContent).join('|'),
      chosen: row.getAttribute('aria-selected') === 'true',
    })),
  });
  return {
    ticked: twelve.filter((i) => by(`cbScale-${i}`).querySelector('input').checked),
    captions: twelve.map((i) => by(`cbScale-${i}`).textContent.trim()),
    options: ['cbOther', 'cbRinL'].map((id) => by(id).querySelector('input').checked),
    root: by('pmRoot').selectedIndex,
    stars: twelve.filter((i) => shown(`lbStar-${i}`)),
    value: by('lbValue').textContent,
    scale: by('lbScale').textContent,
    lbExact: list('lbExact'),
    lbContaining: list('lbContaining'),
  };
}

function middle(id) {
  const { left, top, height } = document.getElementById(id).getBoundingClientRect();
  return [left + 8, top + height / 2];
}

/// A place in the name of a row; null where the row is not in sight, after the list was moved there.
function placeOfRow(id, row) {
  const list = document.getElementById(id);
  const rows = [...list.querySelectorAll('[role=row]')];
  const at = rows.find((one) => Number(one.getAttribute('aria-rowindex')) === row + 1);
  const frame = list.getBoundingClientRect();
  const name = at?.querySelectorAll('[role=gridcell]')[1].getBoundingClientRect();
  if (name && name.top >= frame.top && name.bottom <= frame.bottom) {
    return [name.left + 20, name.top + name.height / 2];
  }
  list.scrollTop = row * rows[0].offsetHeight - list.clientHeight / 2;
  return null;
}

/// Tries until nothing is raised; what is raised still after two seconds.
export async function eventually(attempt) {
  for (const end = Date.now() + 2000; ; await wait(5)) {
    try {
      return await attempt();
    } catch (failure) {
      if (Date.now() > end) throw failure;
    }
  }
}

export class Hand {
  constructor(page) { this.page = page; }

  async open(url) {
    this.page.told.length = 0;
    await this.page.open(url);
    await eventually(() => this.look());
  }
  look() { return this.page.run(look); }

  async click(id) { await this.page.click(...await this.page.run(middle, id)); }
  async press(id, ...keys) {
    await this.page.run((id) => {
      const control = document.getElementById(id);
      (control.querySelector('input') ?? control).focus();
    }, id);
    for (const key of keys) await this.page.key(key);
  }
  /// Even positions by mouse, odd ones by key.
  tick(position) {
    const box = `cbScale-${position}`;
    return position % 2 === 0 ? this.click(box) : this.press(box, ' ');
  }
  tickOther() { return this.click('cbOther'); }
  tickInListOnly() { return this.press('cbRinL', ' '); }
  async chooseRoot(row) {
    const steps = row - (await this.look()).root;
    await this.press('pmRoot', ...Array(Math.abs(steps)).fill(steps > 0 ? 'ArrowDown' : 'ArrowUp'));
  }
  async chooseRow(row, list = 'lbContaining', options = {}) {
    const place = await eventually(async () => {
      const at = await this.page.run(placeOfRow, list, row);
      if (!at) throw new Error(`row ${row} of ${list} is never in sight`);
      return at;
    });
    await this.page.click(...place, options);
  }
  chooseExactRow(row) { return this.chooseRow(row, 'lbExact'); }
  /// Drops files on the page: by the driver in Chromium; the others' have no way, so the page gets the
  /// events of a drop.
  async drop(...paths) {
    const { protocol } = this.page;
    const data = { items: [], files: paths, dragOperationsMask: 1 };
    for (const type of protocol ? ['dragEnter', 'dragOver', 'drop'] : []) {
      await protocol.send('Input.dispatchDragEvent', { type, x: 300, y: 300, data });
    }
    if (protocol) return;
    await this.page.run((bytes) => {
      const dataTransfer = new DataTransfer();
      for (const one of bytes) dataTransfer.items.add(new File([new Uint8Array(one)], 'mine.csv'));
      for (const type of ['dragenter', 'dragover', 'drop']) {
        const event = new DragEvent(type, { dataTransfer, bubbles: true, cancelable: true });
        document.body.dispatchEvent(event);
      }
    }, paths.map((path) => [...readFileSync(path)]));
  }
  takeChoiceBack() { return this.press('lbContaining', 'Escape'); }
}

/// A test of a fact with a hand in one browser, or in each.
export const testIn = (browser, fact, body) =>
  test(`${fact}, in ${browser}`, { timeout: 180_000 }, async (t) => {
    const hand = new Hand(await start[browser]());
    t.after(() => hand.page.close());
    await body(hand, t);
  });
export const testInEach = (fact, body) =>
  Object.keys(start).forEach((browser) => testIn(browser, fact, body));
