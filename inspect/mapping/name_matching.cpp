#include "inspect/mapping/name_matching.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "formats/mnm/mapping_lines.h"
#include "inspect/mapping/marker_words.h"
#include "inspect/mapping/underscored_subject.h"

namespace orvane {
namespace {

constexpr char kColon = ':';
constexpr char kUnderscore = '_';
constexpr char kBlank = ' ';

// `name` in small letters and with underscores for its blanks, which no mapping can name.
std::string InOneWord(std::string_view name) {
  std::string word = InSmallLetters(name);
  std::replace(word.begin(), word.end(), kBlank, kUnderscore);
  return word;
}

struct Name {
  std::string text;     // as it is written
  std::string word;     // in one word of small letters
  std::size_t subject;  // how much of it is the subject for sure, with what ends it
  bool is_free = true;  // whether it is neither taken nor ambiguous

  [[nodiscard]] bool HasColon() const { return subject > 0 && word[subject - 1] == kColon; }
  [[nodiscard]] std::string Marker() const { return word.substr(subject); }
  [[nodiscard]] std::string Subject() const {
    return subject == 0 ? "" : word.substr(0, subject - 1);
  }
};

// The names of one side, each once.
class Side {
 public:
  explicit Side(std::span<const std::string> names) {
    std::unordered_set<std::string_view> known;
    for (const std::string& name : names) {
      std::string word = InOneWord(name);
      if (CannotBeMapped(word) || !known.insert(name).second) continue;
      names_.push_back({name, std::move(word), DivideName(name).subject.size()});
    }
    DivideByUnderscore();
  }

  [[nodiscard]] std::vector<Name>& Names() { return names_; }

 private:
  // A prefix that all names without a colon have is a subject.
  void DivideByUnderscore() {
    std::vector<Name*> undivided;
    for (Name& name : names_) {
      if (name.subject == 0) undivided.push_back(&name);
    }
    std::vector<std::string_view> words;
    words.reserve(undivided.size());
    for (const Name* name : undivided) words.push_back(name->word);
    const std::size_t length = SharedSubject(words).size();
    for (Name* name : undivided) name->subject = length;
  }

  std::vector<Name> names_;
};

// What a name is compared by. Names of the mapping and of the capture are the same when they have a
// key in common.
using Keys = std::vector<std::string>;
using KeysOf = Keys (*)(const Name&, bool is_mapped);

Keys ExactKeys(const Name& name, bool /*is_mapped*/) { return {name.text}; }
Keys CaseKeys(const Name& name, bool /*is_mapped*/) { return {InSmallLetters(name.text)}; }
Keys WordKeys(const Name& name, bool /*is_mapped*/) {
  Keys keys = {name.word};
  std::replace(keys[0].begin(), keys[0].end(), kColon, kUnderscore);
  return keys;
}
Keys MarkerKeys(const Name& name, bool /*is_mapped*/) {
  return name.Marker().empty() ? Keys() : Keys{name.Marker()};
}

// Of two names one is divided behind an underscore, and the other one is not: the letter in front
// says which.
Keys UnderscoreKeys(const Name& name, bool is_mapped) {
  constexpr std::size_t kMostWords = 4;  // of a subject
  constexpr char kUndivided[] = {'m', 'c'};
  Keys keys = {kUndivided[is_mapped ? 0 : 1] + name.Marker()};
  if (name.HasColon()) return keys;
  std::size_t begin = 0;
  for (std::size_t words = 0; words < kMostWords; ++words) {
    const std::size_t end = name.word.find(kUnderscore, begin);
    if (end == std::string::npos) break;
    const std::string rest = name.word.substr(end + 1);
    if (IsSideOfTheBody(name.word.substr(begin, end + 1 - begin))) break;
    if (end > 0 && IsMoreThanNumber(rest)) keys.push_back(kUndivided[is_mapped ? 1 : 0] + rest);
    begin = end + 1;
  }
  return keys;
}

using Indices = std::vector<std::size_t>;

// Which names of the two sides are the same by their keys.
class Comparison {
 public:
  Comparison(const std::vector<Name>& mapped, const std::vector<Name>& markers, KeysOf keys_of)
      : of_mapped_(mapped.size()), of_markers_(markers.size()) {
    std::unordered_map<std::string, std::pair<Indices, Indices>> by_key;
    const auto gather = [&](const std::vector<Name>& names, bool is_mapped) {
      for (std::size_t index = 0; index < names.size(); ++index) {
        if (!names[index].is_free) continue;
        for (const std::string& key : keys_of(names[index], is_mapped)) {
          (is_mapped ? by_key[key].first : by_key[key].second).push_back(index);
        }
      }
    };
    gather(mapped, true);
    gather(markers, false);
    for (const auto& [key, same] : by_key) {
      AddFirst(same.second, same.first, of_mapped_);
      AddFirst(same.first, same.second, of_markers_);
    }
  }

  // The others that a name is the same as: one, or enough to tell that there are several.
  [[nodiscard]] const std::set<std::size_t>& OfMapped(std::size_t index) const {
    return of_mapped_[index];
  }
  [[nodiscard]] const std::set<std::size_t>& OfMarker(std::size_t index) const {
    return of_markers_[index];
  }

 private:
  static void AddFirst(const Indices& others, const Indices& names,
                       std::vector<std::set<std::size_t>>& of_names) {
    const std::size_t count = std::min<std::size_t>(others.size(), 2);
    for (const std::size_t name : names) {
      for (std::size_t at = 0; at < count; ++at) of_names[name].insert(others[at]);
    }
  }

  std::vector<std::set<std::size_t>> of_mapped_;
  std::vector<std::set<std::size_t>> of_markers_;
};

class Matching {
 public:
  Matching(std::span<const std::string> mapped, std::span<const std::string> markers)
      : mapped_(mapped), markers_(markers) {}

  NameMatch Run(NameMatching how) {
    Match(ExactKeys, Subjects::kSame);
    if (how != NameMatching::kExact) Match(CaseKeys, Subjects::kSame);
    if (how == NameMatching::kSubject) {
      Match(WordKeys, Subjects::kSame);
      PassOverOwnSubjects();
      Match(MarkerKeys, Subjects::kAny);
      Match(UnderscoreKeys, Subjects::kAny);
      RequireOneSubject();
    }
    return Result();
  }

 private:
  enum class Subjects { kSame, kAny };

  struct Pair {
    std::size_t mapped;
    std::size_t marker;
    Subjects subjects;
  };

  Name& Mapped(std::size_t index) { return mapped_.Names()[index]; }
  Name& Marker(std::size_t index) { return markers_.Names()[index]; }

  // Takes those for the same that have a key in common.
  void Match(KeysOf keys_of, Subjects subjects) {
    const Comparison comparison(mapped_.Names(), markers_.Names(), keys_of);
    for (std::size_t index = 0; index < mapped_.Names().size(); ++index) {
      const auto& same = comparison.OfMapped(index);
      if (same.size() > 1) AddAmbiguous({index}, same);
      if (same.size() != 1 || comparison.OfMarker(*same.begin()).size() > 1) continue;
      pairs_.push_back({index, *same.begin(), subjects});
      Mapped(index).is_free = Marker(*same.begin()).is_free = false;
    }
    for (std::size_t index = 0; index < markers_.Names().size(); ++index) {
      const auto& same = comparison.OfMarker(index);
      if (same.size() > 1 && Marker(index).is_free) AddAmbiguous(same, {index});
    }
  }

  void AddAmbiguous(const std::set<std::size_t>& mapped, const std::set<std::size_t>& markers) {
    AmbiguousNames names;
    for (const std::size_t index : mapped) {
      names.mapped.push_back(Mapped(index).text);
      Mapped(index).is_free = false;
    }
    for (const std::size_t index : markers) {
      names.markers.push_back(Marker(index).text);
      Marker(index).is_free = false;
    }
    result_.ambiguous.push_back(std::move(names));
  }

  // Another subject cannot help out where the mapping's own has no such marker.
  void PassOverOwnSubjects() {
    std::set<std::string> own;
    for (const Pair& pair : pairs_) {
      if (pair.subjects == Subjects::kSame) own.insert(Mapped(pair.mapped).Subject());
    }
    own.erase("");
    for (Name& name : mapped_.Names()) {
      if (own.contains(name.Subject())) name.is_free = false;
    }
  }

  // Two subjects of the capture are not one of the mapping.
  void RequireOneSubject() {
    std::map<std::string, std::map<std::string, Pair>> subjects;  // by those of the mapping
    for (const Pair& pair : pairs_) {
      const std::string subject = SubjectOfMarkerIn(pair);
      if (subject.empty()) continue;
      subjects[Mapped(pair.mapped).Subject()].emplace(subject, pair);
    }
    std::set<std::string> refused;
    for (const auto& [subject, of_capture] : subjects) {
      if (of_capture.size() < 2) continue;
      const Pair& one = of_capture.begin()->second;
      const Pair& other = std::next(of_capture.begin())->second;
      AddAmbiguous({one.mapped, other.mapped}, {one.marker, other.marker});
      refused.insert(subject);
    }
    std::erase_if(pairs_, [this, &refused](const Pair& pair) {
      return refused.contains(Mapped(pair.mapped).Subject()) && !SubjectOfMarkerIn(pair).empty();
    });
  }

  // Without what ends it; empty where it is the mapping's or there is none.
  std::string SubjectOfMarkerIn(const Pair& pair) {
    if (pair.subjects == Subjects::kSame) return "";
    std::string subject =
        InSmallLetters(SubjectBeside(Marker(pair.marker).text, Mapped(pair.mapped).text));
    if (!subject.empty()) subject.pop_back();
    return subject;
  }

  NameMatch Result() {
    for (const Pair& pair : pairs_) {
      const std::string& marker = Marker(pair.marker).text;
      const std::string& mapped = Mapped(pair.mapped).text;
      if (marker != mapped) result_.taken.emplace(marker, mapped);
    }
    return std::move(result_);
  }

  Side mapped_;
  Side markers_;
  std::vector<Pair> pairs_;
  NameMatch result_;
};

}  // namespace

const std::string& NameMatch::NameInMapping(const std::string& marker) const {
  const auto found = taken.find(marker);
  return found == taken.end() ? marker : found->second;
}

std::map<std::string, std::string> NameMatch::Unmappable() const {
  std::map<std::string, std::string> unmappable = taken;
  std::erase_if(unmappable, [](const auto& pair) { return !CannotBeMapped(pair.first); });
  return unmappable;
}

NameMatch MatchNames(std::span<const std::string> mapped, std::span<const std::string> markers,
                     NameMatching how) {
  return Matching(mapped, markers).Run(how);
}

std::string SubjectBeside(const std::string& name, const std::string& other) {
  const auto ends_subject = [](char letter) { return letter == kColon || letter == kUnderscore; };
  const std::string word = InOneWord(name);
  const std::string other_word = InOneWord(other);
  for (std::size_t at = 0; at < word.size(); ++at) {
    if (at > 0 && !ends_subject(word[at - 1])) continue;
    const std::string_view marker = std::string_view(word).substr(at);
    if (!other_word.ends_with(marker)) continue;
    const std::size_t before = other_word.size() - marker.size();
    if (before == 0 || ends_subject(other_word[before - 1])) return name.substr(0, at);
  }
  return "";
}

}  // namespace orvane
