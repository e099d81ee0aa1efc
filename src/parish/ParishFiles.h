#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "files/Durable.h"
#include "store/Connection.h"
#include "store/postgres/ServerAccess.h"

namespace fidaleon::app {

/// The files of one parish: they lie together in one directory, which several workstations may
/// share. Where a server has the database, its address lies there instead, for this desk alone.
struct ParishFiles {
  explicit ParishFiles(std::filesystem::path dir) : directory(std::move(dir)) {}

  std::filesystem::path directory;
  /// The database, or the address of the server that has it.
  std::filesystem::path parish() const { return isOnServer() ? address() : file(); }
  std::filesystem::path file() const { return directory / "parroquia.fidaleon"; }
  std::filesystem::path address() const { return directory / store::ADDRESS_FILE; }
  bool isOnServer() const { return files::isThere(address()); }
  std::filesystem::path note() const { return directory / "edicion.txt"; }

  /// The same where they lie: those who come through a symbolic link meet all the others.
  ParishFiles resolved() const;
  /// Whether there is a parish; one that cannot be looked at counts as there.
  bool exists() const { return files::isThere(parish()); }
};

/// Whether the name is UTF-8. One that is not cannot be shown, remembered or chosen again.
bool isReadable(const std::filesystem::path& directory);
inline constexpr const char* UNREADABLE_NAME =
    "El nombre de la carpeta no está escrito en UTF-8 y no puede usarse. Cámbielo, o elija otra.";

/// Edition code in the note beside a parish; empty when it is missing or says something unknown.
std::string readEdition(const ParishFiles& files);
/// On the disk when it returns. Throws store::Error.
void writeEdition(const ParishFiles& files, const std::string& edition);
/// The parish keeps its edition itself too, since a note gets lost.
void keepEdition(store::Connection& parish, const std::string& edition);
/// Of a parish that keeps its edition: its people are invented, and it is only there to learn on.
void keepAsSample(store::Connection& parish);
bool keptAsSample(store::Connection& parish);

/// Name people know an edition by ("Madrid"); its code for one that is unknown.
std::string editionName(const std::string& code);

/// Name and code of each edition, in the order they are offered.
std::vector<std::pair<std::string, std::string>> editions();

/// Whether what a parish and the note beside it say of the edition can be relied on.
enum class EditionDoubt { None, NoteRestored, NoteDiffers, Unknown };

struct OpenParish {
  std::unique_ptr<store::Connection> parish;
  /// The scratch tables of documents: of this program alone, and gone when it ends, however that
  /// ends, since they hold what is written about people.
  std::unique_ptr<store::Connection> reports;
  /// The parish's own where the note differs; Madrid's when neither says anything.
  std::string edition;
  EditionDoubt doubt = EditionDoubt::None;
};

/// Opens both databases. Whichever of note and parish lacks the edition gets it from the other.
/// Throws store::Error.
OpenParish openParish(const ParishFiles& files);

}  // namespace fidaleon::app
