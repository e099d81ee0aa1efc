#include "parish/legacy/LegacyTables.h"

#include <set>

#include "dbase/Folder.h"
#include "import/Traductor.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

namespace {

constexpr int kDeepest = 2;

const RegistroInpar& legacyRegister(std::size_t which) {
  const std::array all = {&inparBautismo(), &inparConfirmacion(), &inparMatrimonio(),
                          &inparDefuncion()};
  return *all[which];
}

fs::path tableIn(const fs::path& folder, std::size_t which) {
  return folder / (legacyRegister(which).tabla + ".DBF");
}

bool hasTable(const fs::path& folder, std::size_t which) {
  try {
    return dbase::locate(tableIn(folder, which)).has_value();
  } catch (const dbase::Error&) {
    return false;
  }
}

/// The columns that are told apart into name and surnames.
std::set<std::string> fullNameColumns(std::size_t which) {
  std::set<std::string> columns;
  for (const TablaDestino& table : legacyRegister(which).tablas)
    for (const Destino& target : table.columnas)
      if (target.origen == Origen::Nombre) columns.insert(target.fuente);
  return columns;
}

}  // namespace

std::array<fs::path, 4> findLegacyTables(const fs::path& folder) {
  std::vector<fs::path> folders = {folder};
  std::error_code failed;
  fs::recursive_directory_iterator below(folder, fs::directory_options::skip_permission_denied,
                                         failed);
  for (const fs::recursive_directory_iterator end; !failed && below != end;
       below.increment(failed)) {
    std::error_code ignored;
    if (below->is_directory(ignored)) folders.push_back(below->path());
    if (below.depth() + 1 >= kDeepest) below.disable_recursion_pending();
  }
  std::array<fs::path, 4> found;
  for (std::size_t which = 0; which < found.size(); ++which) {
    int times = 0;
    for (const fs::path& one : folders)
      if (hasTable(one, which) && ++times == 1) found[which] = one;
    if (times != 1) found[which].clear();
  }
  return found;
}

LegacyGlance glanceAt(const fs::path& folder, std::size_t which, const std::string& codePage,
                      std::size_t most) {
  LegacyGlance glance;
  try {
    dbase::Table table = dbase::Table::open(tableIn(folder, which), codePage, {});
    glance.codePage = table.codePage();
    for (const dbase::Field& field : table.fields()) glance.titles.push_back(field.name);
    for (dbase::Row row; glance.rows.size() < most && table.next(row);) {
      std::vector<std::string>& cells = glance.rows.emplace_back();
      for (std::size_t i = 0; i < row.size(); ++i) cells.push_back(textoDe(row[i]));
    }
  } catch (const dbase::Error& error) {
    glance.refusal = error.what();
  }
  return glance;
}

std::vector<std::string> fullNamesIn(const fs::path& folder, std::size_t which,
                                     const std::string& codePage, std::size_t most) {
  std::vector<std::string> names;
  try {
    dbase::Table table = dbase::Table::open(tableIn(folder, which), codePage, {});
    std::vector<std::size_t> columns;
    for (const std::string& column : fullNameColumns(which))
      if (const auto place = table.find(column)) columns.push_back(*place);
    table.only(columns);
    for (dbase::Row row; names.size() < most && table.next(row);)
      for (const std::size_t column : columns) {
        const std::string name = textoDe(row[column]);
        if (names.size() < most && name.find(' ') != std::string::npos) names.push_back(name);
      }
  } catch (const dbase::Error&) {
    // The glance at the table tells.
  }
  return names;
}

}  // namespace fidaleon::app
