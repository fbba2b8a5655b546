#include <nanobind/nanobind.h>
#include <nanobind/stl/optional.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/vector.h>

#include <array>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "inspect/check/content_kind.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/mnm_check.h"
#include "inspect/check/similar_words.h"
#include "inspect/check/trc_check.h"
#include "python/binding/bindings.h"
#include "python/binding/common_members.h"
#include "python/binding/file_error.h"
#include "python/binding/text.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::Action;
using orvane::CheckedFile;
using orvane::ContentKind;

CheckedFile CheckHtr(const Input& input) {
  const auto source = input.Open();
  orvane::HtrDocument document;
  return orvane::CheckHtr(input.Name(), *source, document);
}

CheckedFile CheckTrc(const Input& input) {
  const auto source = input.Open();
  orvane::TRCDocument document;
  return orvane::CheckTrc(input.Name(), *source, document);
}

CheckedFile CheckMnm(const Input& input) {
  const auto source = input.Open();
  std::string bytes(source->Size(), '\0');
  bytes.resize(ReadFully(*source, bytes));
  return orvane::CheckMapping(input.Name(), bytes);
}

struct Kind {
  std::string_view format;
  std::string_view name;
  ContentKind content;
  CheckedFile (*check)(const Input& input);
};

constexpr std::array<Kind, 3> kKinds = {{
    {"htr", "HTR", ContentKind::kHtr, CheckHtr},
    {"trc", "TRC", ContentKind::kTrc, CheckTrc},
    {"mnm", "MNM", ContentKind::kMnm, CheckMnm},
}};

const Kind& KindOf(const std::string& format) {
  for (const Kind& kind : kKinds) {
    if (kind.format == format) return kind;
  }
  throw std::invalid_argument("format is \"" + format +
                              "\"; it is one of \"htr\", \"trc\" and \"mnm\"");
}

Action ActionOf(const std::string& name, const Kind& kind) {
  const std::optional<Action> action = orvane::ActionOf(name);
  if (action && Takes(*action, kind.name)) return *action;
  throw std::invalid_argument('"' + name +
                              "\" is nothing that is done with files of the format \"" +
                              std::string(kind.format) + '"');
}

CheckedFile CheckOrFail(const Input& input, const Kind& kind) {
  try {
    return kind.check(input);
  } catch (const orvane::CheckFailure& failure) {
    throw FileRefusal{input.Name(), std::string(failure.what()) + ". " + failure.Advice(),
                      "file-misread"};
  }
}

// What the file holds, in a few words, and the findings in it.
nb::typed<nb::tuple, nb::str, FindingList> CheckFile(const nb::bytes& name,
                                                     const std::optional<nb::bytes>& data,
                                                     const std::string& format,
                                                     const std::string& action_name) {
  const Input input = InputOf(name, data);
  const Kind& kind = KindOf(format);
  const Action action = ActionOf(action_name, kind);
  CheckedFile checked;
  {
    const nb::gil_scoped_release unlocked;
    checked = CheckOrFail(input, kind);
  }
  return nb::typed<nb::tuple, nb::str, FindingList>(
      nb::make_tuple(TextOf(checked.contents), FindingsOf(ReportOn(checked, action))));
}

// The format that bytes show; nothing when they are of no kind that is read here.
std::optional<std::string> FormatOf(const nb::bytes& data) {
  const auto content = orvane::FindContentKind({data.c_str(), data.size()});
  for (const Kind& kind : kKinds) {
    if (content == kind.content) return std::string(kind.format);
  }
  return std::nullopt;
}

// The one of `names` that `name` is likely to be, misspelt.
std::optional<nb::str> SimilarTo(const nb::str& name, const std::vector<nb::str>& names) {
  std::vector<std::string> words;
  words.reserve(names.size());
  for (const nb::str& each : names) words.push_back(BytesOf(each));
  const std::string_view similar = orvane::MostSimilar(BytesOf(name), words);
  return similar.empty() ? std::nullopt : std::optional(TextOf(similar));
}

}  // namespace

void BindChecks(nb::module_& module) {
  module.def("check", CheckFile, nb::arg("name"), nb::arg("data").none(), nb::arg("format"),
             nb::arg("action"));
  module.def("format_of", FormatOf, nb::arg("data"));
  module.def("similar_to", SimilarTo, nb::arg("name"), nb::arg("names"));
}

}  // namespace binding
