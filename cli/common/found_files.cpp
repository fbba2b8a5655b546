#include "cli/common/found_files.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <utility>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/streamed_file.h"
#include "host/base/letter_case.h"
#include "inspect/check/findings.h"
#include "platform/file_place.h"
#include "platform/path_text.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

using orvane::CountOf;

// ".htr, .trc or .mnm"
std::string ListOf(const std::vector<std::string_view>& extensions) {
  std::string list;
  for (const std::string_view extension : extensions) {
    if (!list.empty()) list += extension == extensions.back() ? " or " : ", ";
    list += extension;
  }
  return list;
}

// What is said of `names` that are left out of `folder`.
void Note(FoundFiles& found, const std::string& folder, const std::vector<std::string>& names,
          const std::string& noun, const std::string& reason) {
  if (names.empty()) return;
  found.notes.push_back({folder,
                         "note: " + CountOf(names.size(), noun) +
                             (names.size() == 1 ? " is" : " are") + " left out (" + FewOf(names) +
                             "): " + reason,
                         ""});
}

class FolderWalk {
 public:
  FolderWalk(const std::string& folder, const FileSearch& search)
      : folder_(folder), search_(search) {}

  FoundFiles Run() {
    Enter({});
    if (!found_.names.empty()) {
      TellOfOthers();
    } else if (found_.errors.empty()) {
      ComplainOfNothing();
    }
    return std::move(found_);
  }

 private:
  // The names in the folder that lies at `below` in the one to look into, and whether they are
  // folders, in order.
  std::map<std::string, bool> EntriesOf(const fs::path& below) {
    const fs::path path = PathOf(below);
    std::map<std::string, bool> entries;
    std::error_code error;
    std::error_code ignored;
    fs::directory_iterator entry(path, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
      entries.emplace(platform::TextOf(entry->path().filename()), entry->is_directory(ignored));
    }
    if (error) found_.errors.push_back({platform::TextOf(path), error.message(), ""});
    return entries;
  }

  void Enter(const fs::path& below) {
    places_.insert(platform::PlaceOf(platform::TextOf(PathOf(below))));
    for (const auto& [name, is_folder] : EntriesOf(below)) {
      const fs::path path = below / platform::PathOf(name);
      if (is_folder) {
        MeetFolder(path);
      } else {
        (Counts(path) ? found_.names : others_).push_back(platform::TextOf(path));
      }
    }
  }

  void MeetFolder(const fs::path& below) {
    const std::string name = platform::TextOf(below);
    if (!search_.recursive) return folders_.push_back(name);
    const std::string place = platform::PlaceOf(platform::TextOf(PathOf(below)));
    if (places_.count(place) != 0) return repeated_.push_back(name);
    Enter(below);
  }

  bool Counts(const fs::path& file) const {
    const std::string own = platform::TextOf(file.extension());
    return std::any_of(
        search_.extensions.begin(), search_.extensions.end(),
        [&own](std::string_view extension) { return host::SameButForCase(extension, own); });
  }

  // Without a slash behind it unless there are more of its parts.
  fs::path PathOf(const fs::path& below) const {
    const fs::path folder = platform::PathOf(folder_);
    return below.empty() ? folder : folder / below;
  }

  void TellOfOthers() {
    Note(found_, folder_, others_, "file",
         "names that end in " + ListOf(search_.extensions) + " count");
    Note(found_, folder_, folders_, "folder", "--recursive looks into folders");
    Note(found_, folder_, repeated_, "folder", "a link leads to where others lead too");
  }

  void ComplainOfNothing() {
    std::string advice = "Of a folder, files are " + search_.participle + " whose names end in " +
                         ListOf(search_.extensions) + ".";
    if (!folders_.empty()) advice += " --recursive looks into the folders in it, too.";
    found_.errors.push_back({folder_, "The folder holds no file to " + search_.infinitive, advice});
  }

  const std::string& folder_;
  const FileSearch& search_;
  FoundFiles found_;
  std::set<std::string> places_;  // of the folders that were entered
  std::vector<std::string> others_;
  std::vector<std::string> folders_;
  std::vector<std::string> repeated_;
};

// Takes files up, each once.
class Gathering {
 public:
  void Add(const std::string& name) {
    const auto [known, is_new] = names_.emplace(platform::PlaceOf(name), name);
    if (is_new) return found.names.push_back(name);
    const bool is_spelled_alike = platform::PathOf(known->second) == platform::PathOf(name);
    found.notes.push_back({name,
                           is_spelled_alike
                               ? "note: it is given again, and told of once"
                               : "note: it is left out: the same file as " + known->second,
                           ""});
  }

  FoundFiles found;

 private:
  std::map<std::string, std::string> names_;  // by their places
};

void Append(std::vector<Complaint>& all, std::vector<Complaint> more) {
  all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

}  // namespace

void AddRecursive(CLI::App& verb, bool& recursive) {
  verb.add_flag("--recursive", recursive, "Look into the folders in a folder, too");
}

bool IsFolder(const std::string& input) {
  if (StreamOf(input)) return false;
  std::error_code error;  // such as that a path is too long
  return fs::is_directory(platform::PathOf(input), error);
}

FoundFiles FilesIn(const std::string& folder, const FileSearch& search) {
  return FolderWalk(folder, search).Run();
}

FoundFiles FindFiles(const std::vector<std::string>& inputs, const FileSearch& search) {
  Gathering gathering;
  for (const std::string& input : inputs) {
    if (!IsFolder(input)) {
      gathering.Add(input);
      continue;
    }
    FoundFiles inside = FilesIn(input, search);
    const fs::path folder = platform::PathOf(input);
    for (const std::string& name : inside.names) {
      gathering.Add(platform::TextOf(folder / platform::PathOf(name)));
    }
    Append(gathering.found.notes, std::move(inside.notes));
    Append(gathering.found.errors, std::move(inside.errors));
  }
  return std::move(gathering.found);
}

void PrintNotes(const FoundFiles& found) {
  for (const Complaint& note : found.notes) Print(Severity::kWarning, note);
}

}  // namespace cli
