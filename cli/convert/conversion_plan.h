#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "cli/common/input_files.h"
#include "cli/convert/conversion.h"

// Which files `orvane convert` makes of which, and which of them the plug-in converts together.

namespace cli {

struct OutputWishes {
  std::string file;    // the one to make, a BVK file by its name; empty: named after the input
  std::string folder;  // for all outputs; empty: each beside its input
  bool replace = false;
  std::string mapping;  // the file that is read beside the inputs; empty: none
  bool logged = false;  // whether a log is written into each folder of outputs
};

// The conversions that `inputs` ask for, which are of `files`, in their order. Those that cannot be
// begun, because the input is missing or the output exists, have their status and complaint
// already. Throws a Failure for wrong usage: two inputs with one output; an output, or a log that
// replaces what is there, that is an input or the mapping; standard input, which lies in no folder,
// without a wish where its output is to lie. Throws one, too, when that cannot be read.
// REQUIRES: no file is wished for, or there is one input.
[[nodiscard]] std::vector<Conversion> PlanConversions(const std::vector<std::string>& inputs,
                                                      const OutputWishes& wishes,
                                                      InputFiles& files);

// Whether `name` can be that of the file to make: it ends in ".bvk", in either case, or has no
// extension and gets this one.
[[nodiscard]] bool IsBvkFileName(const std::string& name);

// Indices of conversions that the plug-in carries out in one run, in order: their inputs lie in one
// folder, and so do their outputs.
using Batch = std::vector<std::size_t>;

// The planned ones of `conversions` as batches, small enough for the file dialog and to keep `jobs`
// processes busy.
// REQUIRES: there is a job.
[[nodiscard]] std::vector<Batch> MakeBatches(const std::vector<Conversion>& conversions,
                                             std::size_t jobs);

// The path under which the panel's dialogs find the file `name`: absolute, and with the folder that
// the system comes to. The dialogs themselves take "link/.." for nothing. The file's own name
// stays, because the plug-in names the output after it.
[[nodiscard]] std::string PathForPanel(const std::string& name);

// The folder that `path` lies in; "." for a name alone.
[[nodiscard]] std::string FolderOf(const std::string& path);

// The log of the conversions whose outputs lie in `folder`.
[[nodiscard]] std::string LogIn(const std::string& folder);

}  // namespace cli
