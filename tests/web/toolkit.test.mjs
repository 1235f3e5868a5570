// What the page's toolkit does for a program, on the page of other_program.cpp.
import assert from 'node:assert/strict';
import { start } from './browsers.mjs';
import { eventually, testIn } from './hand.mjs';
import { addressOf, html } from './page.mjs';

const textOf = (id) => document.getElementById(id)?.checkVisibility()
  && document.getElementById(id).textContent;
const expectText = (hand, id, text) =>
  eventually(async () => assert.equal(await hand.page.run(textOf, id), text, id));
const open = async (hand) => {
  await hand.page.open(addressOf(html));
  await expectText(hand, 'heading', 'Another Program');
};

for (const browser of Object.keys(start)) {
  testIn(browser, 'a program that fails or quits leaves a page that says so', async (hand) => {
    let logged = [];
    hand.page.puppet?.on('console', (message) => logged.push(message.text()));
    for (const [box, told] of [['fail', ['A failure of an unknown class.']], ['quit', []]]) {
      await open(hand);
      assert.equal(await hand.page.run(() => document.title), 'Another Program');
      hand.page.told.length = 0;
      logged = [];
      await hand.click(box);
      await expectText(hand, 'ended', 'The program has ended. Load the page again to start it anew.');
      assert.equal(await hand.page.run(() => document.getElementById('desk').childElementCount), 0);
      // In WebKitGTK 2.50 the failure passes by the catch that is to tell it, and ends the run alone.
      if (browser === 'WebKit') continue;
      assert.deepEqual(await hand.page.hear(), told);
      await eventually(async () => assert.deepEqual(logged, told));
    }
  });
}

testIn('Chromium', 'controls show what they are, and what a program makes of them', async (hand) => {
  await open(hand);
  const seen = () => hand.page.run(() => ({
    order: [...document.querySelectorAll('.window > *')].map(({ id }) => id),
    letters: getComputedStyle(document.getElementById('heard')).fontSize,
    options: [...document.getElementById('menu').options].map(({ text }) => text),
    chosen: document.getElementById('menu').selectedIndex,
    cells: [...document.querySelectorAll('#list [role=gridcell]')].map((cell) =>
      [cell.textContent, Math.round(cell.getBoundingClientRect().width)]),
  }));
  // Of the columns those that have a width, also between others.
  await eventually(async () => assert.deepEqual(await seen(), {
    order: ['heard', 'fail', 'quit', 'change', 'list', 'menu'], letters: '13px',
    options: ['one', 'two', 'three'], chosen: 1, cells: [['first', 69], ['third', 129]],
  }));
  await hand.click('change');
  await eventually(async () => assert.deepEqual(await seen(), {
    order: ['heard', 'fail', 'quit', 'change', 'late', 'list', 'menu'], letters: '13px',
    options: ['four', 'five'], chosen: 1,
    cells: [['first', 49], ['unseen', 49], ['third', 49], ['unseen too', 51]],
  }));
  await hand.click('change');
  await eventually(async () => assert.equal((await seen()).chosen, 0));
});

testIn('Chromium', 'a program is told of each change of the appearance', async (hand) => {
  await open(hand);
  const features = [];
  for (const [name, value, told] of [['prefers-color-scheme', 'dark', 'InterfaceTheme'],
    ['forced-colors', 'active', 'ColorPreferences']]) {
    features.push({ name, value });
    await hand.page.protocol.send('Emulation.setEmulatedMedia', { features });
    await expectText(hand, 'heard', `Apple${told}ChangedNotification`);
  }
});
