#include "registers/allocation/ActualizacionFormato.h"

#include <optional>
#include <string>

#include "core/statements/Sentencia.h"
#include "registers/allocation/FormatoLibro.h"
#include "registers/allocation/Posicion.h"
#include "text/Numbers.h"

namespace fidaleon {

namespace {

using store::Recordset;

std::int64_t siguienteNumero(const std::string& ultimo) {
  return static_cast<std::int64_t>(text::Val(ultimo)) + 1;
}

/// One book under recalculation.
class Recalculo {
 public:
  Recalculo(store::Connection& conexion, const Sacramento& sacramento, std::int32_t libro)
      : conexion_(conexion), sacramento_(sacramento), libro_(std::to_string(libro)) {}

  std::int64_t formato() {
    return ejecutar("SELECT codformato FROM {Libros} WHERE {idlibro}=").integer("codformato");
  }

  /// The first folio with room, or the one behind the last: for 2 and 4 entries per folio.
  std::optional<Posicion> porGrupos(int p) {
    Recordset grupo = ejecutar(p == 4 ? GRUPOS_DE_CUATRO : GRUPOS_DE_DOS,
                               sentencia(sacramento_, " GROUP BY {partidas}.folio"));
    if (grupo.EOF_()) return std::nullopt;
    std::int64_t k = 1;
    std::string anterior = "0";
    for (; !grupo.EOF_(); grupo.MoveNext(), ++k) {
      if (grupo.integer("folio") != k) return en(k, siguienteNumero(anterior));
      if (grupo.integer("totalpartidas") < p) return en(k, numeroEnFolio(k, anterior, p));
      anterior = grupo.text("numeromayor");
    }
    return en(k, siguienteNumero(anterior));
  }

  /// Behind the last folio of the unbroken run that the book begins with: for one entry per folio.
  std::optional<Posicion> porFilas() {
    Recordset fila =
        ejecutar("SELECT * FROM {partidas} WHERE codlibro=", " ORDER BY Folio, Val(Numero)");
    if (fila.EOF_()) return std::nullopt;
    std::int64_t k = fila.integer("folio");
    std::string ultimo = fila.text("numero");
    for (fila.MoveNext(); !fila.EOF_() && fila.integer("folio") == k + 1; fila.MoveNext()) {
      ++k;
      ultimo = fila.text("numero");
    }
    return en(k + 1, siguienteNumero(ultimo));
  }

  bool saltaPorGrupos(const Posicion& siguiente, int p) {
    const std::int64_t folio =
        ejecutar("SELECT * FROM {libros} WHERE {idlibro}=").integer("FolioSiguiente");
    const bool lleno =
        ejecutar("SELECT * FROM {partidas} WHERE codlibro=", " AND folio=" + std::to_string(folio))
            .RecordCount() == p;
    return siguiente.folio != (lleno ? folio + 1 : folio);
  }

  bool saltaPorFilas(const Posicion& siguiente) {
    return ejecutar("SELECT foliosiguiente,numerosiguiente FROM {libros} WHERE {idlibro}=")
                   .integer("foliosiguiente") +
               1 <
           siguiente.folio;
  }

  void guardar(const Posicion& siguiente) {
    if (!text::isNumeric(siguiente.numero)) return;
    conexion_.Execute(sentencia(sacramento_, "UPDATE {Libros} SET foliosiguiente=") +
                      std::to_string(siguiente.folio) +
                      ",numerosiguiente=" + entreComillas(siguiente.numero) +
                      sentencia(sacramento_, " WHERE {idlibro}=") + libro_);
  }

 private:
  static constexpr PlantillaSql GRUPOS_DE_CUATRO =
      "SELECT {partidas}.folio, COUNT({partidas}.folio) AS totalpartidas, MAX({partidas}.numero) "
      "AS "
      "numeromayor,MIN({partidas}.numero) AS numeromenor FROM {partidas} WHERE codlibro=";
  static constexpr PlantillaSql GRUPOS_DE_DOS =
      "SELECT {partidas}.folio, COUNT({partidas}.folio) AS totalpartidas, MAX({partidas}.numero) "
      "AS "
      "numeromayor FROM {partidas} WHERE codlibro=";

  Recordset ejecutar(const PlantillaSql& antes, const std::string& despues = {}) {
    return conexion_.Execute(sentencia(sacramento_, antes) + libro_ + despues);
  }

  static Posicion en(std::int64_t folio, std::int64_t numero) {
    return {static_cast<std::int32_t>(folio), std::to_string(numero)};
  }

  std::int64_t numeroEnFolio(std::int64_t folio, const std::string& anterior, int p) {
    std::int64_t numero = siguienteNumero(anterior);
    // A folio of two offers the number even when it is taken.
    while (p == 4 && hay(numero, folio)) ++numero;
    return numero;
  }

  bool hay(std::int64_t numero, std::int64_t folio) {
    return !conexion_
                .Execute(
                    sentencia(sacramento_, "SELECT {idpartida} FROM {partidas} WHERE numero=") +
                    entreComillas(std::to_string(numero)) + " AND folio=" + std::to_string(folio) +
                    " AND codlibro=" + libro_)
                .EOF_();
  }

  store::Connection& conexion_;
  const Sacramento& sacramento_;
  std::string libro_;
};

}  // namespace

void actualizacionFormato(store::Connection& conexion, const Sacramento& sacramento,
                          std::int32_t libro, bool& blnSalto) {
  Recalculo recalculo(conexion, sacramento, libro);
  const int p = partidasDeFormato(recalculo.formato());
  if (p == 0) return;
  const std::optional<Posicion> siguiente = p == 1 ? recalculo.porFilas() : recalculo.porGrupos(p);
  if (!siguiente) return;
  if (p == 1 ? recalculo.saltaPorFilas(*siguiente) : recalculo.saltaPorGrupos(*siguiente, p))
    blnSalto = true;
  recalculo.guardar(*siguiente);
}

}  // namespace fidaleon
