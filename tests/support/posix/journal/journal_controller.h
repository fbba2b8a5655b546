#pragma once

#include <string>
#include <utility>

#include "sdk/core/node.h"

namespace test {

class JournalScene;

// A controller of the host, as a plug-in sees it while a journal is kept.
class JournalController final : public Control {
 public:
  // `own` is the host's. Both outlive this object, or are not used any more.
  JournalController(JournalScene& scene, Control& own, std::string name)
      : scene_(scene), own_(own), name_(std::move(name)) {}
  JournalController(const JournalController&) = delete;
  JournalController& operator=(const JournalController&) = delete;

  Control& Own() { return own_; }

  // Says which `part` of the host's node `owner` it is.
  void SetOwner(INode& owner, const char* part) {
    owner_ = &owner;
    name_ = part;
  }

  ClassId ClassID() override { return own_.ClassID(); }
  SuperClassId SuperClassID() override { return own_.SuperClassID(); }
  void Delete() override;
  Control* GetPositionController() override;
  Control* GetRotationController() override;
  bool SetRotationController(Control* rotation) override;
  int CanAcceptValue() override;
  void SetValue(TimeValue time, const void* value, int commit, SetMethod method) override;
  void DeleteKeyAt(TimeValue time) override;
  void CopyFrom(Control* source) override;

 private:
  std::string Name() const;

  JournalScene& scene_;
  Control& own_;
  INode* owner_ = nullptr;
  std::string name_;
};

}  // namespace test
