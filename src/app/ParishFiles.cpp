#include "app/ParishFiles.h"

#include <unistd.h>

#include <array>
#include <fstream>

#include "core/contract/FDAPI.h"
#include "store/Open.h"

namespace fidaleon::app {
namespace {

struct Edition {
  const char* code;
  const char* name;
};

constexpr std::array<Edition, 4> EDITIONS{{
    {FDAPI::cCAplicacion::APP_FIDALEON_MADRID, "Madrid"},
    {FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO, "Santiago"},
    {FDAPI::cCAplicacion::APP_FIDALEON_ZARAGOZA, "Zaragoza"},
    {FDAPI::cCAplicacion::APP_FIDALEON_MENORCA, "Menorca"},
}};

std::string workstation() {
  char name[256] = {};
  return gethostname(name, sizeof name - 1) == 0 && name[0] ? name : "local";
}

std::filesystem::path freeName(const std::filesystem::path& file) {
  for (int n = 1;; ++n) {
    std::filesystem::path aside = file;
    aside += ".estropeada-" + std::to_string(n);
    if (!std::filesystem::exists(aside)) return aside;
  }
}

void openReports(const std::filesystem::path& file, OpenParish& open) {
  const store::Schema& schema = store::reportsSchema();
  try {
    open.reports = std::filesystem::exists(file) ? store::openDatabase(file, schema)
                                                 : store::createDatabase(file, schema);
  } catch (const store::Error& e) {
    using Kind = store::ErrorKind;
    if (e.kind() != Kind::NotADatabase && e.kind() != Kind::NewerSchema &&
        e.kind() != Kind::UnknownName && e.kind() != Kind::Other)
      throw;
    open.reportsPutAside = freeName(file);
    std::filesystem::rename(file, open.reportsPutAside);
    open.reports = store::createDatabase(file, schema);
  }
}

}  // namespace

std::filesystem::path ParishFiles::reports() const {
  return directory / ("informes-" + workstation() + "-" + std::to_string(getuid()) + ".fidaleon");
}

std::string editionName(const std::string& code) {
  for (const Edition& e : EDITIONS)
    if (code == e.code) return e.name;
  return code;
}

std::string readEdition(const ParishFiles& files) {
  std::ifstream in(files.note());
  std::string name;
  std::getline(in, name);
  for (const Edition& e : EDITIONS)
    if (name == e.name) return e.code;
  return EDITIONS.front().code;
}

void writeEdition(const ParishFiles& files, const std::string& edition) {
  std::ofstream out(files.note());
  out << editionName(edition) << "\n";
  out.flush();
  if (!out)
    throw store::Error(store::ErrorKind::ReadOnly,
                       "No se puede escribir en la carpeta «" + files.directory.string() + "».");
}

OpenParish openParish(const ParishFiles& files) {
  OpenParish open;
  open.parish = store::openDatabase(files.parish(), store::parishSchema());
  openReports(files.reports(), open);
  return open;
}

}  // namespace fidaleon::app
