#include <cstdint>
#include <fstream>
#include <random>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

// Files as large as they come, and files that ask for more than they hold. The program ends with a
// scene or a message, and in memory that the file answers for.

namespace {

using test::PosixResult;
using test::PosixRun;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::size_t kMegabyte = 1'000'000;

// What the program needs for itself, whatever the file.
constexpr std::size_t kOwnMemory = 64 * kMegabyte;

class HardInputTest : public test::OrvaneTest {
 protected:
  // Makes the file `name` of `start`, as many times `piece` as fit into `size` bytes, and `end`,
  // without ever holding all of it.
  void WriteLarge(const std::string& name, const std::string& start, const std::string& piece,
                  std::size_t size, const std::string& end) const {
    std::string block;
    while (block.size() < kMegabyte) block += piece;
    std::ofstream file(folder_.File(name), std::ios::binary);
    file << start;
    for (std::size_t written = 0; written < size; written += block.size()) {
      file << block.substr(0, size - written);
    }
    file << end;
    ASSERT_TRUE(file.flush());
  }

  std::size_t SizeOf(const std::string& name) const {
    return std::filesystem::file_size(folder_.File(name));
  }

  // Runs the program, which may use so much memory.
  ProgramResult Orvane(const std::vector<std::string>& arguments, std::size_t most_memory) const {
    PosixResult result = RunProgram(PosixRun{Command(arguments)});
    EXPECT_LT(result.peak_memory / kMegabyte, most_memory / kMegabyte)
        << "megabytes of memory for orvane " << arguments.front();
    return result;
  }

  // Runs both verbs on walk.htr.
  void ExpectStatuses(int info_status, int import_status, std::size_t most_memory,
                      const std::vector<std::string>& flags = {}) const {
    const ProgramResult info = Orvane({"info", "walk.htr"}, most_memory);
    EXPECT_EQ(info.status, info_status) << info.error;
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "scene.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult import = Orvane(arguments, most_memory);
    EXPECT_EQ(import.status, import_status) << import.error;
    EXPECT_EQ(Exists("scene.glb"), import_status == 0);
    for (const ProgramResult& result : {info, import}) {
      if (result.status == 0) continue;
      EXPECT_THAT(result.error, StartsWith("orvane: walk.htr: "));
    }
  }
};

// --- One line of a hundred megabytes ---

constexpr std::size_t kLongLine = 100 * kMegabyte;
constexpr std::size_t kMemoryForLongLine = 2 * kLongLine + kOwnMemory;

struct LongLine {
  std::string name;
  std::string before;  // a piece of SmallMotion that the line follows
  std::string piece;   // what the line is made of
  int info_status = 1;
  int import_status = 1;
};

class LongLineTest : public HardInputTest, public testing::WithParamInterface<LongLine> {};

TEST_P(LongLineTest, IsReadOrRefused) {
  const std::string motion = SmallMotion();
  const std::size_t place = motion.find(GetParam().before) + GetParam().before.size();
  WriteLarge("walk.htr", motion.substr(0, place), GetParam().piece, kLongLine,
             motion.substr(place));
  ExpectStatuses(GetParam().info_status, GetParam().import_status, kMemoryForLongLine);
}

INSTANTIATE_TEST_SUITE_P(All, LongLineTest,
                         testing::Values(LongLine{"BeforeAnySection", "", "x"},
                                         LongLine{"OfHeader", "[Header]\n", "x", 0, 0},
                                         LongLine{"OfSection", "[Header]\n", "["},
                                         LongLine{"OfName", "Spine Hips\n", "x"},
                                         LongLine{"OfBasePosition", "Hips 0 900", "0 "},
                                         LongLine{"OfOneNumber", "[Hips]\n1 ", "9", 0, 1},
                                         LongLine{"OfNumbers", "[Hips]\n1 ", "0 ", 0, 0},
                                         LongLine{"OfBlanks", "[Hips]\n", " \t", 0, 0},
                                         LongLine{"OfNothing", "[Hips]\n", std::string(1, '\0'), 0,
                                                  0},
                                         LongLine{"OfCarriageReturns", "[Hips]\n", "\r", 0, 0},
                                         LongLine{"OfEmptyLines", "[Hips]\n", "\n", 0, 0}),
                         [](const auto& line) { return line.param.name; });

// --- A hundred thousand segments ---

constexpr int kSegments = 100'000;

// Every segment's parent is the one before it, or all have the first as theirs.
class HierarchyTest : public HardInputTest, public testing::WithParamInterface<bool> {
 protected:
  void WriteMotion() const {
    std::ofstream file(folder_.File("walk.htr"), std::ios::binary);
    file << Replaced(SmallMotion().substr(0, SmallMotion().find("Hips GLOBAL")), "NumSegments 2",
                     "NumSegments " + std::to_string(kSegments));
    file << "s0 GLOBAL\n";
    for (int i = 1; i < kSegments; ++i)
      file << "s" << i << " s" << (GetParam() ? i - 1 : 0) << "\n";
    file << "[BasePosition]\n";
    for (int i = 0; i < kSegments; ++i) file << "s" << i << " 0 1 0 0 0 0 1\n";
    for (int i = 0; i < kSegments; ++i) {
      file << "[s" << i << "]\n1 0 0 0 0 0 0 1\n2 0 0 0 1 0 0 1\n3 0 0 0 2 0 0 1\n";
    }
    file << "[EndOfFile]\n";
    ASSERT_TRUE(file.flush());
  }  // namespace
};

// A scene is far larger than the motion it comes from: every bone has a shape, seven properties and
// controllers. Its file is what memory is measured by.
TEST_P(HierarchyTest, GoesIntoASceneFileAndBack) {
  constexpr std::size_t kMemoryPerByte = 12;
  WriteMotion();
  const ProgramResult info =
      Orvane({"info", "walk.htr"}, kMemoryPerByte * SizeOf("walk.htr") + kOwnMemory);
  EXPECT_EQ(info.status, 0) << info.error;
  EXPECT_THAT(info.output, HasSubstr("  Segments        100000\n"));

  const PosixRun run{Command({"import", "walk.htr", "-o", "scene.glb"})};
  const PosixResult import = RunProgram(run);
  EXPECT_EQ(import.status, 0) << import.error;
  EXPECT_THAT(import.output, HasSubstr("  Nodes   100001\n"));
  constexpr std::size_t kMemoryPerSceneByte = 5;
  const std::size_t most_memory = kMemoryPerSceneByte * SizeOf("scene.glb") + kOwnMemory;
  EXPECT_LT(import.peak_memory, most_memory);
  const ProgramResult scene = Orvane({"scene", "scene.glb"}, most_memory);
  EXPECT_EQ(scene.status, 0) << scene.error;
  EXPECT_THAT(scene.output, HasSubstr("  Nodes       100001\n"));
}

INSTANTIATE_TEST_SUITE_P(All, HierarchyTest, testing::Bool(),
                         [](const auto& is_chain) { return is_chain.param ? "Chain" : "Fan"; });

// --- Two thousand million of anything ---

struct Announcement {
  std::string name;
  std::string from;
  std::string to;
  int info_status;
  int import_status;
  std::vector<std::string> flags{};
};

class AnnouncementTest : public HardInputTest, public testing::WithParamInterface<Announcement> {};

TEST_P(AnnouncementTest, IsNotBelieved) {
  Write("walk.htr", Replaced(SmallMotion(), GetParam().from, GetParam().to));
  ExpectStatuses(GetParam().info_status, GetParam().import_status, kOwnMemory, GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    All, AnnouncementTest,
    testing::Values(
        Announcement{"Segments", "NumSegments 2", "NumSegments 2000000000", 1, 1},
        Announcement{"Frames", "NumFrames 3", "NumFrames 2000000000", 0, 1},
        Announcement{
            "FramesInPart", "NumFrames 3", "NumFrames 2000000000", 0, 0, {"--range", "1:3"}},
        Announcement{"FramesAtTheEnd",
                     "NumFrames 3",
                     "NumFrames 2000000000",
                     0,
                     0,
                     {"--range", "1999999990:2000000000"}},
        Announcement{"Rate", "DataFrameRate 60", "DataFrameRate 2000000000", 0, 0},
        Announcement{"Version", "FileVersion 1", "FileVersion 2000000000", 1, 1},
        Announcement{"ScaleFactor", "ScaleFactor 1.0", "ScaleFactor 2e9", 0, 0},
        Announcement{"FirstFrame", "[Hips]\n1 ", "[Hips]\n2000000000 ", 0, 0},
        Announcement{"Length", "250.5", "2000000000", 0, 0},
        Announcement{"Offset", "NumFrames 3", "NumFrames 3", 0, 0, {"--offset", "2000000000"}}),
    [](const auto& announcement) { return announcement.param.name; });

TEST_F(HardInputTest, ASceneFileThatAnnouncesTooMuchIsRefused) {
  Write("walk.htr", SmallMotion());
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "good.glb"}, kOwnMemory).status, 0);
  const std::string good = Read("good.glb");
  const std::string word = {'\x00', '\x94', '\x35', '\x77'};  // 2,000,000,000
  std::vector<std::string> damaged = {Replaced(good, good.substr(8, 4), word),
                                      Replaced(good, good.substr(12, 4), word)};
  for (const std::string member : {"\"byteLength\":", "\"byteOffset\":", "\"count\":"}) {
    std::string bytes = good;
    for (std::size_t at = bytes.find(member); at != std::string::npos;
         at = bytes.find(member, at + 1)) {
      const std::size_t number = at + member.size();
      const std::size_t digits = bytes.find_first_not_of("0123456789", number) - number;
      bytes.replace(number, digits, std::string(digits, '9'));
    }
    damaged.push_back(bytes);
  }
  for (const std::string& bytes : damaged) {
    Write("scene.glb", bytes);
    const ProgramResult result = Orvane({"scene", "scene.glb"}, kOwnMemory);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("orvane: scene.glb: The "));
  }
}

// --- Noise ---

struct Noise {
  std::string start;
  int info_status;  // names are of any bytes, and a file of names alone can be looked at
};

class NoiseTest : public HardInputTest, public testing::WithParamInterface<Noise> {};

TEST_P(NoiseTest, IsNoMotionAndNoScene) {
  std::mt19937_64 random(20260312);
  std::string noise(kMegabyte, '\0');
  for (char& byte : noise) byte = static_cast<char>(random() & 0xFFU);
  constexpr std::size_t kSize = 20 * kMegabyte;
  WriteLarge("walk.htr", GetParam().start, noise, kSize, "");
  ExpectStatuses(GetParam().info_status, 1, 2 * kSize + kOwnMemory);
  const ProgramResult scene = Orvane({"scene", "walk.htr"}, 2 * kSize + kOwnMemory);
  EXPECT_EQ(scene.status, 1);
  EXPECT_THAT(scene.error, StartsWith("orvane: walk.htr: The file "));
}

INSTANTIATE_TEST_SUITE_P(Behind, NoiseTest,
                         testing::Values(Noise{"", 1}, Noise{"[Header]\n", 1},
                                         Noise{"[SegmentNames&Hierarchy]\n", 0},
                                         Noise{"glTF\x02", 1}));

// --- Disks ---

// A file system of 64 KiB that only the program sees. It takes the right to mount, which not every
// user and not every container has; tests of the output's own cover a limit on the size of files.
class DiskTest : public HardInputTest {
 protected:
  // Runs the program on a disk mounted with `options`, on which the scene of a motion lies, and
  // then says whether that scene is still there.
  ProgramResult ImportOnDisk(const std::string& options) const {
    const std::string script =
        "mount -t tmpfs -o size=64k orvane disk && cp old.glb disk/scene.glb && "
        "mount -o remount," +
        options +
        " disk || exit 99; "
        "\"$0\" import walk.htr -o disk/scene.glb --force; echo status $?; "
        "ls -A disk; cmp old.glb disk/scene.glb && echo kept";
    test::ProgramRun run = Command({});
    run.command = {
        "/usr/bin/unshare", "--user", "--map-root-user", "--mount", "/bin/sh", "-c", script,
        run.command.front()};
    return RunProgram(run);
  }
};

TEST_F(DiskTest, FullOrReadOnlyKeepsTheOldScene) {
  Write("walk.htr", SmallMotion());
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "old.glb"}, kOwnMemory).status, 0);
  Write("walk.htr", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.htr"));
  std::filesystem::create_directory(folder_.File("disk"));
  for (const auto& [options, reason] :
       {std::pair<std::string, std::string>{"rw", "No space left on device"},
        {"ro", "disk: Read-only file system"}}) {
    const ProgramResult result = ImportOnDisk(options);
    if (result.output.find("status") == std::string::npos) {
      GTEST_SKIP() << "a disk cannot be mounted here: " << result.error;
    }
    EXPECT_EQ(result.error, "orvane: disk/scene.glb: " + reason + "\n");
    EXPECT_EQ(result.output, "status 3\nscene.glb\nkept\n");
  }
}

}  // namespace
