#include "support/Mantenimiento.h"

#include <array>
#include <vector>

#include "core/contract/SesionBloqueos.h"
#include "core/dialogs/Guard.h"
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

template <class Trabajo>
bool Mantenimiento::trabajar(const char* procedimiento, Catalogo catalogo, const Trabajo& trabajo) {
  bool cambiado = false;
  guarded(contexto_, "Mantenimiento", procedimiento, [&] {
    SesionBloqueos bloqueos(contexto_, conexion_);
    cambiado = trabajo(bloqueos, descripcionDe(catalogo));
  });
  return cambiado;
}

Mantenimiento::Mantenimiento(Contexto& contexto, FDAPI::Conexion& conexion)
    : contexto_(contexto), conexion_(conexion) {}

bool Mantenimiento::agregar(Catalogo catalogo) {
  return trabajar("agregar", catalogo, [&](SesionBloqueos& bloqueos, const Descripcion& d) {
    for (const char* tabla : d.alAgregar) bloqueos.tablasCompartidas({tabla});
    return bloqueos.efectuar() && d.abrir(contexto_, conexion_, 0);
  });
}

bool Mantenimiento::propiedades(Catalogo catalogo, std::int32_t id) {
  return trabajar("propiedades", catalogo, [&](SesionBloqueos& bloqueos, const Descripcion& d) {
    for (const char* tabla : d.alCorregir) bloqueos.tablasCompartidas({tabla});
    bloqueos.registroPorClave(d.tabla, d.clave, id);
    return bloqueos.efectuar() && d.abrir(contexto_, conexion_, id);
  });
}

bool Mantenimiento::eliminar(Catalogo catalogo, std::int32_t id) {
  return trabajar("eliminar", catalogo, [&](SesionBloqueos& bloqueos, const Descripcion& d) {
    bloqueos.registroPorClave(d.tabla, d.clave, id);
    bloqueos.tabla(d.tabla);
    return bloqueos.efectuar() && d.eliminar(*contexto_.fidaleon(), contexto_.ui(), conexion_, id);
  });
}

}  // namespace fidaleon::support
