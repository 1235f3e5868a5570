// The page around the program: it starts the program, with the library that stands in the page, and
// anew with one that the user gives it.
(function () {
  'use strict';
  const at = id => document.getElementById(id);
  const code = Uint8Array.from(atob('@CODE@'), c => c.charCodeAt(0));
  let run = new AbortController();

  function start(library, name) {
    run.abort();  // an earlier run hears of nothing any more
    run = new AbortController();
    at('desk').replaceChildren();
    at('ended').hidden = true;
    at('report').hidden = !name;
    at('report-title').textContent = name;
    at('report-summary').textContent = '';
    at('report-faults').replaceChildren();
    OrrelPitchsieve({ wasmBinary: code, library, own: !!name, signal: run.signal }).catch(end);
  }

  function end() {
    at('desk').replaceChildren();
    at('ended').hidden = false;
  }

  async function open(file) {
    if (!file) return;
    try {
      start(new Uint8Array(await file.arrayBuffer()), file.name);
    } catch (failure) {
      at('report').hidden = false;
      at('report-title').textContent = file.name;
      at('report-summary').textContent = 'This file cannot be read.';
      at('report-faults').replaceChildren();
    }
  }

  function fit() {
    const root = document.documentElement;
    root.style.setProperty('--page', root.clientWidth);
  }

  at('sorry').className = '';
  if (typeof WebAssembly !== 'object') return;
  at('sorry').hidden = true;
  addEventListener('resize', fit);
  addEventListener('error', end);
  at('own').addEventListener('change', e => { open(e.target.files[0]); });
  addEventListener('dragover', e => e.preventDefault());
  addEventListener('drop', e => { e.preventDefault(); open(e.dataTransfer.files[0]); });
  fit();

  // In a script element, a few texts cannot stand as they are: a backslash stands in them.
  const library = at('library');
  start(library && new TextEncoder().encode(
      library.textContent.replace(/<\\(\\*(?:!--|\/?script))/gi, '<$1')), '');
})();
