#pragma once
// The catalogue of the documents of the registers. The facade's locks, the menus of the main
// program, its templates, titles and file names all come from these lines.

#include <span>
#include <string_view>
#include <variant>

#include "core/contract/Sacramento.h"
#include "core/facade/cNucleo.h"
#include "documents/cInformes.h"

namespace fidaleon {

/// What a document is printed of.
enum class ClaseDocumento {
  Partida,
  Solicitud,
  Libro,
  Duplicada,  // of all books of an institution, by ImprimirDuplicadas
  SinLibro,   // of what its own dialog asks for
};

/// An operation of cNucleo, and the member of cInformes that it passes its arguments on to.
template <class... Argumentos>
struct PasoDocumento {
  void (cNucleo::*operacion)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t, Argumentos...);
  void (cInformes::*miembro)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t, Argumentos...);
};
using PasoSimple = PasoDocumento<>;
/// Takes the keeper of the archive, who signs, and the date.
using PasoFirmado = PasoDocumento<const std::string&, const std::string&>;
/// Takes the configuration of the program.
using PasoConConfig = PasoDocumento<const FDAPI::cConfig&>;
/// Hands back by which way the dossier goes: handled in the parish, sent to the curia, sent there
/// before the banns.
using PasoConVias = PasoDocumento<bool&, bool&, bool&>;

/// One document of one sacrament in one edition.
struct Documento {
  const Sacramento* sacramento;
  ClaseDocumento clase;
  const char* orden;    // the command that asks for it
  const char* edicion;  // code; empty: of all that have no line of their own
  const char* operacion;
  std::variant<std::monostate, PasoSimple, PasoFirmado, PasoConConfig, PasoConVias>
      paso;  // none: the class has its own way
  const char* plantilla;
  const char* titulo;
  bool bloquea = true;  // the entry or the book, while the document is being written
  /// Its head is that of the first institution of the store, and there is none without a book.
  bool primeraInstitucion = false;

  bool firmado() const { return std::holds_alternative<PasoFirmado>(paso); }
};

std::span<const Documento> documentos();

/// The edition's own document of a command, or the common one; null when there is none.
const Documento* documento(const Sacramento& sacramento, std::string_view orden,
                           std::string_view edicion);
/// The first one of its operation; ImprimirDuplicadas stands here once for each sacrament, whose
/// word follows. Null when there is none.
const Documento* documento(std::string_view operacion);

/// Somebody whom a document is of.
struct PersonaDocumento {
  const char* tabla;
  const char* nombre;
  const char* primerApellido;
  const char* segundoApellido;
};

/// How the rows of a sacrament's documents tell whom they are of.
struct FilasDocumento {
  const Sacramento* sacramento;
  const char* tabla;         // the principal one, where there are several
  PersonaDocumento persona;  // in whose name the entry stands
  const PersonaDocumento* conyuge = nullptr;
};
/// Null for a sacrament without documents.
const FilasDocumento* filasDocumento(const Sacramento& sacramento);

}  // namespace fidaleon
