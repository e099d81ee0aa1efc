#include "registers/allocation/ActualizacionFormato.h"

#include "registers/allocation/FormatoLibro.h"
#include "text/Numbers.h"

namespace fidaleon {

namespace {

using store::Recordset;

constexpr PlantillaSql GRUPOS_DE_CUATRO =
    "SELECT {partidas}.folio, COUNT({partidas}.folio) AS totalpartidas, MAX({partidas}.numero) AS "
    "numeromayor,MIN({partidas}.numero) AS numeromenor FROM {partidas} WHERE codlibro=";
constexpr PlantillaSql GRUPOS_DE_DOS =
    "SELECT {partidas}.folio, COUNT({partidas}.folio) AS totalpartidas, MAX({partidas}.numero) AS "
    "numeromayor FROM {partidas} WHERE codlibro=";

}  // namespace

Recordset ActualizacionFormato::ejecutar(const PlantillaSql& antes, const std::string& despues) {
  return conexion_.Execute(sentencia(sacramento_, antes) + std::to_string(libro_) + despues);
}

void ActualizacionFormato::sumar(const Posicion& posicion) {
  if (folios_) folios_->sumar(posicion.folio, posicion.numero);
}

void ActualizacionFormato::actualizar(bool& blnSalto) {
  const int porFolio = partidasDeFormato(
      ejecutar("SELECT codformato FROM {Libros} WHERE {idlibro}=").integer("codformato"));
  if (porFolio == 0) return;
  if (!folios_) folios_ = leer(porFolio);
  const auto siguiente = folios_->siguiente(
      [this](std::int64_t numero, std::int64_t folio) { return hay(numero, folio); });
  if (!siguiente) return;
  if (salta(*siguiente, porFolio)) blnSalto = true;
  guardar(*siguiente);
}

FoliosOcupados ActualizacionFormato::leer(int porFolio) {
  FoliosOcupados folios(porFolio);
  if (porFolio == 1) {
    for (Recordset fila =
             ejecutar("SELECT * FROM {partidas} WHERE codlibro=", " ORDER BY Folio, Val(Numero)");
         !fila.EOF_(); fila.MoveNext())
      folios.sumar(fila.integer("folio"), fila.text("numero"));
    return folios;
  }
  for (Recordset grupo = ejecutar(porFolio == 4 ? GRUPOS_DE_CUATRO : GRUPOS_DE_DOS,
                                  sentencia(sacramento_, " GROUP BY {partidas}.folio"));
       !grupo.EOF_(); grupo.MoveNext())
    folios.sumar(grupo.integer("folio"), grupo.text("numeromayor"), grupo.integer("totalpartidas"));
  return folios;
}

bool ActualizacionFormato::salta(const Posicion& siguiente, int porFolio) {
  if (porFolio == 1)
    return ejecutar("SELECT foliosiguiente,numerosiguiente FROM {libros} WHERE {idlibro}=")
                   .integer("foliosiguiente") +
               1 <
           siguiente.folio;
  const std::int64_t folio =
      ejecutar("SELECT * FROM {libros} WHERE {idlibro}=").integer("FolioSiguiente");
  const bool lleno =
      ejecutar("SELECT * FROM {partidas} WHERE codlibro=", " AND folio=" + std::to_string(folio))
          .RecordCount() == porFolio;
  return siguiente.folio != (lleno ? folio + 1 : folio);
}

bool ActualizacionFormato::hay(std::int64_t numero, std::int64_t folio) {
  return !conexion_
              .Execute(sentencia(sacramento_, "SELECT {idpartida} FROM {partidas} WHERE numero=") +
                       entreComillas(std::to_string(numero)) + " AND folio=" +
                       std::to_string(folio) + " AND codlibro=" + std::to_string(libro_))
              .EOF_();
}

void ActualizacionFormato::guardar(const Posicion& siguiente) {
  if (!text::isNumeric(siguiente.numero)) return;
  conexion_.Execute(sentencia(sacramento_, "UPDATE {Libros} SET foliosiguiente=") +
                    std::to_string(siguiente.folio) +
                    ",numerosiguiente=" + entreComillas(siguiente.numero) +
                    sentencia(sacramento_, " WHERE {idlibro}=") + std::to_string(libro_));
}

void actualizacionFormato(store::Connection& conexion, const Sacramento& sacramento,
                          std::int32_t libro, bool& blnSalto) {
  ActualizacionFormato(conexion, sacramento, libro).actualizar(blnSalto);
}

}  // namespace fidaleon
