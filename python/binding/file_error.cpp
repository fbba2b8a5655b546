#include "python/binding/file_error.h"

#include <nanobind/nanobind.h>

#include <exception>

#include "python/binding/text.h"

namespace nb = nanobind;

namespace binding {
namespace {

void Translate(const std::exception_ptr& exception, void* /*payload*/) {
  try {
    std::rethrow_exception(exception);
  } catch (const FileRefusal& refusal) {
    const nb::object type = nb::module_::import_("orvane.errors").attr("FileError");
    const nb::object error = type(TextOf(refusal.path), TextOf(refusal.text), refusal.line,
                                  refusal.column, TextOf(refusal.code));
    PyErr_SetObject(type.ptr(), error.ptr());
  }
}

}  // namespace

void RegisterFileError() { nb::register_exception_translator(Translate); }

}  // namespace binding
