#include "core/lists/Memoria.h"

#include <algorithm>

#include "core/lists/Fuentes.h"

namespace fidaleon {

namespace {

constexpr int FILAS = 250;

}  // namespace

Memoria& Memoria::de(const Contexto& contexto) {
  if (!contexto.memoria) contexto.memoria = std::make_shared<Memoria>();
  return *contexto.memoria;
}

Memoria::Memoria() {
  for (const Fuente& fuente : fuentes()) lecturas_.push_back({&fuente});
}

void Memoria::ponerAlDia() {
  lugares.olvidar();
  hayNuevas();
}

void Memoria::hayNuevas() {
  for (Lectura& lectura : lecturas_) lectura.hayNuevas = lectura.hasta != INT64_MIN;
  completa_ = false;
}

bool Memoria::leer(FDAPI::Conexion& conexion, std::chrono::milliseconds plazo) {
  const auto fin = std::chrono::steady_clock::now() + plazo;
  // The newest of every table come before the older ones of any.
  while (!completa_) {
    completa_ = true;
    for (Lectura& lectura : lecturas_) {
      if (lectura.agotada && !lectura.hayNuevas) continue;
      completa_ = false;
      leerTramo(conexion, lectura);
      if (std::chrono::steady_clock::now() > fin) return true;
    }
  }
  return false;
}

bool Memoria::leerTramo(FDAPI::Conexion& conexion, Lectura& lectura) {
  const Fuente& fuente = *lectura.fuente;
  std::string sql = "SELECT TOP " + std::to_string(FILAS) + " " + fuente.clave;
  for (const Fuente::Columna& columna : fuente.columnas) sql.append(", ").append(columna.nombre);
  sql.append(" FROM ").append(fuente.tabla);
  const bool nuevas = lectura.hayNuevas;
  if (nuevas || lectura.desde != INT64_MAX)
    sql.append(" WHERE ")
        .append(fuente.clave)
        .append(nuevas ? ">" + std::to_string(lectura.hasta) : "<" + std::to_string(lectura.desde));
  sql.append(" ORDER BY ").append(fuente.clave).append(nuevas ? "" : " DESC");
  store::Recordset filas = conexion.Execute(sql);
  const bool hay = !filas.EOF_();
  for (; !filas.EOF_(); filas.MoveNext()) {
    const std::int64_t clave = filas.integer(0);
    if (!nuevas) lectura.desde = std::min(lectura.desde, clave);
    lectura.hasta = std::max(lectura.hasta, clave);
    for (std::size_t i = 0; i < fuente.columnas.size(); ++i)
      vocabulario.anotar(fuente.columnas[i].voz, filas.text(static_cast<int>(i) + 1));
  }
  if (!hay) (nuevas ? lectura.hayNuevas : lectura.agotada) = !nuevas;
  return hay;
}

}  // namespace fidaleon
