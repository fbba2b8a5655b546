#pragma once

#include <string>
#include <utility>

#include "sdk/core/object.h"
#include "sdk/paramblk2/parameter_block.h"
#include "tests/support/posix/journal/journal.h"

namespace test {

// By how much the index of a primitive's parameter within its block is another number than the
// parameter has: not every host counts them alike.
inline constexpr int kIndexElsewhere = 20;

// An object of the host, as a plug-in sees it while a journal is kept.
class JournalObject {
 public:
  // `own` is the host's. Both outlive this object, or are not used any more.
  JournalObject(Journal& journal, Object& own, std::string name)
      : journal_(journal), own_(own), name_(std::move(name)) {}
  JournalObject(const JournalObject&) = delete;
  JournalObject& operator=(const JournalObject&) = delete;
  virtual ~JournalObject() = default;

  virtual Object& AsObject() = 0;

  Object& Own() { return own_; }
  void SetName(const std::string& name) { name_ = name; }

 protected:
  void NoteDeletion() { journal_.Note(name_, " delete"); }
  IParamBlock* Primitive() { return own_.GetParamBlock() == nullptr ? nullptr : &primitive_; }
  ParameterBlock* Bone() { return own_.GetFirstParameterBlock() == nullptr ? nullptr : &bone_; }
  int AskedIndex(int i);
  void NoteBox(const Box3& box) { journal_.Note(name_, " box ", box); }

 private:
  class PrimitiveParameters final : public IParamBlock {
   public:
    explicit PrimitiveParameters(JournalObject& object) : object_(object) {}
    bool SetValue(int index, TimeValue time, float value) override;
    bool SetValue(int index, TimeValue time, int value) override;

   private:
    JournalObject& object_;
  };

  class BoneParameters final : public ParameterBlock {
   public:
    explicit BoneParameters(JournalObject& object) : object_(object) {}
    bool SetValue(int index, TimeValue time, float value) override;
    float GetFloat(int index, TimeValue time) override;

   private:
    JournalObject& object_;
  };

  Journal& journal_;
  Object& own_;
  std::string name_;
  PrimitiveParameters primitive_{*this};
  BoneParameters bone_{*this};
};

// The same as the SDK's class for it: Object, or DummyObject.
template <typename Base>
class JournalObjectOf : public Base, public JournalObject {
 public:
  JournalObjectOf(Journal& journal, Base& own, const std::string& name)
      : JournalObject(journal, own, name) {}

  Object& AsObject() final { return *this; }

  ClassId ClassID() final { return Own().ClassID(); }
  SuperClassId SuperClassID() final { return Own().SuperClassID(); }
  void Delete() final {
    NoteDeletion();
    Own().Delete();
  }
  IParamBlock* GetParamBlock() final { return Primitive(); }
  int GetParamBlockIndex(int i) final { return AskedIndex(i); }
  ParameterBlock* GetFirstParameterBlock() final { return Bone(); }
};

class JournalDummy final : public JournalObjectOf<DummyObject> {
 public:
  using JournalObjectOf::JournalObjectOf;

  void SetBox(const Box3& box) override {
    NoteBox(box);
    static_cast<DummyObject&>(Own()).SetBox(box);
  }
};

}  // namespace test
