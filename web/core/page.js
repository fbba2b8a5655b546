// What the core asks of the script that has made it: showProgress(what, percent), which promises whether the
// user has cancelled, and endProgress().
mergeInto(LibraryManager.library, {
  orvane_show_progress: function (what, percent) {
    return Asyncify.handleAsync(function () {
      return Module["showProgress"](UTF8ToString(what), percent).then(Number);
    });
  },
  orvane_end_progress: function () {
    Module["endProgress"]();
  },
});
