// What the window should show, reckoned with sets of semitones.
import assert from 'node:assert/strict';

const names = ['A', 'A# / Bb', 'B', 'C', 'C# / Db', 'D', 'D# / Eb', 'E', 'F', 'F# / Gb', 'G',
  'G# / Ab'];
const twelve = [...Array(12).keys()];
const inOrder = (notes) => twelve.filter((i) => notes.has(i));
const number = (notes) => twelve.map((i) => Number(notes.has(i))).join('').replace(/^0+(?=.)/, '');

export class Oracle {
  ticked = new Set();
  root = 3;
  other = false;
  inList = false;
  rows = { lbExact: [], lbContaining: [] };
  chosen = { lbExact: -1, lbContaining: -1 };
  stars = new Set();
  value = ' ';
  scale = ' ';

  /// scales: { bank, name, notes }, the notes a Set of semitones above the root, in the order of the
  /// file. named: the opening came as far as the names of the notes.
  constructor(scales, named) {
    this.scales = scales;
    this.named = named;
    this.told = named ? 0 : 1;  // failures since the last act
  }
  get exact() { return this.rows.lbExact; }
  get containing() { return this.rows.lbContaining; }

  tick(position) {
    if (!this.ticked.delete(position)) this.ticked.add(position);
    this.compare();
  }
  tickOther() {
    this.other = !this.other;
    this.compare();
  }
  tickInListOnly() {
    this.inList = !this.inList;
    this.compare();
  }
  /// By keys: each entry on the way is chosen.
  chooseRoot(row) {
    const steps = Math.abs(row - this.root);
    this.root = row;
    if (!this.named) this.told += steps;
    else if (steps > 0) this.compare();
  }
  chooseExactRow(row) { this.chosen.lbExact = row; }
  chooseRow(row) {
    this.chosen.lbContaining = row;
    this.stars = this.containing[row].notes;
    this.scale = number(this.stars);
  }
  takeChoiceBack() {
    this.chosen.lbContaining = -1;
    this.stars = new Set();
  }

  captions() { return twelve.map((i) => names[(i + (this.named ? this.root : 3)) % 12]); }

  compare() {
    this.rows = { lbExact: [], lbContaining: [] };
    this.chosen.lbExact = -1;
    this.takeChoiceBack();
    this.value = number(this.ticked);
    for (const i of twelve) {
      if (i > 0 && (!this.other || (this.inList && !this.ticked.has(i)))) continue;
      const fromHere = [...this.ticked].map((note) => (note - i + 12) % 12);
      for (const { bank, name, notes } of this.scales) {
        if (!fromHere.every((note) => notes.has(note))) continue;
        if (i > 0 && !this.named) return void ++this.told;
        const rows = notes.size === fromHere.length ? this.exact : this.containing;
        rows.push({ text: `${bank}|${name}|${this.captions()[i]}`, notes });
      }
    }
  }

  /// Holds what is seen against what should be. The rows that fit a list must be in sight.
  check({ lbExact, lbContaining, ...seen }) {
    assert.deepEqual(seen, {
      ticked: inOrder(this.ticked), captions: this.captions(), options: [this.other, this.inList],
      root: this.root, stars: inOrder(this.stars), value: this.value, scale: this.scale,
    });
    for (const [list, { count, rows }, fit] of [['lbExact', lbExact, 4], ['lbContaining', lbContaining, 10]]) {
      const expected = this.rows[list];
      assert.equal(count, expected.length, list);
      assert.ok(rows.length >= Math.min(fit, count), `${rows.length} rows of ${list} for ${count}`);
      assert.deepEqual(rows, rows.map(({ row }) => (
        { row, text: expected[row]?.text, chosen: row === this.chosen[list] })), list);
    }
  }
}
