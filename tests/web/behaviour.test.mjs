// How the page answers the user: what the monkey of tests/support holds the other toolkits to.
import assert from 'node:assert/strict';
import { eventually, testInEach } from './hand.mjs';
import { fourScales, pageOn } from './page.mjs';

const notes = (digits) => [...digits].flatMap((digit, i) => (digit === '1' ? [i] : []));
const rows = (...texts) => texts.map((text) => `Bank|${text}`);
const steps = [
  ['tick', 0, {}],
  ['tick', 4, {}],
  ['tick', 7, { exact: rows('Triad|C'), containing: rows('Major|C') }],
  ['chooseRoot', 2, { exact: rows('Triad|B'), value: '100010010000' }],  // the ticks stay
  ['tickOther', null, { count: 6 }],
  ['tickInListOnly', null,
    { containing: rows('Major|B', 'Minor|D# / Eb', 'Major|F# / Gb') }],
  ['chooseRow', 1, { stars: notes('101101011010'), chosen: [1] }],
  ['chooseRow', 2, { stars: notes('101011010101'), chosen: [2] }],  // as the library has it
  ['takeChoiceBack', null, { stars: [], chosen: [], scale: '101011010101' }],
  ['chooseRow', 1, { stars: notes('101101011010') }],
  ['chooseExactRow', 0, { stars: notes('101101011010'), chosenExact: [0] }],
  ['tickOther', null, { stars: [], chosen: [], chosenExact: [], count: 1 }],
];

testInEach('every input is answered at once', async (hand) => {
  await hand.open(pageOn(fourScales));
  for (const [act, value, expected] of steps) {
    await hand[act](...(value === null ? [] : [value]));
    await eventually(async () => {
      const { lbExact, lbContaining, stars, value, scale } = await hand.look();
      const texts = (list) => list.rows.map(({ text }) => text);
      const chosen = (list) => list.rows.filter((row) => row.chosen).map(({ row }) => row);
      const seen = {
        stars, value, scale, exact: texts(lbExact), containing: texts(lbContaining),
        count: lbContaining.count, chosen: chosen(lbContaining), chosenExact: chosen(lbExact),
      };
      for (const [what, content] of Object.entries(expected)) {
        assert.deepEqual(seen[what], content, `${what} after ${act}`);
      }
    });
  }
  assert.deepEqual(await hand.page.hear(), []);
});
