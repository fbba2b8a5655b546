#pragma once

#include <cstdint>
#include <string>

#include "plugin/services/settings_store.h"

// Records of the user's choices that are kept between runs of the host. One list of the fields says
// for loading and saving alike which of them are kept, under which names and in which forms.
namespace orvane {

// Takes the fields of a record to its store or from there, as they are listed. Failures are silent:
// a field that cannot be read keeps its value.
class StoredFields {
 public:
  enum class Way { kLoad, kSave };

  // Both `store` and the listed fields must outlive this object.
  StoredFields(SettingsStore& store, Way way) : store_(store), saves_(way == Way::kSave) {}

  // The forms are those of SettingsStore.
  void Flag(const char* name, bool& field);
  void Int(const char* name, std::int32_t& field);
  void Float(const char* name, float& field);
  void Double(const char* name, double& field);
  void String(const char* name, std::string& field);

  // Intended: stored in four bytes, read as eight. Those four replace the low bytes of the number
  // in memory, which keeps its high ones, and with them nearly its value.
  void DoubleSavedAsFloat(const char* name, double& field);

 private:
  SettingsStore& store_;
  bool saves_;
};

class StoredRecord {
 public:
  StoredRecord(const StoredRecord&) = delete;
  StoredRecord& operator=(const StoredRecord&) = delete;

  // Reads the stored fields; one that is not stored keeps its value.
  void Load();

  // Writes the stored fields. Failures are silent.
  void Save();

 protected:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\<owner>; reads nothing. When the key cannot
  // be opened the record works in memory only.
  explicit StoredRecord(const char* owner);
  ~StoredRecord() = default;

 private:
  // Tells `fields` each field that is stored, in the order of loading and saving.
  virtual void ListStored(StoredFields& fields) = 0;

  SettingsStore store_;
};

}  // namespace orvane
