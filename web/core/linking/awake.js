// What asks whether a core sleeps finds that it never does.
mergeInto(LibraryManager.library, {
  $Asyncify: { currData: null },
  orvane_end_progress__deps: ["$Asyncify"],
});
