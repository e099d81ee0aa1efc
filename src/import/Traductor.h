#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "dbase/Table.h"
#include "import/Destinos.h"
#include "import/Lugares.h"
#include "import/NombreCompleto.h"
#include "import/ResultadoImportacion.h"
#include "store/schema/Schema.h"

namespace fidaleon {

/// What the user has said of one register.
struct DatosRegistro {
  bool usar = false;  // the parish below is used
  std::string parroquia, diocesis;
  std::int64_t municipio = 0;
  std::int64_t formato = 0;  // key of Libros_Formato
};

using ClavesPartida = std::array<std::int64_t, static_cast<std::size_t>(Clave::Cuantas)>;

/// Turns a row of the older program into the values of one table of an entry.
class Traductor {
 public:
  struct Reglas {
    std::string strAno00;
    std::uint8_t bytOrdenNombre = 0;
    DatosRegistro datos;
  };
  /// Where a column of that name lies in the older table; empty when there is none.
  using Buscar = std::function<std::optional<std::size_t>(const std::string&)>;

  /// All must outlive it. `resultado` is told what is not carried over as it was.
  Traductor(const TablaDestino& tabla, const store::Schema& esquema, const Buscar& buscar,
            const Reglas& reglas, Lugares& lugares, RegistroImportado& resultado);

  /// "INSERT INTO ... VALUES (...)" for the row.
  const std::string& sentencia(const dbase::Row& fila, const ClavesPartida& claves,
                               std::int64_t falta);
  /// The rows that this one refers to are there.
  bool tieneA(const ClavesPartida& claves) const;
  const TablaDestino& tabla() const { return tabla_; }

 private:
  struct Paso {
    const Destino* destino;
    const store::Column* columna;
    std::size_t limite;
    std::vector<std::size_t> fuentes;
    std::vector<std::size_t> otras;
  };

  void valor(const Paso& paso, const dbase::Row& fila, const ClavesPartida& claves,
             std::int64_t falta);
  void texto(const Paso& paso, const dbase::Row& fila, std::string valor);
  void numero(const Paso& paso, const dbase::Row& fila);
  void fecha(const Paso& paso, const dbase::Row& fila);
  void edad(const Paso& paso, const dbase::Row& fila);
  void lugar(const Paso& paso, const dbase::Row& fila);
  void nombre(const Paso& paso, const dbase::Row& fila);
  std::string lineas(const Paso& paso, const dbase::Row& fila) const;
  void anotar(const dbase::Row& fila, const Paso& paso, const std::string& que);

  const TablaDestino& tabla_;
  const Reglas& reglas_;
  Lugares& lugares_;
  RegistroImportado& resultado_;
  std::vector<Paso> pasos_;
  std::string cabeza_, sql_;
  // The name that was told apart last, for the columns that share it.
  std::string textoNombre_;
  NombreCompleto nombre_;
};

/// What stands in a cell, without the blanks around it; empty when it is missing.
std::string textoDe(const dbase::Cell& celda);

}  // namespace fidaleon
