#include "inspect/mapping/geometry_suggestion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>

#include "examples/varied_walk.h"
#include "formats/text/files.h"
#include "formats/text/numbers.h"

namespace {

using examples::MakeVariedWalk;
using examples::VariationOf;
using examples::VariedWalk;
using examples::Vector3;
using examples::WalkVariation;
using orvane::FormatInt;
using orvane::GeometrySuggestion;
using orvane::PlacedMarker;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

GeometrySuggestion SuggestionFor(const VariedWalk& walk) {
  orvane::TRCDocument document;
  EXPECT_EQ(document.ReadBytes(TextOf(walk.table), false), "");
  return SuggestByGeometry(document);
}

// What is suggested and is not so.
std::vector<std::string> WrongOnes(const VariedWalk& walk, const GeometrySuggestion& suggestion) {
  std::vector<std::string> wrong;
  for (const PlacedMarker& sure : suggestion.sure) {
    if (walk.roles[sure.marker] == sure.standard) continue;
    wrong.push_back(sure.standard + " for one of " + walk.roles[sure.marker]);
  }
  return wrong;
}

std::set<std::string> StandardsOf(const GeometrySuggestion& suggestion) {
  std::set<std::string> standards;
  for (const PlacedMarker& sure : suggestion.sure) standards.insert(sure.standard);
  return standards;
}

void Erase(VariedWalk& walk, const std::string& role) {
  const auto index = std::find(walk.roles.begin(), walk.roles.end(), role) - walk.roles.begin();
  walk.roles.erase(walk.roles.begin() + index);
  walk.table.names.erase(walk.table.names.begin() + index);
  for (auto& frame : walk.table.frames) frame.erase(frame.begin() + index);
}

void Transform(VariedWalk& walk, const std::function<Vector3(const Vector3&)>& change) {
  for (auto& frame : walk.table.frames) {
    for (auto& position : frame) {
      if (position) position = change(*position);
    }
  }
}

// The example's own body, with all its markers.
VariedWalk UsualWalk() { return MakeVariedWalk({}); }

// Bodies that none of the thresholds was chosen by.
constexpr std::uint64_t kBodies = 20;

TEST(GeometrySuggestionTest, IsNeverWrongOnTwentyBodies) {
  std::string table =
      "| Body | Markers that are standard ones | Suggested | Wrong |\n|---|---|---|---|\n";
  std::size_t all = 0;
  std::size_t all_suggested = 0;
  const auto text_of = [](std::size_t count) {
    return FormatInt(static_cast<std::int64_t>(count));
  };
  for (std::uint64_t body = 1; body <= kBodies; ++body) {
    const VariedWalk walk = MakeVariedWalk(VariationOf(body));
    const GeometrySuggestion suggestion = SuggestionFor(walk);
    EXPECT_THAT(WrongOnes(walk, suggestion), IsEmpty()) << "body " << body;
    const auto standard = static_cast<std::size_t>(
        std::count_if(walk.roles.begin(), walk.roles.end(),
                      [](const std::string& role) { return !role.empty(); }));
    all += standard;
    all_suggested += suggestion.sure.size();
    table += "| " + text_of(body) + " | " + text_of(standard) + " | " +
             text_of(suggestion.sure.size()) + " | " + text_of(WrongOnes(walk, suggestion).size()) +
             " |\n";
  }
  table += "| all | " + text_of(all) + " | " + text_of(all_suggested) + " | 0 |\n";
  const std::string page =
      orvane::ReadFileBytes(ORVANE_SOURCE_DIR "/docs/formats/mnm.md").value_or("");
  EXPECT_THAT(page, HasSubstr(table)) << "write this table into the page";
}

TEST(GeometrySuggestionTest, FindsWhatIsSureOfTheWalk) {
  const VariedWalk walk = UsualWalk();
  const GeometrySuggestion suggestion = SuggestionFor(walk);
  EXPECT_EQ(suggestion.sure.size(), 35U);
  EXPECT_THAT(WrongOnes(walk, suggestion), IsEmpty());
  EXPECT_EQ(suggestion.sure[0].standard, "LFHD");
  EXPECT_EQ(suggestion.sure[0].place, "front left of the four markers of the head");
  EXPECT_THAT(suggestion.missing, testing::ElementsAre("LELB", "RELB"));
  EXPECT_EQ(suggestion.without_role.size(),
            6U);  // the elbows, and two that are no standard markers
}

// The same walk on other ways, and by other axes, says the same.
struct Changed {
  const char* name;
  std::function<void(WalkVariation&)> vary;
  std::function<Vector3(const Vector3&)> change;
};

std::ostream& operator<<(std::ostream& out, const Changed& changed) { return out << changed.name; }

class GeometrySuggestionSameTest : public testing::TestWithParam<Changed> {};

TEST_P(GeometrySuggestionSameTest, FindsTheSame) {
  WalkVariation variation;
  GetParam().vary(variation);
  VariedWalk walk = MakeVariedWalk(variation);
  Transform(walk, GetParam().change);
  const GeometrySuggestion suggestion = SuggestionFor(walk);
  EXPECT_EQ(suggestion.problem, "");
  EXPECT_EQ(StandardsOf(suggestion), StandardsOf(SuggestionFor(UsualWalk())));
  EXPECT_THAT(WrongOnes(walk, suggestion), IsEmpty());
}

Vector3 Same(const Vector3& position) { return position; }

INSTANTIATE_TEST_SUITE_P(
    Ways, GeometrySuggestionSameTest,
    testing::Values(
        Changed{"heading", [](WalkVariation& walk) { walk.heading_deg = -137; }, Same},
        Changed{"unit", [](WalkVariation& walk) { walk.unit = "m"; }, Same},
        Changed{"child", [](WalkVariation& walk) { walk.stature = 0.55; }, Same},
        Changed{"mirrored", [](WalkVariation& walk) { walk.is_mirrored = true; }, Same},
        Changed{"right leg first", [](WalkVariation& walk) { walk.first_phase = 0.65; }, Same},
        Changed{"order", [](WalkVariation& walk) { walk.seed = 1234; }, Same},
        Changed{"start", [](WalkVariation& walk) { walk.start_x_mm = 5000; }, Same},
        Changed{"Z up", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) { return Vector3(at.z(), at.x(), at.y()); }},
        Changed{"floor", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) { return Vector3(at.x(), at.y() + 300, at.z()); }},
        // Around a circle of 6 m.
        Changed{"curve", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) {
                  const double angle = at.z() / 6000;
                  return Vector3(6000 - (6000 - at.x()) * std::cos(angle), at.y(),
                                 (6000 - at.x()) * std::sin(angle));
                }}));

// Those that say nothing for sure.
struct Refused {
  const char* name;
  std::function<void(WalkVariation&)> vary;
  std::function<Vector3(const Vector3&)> change;
  const char* problem;
};

std::ostream& operator<<(std::ostream& out, const Refused& refused) { return out << refused.name; }

class GeometrySuggestionRefusedTest : public testing::TestWithParam<Refused> {};

TEST_P(GeometrySuggestionRefusedTest, SuggestsNothing) {
  WalkVariation variation;
  GetParam().vary(variation);
  VariedWalk walk = MakeVariedWalk(variation);
  Transform(walk, GetParam().change);
  const GeometrySuggestion suggestion = SuggestionFor(walk);
  EXPECT_THAT(suggestion.sure, IsEmpty());
  EXPECT_THAT(suggestion.problem, HasSubstr(GetParam().problem));
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, GeometrySuggestionRefusedTest,
    testing::Values(
        Refused{"backward", [](WalkVariation& walk) { walk.is_backward = true; }, Same,
                "faces the way it goes"},
        Refused{"on the spot", [](WalkVariation& walk) { walk.stride_mm = 1; }, Same,
                "Nobody in it walks"},
        Refused{"short", [](WalkVariation& walk) { walk.frames = 30; }, Same, "Nobody in it walks"},
        Refused{"sideways", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) { return Vector3(at.x() + at.z(), at.y(), at.z() * 0.1); },
                ""},
        Refused{"lying", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) { return Vector3(at.y(), 500 - at.x(), at.z()); }, ""},
        Refused{"head down", [](WalkVariation& /*walk*/) {},
                [](const Vector3& at) { return Vector3(-at.x(), 2000 - at.y(), at.z()); },
                "no head"}));

TEST(GeometrySuggestionTest, TwoBodiesAreRefused) {
  const std::vector<std::pair<double, double>> places_mm = {{-900, 0},  {700, 0}, {1500, 0},
                                                            {0, -1000}, {0, 900}, {600, -700}};
  for (const auto& [beside_mm, ahead_mm] : places_mm) {
    VariedWalk walk = UsualWalk();
    WalkVariation variation;
    variation.stature = 0.8;
    variation.first_phase = 0.5;
    variation.start_x_mm = beside_mm;
    variation.start_z_mm = ahead_mm;
    const VariedWalk other = MakeVariedWalk(variation);
    walk.roles.insert(walk.roles.end(), other.roles.begin(), other.roles.end());
    for (std::size_t marker = 0; marker < other.roles.size(); ++marker) {
      walk.table.names.push_back("other" + other.table.names[marker]);
    }
    for (std::size_t frame = 0; frame < walk.table.frames.size(); ++frame) {
      auto& positions = walk.table.frames[frame];
      const auto& more = other.table.frames[frame];
      positions.insert(positions.end(), more.begin(), more.end());
    }
    const GeometrySuggestion suggestion = SuggestionFor(walk);
    EXPECT_THAT(suggestion.sure, IsEmpty()) << beside_mm;
    EXPECT_THAT(suggestion.problem, Not(IsEmpty())) << beside_mm;
  }
}

TEST(GeometrySuggestionTest, BothPartnersOrNone) {
  for (const std::string role : {"FHD", "SHO", "WRA", "FIN", "BWT", "ANK", "HEL", "TOE"}) {
    VariedWalk walk = UsualWalk();
    Erase(walk, "L" + role);
    const GeometrySuggestion suggestion = SuggestionFor(walk);
    EXPECT_THAT(WrongOnes(walk, suggestion), IsEmpty()) << role;
    EXPECT_THAT(StandardsOf(suggestion), Not(Contains("R" + role)));
    EXPECT_THAT(suggestion.sure.size(), testing::Ge(20U)) << role;
  }
}

// One marker less at a time: none takes the place of what is missing.
TEST(GeometrySuggestionTest, NoMarkerStandsInForAMissingOne) {
  const VariedWalk whole = UsualWalk();
  for (const std::string& role : whole.roles) {
    if (role.empty()) continue;
    VariedWalk walk = whole;
    Erase(walk, role);
    EXPECT_THAT(WrongOnes(walk, SuggestionFor(walk)), IsEmpty()) << "without " << role;
    if (role[0] != 'L') continue;
    Erase(walk, "R" + role.substr(1));
    EXPECT_THAT(WrongOnes(walk, SuggestionFor(walk)), IsEmpty()) << "without both of " << role;
  }
}

TEST(GeometrySuggestionTest, ExtraMarkersAndPropsAreNotTaken) {
  for (std::uint64_t seed = 2000; seed < 2010; ++seed) {
    WalkVariation variation;
    variation.seed = seed;
    variation.extra = 10;
    variation.props = 3;
    const VariedWalk walk = MakeVariedWalk(variation);
    EXPECT_THAT(WrongOnes(walk, SuggestionFor(walk)), IsEmpty()) << seed;
  }
}

TEST(GeometrySuggestionTest, LeftOutPartsAreToldWithTheirReasons) {
  VariedWalk walk = UsualWalk();
  Erase(walk, "STRN");
  const GeometrySuggestion suggestion = SuggestionFor(walk);
  EXPECT_THAT(suggestion.unsure,
              Contains(testing::AllOf(testing::Field(&orvane::UnsurePlace::part, "the chest"),
                                      testing::Field(&orvane::UnsurePlace::reason,
                                                     "1 marker where CLAV and STRN belong"))));
  EXPECT_THAT(suggestion.missing, Contains("CLAV"));
}

TEST(GeometrySuggestionTest, NothingIsSaidOfNothing) {
  EXPECT_EQ(orvane::SuggestByGeometry(orvane::TRCDocument()).problem,
            "No frame of it shows two markers");
  orvane::TRCDocument document;
  for (int marker = 0; marker < 121; ++marker) {
    orvane::TRCMarker many("M" + FormatInt(marker));
    for (int frame = 0; frame < 60; ++frame) many.AppendPosition(marker, marker * 10, frame * 50.0);
    ASSERT_NE(document.AddMarker(many), nullptr);
  }
  EXPECT_EQ(orvane::SuggestByGeometry(document).problem,
            "It holds more markers than one body carries");
}

TEST(GeometrySuggestionTest, PositionsThatAreNoneAndMarkersInOnePlaceAreBorne) {
  constexpr double kNumbers[] = {NAN, INFINITY, 1e308, 0, -1e308};
  orvane::TRCDocument document;
  for (int marker = 0; marker < 8; ++marker) {
    orvane::TRCMarker odd("M" + FormatInt(marker));
    for (int frame = 0; frame < 60; ++frame) {
      const double number = marker < 4 ? 0 : kNumbers[(frame + marker) % 5];
      odd.AppendPosition(number, number, frame * 50.0);
    }
    ASSERT_NE(document.AddMarker(odd), nullptr);
  }
  EXPECT_THAT(orvane::SuggestByGeometry(document).sure, IsEmpty());
  EXPECT_NE(orvane::SuggestByGeometry(document).problem, "");
}

}  // namespace
