// What the toolkit does to the page: operations on its elements, each known by a number, and on the
// event that is being handled. Of a list it knows how its rows and cells are marked, of a label element
// that it has a control; nothing else of controls.
mergeInto(LibraryManager.library, {
  $page: '{ elements: new Map(), last: 0, event: null }',
  $decoder: "new TextDecoder('utf-8', { ignoreBOM: true })",
  // Bytes that are no text become the replacement character.
  $text__deps: ['$decoder'],
  $text: function (bytes, size) { return decoder.decode(HEAPU8.subarray(bytes, bytes + size)); },
  $add__deps: ['$page'],
  $add: function (element) { page.elements.set(++page.last, element); return page.last; },
  $at__deps: ['$page'],
  $at: function (number) { return page.elements.get(number); },
  // Calls back as long as the run goes on. What the program lets through has broken it: the run fails.
  $call: function (callback, work) {
    if (Module.signal.aborted) return;
    try {
      callback(work);
    } catch (failure) {
      Module.fail(failure);
    }
  },
  // Calls back for each event of the target as long as the element with that number is there, and
  // the run that it belongs to.
  $listen__deps: ['$page', '$call'],
  $listen: function (number, target, event, listener) {
    target.addEventListener(event, function (e) {
      if (!page.elements.has(number)) return;
      page.event = e;
      call(_page_Heard, listener);
      page.event = null;
    }, { signal: Module.signal });
  },

  page_Find__deps: ['$add'],
  page_Find: function (id) { return add(document.getElementById(UTF8ToString(id))); },
  page_Make__deps: ['$add', '$at'],
  page_Make: function (parent, tag) {
    const element = document.createElement(UTF8ToString(tag));
    at(parent).append(element);
    return add(element);
  },
  page_Forget__deps: ['$page'],
  page_Forget: function (number) { page.elements.delete(number); },
  page_Remove__deps: ['$page', '$at'],
  page_Remove: function (number) { at(number).remove(); page.elements.delete(number); },
  page_Put__deps: ['$at'],
  page_Put: function (number, before) {
    at(number).parentNode.insertBefore(at(number), before ? at(before) : null);
  },
  page_Text__deps: ['$at', '$text'],
  page_Text: function (number, bytes, size) { at(number).textContent = text(bytes, size); },
  page_Attribute__deps: ['$at', '$text'],
  page_Attribute: function (number, name, bytes, size) {
    at(number).setAttribute(UTF8ToString(name), text(bytes, size));
  },
  page_NoAttribute__deps: ['$at'],
  page_NoAttribute: function (number, name) { at(number).removeAttribute(UTF8ToString(name)); },
  page_Style__deps: ['$at', '$text'],
  page_Style: function (number, name, bytes, size) {
    at(number).style.setProperty(UTF8ToString(name), text(bytes, size));
  },
  page_Place__deps: ['$at'],
  page_Place: function (number, left, top, width, height) {
    Object.assign(at(number).style, {
      left: left + 'px', top: top + 'px', width: width + 'px', height: height + 'px',
    });
  },
  page_Set__deps: ['$at'],
  page_Set: function (number, name, value) { at(number)[UTF8ToString(name)] = value; },
  page_Get__deps: ['$at'],
  page_Get: function (number, name) { return Number(at(number)[UTF8ToString(name)]); },
  page_Focus__deps: ['$at'],
  page_Focus: function (number) { (at(number).control || at(number)).focus(); },

  page_Listen__deps: ['$at', '$listen'],
  page_Listen: function (number, event, listener) {
    listen(number, at(number), UTF8ToString(event), listener);
  },
  page_Watch__deps: ['$listen'],
  page_Watch: function (number, query, listener) {
    listen(number, matchMedia(UTF8ToString(query)), 'change', listener);
  },
  page_Later__deps: ['$call'],
  page_Later: function (delay, work) { setTimeout(function () { call(_page_Due, work); }, delay); },

  // Of the event: its place in the list of keys, or -1 for another or one with a modifier; the row
  // that it points at, or -1; whether a click is of a mouse or a finger; whether a press is of a finger,
  // which a click does not tell in every browser; whether Ctrl is held, or the platform's own like it.
  page_Key__deps: ['$page', '$text'],
  page_Key: function (keys) {
    const e = page.event;
    if (e.ctrlKey || e.altKey || e.metaKey) return -1;
    return UTF8ToString(keys).split(' ').indexOf(e.key);
  },
  page_Row__deps: ['$page'],
  page_Row: function () {
    const row = page.event.target.closest('[aria-rowindex]');
    return row ? Number(row.getAttribute('aria-rowindex')) - 1 : -1;
  },
  page_IsByHand__deps: ['$page'],
  page_IsByHand: function () { return page.event.detail > 0; },
  page_IsTouch__deps: ['$page'],
  page_IsTouch: function () { return page.event.pointerType === 'touch'; },
  page_HasCtrl__deps: ['$page'],
  page_HasCtrl: function () { return page.event.ctrlKey || page.event.metaKey; },
  page_Take__deps: ['$page'],
  page_Take: function () { page.event.preventDefault(); },
  // Lets a text of the list that is cut at its cell's end be read whole by pointing at it.
  page_TellCut__deps: ['$page'],
  page_TellCut: function () {
    const cell = page.event.target;
    if (cell.getAttribute('role') !== 'gridcell') return;
    if (cell.scrollWidth > cell.clientWidth) cell.title = cell.textContent;
    else cell.removeAttribute('title');
  },

  page_Alert__deps: ['$text'],
  page_Alert: function (bytes, size) { alert(text(bytes, size)); },
  page_Log__deps: ['$text'],
  page_Log: function (bytes, size) { console.error(text(bytes, size)); },
  page_End: function () { Module.end(); },
});
