#include "store/sqlite/SqliteFunctions.h"

#include <cmath>
#include <string_view>

#include "store/sqlite/SqliteErrors.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

int compareTexts(void*, int sizeA, const void* a, int sizeB, const void* b) {
  return text::compare({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

std::string_view textOf(sqlite3_value* value) {
  const auto* s = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return s == nullptr ? std::string_view()
                      : std::string_view(s, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void val(sqlite3_context* context, int, sqlite3_value** args) {
  sqlite3_result_double(context, text::Val(textOf(args[0])));
}

/// Shared by CInt and CLng; the range is the function's own.
void whole(sqlite3_context* context, sqlite3_value* value, double low, double high) {
  if (sqlite3_value_type(value) == SQLITE_NULL) return sqlite3_result_null(context);
  if (sqlite3_value_type(value) == SQLITE_TEXT && !text::isNumeric(textOf(value))) {
    return sqlite3_result_error_code(context, SQLITE_MISMATCH);
  }
  const double n =
      std::nearbyint(sqlite3_value_type(value) == SQLITE_TEXT ? text::Val(textOf(value))
                                                              : sqlite3_value_double(value));
  if (n < low || n > high) return sqlite3_result_error_code(context, SQLITE_MISMATCH);
  sqlite3_result_int64(context, static_cast<sqlite3_int64>(n));
}

void cint(sqlite3_context* context, int, sqlite3_value** args) {
  whole(context, args[0], -32768, 32767);
}

void clng(sqlite3_context* context, int, sqlite3_value** args) {
  whole(context, args[0], -2147483648.0, 2147483647.0);
}

void cstr(sqlite3_context* context, int, sqlite3_value** args) {
  if (sqlite3_value_type(args[0]) == SQLITE_NULL) return sqlite3_result_null(context);
  const std::string_view s = textOf(args[0]);
  sqlite3_result_text(context, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
}

}  // namespace

void addFunctions(sqlite3* db) {
  check(sqlite3_create_collation_v2(db, "ES", SQLITE_UTF8, nullptr, compareTexts, nullptr), db);
  const struct {
    const char* name;
    void (*function)(sqlite3_context*, int, sqlite3_value**);
  } functions[] = {{"val", val}, {"cint", cint}, {"clng", clng}, {"cstr", cstr}};
  for (const auto& f : functions) {
    check(sqlite3_create_function_v2(db, f.name, 1,
                                     SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                                     f.function, nullptr, nullptr, nullptr),
          db);
  }
}

}  // namespace fidaleon::store
