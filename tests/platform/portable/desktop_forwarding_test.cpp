#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/desktop.h"
#include "platform/dialog.h"
#include "platform/file_dialog.h"
#include "platform/message_box.h"
#include "platform/registry.h"
#include "tests/support/fake_dialog.h"

// The platform's functions, with and without a desktop in use.

namespace platform {
namespace {

using testing::Return;
using testing::StrEq;

class MockRegistry : public Registry {
 public:
  virtual ~MockRegistry() = default;
  MOCK_METHOD(RegistryKey*, CreateKey, (RegistryKey*, const char*), (override));
  MOCK_METHOD(void, CloseKey, (RegistryKey*), (override));
  MOCK_METHOD(bool, QueryValue, (RegistryKey*, const char*, void*, std::size_t&), (override));
  MOCK_METHOD(bool, SetValue, (RegistryKey*, const char*, RegistryType, const void*, std::size_t),
              (override));
};

class MockDesktop : public Desktop {
 public:
  virtual ~MockDesktop() = default;
  MOCK_METHOD(int, ShowMessage, (const char*, const char*, MessageBoxStyle), (override));
  MOCK_METHOD(int, RunDialog, (HINSTANCE, int, HWND, DialogHandler&), (override));
  MOCK_METHOD(Dialog*, CreateModeless, (HINSTANCE, int, HWND, DialogHandler&), (override));
  MOCK_METHOD(void, ShowModeless, (Dialog&), (override));
  MOCK_METHOD(void, DestroyModeless, (Dialog&), (override));
  MOCK_METHOD(Dialog*, FindModeless, (HWND), (override));
  MOCK_METHOD(bool, ProcessPendingMessages, (bool), (override));
  MOCK_METHOD(bool, ChooseFiles, (const FileDialog&, char*, std::size_t, std::size_t&), (override));
  MOCK_METHOD(bool, ChooseFolder, (HWND, const char*, char*, std::size_t), (override));
};

class MockHandler : public DialogHandler {
 public:
  virtual ~MockHandler() = default;
  MOCK_METHOD(void, Initialize, (Dialog&), (override));
  MOCK_METHOD(void, Command, (Dialog&, int), (override));
};

class InstalledDesktopTest : public testing::Test {
 protected:
  InstalledDesktopTest() {
    InstallDesktop(&desktop_);
    InstallRegistry(&registry_);
  }
  ~InstalledDesktopTest() override {
    InstallRegistry(nullptr);
    InstallDesktop(nullptr);
  }

  testing::NiceMock<MockDesktop> desktop_;
  testing::StrictMock<MockRegistry> registry_;
};

// Handles are only passed on; any address will do.
template <typename Handle>
Handle Token(std::uintptr_t number) {
  return reinterpret_cast<Handle>(number);  // NOLINT(google-readability-casting)
}

TEST_F(InstalledDesktopTest, IsTheCurrentOne) {
  EXPECT_EQ(CurrentDesktop(), &desktop_);
  EXPECT_EQ(CurrentRegistry(), &registry_);
}

TEST_F(InstalledDesktopTest, ShowsMessages) {
  EXPECT_CALL(desktop_, ShowMessage(StrEq("text"), StrEq("title"), MessageBoxStyle::kYesNo))
      .WillOnce(Return(kMessageBoxYes));
  EXPECT_EQ(ShowMessageBox("text", "title", MessageBoxStyle::kYesNo), kMessageBoxYes);
}

TEST_F(InstalledDesktopTest, RunsDialogs) {
  testing::StrictMock<MockHandler> handler;
  EXPECT_CALL(desktop_, RunDialog(Token<HINSTANCE>(8), 107, Token<HWND>(16), testing::Ref(handler)))
      .WillOnce(Return(5));
  EXPECT_EQ(RunModalDialog(Token<HINSTANCE>(8), 107, Token<HWND>(16), handler), 5);
}

TEST_F(InstalledDesktopTest, KeepsModelessDialogsUntilTheyAreLetGo) {
  testing::StrictMock<MockHandler> handler;
  test::FakeDialog dialog;
  EXPECT_CALL(desktop_,
              CreateModeless(Token<HINSTANCE>(8), 117, Token<HWND>(16), testing::Ref(handler)))
      .WillOnce(Return(&dialog));
  EXPECT_CALL(desktop_, ShowModeless(testing::Ref(dialog)));
  const ModelessDialog owner =
      CreateModelessDialog(Token<HINSTANCE>(8), 117, Token<HWND>(16), handler);
  EXPECT_EQ(owner.get(), &dialog);
  ShowModelessDialog(*owner);
  EXPECT_CALL(desktop_, DestroyModeless(testing::Ref(dialog)));
}

TEST_F(InstalledDesktopTest, AModelessDialogThatIsNotCreatedIsNull) {
  testing::StrictMock<MockHandler> handler;
  EXPECT_CALL(desktop_, CreateModeless).WillOnce(Return(nullptr));
  EXPECT_EQ(CreateModelessDialog(nullptr, 117, nullptr, handler), nullptr);
}

TEST_F(InstalledDesktopTest, TurnsMessagesIntoCallsOnAHandler) {
  testing::StrictMock<MockHandler> handler;
  test::FakeDialog dialog;
  const auto window = Token<HWND>(16);
  const std::intptr_t parameter = HandlerParameter(handler);
  ON_CALL(desktop_, FindModeless(window)).WillByDefault(Return(&dialog));
  EXPECT_CALL(handler, Initialize(testing::Ref(dialog)));
  EXPECT_NE(HandlerProcedure()(window, kInitializeDialog, 0, parameter), 0);
  EXPECT_CALL(handler, Command(testing::Ref(dialog), 1203));
  EXPECT_NE(HandlerProcedure()(window, kDialogCommand, 1203, parameter), 0);
  EXPECT_EQ(HandlerProcedure()(Token<HWND>(24), kDialogCommand, 1203, parameter), 0)
      << "another window";
}

TEST_F(InstalledDesktopTest, ChoosesFilesAndFolders) {
  const FileDialog dialog;
  std::array<char, 8> buffer{};
  std::size_t name_offset = 0;
  EXPECT_CALL(desktop_, ChooseFiles(testing::Ref(dialog), buffer.data(), 8U, testing::_))
      .WillOnce(testing::DoAll(testing::SetArgReferee<3>(5), Return(true)));
  EXPECT_TRUE(ChooseFiles(dialog, buffer.data(), buffer.size(), name_offset));
  EXPECT_EQ(name_offset, 5U);
  EXPECT_CALL(desktop_, ChooseFolder(Token<HWND>(16), StrEq("title"), buffer.data(), 8U))
      .WillOnce(Return(true));
  EXPECT_TRUE(ChooseFolder(Token<HWND>(16), "title", buffer.data(), buffer.size()));
}

TEST_F(InstalledDesktopTest, IsJoinedByARegistry) {
  auto* const key = Token<RegistryKey*>(8);
  int value = 0;
  std::size_t size = sizeof(value);
  EXPECT_CALL(registry_, CreateKey(nullptr, StrEq("path"))).WillOnce(Return(key));
  EXPECT_CALL(registry_, QueryValue(key, StrEq("name"), &value, testing::Ref(size)))
      .WillOnce(Return(true));
  EXPECT_CALL(registry_, SetValue(key, StrEq("name"), RegistryType::kBinary, &value, size))
      .WillOnce(Return(true));
  EXPECT_CALL(registry_, CloseKey(key));

  EXPECT_EQ(CreateRegistryKey(nullptr, "path"), key);
  EXPECT_TRUE(QueryRegistryValue(key, "name", &value, size));
  EXPECT_TRUE(SetRegistryValue(key, "name", RegistryType::kBinary, &value, size));
  CloseRegistryKey(key);
}

TEST(NoDesktopTest, EverythingReportsFailure) {
  ASSERT_EQ(CurrentDesktop(), nullptr);
  ASSERT_EQ(CurrentRegistry(), nullptr);
  testing::StrictMock<MockHandler> handler;
  int value = 3;
  std::size_t size = sizeof(value);
  EXPECT_EQ(ShowMessageBox("text", "title", MessageBoxStyle::kOk), kMessageBoxFailed);
  EXPECT_EQ(RunModalDialog(nullptr, 107, nullptr, handler), kDialogNotCreated);
  EXPECT_EQ(CreateModelessDialog(nullptr, 117, nullptr, handler), nullptr);
  test::FakeDialog dialog;
  ShowModelessDialog(dialog);
  DestroyModelessDialog(&dialog);
  DestroyModelessDialog(nullptr);
  EXPECT_EQ(HandlerProcedure()(nullptr, kDialogCommand, 3, HandlerParameter(handler)), 0);
  std::array<char, 8> buffer{};
  std::size_t name_offset = 0;
  EXPECT_FALSE(ChooseFiles({}, buffer.data(), buffer.size(), name_offset));
  EXPECT_FALSE(ChooseFolder(nullptr, "title", buffer.data(), buffer.size()));
  EXPECT_EQ(CreateRegistryKey(nullptr, "path"), nullptr);
  EXPECT_FALSE(QueryRegistryValue(nullptr, "name", &value, size));
  EXPECT_FALSE(SetRegistryValue(nullptr, "name", RegistryType::kBinary, &value, size));
  CloseRegistryKey(nullptr);
  EXPECT_EQ(value, 3);
  EXPECT_EQ(size, sizeof(value));
}

}  // namespace
}  // namespace platform
