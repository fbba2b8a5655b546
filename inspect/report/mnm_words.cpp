#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

constexpr FindingMeaning kWords[] = {
    {"mnm-other-kind", "The file is {found}, not {expected}", nullptr,
     InMappings(kError).But(Action::kConvert, kError,
                            "Nothing is converted; \"orvane map create\" makes a mapping.")},
    {"mnm-encoding", "The mapping is UTF-16 text", nullptr,
     InMappings(kError, "No marker has its entry, and all are dropped.")
         .But(Action::kConvert, kError,
              "No entry can be read, and nothing is converted; save it as UTF-8 or ASCII.")},
    {"mnm-line-ends", "Lines of the mapping end with carriage returns alone", nullptr,
     InMappings(kError, "Up to an LF only the first two words are read.")
         .But(Action::kConvert, kError,
              "Only its first two words can be read, and nothing is converted; save it with LF or "
              "CR LF.")},
    {"mnm-byte-order-mark", "A byte-order mark stands at the start of the mapping", nullptr,
     InMappings(kWarning, "It belongs to the first name, which is then not what it looks like.")},
    {"mnm-nul", "A line of the mapping holds a NUL byte",
     "{count} lines of the mapping hold NUL bytes",
     InMappings(kWarning, "The rest of such a line is not read.")},
    {"mnm-line-cut", "A line of the mapping is longer than 1022 bytes",
     "{count} lines of the mapping are longer than 1022 bytes",
     InMappings(kWarning, "Such a line is read as several.")},
    {"mnm-line-blank", "A line of the mapping is blank", "{count} lines of the mapping are blank",
     InMappings(kNote)},
    {"mnm-name-missing", "A line of the mapping holds one name",
     "{count} lines of the mapping hold one name", InMappings(kWarning)},
    {"mnm-name-encoding", "A name of the mapping is not UTF-8 text",
     "{count} names of the mapping are not UTF-8 text",
     InMappings(kWarning,
                "Such a name is of no marker but one that is written in these very bytes.")},
    {"mnm-rest-ignored", "A line of the mapping holds more than two names",
     "{count} lines of the mapping hold more than two names",
     InMappings(kWarning, "What stands behind the second is not read.")},
    {"mnm-entries-missing", "The mapping has no entries", nullptr,
     InMappings(kError, "Every marker is dropped.")
         .But(Action::kConvert, kError,
              "Every marker would be dropped, and nothing is converted; --allow empty converts all "
              "the same."),
     Concern::kMarkers},
    {"mnm-standard-unknown", "A name of the mapping is no standard marker",
     "{count} names of the mapping are no standard markers",
     InMappings(kWarning, "Such a name is written all the same.")
         .But(Action::kConvert, kNote, "Such a name is written all the same.")},
    {"mnm-standard-twice", "A standard marker stands in the mapping again",
     "Standard markers stand in the mapping again, {count} times", InMappings(kWarning)},
    {"mnm-entry-doubled", "An entry of the mapping stands there again",
     "{count} entries of the mapping stand there again",
     InMappings(kNote, "Such a line changes nothing.")},
    {"mnm-entry-shadowed", "A marker has two entries in the mapping",
     "{count} markers have several entries in the mapping",
     InMappings(kWarning, "The first of its entries counts.")},
    {"mnm-fits-nothing", "The mapping has {found}", nullptr, InMappings(kError), Concern::kMarkers},
    {"mnm-name-shared", "The mapping has {found}",
     "The mapping has one name for several markers, {count} times",
     InMappings(kWarning, "Who reads the converted file cannot tell them apart.")},
    {"mnm-entry-unused", "An entry of the mapping is of no marker of the capture",
     "{count} entries of the mapping are of no marker of the capture",
     FindingEffects(std::array{Action::kInspect}, {kWarning, "Such an entry changes nothing."})},
    {"mnm-marker-unmapped", "A marker has no entry in the mapping",
     "{count} markers have no entry in the mapping",
     InMappings(kWarning, "Such a marker is dropped.")
         .But(Action::kConvert, kNote, "Such a marker is dropped.")},
    {"mnm-marker-unmappable", "A marker's name cannot stand in a mapping",
     "{count} markers have names that cannot stand in a mapping",
     InMappings(kWarning, "Such a marker is dropped.")},
};

}  // namespace

std::span<const FindingMeaning> MnmFindingMeanings() { return kWords; }

}  // namespace orvane
