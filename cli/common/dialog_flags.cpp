#include "cli/common/dialog_flags.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <system_error>

#include "formats/text/numbers.h"

namespace cli {
namespace {

using Kind = ControlWish::Kind;

// Why the dialog would take another number than the one that `text` starts with; empty when it
// would not. Without any number it takes 0.
std::string WhyOutOfBounds(const std::string& text) {
  const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
  const char* const begin = text.data() + first + (text.substr(first, 1) == "+" ? 1 : 0);
  std::int32_t number = 0;
  const auto result = std::from_chars(begin, text.data() + text.size(), number);
  if (result.ec != std::errc::result_out_of_range) return "";
  return text + " is not within -2147483648 and 2147483647";
}

void WishForRange(Wishes& wishes, const RangeControls& controls, const std::string& range) {
  const std::size_t colon = range.find(':');
  if (colon == std::string::npos) {
    throw CLI::ValidationError("--range", "FROM:TO is expected, not " + range);
  }
  for (const std::string& number : {range.substr(0, colon), range.substr(colon + 1)}) {
    const std::string why = WhyOutOfBounds(number);
    if (!why.empty()) throw CLI::ValidationError("--range", why);
  }
  wishes.push_back({Kind::kRadio, controls.range, "--range", "", false, {}});
  wishes.push_back({Kind::kText, controls.from, "--range", range.substr(0, colon), false, {}});
  wishes.push_back({Kind::kText, controls.to, "--range", range.substr(colon + 1), false, {}});
}

// Null when there is none.
const ControlWish* FindWish(const Wishes& wishes, int control) {
  const auto wish = std::find_if(wishes.begin(), wishes.end(), [control](const ControlWish& each) {
    return each.control == control;
  });
  return wish == wishes.end() ? nullptr : &*wish;
}

}  // namespace

CLI::Option* AddFlag(CLI::App& verb, Wishes& wishes, const ControlWish& wish,
                     const std::string& help) {
  return verb.add_flag_callback(
      wish.flag, [&wishes, wish] { wishes.push_back(wish); }, help);
}

CLI::Option* AddRadio(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                      const std::string& help) {
  return AddFlag(verb, wishes, {Kind::kRadio, control, flag, "", false, {}}, help);
}

void AddCheckBox(CLI::App& verb, Wishes& wishes, const std::string& name, int control,
                 const std::string& help, const Disabler& disabled_by) {
  CLI::Option* on =
      AddFlag(verb, wishes, {Kind::kCheckBox, control, "--" + name, "", true, disabled_by}, help);
  AddFlag(verb, wishes, {Kind::kCheckBox, control, "--no-" + name, "", false, disabled_by},
          "The opposite of --" + name)
      ->excludes(on);
}

CLI::Option* AddText(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                     const std::string& help, const Disabler& disabled_by) {
  const ControlWish wish{Kind::kText, control, flag, "", false, disabled_by};
  return verb
      .add_option_function<std::string>(
          flag,
          [&wishes, wish](const std::string& text) {
            wishes.push_back(wish);
            wishes.back().text = text;
          },
          help)
      ->type_name("NUMBER");
}

CLI::Option* AddInteger(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                        const std::string& help) {
  return AddText(verb, wishes, flag, control, help)->check(WhyOutOfBounds, "");
}

void AddRange(CLI::App& verb, Wishes& wishes, const RangeControls& controls,
              const std::string& all_flag, const std::string& all_help,
              const std::string& range_help) {
  CLI::Option* all = AddRadio(verb, wishes, all_flag, controls.all, all_help);
  verb.add_option_function<std::string>(
          "--range",
          [&wishes, controls](const std::string& range) { WishForRange(wishes, controls, range); },
          range_help)
      ->type_name("FROM:TO")
      ->excludes(all);
}

std::optional<std::int32_t> TypedInt(const Wishes& wishes, int control) {
  const ControlWish* wish = FindWish(wishes, control);
  return wish == nullptr ? std::nullopt : std::optional(orvane::ParseInt(wish->text));
}

std::optional<double> TypedDouble(const Wishes& wishes, int control) {
  const ControlWish* wish = FindWish(wishes, control);
  return wish == nullptr ? std::nullopt : std::optional(orvane::ParseDouble(wish->text));
}

std::optional<orvane::FrameSpan> TypedRange(const Wishes& wishes, int from, int to) {
  const auto first = TypedInt(wishes, from);
  const auto last = TypedInt(wishes, to);
  if (!first || !last) return std::nullopt;
  return orvane::FrameSpan{*first, *last};
}

std::optional<bool> WishedState(const Wishes& wishes, int control) {
  const ControlWish* wish = FindWish(wishes, control);
  return wish == nullptr ? std::nullopt : std::optional(wish->checked);
}

}  // namespace cli
