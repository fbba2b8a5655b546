#include <nanobind/nanobind.h>
#include <nanobind/stl/map.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/vector.h>

#include <string>
#include <vector>

#include "python/binding/bindings.h"
#include "python/binding/program_run.h"
#include "python/binding/text.h"

namespace nb = nanobind;

namespace binding {
namespace {

using Words = std::vector<nb::str>;

std::vector<std::string> ArgumentsOf(const Words& words) {
  std::vector<std::string> arguments;
  arguments.reserve(words.size());
  for (const nb::str& word : words) arguments.push_back(BytesOf(word));
  return arguments;
}

// (subject, text, advice)
using ComplaintList = nb::typed<nb::list, nb::typed<nb::tuple, nb::str, nb::str, nb::str>>;

ComplaintList ComplaintsOf(const std::vector<cli::Complaint>& complaints) {
  ComplaintList all;
  for (const cli::Complaint& complaint : complaints) {
    all.append(nb::make_tuple(TextOf(complaint.subject), TextOf(complaint.text),
                              TextOf(complaint.advice)));
  }
  return all;
}

// (status, standard output, standard error, complaints)
using RunTuple = nb::typed<nb::tuple, int, nb::str, nb::str, ComplaintList>;

RunTuple Run(const Words& words) {
  const std::vector<std::string> arguments = ArgumentsOf(words);
  ProgramRun run;
  {
    const nb::gil_scoped_release unlocked;
    run = RunProgram(arguments);
  }
  return RunTuple(nb::make_tuple(static_cast<int>(run.status), TextOf(run.output),
                                 TextOf(run.error), ComplaintsOf(run.complaints)));
}

// Why the program would not take these; none when it would.
ComplaintList FaultsOf(const Words& words) {
  try {
    RequireGoodArguments(ArgumentsOf(words));
  } catch (const cli::Failure& failure) {
    return ComplaintsOf(failure.complaints);
  }
  return {};
}

}  // namespace

void BindProgram(nb::module_& module) {
  module.def("run", Run, nb::arg("arguments"));
  module.def("faults_of", FaultsOf, nb::arg("arguments"));
  module.def("flags_of", FlagsOf, nb::arg("verb"));
}

}  // namespace binding
