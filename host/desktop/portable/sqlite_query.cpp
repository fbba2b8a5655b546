#include "host/desktop/portable/sqlite_query.h"

namespace host {
namespace {

constexpr int kLockTimeoutMilliseconds = 250;

}  // namespace

SqliteConnection OpenSqlite(const std::string& path) {
  sqlite3* opened = nullptr;
  const int result =
      sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  SqliteConnection connection(opened);  // to be closed even if opening failed
  if (result != SQLITE_OK) return nullptr;
  sqlite3_busy_timeout(opened, kLockTimeoutMilliseconds);
  return connection;
}

SqliteStatement PrepareSqlite(sqlite3* connection, const char* sql) {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(connection, sql, -1, &prepared, nullptr);
  return SqliteStatement(prepared);
}

SqliteQuery& SqliteQuery::BindText(const std::string& text) {
  sqlite3_bind_text64(statement_, ++bound_, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
  return *this;
}

SqliteQuery& SqliteQuery::BindBytes(const std::string& bytes) {
  sqlite3_bind_blob64(statement_, ++bound_, bytes.data(), bytes.size(), SQLITE_STATIC);
  return *this;
}

SqliteQuery& SqliteQuery::BindInteger(std::int64_t number) {
  sqlite3_bind_int64(statement_, ++bound_, number);
  return *this;
}

std::string SqliteQuery::Bytes(int column) {
  const void* const bytes = sqlite3_column_blob(statement_, column);
  const int size = sqlite3_column_bytes(statement_, column);
  return bytes == nullptr
             ? std::string()
             : std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size));
}

}  // namespace host
