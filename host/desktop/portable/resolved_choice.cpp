#include "host/desktop/portable/resolved_choice.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "host/desktop/script_failure.h"

namespace host {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

bool IsFile(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored) && !fs::is_directory(path, ignored);
}

[[noreturn]] void Refuse(const std::string& title, const std::string& reason) {
  throw ScriptError("The dialog \"" + title + "\" does not accept the choice: " + reason + ".");
}

// The folder that `dialog` shows when it opens.
fs::path ShownFolder(const platform::FileDialog& dialog) {
  const fs::path wanted = dialog.initial_folder;
  return fs::absolute(IsFolder(wanted) ? wanted : fs::path("."));
}

fs::path WithDefaultExtension(const platform::FileDialog& dialog, fs::path path) {
  const bool as_it_is = dialog.kind == platform::FileDialog::Kind::kOpen && IsFile(path);
  const std::string extension = dialog.default_extension;
  if (!as_it_is && !path.has_extension() && !extension.empty()) path += "." + extension;
  return path;
}

// The one file that `dialog` makes of `typed`.
fs::path Resolve(const platform::FileDialog& dialog, const std::string& typed,
                 bool agrees_to_replace) {
  fs::path path = (ShownFolder(dialog) / typed).lexically_normal();
  if (!path.has_filename() || IsFolder(path)) Refuse(dialog.title, typed + " is no file");
  path = WithDefaultExtension(dialog, path);
  if (dialog.folder_must_exist && !IsFolder(path.parent_path())) {
    Refuse(dialog.title, path.parent_path().string() + " does not exist");
  }
  if (dialog.file_must_exist && !IsFile(path)) {
    Refuse(dialog.title, path.string() + " does not exist");
  }
  if (dialog.ask_before_replacing && IsFile(path) && !agrees_to_replace) {
    Refuse(dialog.title, path.string() + " exists and is not to be replaced");
  }
  return path;
}

// What stands in the buffer: texts one after the other, each followed by a NUL, and one more at the
// end.
bool WriteTexts(const std::vector<std::string>& texts, char* buffer, std::size_t size) {
  std::string bytes;
  for (const std::string& text : texts) bytes += text + '\0';
  if (bytes.size() > size) return false;
  if (bytes.size() < size) bytes += '\0';
  std::copy(bytes.begin(), bytes.end(), buffer);
  return true;
}

}  // namespace

bool ResolvedChoice::Write(char* buffer, std::size_t size, std::size_t& name_offset) const {
  std::vector<std::string> texts;
  if (names.size() == 1) {
    const std::string path = (fs::path(folder) / names[0]).string();
    name_offset = path.size() - names[0].size();
    texts = {path};
  } else {
    name_offset = folder.size() + 1;
    texts = {folder};
    texts.insert(texts.end(), names.begin(), names.end());
  }
  return WriteTexts(texts, buffer, size);
}

ResolvedChoice ResolveChoice(const platform::FileDialog& dialog, const FileChoice& choice) {
  if (choice.paths.size() > 1 && !dialog.several) Refuse(dialog.title, "it is for one file only");
  ResolvedChoice chosen;
  for (const std::string& typed : choice.paths) {
    const fs::path path = Resolve(dialog, typed, choice.agrees_to_replace);
    const std::string folder = path.parent_path().string();
    if (!chosen.names.empty() && folder != chosen.folder) {
      Refuse(dialog.title, "all files have to lie in one folder");
    }
    chosen.folder = folder;
    chosen.names.push_back(path.filename().string());
  }
  return chosen;
}

bool WriteFolder(const std::string& title, const std::string& folder, char* buffer,
                 std::size_t size) {
  fs::path path = fs::absolute(folder).lexically_normal();
  if (!IsFolder(path)) Refuse(title, folder + " is no folder");
  if (!path.has_filename() && path.has_relative_path()) path = path.parent_path();
  return WriteTexts({path.string()}, buffer, size);
}

}  // namespace host
