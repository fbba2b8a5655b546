// What asks whether a core sleeps finds that it never does.
mergeInto(LibraryManager.library, {
  $Asyncify: { currData: null },
});
