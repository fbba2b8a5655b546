#include "host/base/instance_pool.h"

#include <gtest/gtest.h>

#include <memory>

namespace host {
namespace {

// Counts how many of it are alive.
class Counted : public Instance {
 public:
  explicit Counted(int& alive) : alive_(alive) { ++alive_; }
  ~Counted() override { --alive_; }

 private:
  int& alive_;
};

class Other : public Instance {};

class InstancePoolTest : public testing::Test {
 protected:
  int alive_ = 0;
  MisuseLog misuse_;
  InstancePool pool_{misuse_};
};

TEST_F(InstancePoolTest, KeepsWhatIsAdded) {
  pool_.Add(std::make_unique<Counted>(alive_));
  EXPECT_EQ(pool_.Size(), 1U);
  EXPECT_EQ(alive_, 1);
}

TEST_F(InstancePoolTest, DestroysWhatIsDiscarded) {
  pool_.Discard(pool_.Add(std::make_unique<Counted>(alive_)));
  EXPECT_EQ(pool_.Size(), 0U);
  EXPECT_EQ(alive_, 0);
  EXPECT_EQ(misuse_.Count(), 0U);
}

TEST_F(InstancePoolTest, HandsOverWhatIsTaken) {
  Instance* added = pool_.Add(std::make_unique<Counted>(alive_));
  const std::unique_ptr<Counted> taken = pool_.Take<Counted>(added);
  EXPECT_EQ(taken.get(), added);
  EXPECT_EQ(pool_.Size(), 0U);
  EXPECT_EQ(alive_, 1);
}

TEST_F(InstancePoolTest, NotesATakeOfAnotherKindAndKeepsIt) {
  Instance* added = pool_.Add(std::make_unique<Counted>(alive_));
  EXPECT_EQ(pool_.Take<Other>(added), nullptr);
  EXPECT_EQ(pool_.Size(), 1U);
  EXPECT_EQ(misuse_.Count(), 1U);
}

TEST_F(InstancePoolTest, NotesWhatItDoesNotHold) {
  const auto outside = std::make_unique<Counted>(alive_);
  pool_.Discard(outside.get());
  EXPECT_EQ(pool_.Take<Counted>(outside.get()), nullptr);
  EXPECT_EQ(pool_.Take<Counted>(static_cast<Instance*>(nullptr)), nullptr);
  EXPECT_EQ(misuse_.Count(), 3U);
  EXPECT_EQ(alive_, 1);
}

TEST_F(InstancePoolTest, DestroysWhatIsLeftAtItsEnd) {
  {
    InstancePool pool(misuse_);
    pool.Add(std::make_unique<Counted>(alive_));
    pool.Add(std::make_unique<Counted>(alive_));
    EXPECT_EQ(alive_, 2);
  }
  EXPECT_EQ(alive_, 0);
}

}  // namespace
}  // namespace host
