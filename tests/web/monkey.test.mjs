// A user without aim: after each act the page must show what the oracle says. A failure names the
// seed that shows it again; MONKEY_EVENTS in the environment asks for more.
import assert from 'node:assert/strict';
import { eventually, testIn } from './hand.mjs';
import { Oracle } from './oracle.mjs';
import { library, line, pageOn } from './page.mjs';

const session = 100;
// Most could be taken for the page's own markup. The end of a script stands in it with a backslash.
const names = ['Plain', '<b>bold</b>', '&amp;', '"quoted"', "it's", '<img src=x onerror=alert(1)>',
  '</script>', '<!--', '${1}', ' two  blanks ', 'é ♯ 𝄪'];
const inThePage = (text) => text.replaceAll('</script', '<\\/script').replaceAll('<!--', '<\\!--');

/// Numbers from 0 up to below a count, the same for each use of a seed.
function dice(seed) {
  return (count) => {
    seed = (seed + 0x6d2b79f5) | 0;
    let mixed = Math.imul(seed ^ (seed >>> 15), 1 | seed);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) % count;
  };
}

/// Up to thirty scales, empty ones and full ones among them; at times with a fault at the end.
async function openOnAnyLibrary(hand, pick) {
  const scales = Array.from({ length: pick(30) }, () => {
    const quarters = pick(5);
    const digits = Array.from({ length: 12 }, () => (pick(4) < quarters ? '1' : '0'));
    const notes = new Set(digits.flatMap((digit, i) => (digit === '1' ? [i] : [])));
    return { bank: names[pick(names.length)], name: names[pick(names.length)], digits, notes };
  });
  const lines = scales.map(({ bank, name, digits }) => line(name, digits, bank));
  const named = pick(5) > 0;
  if (!named) lines.push('Bank,short');
  await hand.open(pageOn(inThePage(library(...lines))));
  return new Oracle(scales, named);
}

function anyAct(oracle, pick) {
  const what = pick(12);
  const top = pick(oracle.exact.length + 1) - 1;
  const row = pick(oracle.containing.length + 1) - 1;
  if (what < 5) return ['tick', pick(12)];
  if (what === 5) return ['chooseRoot', pick(12)];
  if (what === 6) return ['tickOther'];
  if (what === 7) return ['tickInListOnly'];
  if (what === 8 && top >= 0) return ['chooseExactRow', top];
  return row < 0 ? ['takeChoiceBack'] : ['chooseRow', row];
}

for (const [browser, wanted] of [['Chromium', 2000], ['Firefox', 200], ['WebKit', 200]]) {
  testIn(browser, 'random acts agree with the oracle', async (hand) => {
    const events = Number(process.env.MONKEY_EVENTS ?? wanted);
    const seed = Number(process.env.MONKEY_SEED ?? Math.floor(Math.random() * 1e9));
    const pick = dice(seed);
    let oracle;
    for (let event = 0; event < events; ++event) {
      let act = ['opening'];
      try {
        if (event % session === 0) {
          oracle = await openOnAnyLibrary(hand, pick);
        } else {
          act = anyAct(oracle, pick);
          oracle.told = hand.page.told.length = 0;
          oracle[act[0]](act[1]);
          await hand[act[0]](...act.slice(1));
        }
        await eventually(async () => {
          oracle.check(await hand.look());
          const told = await hand.page.hear();
          assert.equal(told.length, oracle.told, `told: ${told}`);
        });
      } catch (failure) {
        const again = `again with MONKEY_SEED=${seed}`;
        throw new Error(`at event ${event}, ${act.join(' ')}; ${again}`, { cause: failure });
      }
    }
  });
}
