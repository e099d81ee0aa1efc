#include "parish/NewParish.h"

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <array>

#include "core/statements/Citas.h"
#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "locks/MeetingPlace.h"
#include "parish/Insert.h"
#include "parish/ParishFiles.h"
#include "store/Open.h"
#include "text/Names.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

void fill(store::Connection& connection, const NewParish& parish, const text::Date& today,
          const Filling& sample) {
  connection.BeginTrans();
  keepEdition(connection, parish.edition);
  if (parish.content == Content::Sample) {
    keepAsSample(connection);
    sample(connection, parish, today);
  } else {
    addInstitution(connection, text::withoutQuotes(text::trim(parish.name)),
                   townKey(connection, parish.town, parish.province));
  }
  connection.CommitTrans();
}

void makeDirectory(const std::filesystem::path& directory, const std::optional<gid_t>& group) {
  try {
    files::makeFolders(directory);
    if (group) files::shareWith(directory, *group);
  } catch (const std::filesystem::filesystem_error&) {
    throw store::Error(store::ErrorKind::ReadOnly,
                       "No se puede preparar la carpeta «" + directory.string() +
                           "». Compruebe que tiene permiso para escribir en ella.");
  }
}

/// In its folder, which is there, and has the address where a server is to have it.
void createThere(const NewParish& parish, const ParishFiles& files, const text::Date& today,
                 const Filling& sample) {
  // Nobody comes in meanwhile. Where the guard is not seen by all, the name alone decides.
  const auto guard = locks::meetingAt(parish.directory)->enter();
  if (!parish.server && files.exists()) throw store::NameTaken(files.parish());
  // The note stands before the parish does: a power cut leaves a whole parish or none. That of
  // somebody else, who may be making one too, stays until this one has won the name.
  const bool noted = readEdition(files).empty();
  if (noted) writeEdition(files, parish.edition);
  try {
    store::createDatabase(
        files.parish(), store::parishSchema(),
        [&](store::Connection& connection) { fill(connection, parish, today, sample); });
  } catch (...) {
    std::error_code ignored;
    if (noted && (parish.server || !files.exists())) std::filesystem::remove(files.note(), ignored);
    throw;
  }
  if (readEdition(files) != parish.edition) writeEdition(files, parish.edition);
}

}  // namespace

std::vector<AccountGroup> ownGroups() {
  std::array<gid_t, 256> ids{};
  const int count = ::getgroups(static_cast<int>(ids.size()), ids.data());
  const passwd* const account = ::getpwuid(::getuid());
  const std::string self = account ? account->pw_name : "";
  std::vector<AccountGroup> groups;
  for (int i = 0; i < count; ++i) {
    const group* const found = ::getgrgid(ids[static_cast<std::size_t>(i)]);
    if (found && found->gr_name != self) groups.push_back({found->gr_gid, found->gr_name});
  }
  return groups;
}

std::string whatIsMissing(const NewParish& parish) {
  if (text::trim(parish.name).empty()) return "Escriba el nombre de la parroquia.";
  if (text::trim(parish.user).empty()) return "Escriba el nombre del usuario.";
  if (text::trim(parish.town).empty()) return "Escriba la población de la parroquia.";
  if (parish.province == 0) return "Elija la provincia de la parroquia.";
  if (parish.directory.empty()) return "Elija la carpeta donde se guardarán los datos.";
  if (!isReadable(parish.directory)) return UNREADABLE_NAME;
  if (ParishFiles(parish.directory).exists())
    return "En esa carpeta ya hay una parroquia. Elija otra carpeta, o abra la que ya existe.";
  return {};
}

void createParish(const NewParish& parish, const text::Date& today, const Filling& sample) {
  const ParishFiles files(parish.directory);
  makeDirectory(parish.directory, parish.group);
  if (files.exists()) throw store::NameTaken(files.parish());
  // First of all: it says where those who come meanwhile are to be met.
  if (parish.server) store::writeAddress(files.address(), *parish.server);
  try {
    createThere(parish, files, today, sample);
  } catch (...) {
    std::error_code ignored;
    if (parish.server) std::filesystem::remove(files.address(), ignored);
    throw;
  }
}

std::int32_t townKey(store::Connection& connection, const std::string& town,
                     std::int32_t province) {
  const auto found = connection.Execute("SELECT IDProvincia FROM Provincia WHERE Codigo_Oficial=" +
                                        std::to_string(province));
  const std::int64_t key = found.EOF_() ? 0 : found.integer("IDProvincia");
  const std::string name = text::withoutQuotes(text::trim(town));
  const auto rows =
      connection.Execute("SELECT IDMunicipio FROM Municipio WHERE Nombre=" + entreComillas(name) +
                         " AND CodProvincia=" + std::to_string(key));
  if (!rows.EOF_()) return static_cast<std::int32_t>(rows.integer("IDMunicipio"));
  return Insert("Municipio")
      .text("Nombre", name)
      .number("CodProvincia", key)
      .into(connection, "IDMunicipio");
}

std::int32_t addInstitution(store::Connection& connection, const std::string& name,
                            std::int32_t town) {
  const std::int32_t id = Insert("Institucion")
                              .text("Nombre", name)
                              .text("InstitucionNombre", name)
                              .text("InstitucionTipo", "Parroquia de")
                              .number("CodMunicipio", town)
                              .text("Parroco", "")
                              .text("Diocesis", "")
                              .text("Vicaria", "")
                              .text("EncargadoArchivo", "")
                              .into(connection, "IDInstitucion");
  Insert("Ultimos").number("IDInstitucion", id).text("Encargado", "").into(connection);
  return id;
}

}  // namespace fidaleon::app
