// What the desk asks of the script that has made it: addNumbers(Float32Array), tell(json), and
// nextEvent(awaited), which promises a text, or null when there is nothing and nothing is awaited.
mergeInto(LibraryManager.library, {
  orvane_add_numbers: function (numbers, count) {
    Module["addNumbers"](HEAPF32.slice(numbers >>> 2, (numbers >>> 2) + count));
  },
  orvane_tell: function (json) {
    Module["tell"](UTF8ToString(json));
  },
  orvane_next_event: function (awaited) {
    return Asyncify.handleAsync(function () {
      return Module["nextEvent"](awaited !== 0).then(function (text) {
        if (text === null) return 0;
        var size = lengthBytesUTF8(text) + 1;
        var address = _malloc(size);
        stringToUTF8(text, address, size);
        return address;
      });
    });
  },
});
