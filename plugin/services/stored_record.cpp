#include "plugin/services/stored_record.h"

namespace orvane {

void StoredFields::Flag(const char* name, bool& field) {
  saves_ ? store_.WriteFlag(name, field) : store_.ReadFlag(name, field);
}

void StoredFields::Int(const char* name, std::int32_t& field) {
  saves_ ? store_.WriteInt(name, field) : store_.ReadInt(name, field);
}

void StoredFields::Float(const char* name, float& field) {
  saves_ ? store_.WriteFloat(name, field) : store_.ReadFloat(name, field);
}

void StoredFields::Double(const char* name, double& field) {
  saves_ ? store_.WriteDouble(name, field) : store_.ReadDouble(name, field);
}

void StoredFields::String(const char* name, std::string& field) {
  saves_ ? store_.WriteString(name, field) : store_.ReadString(name, field);
}

void StoredFields::DoubleSavedAsFloat(const char* name, double& field) {
  saves_ ? store_.WriteFloat(name, static_cast<float>(field)) : store_.ReadDouble(name, field);
}

StoredRecord::StoredRecord(const char* owner) { store_.Open("OrvaneFileIO", "Skelder", owner); }

void StoredRecord::Load() {
  StoredFields fields(store_, StoredFields::Way::kLoad);
  ListStored(fields);
}

void StoredRecord::Save() {
  StoredFields fields(store_, StoredFields::Way::kSave);
  ListStored(fields);
}

}  // namespace orvane
