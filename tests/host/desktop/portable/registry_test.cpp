#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include "host/desktop/portable/memory_registry.h"
#include "host/desktop/portable/sqlite_registry.h"
#include "tests/support/temporary_folder.h"

// What every registry promises, held against all of them.

namespace host {
namespace {

using platform::RegistryKey;
using platform::RegistryType;
using testing::ElementsAre;
using testing::IsEmpty;

// A registry and what it needs around it.
class World {
 public:
  virtual ~World() = default;
  virtual KeyedRegistry& Registry() = 0;
};

class MemoryWorld final : public World {
 public:
  KeyedRegistry& Registry() override { return registry_; }

 private:
  MemoryRegistry registry_;
};

class SqliteWorld final : public World {
 public:
  KeyedRegistry& Registry() override { return registry_; }

 private:
  test::TemporaryFolder folder_;
  SqliteRegistry registry_{folder_.File("settings.sqlite")};
};

template <typename Kind>
std::unique_ptr<World> Make() {
  return std::make_unique<Kind>();
}

struct WorldKind {
  const char* name;
  std::unique_ptr<World> (*make)();
};

class RegistryTest : public testing::TestWithParam<WorldKind> {
 protected:
  RegistryKey* Open(RegistryKey* parent, const char* path) {
    return registry_.CreateKey(parent, path);
  }

  bool Set(RegistryKey* key, const char* name, const std::string& bytes,
           RegistryType type = RegistryType::kBinary) {
    return registry_.SetValue(key, name, type, bytes.data(), bytes.size());
  }

  // The bytes of a value, read with room for `room` bytes; "failed" when it cannot be read.
  // Nothing else in the buffer may change.
  std::string Query(RegistryKey* key, const char* name, std::size_t room) {
    std::array<char, 16> buffer;
    buffer.fill('#');
    std::size_t size = room;
    const bool found = registry_.QueryValue(key, name, buffer.data(), size);
    EXPECT_TRUE(found || size == room) << "a failed query changed the size";
    EXPECT_EQ(buffer.at(found ? size : 0), '#') << "bytes changed that are not the value's";
    return found ? std::string(buffer.data(), size) : "failed";
  }

  std::unique_ptr<World> world_ = GetParam().make();
  KeyedRegistry& registry_ = world_->Registry();
};

INSTANTIATE_TEST_SUITE_P(All, RegistryTest,
                         testing::Values(WorldKind{"Memory", &Make<MemoryWorld>},
                                         WorldKind{"Sqlite", &Make<SqliteWorld>}),
                         [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(RegistryTest, OpensKeysLevelByLevelAndAtOnce) {
  RegistryKey* const top = Open(nullptr, "Software\\Orvane");
  ASSERT_NE(top, nullptr);
  RegistryKey* const deep = Open(top, "Skelder");
  RegistryKey* const same = Open(nullptr, "Software\\Orvane\\Skelder");
  ASSERT_NE(deep, nullptr);
  ASSERT_NE(same, nullptr);
  EXPECT_TRUE(Set(deep, "Size", "1234"));
  EXPECT_EQ(Query(same, "Size", 4), "1234");
  EXPECT_EQ(Query(top, "Size", 4), "failed");
}

TEST_P(RegistryTest, KeepsValuesOfKeysApart) {
  RegistryKey* const importer = Open(nullptr, "Orvane\\ImportHTR");
  RegistryKey* const exporter = Open(nullptr, "Orvane\\ExportHTR");
  EXPECT_TRUE(Set(importer, "Range", "a"));
  EXPECT_TRUE(Set(exporter, "Range", "b"));
  EXPECT_TRUE(Set(importer, "Other", "c"));
  EXPECT_EQ(Query(importer, "Range", 4), "a");
  EXPECT_EQ(Query(exporter, "Range", 4), "b");
  EXPECT_EQ(Query(exporter, "Other", 4), "failed");
}

TEST_P(RegistryTest, AbsentValueFailsAndChangesNothing) {
  EXPECT_EQ(Query(Open(nullptr, "Orvane"), "Size", 4), "failed");
}

TEST_P(RegistryTest, ValueLongerThanAskedFailsAndChangesNothing) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  ASSERT_TRUE(Set(key, "Size", "12345678"));
  EXPECT_EQ(Query(key, "Size", 7), "failed");
  EXPECT_EQ(Query(key, "Size", 0), "failed");
  EXPECT_EQ(Query(key, "Size", 8), "12345678");
}

TEST_P(RegistryTest, ShorterValueFillsItsBytes) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  ASSERT_TRUE(Set(key, "Flag", "1"));
  EXPECT_EQ(Query(key, "Flag", 4), "1");
}

TEST_P(RegistryTest, EmptyValueIsAValue) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  EXPECT_TRUE(registry_.SetValue(key, "Text", RegistryType::kString, nullptr, 0));
  EXPECT_EQ(Query(key, "Text", 4), "");
  EXPECT_EQ(Query(key, "Text", 0), "");
}

TEST_P(RegistryTest, KeepsEveryByteAndTheTypeOfAValue) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  const std::string bytes("\0\x80\xFF'\n\0", 6);
  for (const RegistryType type : {RegistryType::kString, RegistryType::kBinary,
                                  RegistryType::kDoubleWord, RegistryType::kQuadWord}) {
    ASSERT_TRUE(Set(key, "Value", bytes, type));
    const auto value = registry_.FindValue("Orvane", "Value");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->type, type);
    EXPECT_EQ(value->bytes, bytes);
  }
}

TEST_P(RegistryTest, NewValueReplacesTheFormerWithItsType) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  ASSERT_TRUE(Set(key, "Value", "long text", RegistryType::kString));
  ASSERT_TRUE(Set(key, "Value", "1", RegistryType::kBinary));
  EXPECT_EQ(Query(key, "Value", 16 - 1), "1");
  EXPECT_EQ(registry_.FindValue("Orvane", "Value")->type, RegistryType::kBinary);
}

TEST_P(RegistryTest, ComparesNamesByteByByte) {
  RegistryKey* const key = Open(nullptr, "Orvane");
  ASSERT_TRUE(Set(key, "Size", "1"));
  EXPECT_EQ(Query(key, "size", 4), "failed");
  EXPECT_EQ(Query(key, "Size ", 4), "failed");
  EXPECT_FALSE(registry_.FindValue("orvane", "Size").has_value());
}

TEST_P(RegistryTest, TellsWhichKeysAreOpen) {
  EXPECT_THAT(registry_.OpenKeys(), IsEmpty());
  RegistryKey* const second = Open(nullptr, "B");
  RegistryKey* const first = Open(nullptr, "A\\C");
  RegistryKey* const twice = Open(nullptr, "B");
  EXPECT_THAT(registry_.OpenKeys(), ElementsAre("A\\C", "B", "B"));
  registry_.CloseKey(second);
  registry_.CloseKey(first);
  EXPECT_THAT(registry_.OpenKeys(), ElementsAre("B"));
  registry_.CloseKey(twice);
  EXPECT_THAT(registry_.OpenKeys(), IsEmpty());
}

TEST_P(RegistryTest, RefusesKeysThatAreNotOpen) {
  RegistryKey* const closed = Open(nullptr, "Orvane");
  registry_.CloseKey(closed);
  MemoryRegistry other;
  RegistryKey* const foreign = other.CreateKey(nullptr, "Orvane");
  for (RegistryKey* const key : {closed, foreign}) {
    EXPECT_FALSE(Set(key, "Value", "1"));
    EXPECT_EQ(Query(key, "Value", 4), "failed");
    EXPECT_EQ(Open(key, "Below"), nullptr);
    registry_.CloseKey(key);
  }
  EXPECT_FALSE(Set(nullptr, "Value", "1"));
  EXPECT_EQ(Query(nullptr, "Value", 4), "failed");
  registry_.CloseKey(nullptr);
  EXPECT_THAT(registry_.OpenKeys(), IsEmpty());
}

TEST(MemoryRegistryTest, KnowsWhichKeysExist) {
  MemoryRegistry registry;
  registry.CloseKey(registry.CreateKey(nullptr, "Software\\Orvane\\Skelder"));
  EXPECT_TRUE(registry.HasKey("Software"));
  EXPECT_TRUE(registry.HasKey("Software\\Orvane"));
  EXPECT_TRUE(registry.HasKey("Software\\Orvane\\Skelder"));
  EXPECT_FALSE(registry.HasKey("Software\\Orvane\\Skelder\\ImportHTR"));
  EXPECT_FALSE(registry.HasKey("Orvane"));
}

TEST(MemoryRegistryTest, RefusesAKeyAndWhatLiesBeneathIt) {
  MemoryRegistry registry;
  registry.RefuseKey("Software\\Orvane");
  EXPECT_EQ(registry.CreateKey(nullptr, "Software\\Orvane"), nullptr);
  EXPECT_EQ(registry.CreateKey(nullptr, "Software\\Orvane\\Skelder"), nullptr);
  EXPECT_NE(registry.CreateKey(nullptr, "Software"), nullptr);
  EXPECT_NE(registry.CreateKey(nullptr, "Software\\OrvaneToo"), nullptr);
  EXPECT_FALSE(registry.HasKey("Software\\Orvane"));
}

}  // namespace
}  // namespace host
