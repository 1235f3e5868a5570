// What a screen reader is told, in the browser's own tree of it, and what axe-core finds.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { eventually, testIn } from './hand.mjs';
import { addressOf, file, fourScales, html, library, pageOn } from './page.mjs';

const axe = readFileSync(new URL('node_modules/axe-core/axe.min.js', import.meta.url), 'utf8');
const violations = `${axe}; axe.run().then(({ violations }) => violations.map(
  ({ id, nodes }) => id + ': ' + nodes.map(({ html }) => html.slice(0, 100)).join(' ')))`;
const states = {
  'as it opens': async () => {},
  'with rows and a chosen one': async (hand) => {
    for (const note of [0, 4, 7]) await hand.tick(note);
    await hand.tickOther();
    await hand.chooseExactRow(0);
    await hand.chooseRow(1);
    await eventually(async () => assert.notDeepEqual((await hand.look()).stars, []));
  },
  'with a report of faults': async (hand) => {
    await hand.drop(file('mine.csv', library(...Array(40).fill('Bank,short'))));
    await eventually(async () => {
      assert.ok(await hand.page.run(() => document.querySelectorAll('#report li').length) > 5);
      await hand.look();
    });
  },
  'on a phone': (hand) => hand.page.puppet.setViewport({ width: 390, height: 844, hasTouch: true }),
  'when it has ended': async (hand) => {
    await hand.page.run(() => {
      const whole = Element.prototype.setAttribute;
      Element.prototype.setAttribute = () => {
        Element.prototype.setAttribute = whole;
        throw new Error('provoked');
      };
    });
    await hand.tick(0);
    await hand.page.puppet.waitForSelector('#ended', { visible: true });
  },
  'without WebAssembly': async (hand) => {
    await hand.page.puppet.evaluateOnNewDocument(() => { delete globalThis.WebAssembly; });
    await hand.page.puppet.reload();
  },
};
for (const value of ['light', 'dark']) {
  testIn('Chromium', `axe finds nothing in ${value} colours`, async (hand) => {
    const { puppet } = hand.page;
    await puppet.emulateMediaFeatures([{ name: 'prefers-color-scheme', value }]);
    await hand.open(addressOf(html));
    for (const [state, arrive] of Object.entries(states)) {
      await arrive(hand);
      assert.deepEqual(await puppet.evaluate(violations), [], state);
    }
  });
}

testIn('Chromium', 'names, rows with their number, and stars with their boxes are told', async (hand) => {
  const spoken = async (role) => {
    const found = [];
    const walk = (node) => {
      if (node.role === role) found.push(node);
      node.children?.forEach(walk);
    };
    walk(await hand.page.puppet.accessibility.snapshot({ interestingOnly: false }));
    return found;
  };
  const namesOf = async (role) => (await spoken(role)).map(({ name }) => name);
  await hand.open(pageOn(fourScales));
  await hand.tick(4);
  await hand.press('lbContaining', 'ArrowDown');
  await eventually(async () => {
    const boxes = await spoken('checkbox');
    assert.deepEqual(boxes.map(({ name }) => name), ['Include Other Roots', 'Roots in List Only',
      ...(await hand.look()).captions]);
    assert.deepEqual(boxes.flatMap(({ checked }, i) => (checked ? [i - 2] : [])), [4]);
    const notes = boxes.slice(2).map(({ description }) => description);
    const starred = notes.flatMap((text, i) => (text.startsWith('In the chosen scale. ') ? [i] : []));
    assert.deepEqual(starred, [0, 2, 4, 5, 7, 9, 11]);
    for (const text of notes) assert.match(text, /Select which pitch classes must appear/);
    for (const { name, description } of [...boxes, ...await spoken('combobox'), ...await spoken('grid')]) {
      assert.ok(description, `what ${name} is for`);
    }
    assert.deepEqual(await namesOf('image'), Array(7).fill('In the chosen scale.'));
    assert.deepEqual(await namesOf('combobox'), ['Root Note']);
    assert.equal(await hand.page.run(() => document.getElementById('tally').textContent),
      'Exact Match 0, Containing All Notes 3');
    assert.deepEqual(await namesOf('grid'), ['Exact Match', 'Containing All Notes']);
    assert.deepEqual(await namesOf('row'), ['Bank Major C', 'Bank Whole Tone C', 'Bank Triad C']);
  });
  // The list points at the row that a key has chosen.
  assert.deepEqual(await hand.page.run(() => {
    const row = document.getElementById(document.activeElement.getAttribute('aria-activedescendant'));
    return ['role', 'aria-rowindex', 'aria-selected'].map((name) => row.getAttribute(name));
  }), ['row', '1', 'true']);
});

testIn('Chromium', 'in forced colours the root menu has its arrow still', async (hand) => {
  await hand.page.protocol.send('Emulation.setEmulatedMedia',
    { features: [{ name: 'forced-colors', value: 'active' }] });
  await hand.open(pageOn(fourScales));
  const picture = async (ground) => {
    await hand.page.run((ground) => {
      document.getElementById('pmRoot').style.setProperty('background-image', ground);
    }, ground);
    return hand.page.puppet.$('#pmRoot').then((menu) => menu.screenshot({ encoding: 'base64' }));
  };
  assert.notEqual(await picture(''), await picture('none'));
});
