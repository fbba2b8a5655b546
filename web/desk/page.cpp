#include "web/desk/page.h"

#include <cstddef>
#include <cstdlib>
#include <exception>

extern "C" {

// Keeps a copy of the list for what is told next.
void orvane_add_numbers(const float* numbers, std::size_t count);  // NOLINT: a name in JavaScript

void orvane_tell(const char* json);  // NOLINT: a name in JavaScript

// Sleeps. Returns a text that the caller frees, or null.
char* orvane_next_event(int awaited);  // NOLINT: a name in JavaScript
}

namespace web {

void Tell(const std::string& json, const std::vector<const std::vector<float>*>& lists) {
  for (const std::vector<float>* const list : lists) {
    orvane_add_numbers(list->data(), list->size());
  }
  orvane_tell(json.c_str());
}

std::optional<std::string> NextEvent(bool awaited) {
  // Nothing can sleep where an exception is being handled, and nothing is asked there.
  if (!awaited && std::current_exception()) return std::nullopt;
  char* const text = orvane_next_event(awaited ? 1 : 0);
  if (text == nullptr) return std::nullopt;
  std::string event = text;
  std::free(text);
  return event;
}

}  // namespace web
