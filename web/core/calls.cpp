#include <emscripten.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "cli/common/json_members.h"
#include "formats/array/array_too_large.h"
#include "inspect/report/action.h"
#include "web/core/answer.h"
#include "web/core/file_lines.h"
#include "web/core/program_run.h"
#include "web/core/take.h"
#include "web/core/take_kind.h"
#include "web/core/told_findings.h"

// What JavaScript calls. Each call but the last ones returns 1, or 0 when it failed, and leaves its
// answer to be fetched, until the next call. Texts are UTF-8 with a NUL at their end.

namespace web {
namespace {

Answer answer;
std::map<int, std::unique_ptr<Take>> takes;
bool is_running = false;

// Calls `work`, which makes an answer.
template <typename Work>
int AnswerBy(const Work& work) {
  answer = {};
  try {
    answer = work();
  } catch (const Refusal& refusal) {
    answer = FailureAnswer(refusal);
  } catch (const orvane::ArrayTooLarge& error) {
    answer =
        FailureAnswer({"To show its frames takes " + std::to_string(error.NeededBytes()) +
                           " bytes for " + std::to_string(error.HeldBytes()) +
                           " bytes of numbers: more than 8 times as much, and more than 512 MB",
                       "array-too-large"});
  } catch (const std::bad_alloc&) {
    answer = FailureAnswer({"There is not enough memory", "memory"});
  } catch (const std::exception& error) {
    answer = FailureAnswer({error.what()});
  }
  return answer.is_failure ? 0 : 1;
}

const Take& TakeOf(int id) {
  const auto found = takes.find(id);
  if (found == takes.end()) throw Refusal{"No such take is open"};
  return *found->second;
}

Answer MakeCurve(int id, int object, int what) {
  const Take& take = TakeOf(id);
  if (object < 0 || static_cast<std::size_t>(object) >= take.ObjectCount()) {
    throw Refusal{"The take has no such object"};
  }
  Answer made;
  made.blocks.emplace_back(
      take.MakeCurve(static_cast<std::size_t>(object), static_cast<CurveOf>(what)));
  return made;
}

Answer TellLine(int id, int number, int column) {
  const auto line =
      FindLine(TakeOf(id), static_cast<std::size_t>(number), static_cast<std::size_t>(column));
  if (!line) throw Refusal{"The file has no such line"};
  std::ostringstream text;
  cli::JsonWriter json(text);
  json.BeginObject();
  cli::WriteText(json, "text", line->text);
  cli::WriteCount(json, "start", line->start);
  json.EndObject();
  return {false, text.str(), {}};
}

}  // namespace
}  // namespace web

// The names are those in JavaScript.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {

// What the file `path` is: the answer is "htr" or "trc".
EMSCRIPTEN_KEEPALIVE int orvane_kind(const char* path) {
  return web::AnswerBy([path] {
    const bool is_trc = web::FindTakeKind(path) == cli::FileKind::kTrc;
    return web::Answer{false, is_trc ? "trc" : "htr", {}};
  });
}

// Opens the file `path` as take `id`, in place of the one that has that number.
EMSCRIPTEN_KEEPALIVE int orvane_open(int id, const char* path) {
  return web::AnswerBy([id, path] {
    web::takes.erase(id);
    auto take = web::OpenTake(path);
    web::Answer described = web::DescribeTake(*take);
    web::takes[id] = std::move(take);
    return described;
  });
}

// `what` is a web::CurveOf.
EMSCRIPTEN_KEEPALIVE int orvane_curve(int id, int object, int what) {
  return web::AnswerBy([id, object, what] { return web::MakeCurve(id, object, what); });
}

// `action` is a name: "import".
EMSCRIPTEN_KEEPALIVE int orvane_findings(int id, const char* action) {
  return web::AnswerBy([id, action] {
    const auto meant = orvane::ActionOf(action);
    if (!meant) throw web::Refusal{"There is no such action"};
    return web::TellFindings(web::TakeOf(id), *meant);
  });
}

EMSCRIPTEN_KEEPALIVE int orvane_line(int id, int line, int column) {
  return web::AnswerBy([id, line, column] { return web::TellLine(id, line, column); });
}

EMSCRIPTEN_KEEPALIVE void orvane_close(int id) { web::takes.erase(id); }

// Runs the program, and tells the page every `pause` milliseconds; the one call that sleeps, so
// that there is no other of it meanwhile. Its answer is the exit status.
EMSCRIPTEN_KEEPALIVE int orvane_run(int count, const char* const* arguments, int pause) {
  if (web::is_running) {
    return web::AnswerBy([] {
      return web::FailureAnswer(
          {"The core runs something already: one call of it sleeps at a time"});
    });
  }
  web::is_running = true;
  const int status = web::RunVerb({arguments, arguments + count}, std::chrono::milliseconds(pause));
  web::is_running = false;
  web::answer = {false, std::to_string(status), {}};
  return 1;
}

EMSCRIPTEN_KEEPALIVE const char* orvane_text() { return web::answer.text.data(); }
EMSCRIPTEN_KEEPALIVE std::size_t orvane_text_size() { return web::answer.text.size(); }

// REQUIRES of both: the answer has so many blocks.
EMSCRIPTEN_KEEPALIVE const void* orvane_block(int index) {
  return web::answer.blocks[static_cast<std::size_t>(index)].Data();
}
EMSCRIPTEN_KEEPALIVE std::size_t orvane_block_size(int index) {
  return web::answer.blocks[static_cast<std::size_t>(index)].Size();
}

// Gives back the memory of the answer.
EMSCRIPTEN_KEEPALIVE void orvane_forget() { web::answer = {}; }

}  // extern "C"
// NOLINTEND(readability-identifier-naming)
