// What the page gives the program at its start: the library's bytes, and whether they are only to be
// checked.
mergeInto(LibraryManager.library, {
  page_LibrarySize: function () { return Module.library ? Module.library.length : -1; },
  page_Library: function (to) { HEAPU8.set(Module.library, to); },
  page_IsCheck: function () { return !!Module.check; },
});
