#include "host/desktop/portable/sqlite_registry.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "host/desktop/portable/sqlite_query.h"
#include "platform/portable/user_file.h"

namespace host {
namespace {

constexpr const char* kSchema =
    "CREATE TABLE IF NOT EXISTS registry_key (path TEXT NOT NULL PRIMARY KEY) WITHOUT ROWID;"
    "CREATE TABLE IF NOT EXISTS registry_value ("
    "  path TEXT NOT NULL REFERENCES registry_key,"
    "  name TEXT NOT NULL,"
    "  type INTEGER NOT NULL,"
    "  bytes BLOB NOT NULL,"
    "  PRIMARY KEY (path, name)) WITHOUT ROWID;";

constexpr const char* kMakeKey = "INSERT OR IGNORE INTO registry_key (path) VALUES (?)";

constexpr const char* kFindValue =
    "SELECT type, bytes FROM registry_value WHERE path = ? AND name = ?";

constexpr const char* kStoreValue =
    "INSERT OR REPLACE INTO registry_value (path, name, type, bytes) VALUES (?, ?, ?, ?)";

void MakeFolderOf(const std::string& path) {
  std::error_code ignored;  // a folder that cannot be made shows when the file is opened
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
}

}  // namespace

// The open database, with the statements in use.
struct SqliteRegistry::Database {
  SqliteConnection connection;
  SqliteStatement make_key;
  SqliteStatement find_value;
  SqliteStatement store_value;

  // Returns null unless all of it could be had.
  static std::unique_ptr<Database> Open(const std::string& path);
};

std::unique_ptr<SqliteRegistry::Database> SqliteRegistry::Database::Open(const std::string& path) {
  if (path.empty()) return nullptr;  // SQLite would take a temporary one
  MakeFolderOf(path);
  SqliteConnection connection = OpenSqlite(path);
  if (connection == nullptr) return nullptr;
  sqlite3* const handle = connection.get();
  if (sqlite3_exec(handle, kSchema, nullptr, nullptr, nullptr) != SQLITE_OK) return nullptr;

  auto database = std::make_unique<Database>();
  database->connection = std::move(connection);
  database->make_key = PrepareSqlite(handle, kMakeKey);
  database->find_value = PrepareSqlite(handle, kFindValue);
  database->store_value = PrepareSqlite(handle, kStoreValue);
  const bool is_ready = database->make_key && database->find_value && database->store_value;
  return is_ready ? std::move(database) : nullptr;
}

SqliteRegistry::SqliteRegistry(const std::string& path) : database_(Database::Open(path)) {}

SqliteRegistry::~SqliteRegistry() = default;

bool SqliteRegistry::MakeKey(const std::string& path) {
  return database_ && SqliteQuery(database_->make_key).BindText(path).Step() == SQLITE_DONE;
}

std::optional<RegistryValue> SqliteRegistry::FindValue(const std::string& path,
                                                       const std::string& name) {
  if (!database_) return {};
  SqliteQuery query(database_->find_value);
  if (query.BindText(path).BindText(name).Step() != SQLITE_ROW) return {};
  return RegistryValue{static_cast<platform::RegistryType>(query.Integer(0)), query.Bytes(1)};
}

bool SqliteRegistry::StoreValue(const std::string& path, const std::string& name,
                                RegistryValue value) {
  SqliteQuery query(database_->store_value);
  query.BindText(path).BindText(name).BindInteger(static_cast<std::int64_t>(value.type));
  return query.BindBytes(value.bytes).Step() == SQLITE_DONE;
}

std::string UserSettingsPath() {
  return platform::UserFile("XDG_CONFIG_HOME", ".config", "settings.sqlite");
}

}  // namespace host
