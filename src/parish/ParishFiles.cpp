#include "parish/ParishFiles.h"

#include <unistd.h>

#include <array>
#include <fstream>

#include "core/contract/FDAPI.h"
#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "locks/HostName.h"
#include "locks/SharedDirectory.h"
#include "parish/Insert.h"
#include "store/Open.h"
#include "store/Transaction.h"
#include "text/SystemErrors.h"
#include "text/Utf8.h"

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

/// Earlier versions kept the scratch tables of each account beside the parish, for good.
void removeKeptReports(const std::filesystem::path& directory) {
  const std::string ours =
      "informes-" + locks::hostName() + "-" + std::to_string(getuid()) + ".fidaleon";
  std::vector<std::filesystem::path> kept;
  std::error_code failed;
  std::filesystem::directory_iterator at(directory, failed);
  for (; !failed && at != std::filesystem::directory_iterator(); at.increment(failed))
    if (at->path().filename().string().starts_with(ours)) kept.push_back(at->path());
  for (const std::filesystem::path& file : kept) std::filesystem::remove(file, failed);
}

/// Earlier versions left it to the account's mask who may read what lies beside the parish.
void narrowKept(const ParishFiles& files) {
  files::narrow(files.note());
  files::narrow(files.directory / locks::SharedDirectory::GUARD_FILE);
  std::error_code failed;
  std::filesystem::directory_iterator at(files.directory / "copias", failed);
  for (; !failed && at != std::filesystem::directory_iterator(); at.increment(failed))
    files::narrow(at->path());
}

std::string keptEdition(store::Connection& parish) {
  const auto row = parish.Execute("SELECT Edicion FROM Instalacion");
  const std::string code = row.EOF_() ? std::string() : row.text("Edicion");
  for (const Edition& e : EDITIONS)
    if (code == e.code) return code;
  return {};
}

void settleEdition(const ParishFiles& files, OpenParish& open) {
  const std::string noted = readEdition(files);
  open.edition = keptEdition(*open.parish);
  if (noted == open.edition && !noted.empty()) return;
  if (open.edition.empty()) {
    open.edition = noted.empty() ? EDITIONS.front().code : noted;
    if (noted.empty())
      open.doubt = EditionDoubt::Unknown;
    else
      keepEdition(*open.parish, noted);
  } else if (noted.empty()) {
    writeEdition(files, open.edition);
    open.doubt = EditionDoubt::NoteRestored;
  } else {
    open.doubt = EditionDoubt::NoteDiffers;
  }
}

}  // namespace

ParishFiles ParishFiles::resolved() const {
  std::error_code failed;
  const std::filesystem::path real = std::filesystem::canonical(parish(), failed);
  if (failed || real.filename() != parish().filename()) return *this;
  return ParishFiles(real.parent_path());
}

bool isReadable(const std::filesystem::path& directory) {
  return text::sanitized(directory.string()) == directory.string();
}

std::string editionName(const std::string& code) {
  for (const Edition& e : EDITIONS)
    if (code == e.code) return e.name;
  return code;
}

std::vector<std::pair<std::string, std::string>> editions() {
  std::vector<std::pair<std::string, std::string>> all;
  for (const Edition& e : EDITIONS) all.emplace_back(e.name, e.code);
  return all;
}

std::string readEdition(const ParishFiles& files) {
  std::ifstream in(files.note());
  std::string name;
  std::getline(in, name);
  for (const Edition& e : EDITIONS)
    if (name == e.name) return e.code;
  return {};
}

void writeEdition(const ParishFiles& files, const std::string& edition) {
  try {
    files::replace(files.note(), editionName(edition) + "\n");
  } catch (const std::filesystem::filesystem_error& e) {
    throw store::Error(store::ErrorKind::ReadOnly, "No se puede escribir en la carpeta «" +
                                                       files.directory.string() +
                                                       "»: " + text::systemReason(e.code()));
  }
}

void keepEdition(store::Connection& parish, const std::string& edition) {
  store::Transaction transaction(parish);
  const bool isSample = keptAsSample(parish);
  parish.Execute("DELETE * FROM Instalacion");
  Insert("Instalacion").text("Edicion", edition).number("Muestra", isSample).into(parish);
  transaction.commit();
}

void keepAsSample(store::Connection& parish) {
  parish.Execute("UPDATE Instalacion SET Muestra=true");
}

bool keptAsSample(store::Connection& parish) {
  const auto row = parish.Execute("SELECT Muestra FROM Instalacion");
  return !row.EOF_() && row.flag("Muestra");
}

OpenParish openParish(const ParishFiles& files) {
  if (!isReadable(files.directory))
    throw store::Error(store::ErrorKind::Connection, UNREADABLE_NAME);
  if (files.isOnServer() && files::isThere(files.file()))
    throw store::Error(
        store::ErrorKind::NotADatabase,
        "En la carpeta hay dos parroquias: la del fichero «parroquia.fidaleon» y la "
        "del servidor de «parroquia.servidor». Mueva uno de los dos a otra carpeta.");
  OpenParish open;
  open.parish = store::openDatabase(files.parish(), store::parishSchema());
  settleEdition(files, open);
  open.reports = store::passingDatabase(store::reportsSchema());
  removeKeptReports(files.directory);
  narrowKept(files);
  return open;
}

}  // namespace fidaleon::app
