#include "cli/convert/conversion_plan.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "cli/common/input.h"
#include "cli/common/outputs.h"
#include "formats/text/files.h"
#include "host/application/extension_match.h"
#include "platform/file_place.h"
#include "platform/output_file.h"
#include "platform/path_text.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

// What the plug-in's dialog takes at once, and its buffer with some room to spare.
constexpr std::size_t kMostFiles = 1000;
constexpr std::size_t kMostBytes = 250'000;

// So many batches for each process, so that none waits long for the last; but none so small that
// starting the plug-in is most of its time.
constexpr std::uintmax_t kBatchesPerJob = 4;
constexpr std::uintmax_t kLeastWork = std::uintmax_t{4} << 20U;

// The name of the file as the plug-in sees it, which takes both kinds of slash, with ".bvk" for its
// extension.
std::string BvkNameFor(const std::string& input) {
  const std::size_t slash = input.find_last_of("/\\");
  const std::string name = slash == std::string::npos ? input : input.substr(slash + 1);
  return name.substr(0, name.rfind('.')) + ".bvk";
}

// Empty for a name alone.
std::string FolderPartOf(const std::string& path) {
  return platform::TextOf(platform::PathOf(path).parent_path());
}

// As the dialog that asks for the output makes it.
std::string WithBvkExtension(const std::string& file) {
  return platform::PathOf(file).has_extension() ? file : file + ".bvk";
}

std::string OutputFor(const std::string& input, const OutputWishes& wishes) {
  if (!wishes.file.empty()) return WithBvkExtension(wishes.file);
  const std::string folder = wishes.folder.empty() ? FolderPartOf(input) : wishes.folder;
  return platform::TextOf(platform::PathOf(folder) / platform::PathOf(BvkNameFor(input)));
}

void Settle(Conversion& conversion, ConversionStatus status, Complaint complaint) {
  conversion.status = status;
  conversion.errors.push_back(std::move(complaint));
}

void CheckInput(Conversion& conversion, const std::string& name) {
  Complaint complaint = FindWhyUnreadable(name, conversion.input);
  if (complaint.text.empty()) return;
  conversion.input = complaint.subject;
  Settle(conversion, ConversionStatus::kUnreadable, std::move(complaint));
}

void CheckOutput(Conversion& conversion, bool replace) {
  if (conversion.status != ConversionStatus::kPlanned) return;
  const platform::OutputFile file(conversion.output, replace);
  const std::string reason = file.WhyImpossible();
  if (reason.empty()) return;
  Settle(conversion, file.IsTaken() ? ConversionStatus::kExists : ConversionStatus::kFailed,
         ComplainAboutOutput(conversion.output, file, reason));
}

Conversion PlanStreamed(const std::string& name, const OutputWishes& wishes, InputFiles& files) {
  if (wishes.file.empty() && wishes.folder.empty()) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{name, "standard input lies in no folder, which its output could go to",
                    "-o OUT or --output-dir DIR says where."}}};
  }
  const InputFile file = files.Find(name, FileKind::kTrc);
  Conversion conversion;
  conversion.input = file.name;
  conversion.source = PathForPanel(file.path);
  conversion.output = OutputFor(file.path, wishes);
  conversion.is_streamed = true;
  CheckOutput(conversion, wishes.replace);
  return conversion;
}

Conversion Plan(const std::string& name, const OutputWishes& wishes) {
  Conversion conversion;
  conversion.input = orvane::WithExtension(name, ".TRC");
  conversion.source = PathForPanel(conversion.input);
  conversion.output = OutputFor(conversion.input, wishes);
  CheckInput(conversion, name);
  CheckOutput(conversion, wishes.replace);
  return conversion;
}

// The places of all that is read.
std::unordered_set<std::string> PlacesRead(const std::vector<Conversion>& conversions,
                                           const std::string& mapping) {
  std::unordered_set<std::string> places;
  for (const Conversion& conversion : conversions) {
    places.insert(platform::PlaceOf(conversion.source));
  }
  if (!mapping.empty()) places.insert(platform::PlaceOf(mapping));
  return places;
}

std::set<std::string> LogsOf(const std::vector<Conversion>& conversions) {
  std::set<std::string> logs;
  for (const Conversion& conversion : conversions) {
    logs.insert(LogIn(FolderOf(conversion.output)));
  }
  return logs;
}

// Refuses what would make one output of two inputs, or replace what is read.
void RequireOutputsApart(const std::vector<Conversion>& conversions, const OutputWishes& wishes) {
  std::vector<Complaint> complaints;
  const std::unordered_set<std::string> read = PlacesRead(conversions, wishes.mapping);
  std::unordered_map<std::string, const Conversion*> outputs;
  for (const Conversion& conversion : conversions) {
    const std::string output = platform::PlaceOf(conversion.output);
    const auto [other, is_new] = outputs.emplace(output, &conversion);
    if (!is_new) {
      complaints.push_back({conversion.output,
                            "the output of " + other->second->input + " and of " + conversion.input,
                            ""});
    }
    if (read.count(output) != 0) complaints.push_back(ReplacesInput(conversion.output));
  }
  if (wishes.logged && wishes.replace) {
    for (const std::string& log : LogsOf(conversions)) {
      if (read.count(platform::PlaceOf(log)) != 0) complaints.push_back(ReplacesInput(log));
    }
  }
  if (!complaints.empty()) throw Failure{ExitStatus::kWrongUsage, complaints};
}

// The bytes to read.
std::uintmax_t WorkOf(const Conversion& conversion) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(platform::PathOf(conversion.source), error);
  return error ? 0 : size;
}

// Files of one folder, in order, cut into batches of about `work` bytes to read.
class BatchMaker {
 public:
  explicit BatchMaker(std::uintmax_t work) : wanted_work_(work) {}

  void Add(const Conversion& conversion, std::size_t index, std::vector<Batch>& batches) {
    const std::size_t name_bytes = conversion.source.size() + 1;
    const bool is_full = batch_.size() == kMostFiles || name_bytes_ + name_bytes > kMostBytes ||
                         work_ >= wanted_work_;
    if (is_full) Finish(batches);
    batch_.push_back(index);
    name_bytes_ += name_bytes;
    work_ += WorkOf(conversion);
  }

  void Finish(std::vector<Batch>& batches) {
    if (!batch_.empty()) batches.push_back(std::exchange(batch_, {}));
    name_bytes_ = 0;
    work_ = 0;
  }

 private:
  const std::uintmax_t wanted_work_;
  Batch batch_;
  std::size_t name_bytes_ = 0;
  std::uintmax_t work_ = 0;
};

}  // namespace

std::vector<Conversion> PlanConversions(const std::vector<std::string>& inputs,
                                        const OutputWishes& wishes, InputFiles& files) {
  assert(wishes.file.empty() || inputs.size() == 1);
  std::vector<Conversion> conversions;
  conversions.reserve(inputs.size());
  for (const std::string& input : inputs) {
    conversions.push_back(StreamOf(input) ? PlanStreamed(input, wishes, files)
                                          : Plan(input, wishes));
  }
  RequireOutputsApart(conversions, wishes);
  return conversions;
}

bool IsBvkFileName(const std::string& name) {
  const fs::path path = platform::PathOf(WithBvkExtension(name));
  return host::SameButForCase(platform::TextOf(path.extension()), ".bvk");
}

std::vector<Batch> MakeBatches(const std::vector<Conversion>& conversions, std::size_t jobs) {
  assert(jobs > 0);
  std::vector<std::string> folders;  // in the order in which they are met
  std::map<std::string, std::vector<std::size_t>> files;
  std::uintmax_t work = 0;
  for (std::size_t index = 0; index < conversions.size(); ++index) {
    if (conversions[index].status != ConversionStatus::kPlanned) continue;
    work += WorkOf(conversions[index]);
    std::vector<std::size_t>& indices = files[FolderOf(conversions[index].source)];
    if (indices.empty()) folders.push_back(FolderOf(conversions[index].source));
    indices.push_back(index);
  }
  const std::uintmax_t part =
      jobs > 1 ? std::max(work / (jobs * kBatchesPerJob), kLeastWork) : work + 1;
  std::vector<Batch> batches;
  for (const std::string& folder : folders) {
    BatchMaker maker(part);
    for (const std::size_t index : files[folder]) maker.Add(conversions[index], index, batches);
    maker.Finish(batches);
  }
  return batches;
}

std::string PathForPanel(const std::string& name) {
  const fs::path path = fs::absolute(platform::PathOf(name));
  std::error_code error;
  const fs::path folder = fs::canonical(path.parent_path(), error);
  return platform::TextOf(error ? path : folder / path.filename());
}

std::string FolderOf(const std::string& path) {
  const std::string folder = FolderPartOf(path);
  return folder.empty() ? "." : folder;
}

std::string LogIn(const std::string& folder) {
  const std::string name = "ConvertBVKLog.txt";
  return folder == "." ? name : folder + "/" + name;
}

}  // namespace cli
