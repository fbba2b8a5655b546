#include "cli/manual/values.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace cli {
namespace {

using Kind = Values::Kind;

// The words that definitions call files by.
struct FileWord {
  std::string_view word;
  std::vector<std::string> extensions;  // none: any
};

const std::vector<FileWord>& FileWords() {
  static const std::vector<FileWord> words = {
      {"FILE", {}},
      {"PAGE", {}},
      {"PATH", {}},
      {"TABLE", {}},
      {"OUT", {}},
      {"HTR", {"htr"}},
      {"TRC", {"trc"}},
      {"BVK", {"bvk"}},
      {"MNM", {"mnm"}},
      {"json", {"json"}},
      {"MAPPING", {"mnm"}},
      {"mnm", {"mnm"}},
      {"SCENE", {"glb", "gltf"}},
  };
  return words;
}

bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

std::vector<std::string> WordsIn(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char character : text) {
    if (IsLetter(character)) {
      words.back() += character;
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  return words;
}

// The files that `text` speaks of; nothing when it speaks of none.
Values FilesIn(const std::string& text) {
  Values values;
  for (const std::string& word : WordsIn(text)) {
    for (const FileWord& each : FileWords()) {
      if (each.word != word) continue;
      values.kind = Kind::kFiles;
      for (const std::string& extension : each.extensions) {
        auto& known = values.extensions;
        if (std::find(known.begin(), known.end(), extension) == known.end()) {
          known.push_back(extension);
        }
      }
    }
  }
  return values;
}

}  // namespace

Values ValuesOf(const Definition& flag) {
  if (flag.value == "DIR") return {Kind::kFolders, {}, {}};
  if (flag.value.find('|') != std::string::npos) {
    return {Kind::kWords, CLI::detail::split(flag.value, '|'), {}};
  }
  const bool is_file = FilesIn(flag.value).kind == Kind::kFiles;
  return is_file ? FilesIn(flag.value + " " + flag.text) : Values();
}

Values ValuesOf(const std::vector<Definition>& positionals) {
  std::string text;
  for (const Definition& each : positionals) {
    if (each.names.front() == "VERB") return {Kind::kVerbs, {}, {}};
    text += each.names.front() + " " + each.text + " ";
  }
  return FilesIn(text);
}

}  // namespace cli
