#include "host/desktop/portable/sqlite_registry.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "tests/support/environment_variable.h"
#include "tests/support/temporary_folder.h"

namespace host {
namespace {

using platform::RegistryKey;
using platform::RegistryType;
using test::EnvironmentVariable;

constexpr const char* kPath = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportHTR";

bool Store(SqliteRegistry& registry, const char* name, RegistryType type,
           const std::string& bytes) {
  RegistryKey* const key = registry.CreateKey(nullptr, kPath);
  const bool stored = registry.SetValue(key, name, type, bytes.data(), bytes.size());
  registry.CloseKey(key);
  return stored;
}

bool CanOpenKeys(const std::string& path) {
  SqliteRegistry registry(path);
  RegistryKey* const key = registry.CreateKey(nullptr, kPath);
  registry.CloseKey(key);
  return key != nullptr;
}

void Execute(const std::string& path, const char* sql) {
  sqlite3* connection = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &connection), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(sqlite3_close(connection), SQLITE_OK);
}

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class SqliteRegistryTest : public testing::Test {
 protected:
  const test::TemporaryFolder folder_;
  const std::string path_ = folder_.File("settings.sqlite");
};

TEST_F(SqliteRegistryTest, KeepsTypesAndBytesInTheFile) {
  const std::string size("\0\0\x80\x3F", 4);
  {
    SqliteRegistry registry(path_);
    ASSERT_TRUE(Store(registry, "Size", RegistryType::kDoubleWord, size));
    ASSERT_TRUE(Store(registry, "Apply", RegistryType::kBinary, "\1"));
  }
  SqliteRegistry reopened(path_);
  const auto stored_size = reopened.FindValue(kPath, "Size");
  ASSERT_TRUE(stored_size.has_value());
  EXPECT_EQ(stored_size->type, RegistryType::kDoubleWord);
  EXPECT_EQ(stored_size->bytes, size);
  EXPECT_EQ(reopened.FindValue(kPath, "Apply")->type, RegistryType::kBinary);
  EXPECT_EQ(reopened.FindValue(kPath, "Apply")->bytes, "\1");
}

TEST_F(SqliteRegistryTest, MakesTheFolderOfItsFile) {
  const std::string deep = folder_.File("config/orvane/settings.sqlite");
  EXPECT_TRUE(CanOpenKeys(deep));
  EXPECT_TRUE(std::filesystem::exists(deep));
}

TEST_F(SqliteRegistryTest, IsSharedByProgramsAtWork) {
  SqliteRegistry one(path_);
  SqliteRegistry other(path_);
  ASSERT_TRUE(Store(one, "Size", RegistryType::kDoubleWord, "1234"));
  ASSERT_TRUE(Store(other, "Range", RegistryType::kBinary, "1"));
  EXPECT_EQ(other.FindValue(kPath, "Size")->bytes, "1234");
  EXPECT_EQ(one.FindValue(kPath, "Range")->bytes, "1");
}

TEST_F(SqliteRegistryTest, WithoutAFileHasNoKeys) { EXPECT_FALSE(CanOpenKeys("")); }

TEST_F(SqliteRegistryTest, FolderInPlaceOfTheFileHasNoKeys) {
  EXPECT_FALSE(CanOpenKeys(folder_.Path().string()));
}

TEST_F(SqliteRegistryTest, FileInPlaceOfTheFolderHasNoKeys) {
  std::ofstream(folder_.File("file")) << "content";
  EXPECT_FALSE(CanOpenKeys(folder_.File("file/settings.sqlite")));
}

TEST_F(SqliteRegistryTest, FileThatIsNoDatabaseHasNoKeysAndIsLeftAlone) {
  const std::string letter = "Dear Ann, this is no database at all.\n";
  std::ofstream(path_) << letter;
  EXPECT_FALSE(CanOpenKeys(path_));
  EXPECT_EQ(ContentOf(path_), letter);
}

TEST_F(SqliteRegistryTest, DatabaseOfSomebodyElseHasNoKeys) {
  Execute(path_, "CREATE TABLE registry_value (something_else TEXT)");
  EXPECT_FALSE(CanOpenKeys(path_));
}

// A database that says it was last written in a later format may only be read, by root too.
TEST_F(SqliteRegistryTest, ReadOnlyDatabaseHasNoKeys) {
  ASSERT_TRUE(CanOpenKeys(path_));
  constexpr std::streamoff kWriteVersion = 18;
  std::fstream file(path_, std::ios::binary | std::ios::in | std::ios::out);
  file.seekp(kWriteVersion).put('\3');
  file.close();
  EXPECT_FALSE(CanOpenKeys(path_));
}

TEST_F(SqliteRegistryTest, LockedDatabaseHasNoKeys) {
  ASSERT_TRUE(CanOpenKeys(path_));
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path_.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_FALSE(CanOpenKeys(path_));
  EXPECT_EQ(sqlite3_close(other), SQLITE_OK);
  EXPECT_TRUE(CanOpenKeys(path_));
}

TEST_F(SqliteRegistryTest, LockTakenLaterFailsReadingAndWriting) {
  SqliteRegistry registry(path_);
  ASSERT_TRUE(Store(registry, "Size", RegistryType::kDoubleWord, "1234"));
  RegistryKey* const key = registry.CreateKey(nullptr, kPath);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path_.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_FALSE(registry.FindValue(kPath, "Size").has_value());
  EXPECT_FALSE(registry.SetValue(key, "Size", RegistryType::kDoubleWord, "5678", 4));
  EXPECT_EQ(sqlite3_close(other), SQLITE_OK);
  EXPECT_EQ(registry.FindValue(kPath, "Size")->bytes, "1234");
  EXPECT_TRUE(registry.SetValue(key, "Size", RegistryType::kDoubleWord, "5678", 4));
}

// A file that a full disk or a bad sector has left behind may still open, but never does harm.
TEST_F(SqliteRegistryTest, SurvivesADamagedFile) {
  {
    SqliteRegistry registry(path_);
    ASSERT_TRUE(Store(registry, "Size", RegistryType::kDoubleWord, "1234"));
  }
  const std::string whole = ContentOf(path_);
  for (std::size_t length = 1; length < whole.size(); length += 509) {
    std::ofstream(path_, std::ios::binary | std::ios::trunc) << whole.substr(0, length);
    CanOpenKeys(path_);
  }
  for (std::size_t i = 0; i < whole.size(); i += 409) {
    std::string damaged = whole;
    damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
    std::ofstream(path_, std::ios::binary | std::ios::trunc) << damaged;
    SqliteRegistry registry(path_);
    Store(registry, "Size", RegistryType::kDoubleWord, "5678");
    static_cast<void>(registry.FindValue(kPath, "Size"));
  }
}

struct PathCase {
  std::optional<std::string> config_home;
  std::optional<std::string> home;
  std::string path;
};

TEST(UserSettingsPathTest, LiesInTheConfigurationFolderOfTheUser) {
  const PathCase cases[] = {
      {"/config", "/home/ann", "/config/orvane/settings.sqlite"},
      {std::nullopt, "/home/ann", "/home/ann/.config/orvane/settings.sqlite"},
      {"relative", "/home/ann", "/home/ann/.config/orvane/settings.sqlite"},
      {std::nullopt, std::nullopt, ""},
  };
  for (const PathCase& test_case : cases) {
    const EnvironmentVariable config_home("XDG_CONFIG_HOME", test_case.config_home);
    const EnvironmentVariable home("HOME", test_case.home);
    EXPECT_EQ(UserSettingsPath(), test_case.path);
  }
}

}  // namespace
}  // namespace host
