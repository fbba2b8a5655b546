#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/dialog_user.h"
#include "inspect/counts/frame_span.h"

// Flags that are controls of an options dialog. Parsing the arguments adds a wish for each that is
// given to a list, which must outlive the parsing.

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

using Wishes = std::vector<ControlWish>;

// A flag that makes `wish`, by the name that it has there.
CLI::Option* AddFlag(CLI::App& verb, Wishes& wishes, const ControlWish& wish,
                     const std::string& help);

// The radio button `control` as `flag`.
CLI::Option* AddRadio(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                      const std::string& help);

// The check box `control` as "--NAME" and "--no-NAME".
void AddCheckBox(CLI::App& verb, Wishes& wishes, const std::string& name, int control,
                 const std::string& help, const Disabler& disabled_by = {});

// The text field `control` as an option, which is returned.
CLI::Option* AddText(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                     const std::string& help, const Disabler& disabled_by = {});

// The same of a field for a whole number. One that does not fit 32 bits, which the dialog would
// take for another one, is wrong usage.
CLI::Option* AddInteger(CLI::App& verb, Wishes& wishes, const std::string& flag, int control,
                        const std::string& help);

// The radio buttons of all frames, as `all_flag`, and of a range of them, with its two text fields,
// as "--range FROM:TO"; they take whole numbers as above.
struct RangeControls {
  int all = 0;
  int range = 0;
  int from = 0;
  int to = 0;
};
void AddRange(CLI::App& verb, Wishes& wishes, const RangeControls& controls,
              const std::string& all_flag, const std::string& all_help,
              const std::string& range_help);

// What `wishes` make of a control, as the dialog will read it; nothing when they leave it alone:
// the number that they type into a text field, whole or real, the numbers of two, and the state of
// a check box.
[[nodiscard]] std::optional<std::int32_t> TypedInt(const Wishes& wishes, int control);
[[nodiscard]] std::optional<double> TypedDouble(const Wishes& wishes, int control);
[[nodiscard]] std::optional<orvane::FrameSpan> TypedRange(const Wishes& wishes, int from, int to);
[[nodiscard]] std::optional<bool> WishedState(const Wishes& wishes, int control);

}  // namespace cli
