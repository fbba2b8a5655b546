#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "web/desk/page.h"

// One thing that the page is told, while it is written.

namespace web {

class Telling {
 public:
  explicit Telling(std::string_view what) {
    json_.BeginObject();
    cli::WriteText(json_, "tell", what);
  }
  Telling(const Telling&) = delete;
  Telling& operator=(const Telling&) = delete;

  // The object is open for more.
  cli::JsonWriter& Json() { return json_; }

  // To be called once, at the end.
  void Send(const std::vector<const std::vector<float>*>& lists = {}) {
    json_.EndObject();
    Tell(text_.str(), lists);
  }

 private:
  std::ostringstream text_;
  cli::JsonWriter json_{text_};
};

inline void WriteBool(cli::JsonWriter& json, std::string_view key, bool value) {
  json.Key(key);
  json.Bool(value);
}

}  // namespace web
