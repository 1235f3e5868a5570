// The page around the program: it starts the program, with the library that stands in the page, and
// anew with one that the user gives it.
(function () {
  'use strict';
  const at = id => document.getElementById(id);
  const root = document.documentElement;
  const code = compiled();
  let run = new AbortController();
  let started = Promise.resolve();

  // Where the browser cannot decode by itself, a plain loop does: Uint8Array.from takes ten times as
  // long.
  function decoded(text) {
    if (Uint8Array.fromBase64) return Uint8Array.fromBase64(text);
    const bytes = atob(text);
    const code = new Uint8Array(bytes.length);
    for (let i = 0; i < code.length; ++i) code[i] = bytes.charCodeAt(i);
    return code;
  }

  // A library without a name is the page's own. Another is checked first, by a run for that alone.
  async function start(library, name) {
    run.abort();  // an earlier run hears of nothing any more
    run = new AbortController();
    const signal = run.signal;
    // A failure that the program could not take itself is its end. Scripts of others, as of a
    // browser's extension, fail on this page too, and that is none.
    const fail = failure => {
      if (signal.aborted) return;
      console.error(failure);
      end();
    };
    const quit = (status, failure) => { if (status !== 0) fail(failure); };
    // What the page does for the program: a failure in it is told here, as itself. The program can only
    // end of it.
    const guarded = what => typeof what !== 'function'
        ? new Proxy(what, { get: (all, name) => guarded(all[name]) })
        : (...values) => {
          try {
            return what(...values);
          } catch (failure) {
            if (failure instanceof Error) fail(failure);
            throw failure;
          }
        };
    const launch = more => new Promise((done, failed) => {
      const instantiateWasm = (imports, begin) => {
        code.then(ready => WebAssembly.instantiate(ready, guarded(imports))).then(begin).catch(failed);
        return {};
      };
      OrrelPitchsieve({ instantiateWasm, library, signal, fail, end, quit, ...more }).then(done, failed);
    }).catch(fail);
    at('desk').replaceChildren();
    at('ended').hidden = true;
    report(name);
    if (name) {
      await launch({ check: true });
      await new Promise(done => setTimeout(done, 50));  // for the eye to meet what was found
    }
    if (!signal.aborted) await launch({});
  }

  // What is said of the user's library that is in use. The place of the summary stays, or a screen
  // reader would not hear of what is written there.
  function report(name) {
    at('report-title').hidden = at('report-rest').hidden = !name;
    at('report-title').textContent = name;
    at('report-summary').textContent = '';
    at('report-faults').replaceChildren();
    refuse('');
  }

  // Says why what was given last is not taken. What is in use, and what is said of it, stays.
  function refuse(why) {
    at('refusal').textContent = why;
    at('report').className = why || at('report-title').textContent ? 'told' : '';
  }

  function end() {
    run.abort();
    at('desk').replaceChildren();
    at('ended').hidden = false;
  }

  async function take([file, ...others]) {
    if (others.length > 0) return refuse('One library at a time: drop its file alone.');
    let bytes;
    try {
      bytes = await file.arrayBuffer();
    } catch (failure) {
      return refuse(file.name + ' cannot be read.');
    }
    await start(new Uint8Array(bytes), file.name);
  }

  // One after the other: the last one stays, and each report is of one file.
  function queue(list) {
    const files = [...list];
    if (files.length > 0) started = started.then(() => take(files));
  }

  // To ask for the width has the page laid out, so a page that is wide enough is not asked.
  function fit() {
    const wide = matchMedia('(min-width: 700px)').matches;
    root.style.setProperty('--page', wide ? 10000 : root.offsetWidth);
  }

  // A browser may not know WebAssembly, or know too little of it for the program, or let no page run it
  // that has a policy like ours: then the sentence about it stays alone.
  async function compiled() {
    root.className = 'runs';
    try {
      return await WebAssembly.compile(decoded(at('code').textContent));
    } catch (failure) {
      root.className = '';
      throw failure;
    }
  }

  at('offer').hidden = false;
  addEventListener('resize', fit);
  at('own').addEventListener('change', e => {
    queue(e.target.files);
    e.target.value = '';  // or the same file, once it is mended, would be no change
  });
  addEventListener('dragover', e => e.preventDefault());
  addEventListener('drop', e => { e.preventDefault(); queue(e.dataTransfer.files); });
  fit();

  // In a script element, a few texts cannot stand as they are: a backslash stands in them.
  const library = at('library');
  started = start(library && new TextEncoder().encode(
      library.textContent.replace(/<\\(\\*(?:!--|\/?script))/gi, '<$1')), '');
})();
