#include "inspect/mapping/marker_synonyms.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace orvane {
namespace {

// A standard marker without its side, and the other names of its place, words put together.
struct Place {
  std::string_view standard;  // in small letters
  std::array<std::string_view, 12> synonyms;
};

constexpr Place kMiddlePlaces[] = {
    {"c7", {"cv7", "cervical7", "vertebrac7", "spinec7"}},
    {"clav", {"clavicle", "jugularnotch", "sternalnotch", "suprasternale", "topchest"}},
    {"strn", {"sternum", "xiphoid", "xiphoidprocess", "lowersternum", "sternumlower"}},
    {"t10", {"tv10", "thoracic10", "vertebrat10", "spinet10"}},
    {"sacr", {"sacrum", "sacral", "vsacral", "s1", "lowerback"}},
};

constexpr Place kSidedPlaces[] = {
    {"fhd", {"fronthead", "foreheadfront", "headfront"}},
    {"bhd", {"backhead", "rearhead", "headback", "headrear"}},
    {"sho", {"shoulder", "acromion", "acromium", "acr", "shouldertop"}},
    {"elb", {"elbow", "lateralelbow", "outerelbow", "elblat", "elbowlat", "lelbow", "lepicondyle"}},
    {"ilb", {"medialelbow", "innerelbow", "elbmed", "elbowmed", "melb", "mepicondyle"}},
    // "Inner" and "medial" are the thumb's side to some and the little finger's to others.
    {"wra", {"wristthumb", "thumbwrist", "radialwrist", "radialstyloid", "wristrad"}},
    {"wrb", {"wristpinky", "pinkywrist", "ulnarwrist", "ulnarstyloid", "wristuln"}},
    {"fin", {"finger", "hand", "knuckle", "handtop"}},
    {"fwt", {"asis", "asi", "frontwaist", "waistfront", "frontpelvis", "pelvisfront"}},
    {"bwt", {"psis", "psi", "backwaist", "waistback", "backpelvis", "pelvisback"}},
    {"kne", {"knee", "lateralknee", "outerknee", "kneelat", "lfc", "kneeouter"}},
    {"kni", {"medialknee", "innerknee", "kneemed", "mfc", "kneeinner"}},
    {"ank", {"ankle", "lateralankle", "outerankle", "anklelat", "lmal", "lateralmalleolus"}},
    {"hel", {"heel", "hee", "cal", "calc", "calcaneus"}},
    {"mt5", {"smalltoe", "littletoe", "5thmetatarsal", "fifthmetatarsal", "met5", "mth5", "v5mt"}},
    {"mti", {"mt1", "1stmetatarsal", "firstmetatarsal", "met1", "mth1", "v1mt"}},
    {"toe", {"bigtoe", "toetip", "hallux", "greattoe"}},
    {"wre", {"wriststickend", "stickend"}},
    {"wri", {"wriststickbase", "stickbase"}},
    {"prpb", {"propbottom"}},
    {"prpm", {"propmiddle"}},
    {"prpt", {"proptop"}},
};

bool IsNamedBy(const Place& place, std::string_view name) {
  if (name.empty()) return false;
  return name == place.standard ||
         std::find(place.synonyms.begin(), place.synonyms.end(), name) != place.synonyms.end();
}

const Place* FindPlace(std::span<const Place> places, std::string_view name) {
  const auto found = std::find_if(places.begin(), places.end(),
                                  [name](const Place& place) { return IsNamedBy(place, name); });
  return found == places.end() ? nullptr : &*found;
}

const Place* FindPlace(std::span<const Place> places, const MarkerWords& words) {
  const Place* const place = FindPlace(places, words.place);
  return place != nullptr ? place : FindPlace(places, words.place_backwards);
}

std::string InCapitals(std::string_view text) {
  std::string capitals(text);
  std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char letter) {
    return 'a' <= letter && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  });
  return capitals;
}

// "lfhd" is on the left.
std::optional<std::string> FromFirstLetter(std::string_view glued) {
  if (glued.empty() || (glued.front() != 'l' && glued.front() != 'r')) return std::nullopt;
  const Place* const place = FindPlace(kSidedPlaces, glued.substr(1));
  if (place == nullptr) return std::nullopt;
  return InCapitals(glued.substr(0, 1)) + InCapitals(place->standard);
}

}  // namespace

std::optional<std::string> StandardMarkerFor(const MarkerWords& words) {
  if (words.side != BodySide::kNone) {
    const Place* const place = FindPlace(kSidedPlaces, words);
    if (place == nullptr) return std::nullopt;
    return (words.side == BodySide::kLeft ? "L" : "R") + InCapitals(place->standard);
  }
  if (const Place* const place = FindPlace(kMiddlePlaces, words))
    return InCapitals(place->standard);
  return FromFirstLetter(words.place);
}

}  // namespace orvane
