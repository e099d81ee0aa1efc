#include "registers/books/OperacionesLibro.h"

#include <array>
#include <string>

#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Guard.h"
#include "core/statements/Sentencia.h"

namespace fidaleon {

namespace {

constexpr const char* OBJETO = "cNucleo";

/// Names under which errors in closing are reported; two differ from the operations' own.
constexpr std::array PROCEDIMIENTOS_CERRAR{"cerrarLiBautismo", "cerrarLiconfirmacion",
                                           "cerrarLimatrimonio", "cerrarLidefuncion"};

/// One book, under a lock session of its own.
class OperacionLibro {
 public:
  OperacionLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                 const Sacramento& s)
      : contexto_(contexto),
        conexion_(conexion),
        id_(std::to_string(id)),
        s_(s),
        bloqueos_(contexto, conexion) {}

  void cerrar() {
    if (const char* motivo = motivoParaNoCerrar()) return forms::warn(contexto_.ui(), motivo);
    if (!forms::ask(contexto_.ui(),
                    "Si cierra este libro no podrá introducir más partidas. ¿Desea cerrarlo?", {},
                    forms::Stake::Loss, nombre()))
      return;
    if (!bloquear()) return;
    // Another workstation may have closed it while the question stood.
    if (const char* motivo = motivoParaNoCerrar()) return forms::warn(contexto_.ui(), motivo);
    ejecutar("UPDATE {libros} SET cerrado=true WHERE {idlibro}=");
  }

  void eliminar() {
    if (tienePartidas()) return avisarPartidas();
    if (!forms::ask(contexto_.ui(), "¿Seguro que quiere eliminar el libro?", {}, forms::Stake::Loss,
                    nombre()))
      return;
    if (!bloquear()) return;
    // Another workstation may have entered one while the question stood.
    if (tienePartidas()) return avisarPartidas();
    ejecutar("DELETE * FROM {libros} WHERE {idlibro}=");
  }

 private:
  store::Recordset ejecutar(const PlantillaSql& plantilla) {
    return conexion_.Execute(sentencia(s_, plantilla) + id_);
  }

  const char* motivoParaNoCerrar() {
    const store::Recordset libro = ejecutar("SELECT * FROM {libros} WHERE {idlibro}=");
    if (libro.EOF_()) return nullptr;  // the lock session tells that the book is gone
    if (!libro.flag("nuevo")) return "¡No se puede cerrar un libro antiguo!";
    if (libro.flag("cerrado")) return "¡No se puede cerrar un libro que ya está cerrado!";
    return nullptr;
  }

  std::string nombre() {
    const store::Recordset libro = ejecutar("SELECT * FROM {libros} WHERE {idlibro}=");
    return libro.EOF_() ? std::string() : libro.text("Nombre");
  }

  bool tienePartidas() { return !ejecutar("SELECT * FROM {partidas} WHERE codlibro=").EOF_(); }

  void avisarPartidas() {
    const auto cuantas = ejecutar("SELECT * FROM {partidas} WHERE codlibro=").RecordCount();
    forms::warn(
        contexto_.ui(), "¡Este libro no se puede eliminar, tiene partidas asociadas!",
        forms::MsgIcon::Exclamation,
        nombre() + ": " + std::to_string(cuantas) + (cuantas == 1 ? " partida." : " partidas."));
  }

  bool bloquear() {
    bloqueos_.registroPorClave(s_.tablaLibros, s_.claveLibro, std::stoi(id_));
    return bloqueos_.efectuar();
  }

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  std::string id_;
  const Sacramento& s_;
  SesionBloqueos bloqueos_;
};

void enUnLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id, const Sacramento& s,
               const char* procedimiento, void (OperacionLibro::*trabajo)()) {
  guarded(contexto, OBJETO, procedimiento, [&] {
    OperacionLibro libro(contexto, conexion, id, s);
    (libro.*trabajo)();
  });
}

}  // namespace

void cerrarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                 const Sacramento& sacramento) {
  enUnLibro(contexto, conexion, id, sacramento, PROCEDIMIENTOS_CERRAR.at(sacramento.byte),
            &OperacionLibro::cerrar);
}

void eliminarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                   const Sacramento& sacramento) {
  enUnLibro(contexto, conexion, id, sacramento, "EliminarLibro", &OperacionLibro::eliminar);
}

}  // namespace fidaleon
