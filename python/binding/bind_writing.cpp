#include <nanobind/nanobind.h>
#include <nanobind/stl/optional.h>
#include <nanobind/stl/string.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "formats/htr/writer.h"
#include "formats/text/number_form.h"
#include "formats/trc/writer.h"
#include "platform/output_file.h"
#include "python/binding/bindings.h"
#include "python/binding/file_error.h"
#include "python/binding/interruption.h"
#include "python/binding/marker_take.h"
#include "python/binding/motion_take.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::NumberForm;

NumberForm FormOf(const std::optional<int>& decimals) {
  if (!decimals) return NumberForm::Shortest();
  if (*decimals >= 0 && *decimals <= NumberForm::kMostDecimals) {
    return NumberForm::Decimals(*decimals);
  }
  throw std::invalid_argument("decimals are from 0 to 17");
}

// Collects a text, and lets the user stop that.
class Collector {
 public:
  [[nodiscard]] orvane::TextTaker Taker() {
    return [this](std::string_view piece) {
      interruption_.Pass(piece.size());
      text_.append(piece);
    };
  }

  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  Interruption interruption_;
  std::string text_;
};

nb::bytes PrintMarkers(const MarkerTake& take, const std::optional<int>& decimals,
                       const std::string& rate, const std::string& name) {
  orvane::TrcManner manner;
  manner.numbers = FormOf(decimals);
  manner.data_rate = rate;
  manner.first_time = take.reading().first_time;
  manner.name = name;
  Collector collector;
  std::string why;
  {
    const nb::gil_scoped_release unlocked;
    why = PrintTrc(take.document(), collector.Taker(), manner);
  }
  if (!why.empty()) throw std::invalid_argument(why);
  return nb::bytes(collector.Text().data(), collector.Text().size());
}

nb::bytes PrintMotion(const MotionTake& take, const std::optional<int>& decimals,
                      const std::string& rate) {
  orvane::HtrManner manner;
  manner.numbers = FormOf(decimals);
  manner.frame_rate = rate;
  manner.gravity_axis = take.document().GetGlobalAxisofGravity();
  Collector collector;
  {
    const nb::gil_scoped_release unlocked;
    PrintHtr(take.document(), collector.Taker(), manner);
  }
  return nb::bytes(collector.Text().data(), collector.Text().size());
}

void RequireDone(const std::string& path, const std::string& why) {
  if (!why.empty()) throw FileRefusal{path, "could not be written: " + why, "file-unwritable"};
}

// The file appears whole or not at all.
void WriteFile(const nb::bytes& name, const nb::bytes& data, bool replace) {
  const std::string path(name.c_str(), name.size());
  const std::string_view bytes(data.c_str(), data.size());
  const nb::gil_scoped_release unlocked;
  platform::OutputFile file(path, replace);
  if (!replace && file.IsTaken()) {
    throw FileRefusal{path, "exists; force=True replaces it", "file-exists"};
  }
  RequireDone(path, file.WhyImpossible());
  RequireDone(path, file.Write(bytes));
  RequireDone(path, file.Deliver());
}

}  // namespace

void BindWriting(nb::module_& module) {
  module.def("print_markers", PrintMarkers, nb::arg("take"), nb::arg("decimals").none(),
             nb::arg("rate"), nb::arg("name"));
  module.def("print_motion", PrintMotion, nb::arg("take"), nb::arg("decimals").none(),
             nb::arg("rate"));
  module.def("write_file", WriteFile, nb::arg("name"), nb::arg("data"), nb::arg("replace"));
}

}  // namespace binding
