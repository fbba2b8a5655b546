#include "cli/check/file_checks.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "host/base/letter_case.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/mnm_check.h"
#include "inspect/check/trc_check.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::CheckFailure;
using orvane::CheckHtr;
using orvane::CheckMapping;
using orvane::CheckTrc;

namespace fs = std::filesystem;

// `check` by the bytes of `file`. Throws a Failure when it cannot be read, or nothing can be said.
CheckedFile CheckBytes(const std::string& file,
                       CheckedFile (*check)(const std::string& file, std::string_view bytes)) {
  try {
    return check(file, FileBytes(file));
  } catch (const CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file, failure.what(), failure.Advice()}}};
  }
}

CheckedFile CheckTrcFile(const std::string& name) {
  return CheckBytes(ReadableFile(name, FileKind::kTrc), CheckTrc);
}

CheckedFile CheckHtrFile(const std::string& name) {
  return CheckBytes(ReadableHtrFile(name), CheckHtr);
}

CheckedFile CheckMnmFile(const std::string& name) { return CheckBytes(name, CheckMapping); }

struct FileCheck {
  std::string_view extension;
  CheckedFile (*check)(const std::string& name);
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
  for (const FileCheck& check : kFileChecks) extensions.push_back(check.extension);
  return extensions;
}

// ".htr, .trc or .mnm"
std::string ListOf(const std::vector<std::string_view>& extensions) {
  std::string list;
  for (const std::string_view extension : extensions) {
    if (!list.empty()) list += extension == extensions.back() ? " or " : ", ";
    list += extension;
  }
  return list;
}

bool IsToBeChecked(const fs::directory_entry& entry,
                   const std::vector<std::string_view>& extensions) {
  std::error_code ignored;
  const std::string own = platform::TextOf(entry.path().extension());
  return !entry.is_directory(ignored) &&
         std::any_of(extensions.begin(), extensions.end(), [&own](std::string_view extension) {
           return host::SameButForCase(extension, own);
         });
}

}  // namespace

std::vector<std::string> FilesToCheck(const std::string& input, CheckedKinds kinds) {
  std::error_code error;
  const fs::path path = platform::PathOf(input);
  if (!fs::is_directory(path, error)) return {input};
  const std::vector<std::string_view> extensions = ExtensionsOf(kinds);
  std::vector<std::string> files;
  fs::directory_iterator entry(path, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsToBeChecked(*entry, extensions)) files.push_back(platform::TextOf(entry->path()));
  }
  if (error) throw Failure{ExitStatus::kInputOutput, {{input, error.message(), ""}}};
  if (files.empty()) {
    throw Failure{
        ExitStatus::kInputOutput,
        {{input, "The folder holds no file to check",
          "Of a folder, files are checked whose names end in " + ListOf(extensions) + "."}}};
  }
  std::sort(files.begin(), files.end());
  return files;
}

CheckedFile CheckFile(const std::string& name, const std::string& kind) {
  const std::string extension =
      kind.empty() ? platform::TextOf(platform::PathOf(name).extension()) : "." + kind;
  const FileCheck* check = FindFileCheck(extension);
  return (check == nullptr ? kFileChecks.front() : *check).check(name);
}

}  // namespace cli
