#include "support/Mantenimiento.h"

#include "core/contract/Guard.h"
#include "support/Catalogos.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"

namespace fidaleon::support {

namespace {

const char* tableOf(Catalogo catalogo) {
  switch (catalogo) {
    case Catalogo::Institucion:
      return "Institucion";
    case Catalogo::Provincia:
      return "Provincia";
    default:
      return "Municipio";
  }
}

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

FDAPI::DefinicionBloqueo row(const char* table, std::int32_t id, FDAPI::Conexion& connection) {
  FDAPI::DefinicionBloqueo lock = wholeTable(table);
  lock.strRegistro = std::to_string(id);
  lock.conBd = &connection;
  lock.blnComprobarExisteRegistro = true;
  lock.strSQLExisteRegistro =
      std::string("SELECT ID") + table + " FROM " + table + " WHERE ID" + table + "=";
  return lock;
}

template <class Dialog>
bool show(Contexto& contexto, FDAPI::Conexion& connection, std::int32_t id) {
  Entorno& e = contexto.entorno;
  Dialog dialog(e.ui, e.settings, e.clock, connection, contexto.config(), id);
  dialog.Show();
  return dialog.aceptado();
}

}  // namespace

Mantenimiento::Mantenimiento(Contexto& contexto, FDAPI::Conexion& conexion)
    : contexto_(contexto), conexion_(conexion) {}

bool Mantenimiento::abrir(Catalogo catalogo, std::int32_t id) {
  if (catalogo == Catalogo::Institucion) return show<frmInstitucion>(contexto_, conexion_, id);
  if (catalogo == Catalogo::Provincia) return show<frmProvincia>(contexto_, conexion_, id);
  return show<frmMunicipio>(contexto_, conexion_, id);
}

bool Mantenimiento::agregar(Catalogo catalogo) {
  bool changed = false;
  guarded(contexto_, "Mantenimiento", "agregar", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    for (const char* table : {"Institucion", "Provincia", "Municipio"})
      session->DefinirBloqueo(sharedTable(table));
    changed = session->lngEfectuarBloqueos() == 0 && abrir(catalogo, 0);
  });
  return changed;
}

bool Mantenimiento::propiedades(Catalogo catalogo, std::int32_t id) {
  bool changed = false;
  guarded(contexto_, "Mantenimiento", "propiedades", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    for (const char* table : {"Provincia", "Municipio"})
      session->DefinirBloqueo(sharedTable(table));
    session->DefinirBloqueo(row(tableOf(catalogo), id, conexion_));
    changed = session->lngEfectuarBloqueos() == 0 && abrir(catalogo, id);
  });
  return changed;
}

bool Mantenimiento::eliminar(Catalogo catalogo, std::int32_t id) {
  bool gone = false;
  guarded(contexto_, "Mantenimiento", "eliminar", [&] {
    const auto session = abrirSesion(contexto_, conexion_);
    session->DefinirBloqueo(row(tableOf(catalogo), id, conexion_));
    session->DefinirBloqueo(wholeTable(tableOf(catalogo)));
    if (session->lngEfectuarBloqueos() != 0) return;
    const auto remove = catalogo == Catalogo::Institucion ? eliminarInstitucion
                        : catalogo == Catalogo::Provincia ? eliminarProvincia
                                                          : eliminarMunicipio;
    gone = remove(*contexto_.fidaleon(), contexto_.ui(), conexion_, id);
  });
  return gone;
}

}  // namespace fidaleon::support
