#include "registers/allocation/PosicionLibre.h"

#include <algorithm>

#include "core/statements/Sentencia.h"
#include "registers/allocation/FormatoLibro.h"
#include "text/Numbers.h"

namespace fidaleon {

namespace {

using store::Recordset;

class Subida {
 public:
  Subida(store::Connection& conexion, const Sacramento& sacramento, std::int64_t institucion,
         const std::string& nombreLibro)
      : conexion_(conexion),
        sacramento_(sacramento),
        institucion_(std::to_string(institucion)),
        nombre_(nombreLibro) {}

  PosicionLibre contadores() {
    const Recordset libro = conexion_.Execute(
        sentencia(sacramento_,
                  "SELECT FolioSiguiente,NumeroSiguiente,IDLibro{palabra},CodFormato FROM "
                  "{Libros} WHERE Nombre=") +
        entreComillas(nombre_) + " AND CodInstitucion=" + institucion_);
    formato_ = libro.integer("CodFormato");
    libro_ = std::to_string(libro.integer(sacramento_.claveLibro));
    return {static_cast<std::int32_t>(libro.integer(sacramento_.claveLibro)),
            {static_cast<std::int32_t>(libro.integer("FolioSiguiente")),
             libro.text("NumeroSiguiente")}};
  }

  bool ocupada(const Posicion& p) {
    return !conexion_
                .Execute(
                    sentencia(sacramento_, "SELECT folio,numero FROM {Partidas} WHERE folio=") +
                    std::to_string(p.folio) + " AND numero=" + entreComillas(p.numero) +
                    " AND codlibro=" + libro_)
                .EOF_();
  }

  Posicion siguiente(const Posicion& p) {
    const int porFolio = partidasPorFolio(conexion_, formato_);
    if (porFolio == 1) return {p.folio + 1, mas1(p.numero)};
    if (porFolio == 2 || porFolio == 4) return trasElFolio(p, porFolio);
    return p;
  }

  void guardar(const Posicion& p) {
    conexion_.Execute(sentencia(sacramento_, "UPDATE {Libros} SET FolioSiguiente=") +
                      std::to_string(p.folio) + ",NumeroSiguiente=" + entreComillas(p.numero) +
                      sentencia(sacramento_, " WHERE {IDLibro}=") + libro_);
  }

 private:
  static std::string mas1(const std::string& numero) {
    return std::to_string(static_cast<std::int64_t>(text::Val(numero)) + 1);
  }

  Posicion trasElFolio(const Posicion& p, int porFolio) {
    Recordset fila = conexion_.Execute(
        sentencia(sacramento_, "SELECT {IDPartida},Numero FROM {Partidas} WHERE Folio=") +
        std::to_string(p.folio) + " AND CodLibro=" + libro_ + " ORDER BY Val(Numero)");
    const std::int32_t folio = fila.RecordCount() == porFolio ? p.folio + 1 : p.folio;
    std::int64_t mayor = 0;
    for (; !fila.EOF_(); fila.MoveNext()) mayor = std::max(mayor, valNumero(fila.text("Numero")));
    return {folio, std::to_string(mayor + 1)};
  }

  store::Connection& conexion_;
  const Sacramento& sacramento_;
  std::string institucion_;
  std::string nombre_;
  std::string libro_;
  std::int64_t formato_ = 0;
};

std::optional<PosicionLibre> subir(Subida& subida, std::optional<double> limite) {
  for (std::int64_t paso = 1;; ++paso) {
    const PosicionLibre libre = subida.contadores();
    if (!subida.ocupada(libre.posicion)) return libre;
    const Posicion siguiente = subida.siguiente(libre.posicion);
    subida.guardar(siguiente);
    if (siguiente == libre.posicion) return std::nullopt;
    if (limite && static_cast<double>(paso) > *limite * 4) return std::nullopt;
  }
}

}  // namespace

std::optional<PosicionLibre> primeraPosicionLibre(store::Connection& conexion,
                                                  const Sacramento& sacramento,
                                                  std::int64_t institucion,
                                                  const std::string& nombreLibro,
                                                  std::optional<double> limite) {
  Subida subida(conexion, sacramento, institucion, nombreLibro);
  // One write to the disk for the whole climb: after a deletion it starts at folio 1. Whatever
  // stops it, the steps made so far stay.
  conexion.BeginTrans();
  try {
    std::optional<PosicionLibre> libre = subir(subida, limite);
    conexion.CommitTrans();
    return libre;
  } catch (...) {
    conexion.CommitTrans();
    throw;
  }
}

}  // namespace fidaleon
