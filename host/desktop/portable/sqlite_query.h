#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>

// SQLite's connections and statements as values that clean up after themselves. Nothing throws: a
// failure is a null pointer, or a result code of SQLite's.

namespace host {

struct SqliteDeleter {
  void operator()(sqlite3* connection) const { sqlite3_close(connection); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using SqliteConnection = std::unique_ptr<sqlite3, SqliteDeleter>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, SqliteDeleter>;

// Opens the database `path`, and makes an empty one where there is none. A database that somebody
// else has locked will be waited for, but not long. Returns null on failure.
[[nodiscard]] SqliteConnection OpenSqlite(const std::string& path);

// Prepares `sql` for repeated use. Returns null on failure. The connection must outlive it.
[[nodiscard]] SqliteStatement PrepareSqlite(sqlite3* connection, const char* sql);

// One run of a prepared statement: binds parameters from the first to the last, steps, reads
// columns. The statement is ready for the next run when the query is gone.
class SqliteQuery {
 public:
  explicit SqliteQuery(const SqliteStatement& statement) : statement_(statement.get()) {}
  SqliteQuery(const SqliteQuery&) = delete;
  SqliteQuery& operator=(const SqliteQuery&) = delete;
  ~SqliteQuery() { sqlite3_reset(statement_); }

  // The next parameter. Texts and bytes are not copied: they must outlive the query.
  SqliteQuery& BindText(const std::string& text);
  SqliteQuery& BindBytes(const std::string& bytes);
  SqliteQuery& BindInteger(std::int64_t number);

  // SQLITE_ROW with a row to read, SQLITE_DONE at the end, an error otherwise.
  int Step() { return sqlite3_step(statement_); }

  // Columns of the current row, counted from 0.
  std::string Bytes(int column);
  std::int64_t Integer(int column) { return sqlite3_column_int64(statement_, column); }

 private:
  sqlite3_stmt* statement_;
  int bound_ = 0;
};

}  // namespace host
