#include "python/binding/text.h"

namespace nb = nanobind;

namespace binding {
namespace {

constexpr char kErrors[] = "surrogateescape";

}  // namespace

nb::str TextOf(std::string_view bytes) {
  PyObject* const text =
      PyUnicode_DecodeUTF8(bytes.data(), static_cast<Py_ssize_t>(bytes.size()), kErrors);
  if (text == nullptr) throw nb::python_error();
  return nb::steal<nb::str>(text);
}

TextList TextsOf(const std::vector<std::string>& all) {
  TextList texts;
  for (const std::string& each : all) texts.append(TextOf(each));
  return texts;
}

std::string BytesOf(const nb::str& text) {
  PyObject* const encoded = PyUnicode_AsEncodedString(text.ptr(), "utf-8", kErrors);
  if (encoded == nullptr) throw nb::python_error();
  const auto bytes = nb::steal<nb::bytes>(encoded);
  return {bytes.c_str(), bytes.size()};
}

}  // namespace binding
