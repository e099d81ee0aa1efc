#pragma once
// What each member of cInformes must write of the entries in PartidasWorld: every column by its
// value; a column that is not named must hold Null.

#include <ostream>
#include <variant>

#include "DialogosDocumento.h"
#include "PartidasWorld.h"

namespace fidaleon::tests {

using Firmado = void (cInformes::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t,
                                    const std::string&, const std::string&);
using SinFirma = void (cInformes::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t);

/// The name of a member and the member.
#define MIEMBRO(nombre) #nombre, &cInformes::nombre

inline constexpr const char* FIRMA = "Pedro Ruiz";

/// What the entries of a sacrament are made of.
struct Sacramental {
  const char* tabla;  // of its documents
  std::vector<const char*> dependientes;
  const char* parroquia;               // column of its parish
  const char* conNotas;                // table of the marginal notes
  std::vector<const char*> solicitud;  // makes a request of the entry
  bool porCargador = false;            // the loader of marriages tells of its errors by itself
};

using ConConfig = void (cInformes::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t,
                                      const FDAPI::cConfig&);
using ConVias = void (cInformes::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t, bool&, bool&,
                                    bool&);

struct Golden {
  const char* miembro;
  std::variant<Firmado, SinFirma, ConConfig, ConVias> imprimir;
  const Sacramental* sacramento;
  Row fila;
  bool solicitud = false;
  std::map<std::string, Row> companeras = {};
  int filas = 1;

  void ejecutar(PartidasWorld& w, bool hayQueImprimir = true) const;
};

/// A note with its dotted line.
inline std::string conPuntos(std::string nota, int veces) {
  for (int i = 0; i < veces; ++i) nota += " .";
  return nota;
}

/// The columns of that name alone.
inline Row solo(const Row& row, std::initializer_list<const char*> names) {
  Row few;
  for (const char* name : names) few[name] = row.at(name);
  return few;
}

inline const Row FIRMA_DEL_TRES =
    row("InstitucionEncargado=Pedro Ruiz; FechaSistemaCorta=03/11/2026; FechaSistemaLarga=tres de "
        "noviembre de 2026");
inline const Row HOY{{"FechaSistemaCorta", "22/11/2026"},
                     {"FechaSistemaLarga", "veintidós de noviembre de 2026"}};

inline void PrintTo(const Golden& golden, std::ostream* out) {
  *out << golden.miembro;
}

std::vector<Golden> bautismos();
std::vector<Golden> confirmaciones();
std::vector<Golden> defunciones();
std::vector<Golden> matrimonios();

Row duplicadaDeBautismo();
Row duplicadaDeConfirmacion();
Row duplicadaDeDefuncion();
Row duplicadaDeMatrimonio();

/// What an index and a duplicate say of the parish of PartidasWorld.
inline const Row PARROQUIA{{"InstitucionNombre", "San Ginés Mártir"},
                           {"InstitucionTipo", "Parroquia de"}};
inline const Row PARROQUIA_EN_GETAFE =
    PARROQUIA + Row{{"InstitucionPoblacion", "Getafe"}, {"InstitucionProvincia", "Madrid"}};

}  // namespace fidaleon::tests
