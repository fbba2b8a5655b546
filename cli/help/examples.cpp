#include "cli/help/examples.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace cli {
namespace {

constexpr VerbGuide kGuides[] = {
    {"",
     "It reads HTR motion files and TRC marker files, and writes scenes as glTF, motion files, "
     "and BVK marker files. A flag is a control of a dialog of the plug-in that does the work. "
     "What is odd in a file is told on standard error, with what becomes of it; results go to "
     "standard output.",
     {{{"orvane info walk.htr", "tell what a motion file holds"},
       {"orvane import walk.htr -o walk.glb", "make a scene of it, to be played in any viewer"}}}},
    {"import",
     "Imports an HTR or TRC file into a new scene, or into one that an earlier import has "
     "written, and writes that as glTF. The importer is the one for the file's extension. What "
     "is odd in the file is told before, with what becomes of it in the scene.",
     {{{"orvane import walk.htr -o walk.glb", "a skeleton that moves"},
       {"orvane import walk.trc -o markers.glb --size 40", "markers as spheres of 40 mm"}}}},
    {"export",
     "Samples a skeleton of a scene, frame by frame, and writes it as an HTR file. The scene is "
     "one "
     "that an import has written, or what another program has saved as glTF. What such a file "
     "cannot hold is told before it is lost.",
     {{{"orvane export walk.glb --select Hips -o back.htr", "the skeleton that Hips belongs to"},
       {"orvane export walk.glb --select Hips -o part.htr --range 10:60",
        "a part of its frames"}}}},
    {"info",
     "Shows the header, the frames and the segments or markers of an HTR or TRC file, and "
     "roughly who moves there. With --json it shows it to programs.",
     {{{"orvane info walk.htr", "segments, frames, lengths, and the space that they take"},
       {"orvane info - --json < walk.trc", "markers and their gaps, of standard input, as JSON"}}}},
    {"convert",
     "Converts TRC marker files to BVK files, one or many. A mapping says which markers are "
     "kept, and under which names; without one all of them are. Each output lies beside its "
     "input unless a flag says otherwise. What was converted is listed in a table.",
     {{{"orvane convert walk.trc --mapping walk.mnm -o named.bvk", "one file, by a mapping"},
       {"orvane convert walk.trc --dry-run", "show what would become of it, and write nothing"}}}},
    {"rewrite",
     "Makes another HTR or TRC file of one, without a scene: every number is the same to the bit, "
     "gaps and rates stay, and what readers would wonder about is gone, unless a flag changes it. "
     "Or a CSV, BVH or C3D file. What the new file does not hold is told before.",
     {{{"orvane rewrite walk.trc -o clean.trc", "the same markers, in a file without oddities"},
       {"orvane rewrite walk.htr -o short.bvh --cut 10:60 --unit cm",
        "some frames of a skeleton and its motion for other programs, in centimeters"}}}},
    {"check",
     "Names everything that is odd in HTR, TRC and MNM files, and in folders of them, line by "
     "line, with a code that stays the same. The exit status says whether there was a warning.",
     {{{"orvane check walk.htr", "what is odd in the file itself"},
       {"orvane check walk.trc --for convert", "what a conversion makes of that"}}}},
    {"compare",
     "Compares the motions of two HTR files, or the markers of two TRC files: how far they are "
     "apart, and what only one of them has. The exit status says whether they differ beyond the "
     "tolerance.",
     {{{"orvane compare walk.htr back.htr --tolerance-mm 0.01", "the motion that came back"},
       {"orvane compare walk.trc walk.trc --json", "two marker files, as JSON"}}}},
    {"map",
     "Makes and checks marker name mappings: MNM files, which pair the standard marker names "
     "with those in the TRC files of one set-up. A conversion keeps and renames the markers by "
     "them.",
     {{{"orvane map lint walk.mnm", "what is odd in a mapping"},
       {"orvane map create walk.trc --picks picks.txt -o mine.mnm", "make one of a table"}}}},
    {"map create",
     "Makes a mapping file by the plug-in's own creator, which asks for one standard marker "
     "after the other. The table says what is picked: each line a standard marker's name and, "
     "behind a tab, the marker's name in the file, or a dash for none.",
     {{{"orvane map create walk.trc --picks picks.txt -o mine.mnm", "a new mapping"},
       {"orvane map create walk.trc --picks picks.txt -o mine.mnm --force", "make it once more"}}}},
    {"map suggest",
     "Suggests which marker of a TRC file is which standard marker, by their names or by where "
     "they "
     "sit on a body that walks, each with its reason. What is not sure is left out and listed. A "
     "mapping file that exists is kept.",
     {{{"orvane map suggest walk.trc", "what the names say"},
       {"orvane map suggest walk.trc --by-geometry -o suggested.mnm",
        "a mapping of where the markers sit, where names say nothing"}}}},
    {"map show",
     "Shows a mapping in the order of the standard markers, with what is missing, and with a TRC "
     "file which of its markers are there and in how much of the frames.",
     {{{"orvane map show walk.mnm", "which marker is which"},
       {"orvane map show walk.mnm walk.trc --names subject",
        "and what of it a file of another subject has"}}}},
    {"map lint",
     "Names what is odd in a mapping file and, when a TRC file is given too, where the two do "
     "not fit. The exit status says whether there was a warning.",
     {{{"orvane map lint walk.mnm", "what is odd in the mapping itself"},
       {"orvane map lint walk.mnm walk.trc --max-severity warning",
        "whether it fits the markers"}}}},
    {"scene",
     "Shows what a scene file holds that orvane has written: its nodes and their keys, its unit, "
     "and its frames, as the plug-in left them.",
     {{{"orvane scene walk.glb", "its nodes, and how many keys they have"},
       {"orvane scene walk.glb --json", "all keys, as JSON"}}}},
    {"view",
     "Writes a page that shows takes in any browser: what moves, its gaps and what is odd in it, "
     "each at its time. The takes are in the page, which needs nothing else and sends nothing "
     "anywhere, so that it can be passed on; and it is opened. Without a take an empty page is "
     "opened, which files can be dropped on.",
     {{{"orvane view walk.htr walk.trc -o both.html", "a skeleton and markers over each other"},
       {"orvane view walk.trc --no-open", "walk.html, for somebody else to open"}}}},
    {"help",
     "Shows the help of the program or of a verb: the same as --help behind the verb.",
     {{{"orvane help import", "the flags of a verb"},
       {"orvane help map create", "those of a verb of two words"}}}},
};

}  // namespace

std::span<const VerbGuide> AllGuides() { return kGuides; }

const VerbGuide& GuideOf(std::string_view verb) {
  const auto guides = AllGuides();
  const auto guide = std::find_if(guides.begin(), guides.end(),
                                  [verb](const VerbGuide& each) { return each.verb == verb; });
  if (guide == guides.end()) throw std::out_of_range("no guide to " + std::string(verb));
  return *guide;
}

}  // namespace cli
