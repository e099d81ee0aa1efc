#include "registers/books/OperacionesLibro.h"

#include <array>
#include <string>

#include "core/contract/EnSacramento.h"
#include "core/contract/Guard.h"

namespace fidaleon {

namespace {

constexpr const char* OBJETO = "cNucleo";

/// Names under which errors in closing are reported; two differ from the operations' own.
constexpr std::array PROCEDIMIENTOS_CERRAR{"cerrarLiBautismo", "cerrarLiconfirmacion",
                                           "cerrarLimatrimonio", "cerrarLidefuncion"};

FDAPI::DefinicionBloqueo bloqueoDelLibro(FDAPI::Conexion& conexion, const std::string& id,
                                         const Sacramento& s) {
  FDAPI::DefinicionBloqueo libro;
  libro.strTabla = s.tablaLibros;
  libro.strRegistro = id;
  libro.conBd = &conexion;
  libro.blnComprobarExisteRegistro = true;
  libro.strSQLExisteRegistro =
      enSacramento(s, "SELECT IDLibroBautismo FROM Libro_Bautismo WHERE IDLibroBautismo=" + id);
  return libro;
}

/// One book, under a lock session of its own.
class OperacionLibro {
 public:
  OperacionLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                 const Sacramento& s)
      : contexto_(contexto),
        conexion_(conexion),
        id_(std::to_string(id)),
        s_(s),
        sesion_(abrirSesion(contexto, conexion)) {}

  /// Gives the locks back; after an error, dropping the session does.
  void terminar() { sesion_->LiberarBloqueos(); }

  void cerrar() {
    if (const char* motivo = motivoParaNoCerrar()) return forms::warn(contexto_.ui(), motivo);
    if (!forms::ask(contexto_.ui(),
                    "Si cierra este libro no podrá introducir más partidas. ¿Desea cerrarlo?"))
      return;
    if (!bloquear()) return;
    ejecutar("UPDATE libro_bautismo SET cerrado=true WHERE idlibrobautismo=");
  }

  void eliminar() {
    if (tienePartidas()) return avisarPartidas();
    if (!forms::ask(contexto_.ui(), "¿Seguro que quiere eliminar el libro?")) return;
    if (!bloquear()) return;
    // Another workstation may have entered one while the question stood.
    if (tienePartidas()) return avisarPartidas();
    ejecutar("DELETE * FROM libro_bautismo WHERE idlibrobautismo=");
  }

 private:
  store::Recordset ejecutar(const char* enBautismo) {
    return conexion_.Execute(enSacramento(s_, enBautismo) + id_);
  }

  const char* motivoParaNoCerrar() {
    const store::Recordset libro = ejecutar("SELECT * FROM libro_bautismo WHERE idlibrobautismo=");
    if (libro.EOF_()) return nullptr;  // the lock session tells that the book is gone
    if (!libro.flag("nuevo")) return "¡No se puede cerrar un libro antiguo!";
    if (libro.flag("cerrado")) return "¡No se puede cerrar un libro que ya está cerrado!";
    return nullptr;
  }

  bool tienePartidas() { return !ejecutar("SELECT * FROM bautismo WHERE codlibro=").EOF_(); }

  void avisarPartidas() {
    forms::warn(contexto_.ui(), "¡Este libro no se puede eliminar, tiene partidas asociadas!");
  }

  bool bloquear() {
    sesion_->DefinirBloqueo(bloqueoDelLibro(conexion_, id_, s_));
    return sesion_->lngEfectuarBloqueos() == FDAPI::BloqueoNinguno;
  }

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  std::string id_;
  const Sacramento& s_;
  std::unique_ptr<FDAPI::cProcesarBloqueos> sesion_;
};

}  // namespace

void cerrarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                 const Sacramento& sacramento) {
  guarded(contexto, OBJETO, PROCEDIMIENTOS_CERRAR.at(sacramento.byte), [&] {
    OperacionLibro libro(contexto, conexion, id, sacramento);
    libro.cerrar();
    libro.terminar();
  });
}

void eliminarLibro(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                   const Sacramento& sacramento) {
  guarded(contexto, OBJETO, "EliminarLibro", [&] {
    OperacionLibro libro(contexto, conexion, id, sacramento);
    libro.eliminar();
    libro.terminar();
  });
}

}  // namespace fidaleon
