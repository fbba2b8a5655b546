#include "cli/check/file_checks.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "cli/common/input_files.h"
#include "cli/common/input_source.h"
#include "cli/common/reading_memory.h"
#include "host/base/letter_case.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/mnm_check.h"
#include "inspect/check/trc_check.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::CheckFailure;

// What `check` says of `file`. Throws a Failure when it cannot be read, or nothing can be said.
template <typename Check>
CheckedFile CheckOrFail(const InputFile& file, const Check& check) {
  ExpectReading(file.path);
  try {
    return check(file);
  } catch (const CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file.name, failure.what(), failure.Advice()}}};
  }
}

CheckedFile CheckTrcFile(const std::string& name, InputFiles& files) {
  return CheckOrFail(files.Find(name, FileKind::kTrc), [](const InputFile& file) {
    InputSource source(file);
    orvane::TRCDocument document;
    return orvane::CheckTrc(file.name, source, document);
  });
}

CheckedFile CheckHtrFile(const std::string& name, InputFiles& files) {
  return CheckOrFail(files.Find(name, FileKind::kHtr), [](const InputFile& file) {
    InputSource source(file);
    orvane::HtrDocument document;
    return orvane::CheckHtr(file.name, source, document);
  });
}

CheckedFile CheckMnmFile(const std::string& name, InputFiles& files) {
  return CheckOrFail(files.FindMapping(name), [](const InputFile& file) {
    return orvane::CheckMapping(file.name, FileBytes(file));
  });
}

struct FileCheck {
  std::string_view extension;
  CheckedFile (*check)(const std::string& name, InputFiles& files);
};

// The first is that of files with any other extension.
constexpr std::array<FileCheck, 3> kFileChecks = {{
    {".htr", CheckHtrFile},
    {".trc", CheckTrcFile},
    {".mnm", CheckMnmFile},
}};

// Null for an unknown extension.
const FileCheck* FindFileCheck(std::string_view extension) {
  const auto check = std::find_if(
      kFileChecks.begin(), kFileChecks.end(),
      [&](const FileCheck& each) { return host::SameButForCase(each.extension, extension); });
  return check == kFileChecks.end() ? nullptr : &*check;
}

std::vector<std::string_view> ExtensionsOf(CheckedKinds kinds) {
  if (kinds == CheckedKinds::kScenes) return {".glb", ".gltf"};
  std::vector<std::string_view> extensions;
  extensions.reserve(kFileChecks.size());
  for (const FileCheck& check : kFileChecks) extensions.push_back(check.extension);
  return extensions;
}

}  // namespace

FileSearch SearchFor(CheckedKinds kinds, bool recursive) {
  return {ExtensionsOf(kinds), "check", "checked", recursive};
}

CheckedFile CheckFile(const std::string& name, const std::string& kind, InputFiles& files) {
  const std::string extension = kind.empty() ? files.ExtensionOf(name) : "." + kind;
  if (extension.empty() && StreamOf(name)) {
    throw UnknownKind(files.NameOf(name), "--as htr, --as trc or --as mnm");
  }
  const FileCheck* check = FindFileCheck(extension);
  return (check == nullptr ? kFileChecks.front() : *check).check(name, files);
}

}  // namespace cli
