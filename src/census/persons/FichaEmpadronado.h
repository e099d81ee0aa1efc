#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "census/persons/Persona.h"
#include "census/persons/TablasEmpadronado.h"
#include "census/search/cPadronNotas.h"
#include "core/contract/FDAPI.h"

namespace fidaleon {

/// A census person with their notes, between the store and a dialog. Knows which rows are stored
/// already, so that what a failure has interrupted can be stored again, and a person who lacks a
/// row gets it. The caller holds the locks; everything throws what the store throws.
class FichaEmpadronado {
 public:
  Persona persona;
  /// Those to be removed stay in it, marked, until they have been.
  std::vector<cPadronNotas> notas;

  /// False when there is no such person.
  bool leer(FDAPI::Conexion& conexion, std::int32_t id);
  /// A new person, who has a key from the moment on in which their first row is there for good. A
  /// failure before leaves nothing; after one behind it, go on with editar().
  void agregar(FDAPI::Conexion& conexion);
  /// Makes a person reached in another way a census person too.
  void editar(FDAPI::Conexion& conexion);
  /// Takes back a person whom agregar() left without any role, and who would show in no list.
  /// Nothing else.
  void retirar(FDAPI::Conexion& conexion);

 private:
  void leerNotas(FDAPI::Conexion& conexion);
  void guardarSatelites(FDAPI::Conexion& conexion);
  void guardarNotas(FDAPI::Conexion& conexion);
  void insertarNota(FDAPI::Conexion& conexion, cPadronNotas& nota);
  void leerClave(FDAPI::Conexion& conexion, cPadronNotas& nota);

  std::array<bool, SATELITES.size()> guardado_{};
  bool aMedias_ = false;  // the first row of a new person is there, and not yet the last
};

}  // namespace fidaleon
