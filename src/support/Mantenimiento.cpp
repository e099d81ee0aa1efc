#include "support/Mantenimiento.h"

#include <array>
#include <vector>

#include "core/contract/Guard.h"
#include "support/Catalogos.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "support/frmTarea.h"

namespace fidaleon::support {

namespace {

using Tablas = std::vector<const char*>;
using Eliminar = bool (*)(FDAPI::cFidaleon&, forms::UserInterface&, FDAPI::Conexion&, std::int32_t);

/// What is locked for a catalogue, and how it is worked on. The shared tables are those that its
/// dialog reads or adds to. In the order of Catalogo.
struct Descripcion {
  const char* tabla;
  const char* clave;
  Tablas alAgregar;
  Tablas alCorregir;
  bool (*abrir)(Contexto&, FDAPI::Conexion&, std::int32_t);
  Eliminar eliminar;
};

FDAPI::DefinicionBloqueo wholeTable(const char* table) {
  FDAPI::DefinicionBloqueo lock;
  lock.strTabla = table;
  return lock;
}

FDAPI::DefinicionBloqueo sharedTable(const char* table) {
  FDAPI::DefinicionBloqueo lock = wholeTable(table);
  lock.blnBloqueoParcialTabla = true;
  return lock;
}

FDAPI::DefinicionBloqueo row(const Descripcion& of, std::int32_t id, FDAPI::Conexion& connection) {
  FDAPI::DefinicionBloqueo lock = wholeTable(of.tabla);
  lock.strRegistro = std::to_string(id);
  lock.conBd = &connection;
  lock.blnComprobarExisteRegistro = true;
  lock.strSQLExisteRegistro =
      std::string("SELECT ") + of.clave + " FROM " + of.tabla + " WHERE " + of.clave + "=";
  return lock;
}

template <class Dialog>
bool show(Contexto& contexto, FDAPI::Conexion& connection, std::int32_t id) {
  Entorno& e = contexto.entorno;
  Dialog dialog(e.ui, e.settings, e.clock, connection, contexto.config(), id);
  dialog.Show();
  return dialog.aceptado();
}

const Descripcion& descripcionDe(Catalogo catalogo) {
  static const Tablas places{"Provincia", "Municipio"};
  static const Tablas all{"Institucion", "Provincia", "Municipio"};
  static const std::array<Descripcion, 4> descriptions{{
      {"Institucion", "IDInstitucion", all, places, show<frmInstitucion>, eliminarInstitucion},
      {"Provincia", "IDProvincia", all, places, show<frmProvincia>, eliminarProvincia},
      {"Municipio", "IDMunicipio", all, places, show<frmMunicipio>, eliminarMunicipio},
      {"Tareas", "IDTarea", {"Tareas"}, {}, show<frmTarea>, eliminarTarea},
  }};
  return descriptions.at(static_cast<std::size_t>(catalogo));
}

}  // namespace

Mantenimiento::Mantenimiento(Contexto& contexto, FDAPI::Conexion& conexion)
    : contexto_(contexto), conexion_(conexion) {}

bool Mantenimiento::agregar(Catalogo catalogo) {
  bool changed = false;
  const Descripcion& d = descripcionDe(catalogo);
  guarded(contexto_, "Mantenimiento", "agregar", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    for (const char* table : d.alAgregar) session->DefinirBloqueo(sharedTable(table));
    changed = session->lngEfectuarBloqueos() == 0 && d.abrir(contexto_, conexion_, 0);
  });
  return changed;
}

bool Mantenimiento::propiedades(Catalogo catalogo, std::int32_t id) {
  bool changed = false;
  const Descripcion& d = descripcionDe(catalogo);
  guarded(contexto_, "Mantenimiento", "propiedades", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    for (const char* table : d.alCorregir) session->DefinirBloqueo(sharedTable(table));
    session->DefinirBloqueo(row(d, id, conexion_));
    changed = session->lngEfectuarBloqueos() == 0 && d.abrir(contexto_, conexion_, id);
  });
  return changed;
}

bool Mantenimiento::eliminar(Catalogo catalogo, std::int32_t id) {
  bool gone = false;
  const Descripcion& d = descripcionDe(catalogo);
  guarded(contexto_, "Mantenimiento", "eliminar", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    session->DefinirBloqueo(row(d, id, conexion_));
    session->DefinirBloqueo(wholeTable(d.tabla));
    gone = session->lngEfectuarBloqueos() == 0 &&
           d.eliminar(*contexto_.fidaleon(), contexto_.ui(), conexion_, id);
  });
  return gone;
}

}  // namespace fidaleon::support
