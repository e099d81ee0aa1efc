#include "parish/server/MoveNote.h"

#include <fstream>

#include "files/Durable.h"
#include "store/FileFault.h"

namespace fidaleon::app {
namespace {

std::filesystem::path noteOf(const ParishFiles& files) {
  return files.directory / "traslado.txt";
}

}  // namespace

std::optional<MoveNote> readMoveNote(const ParishFiles& files) {
  std::ifstream in(noteOf(files));
  MoveNote note;
  for (std::string line; std::getline(in, line);) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) continue;
    const std::string key = line.substr(0, sign);
    const std::string value = line.substr(sign + 1);
    if (key == "destino") note.to = value;
    if (key == "fecha") note.since = value;
    if (key == "acabado") note.done = value == "sí";
  }
  if (note.to.empty()) return std::nullopt;
  return note;
}

void writeMoveNote(const ParishFiles& files, const MoveNote& note) {
  try {
    files::replace(noteOf(files), "destino=" + note.to.string() + "\nfecha=" + note.since +
                                      "\nacabado=" + (note.done ? "sí" : "no") + "\n");
  } catch (const std::filesystem::filesystem_error& e) {
    throw store::fileFault("No se puede escribir en la carpeta", files.directory, e.code());
  }
}

void removeMoveNote(const ParishFiles& files) noexcept {
  std::error_code ignored;
  std::filesystem::remove(noteOf(files), ignored);
}

}  // namespace fidaleon::app
