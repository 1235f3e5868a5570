// The library's text, which the page gives the program at its start.
mergeInto(LibraryManager.library, {
  page_LibrarySize: function () { return Module.library ? Module.library.length : -1; },
  page_Library: function (to) { HEAPU8.set(Module.library, to); },
  page_LibraryIsOwn: function () { return Module.own; },
});
