#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/handles.h"
#include "tests/support/posix/journal/deleted_keys.h"
#include "tests/support/posix/journal/shown.h"

namespace test {

// What a plug-in asks of its host and its system, one call a line in the order of the calls.
//
// Whoever stands at a border (JournalInterface, JournalDesktop, JournalRegistry, the host's free
// functions) forwards each call and notes it here. Left out are questions whose order nobody relies
// on and whose answer shows elsewhere: names, children, selections, controllers, windows. A run of
// keys deleted at successive ticks, at each of the same controllers, is one line.
class Journal {
 public:
  // The one that the host's free functions note their calls in, until it is destroyed.
  Journal() { current_ = this; }
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;
  ~Journal() { current_ = nullptr; }

  // Null while no journal is kept.
  static Journal* Current() { return current_; }

  // Notes one call, told by `parts` one after the other.
  template <typename... Parts>
  void Note(const Parts&... parts) {
    Append((std::string() + ... + Shown(parts)));
  }

  // Notes that a key of `controller` was deleted.
  void NoteDeletedKey(const std::string& controller, int tick);

  // From now on `text` is spelled `shorter`, in what is noted and in what is written to files.
  void Abbreviate(const std::string& text, const std::string& shorter);

  // From now on the file `path` is looked at before every call is noted, and it is noted when it
  // has changed: so a flush is seen where it takes place. `name` is what the file is called. Of a
  // text, the lines are noted that it takes.
  void WatchFile(const std::string& path, const std::string& name);
  void WatchText(const std::string& path, const std::string& name);

  // From now on does `act` with each line that is noted, in the middle of that call. It may throw,
  // as the call then does.
  void WhenNoted(std::function<void(const std::string& line)> act) { act_ = std::move(act); }

  // What `window` is called.
  void NameWindow(HWND window, const std::string& name) { windows_[window] = name; }
  std::string WindowName(HWND window) const;

  // The lines so far; what is noted afterwards begins anew.
  std::vector<std::string> Take();

 private:
  struct WatchedFile {
    std::string path;
    std::string name;
    bool is_text;
    std::string seen;
  };

  void Append(const std::string& line);
  void Complete();  // notes what is still open
  void Look(WatchedFile& file);
  std::string Abbreviated(std::string text) const;

  static Journal* current_;

  std::vector<std::string> lines_;
  std::optional<DeletedKeys> deleted_;
  std::vector<WatchedFile> files_;
  std::vector<std::pair<std::string, std::string>> abbreviations_;
  std::map<HWND, std::string> windows_;
  std::function<void(const std::string&)> act_;
};

}  // namespace test
