#include "import/TablaInpar.h"

#include <charconv>

#include "core/statements/Citas.h"
#include "dbase/Folder.h"
#include "store/Open.h"
#include "store/Transaction.h"

namespace fidaleon {

namespace {

using Kind = dbase::Cell::Kind;

void declarar(store::Table& tabla, const std::string& nombre, const dbase::Field* campo) {
  const bool numero =
      campo != nullptr && std::string("NFIBY").find(campo->letter) != std::string::npos;
  // A narrow column may hold "1E300".
  tabla.add(numero ? store::Type::Double : store::Type::Memo, {nombre.c_str()});
}

std::string sinExponente(double numero) {
  char cifras[400];  // the longest has some three hundred
  const auto fin =
      std::to_chars(cifras, cifras + sizeof cifras, numero, std::chars_format::fixed).ptr;
  return std::string(cifras, fin);
}

std::string literal(const dbase::Cell& celda) {
  switch (celda.kind) {
    case Kind::Missing:
      return "NULL";
    case Kind::Integer:
      return std::to_string(celda.integer);
    case Kind::Real:
      return sinExponente(celda.real);
    case Kind::Date:
    case Kind::Moment:
      return entreComillas(text::toStored(celda.date));
    default:
      return entreComillas(celda.text);
  }
}

}  // namespace

TablaInpar::TablaInpar(const std::filesystem::path& carpeta, const RegistroInpar& registro,
                       const std::string& codigos, const dbase::Table::Told& told) {
  const std::filesystem::path archivo = carpeta / (registro.tabla + ".DBF");
  // Doubts about single values are told when the row is read for good.
  dbase::Table claves = dbase::Table::open(archivo, codigos, [&](const dbase::Doubt& duda) {
    if (duda.column.empty() && told) told(duda);
  });
  tabla_ = std::make_unique<dbase::Table>(
      dbase::Table::open(archivo, codigos, [told](const dbase::Doubt& duda) {
        if (!duda.column.empty() && duda.record > 0 && told) told(duda);
      }));
  if (!claves.find(registro.columnaLibro))
    throw dbase::Error("«" + archivo.filename().string() + "»: no tiene la columna " +
                       registro.columnaLibro + ", y no se sabe de qué libro es cada partida.");
  copiar(claves, registro);
}

void TablaInpar::copiar(dbase::Table& claves, const RegistroInpar& registro) {
  std::vector<std::string> nombres = {registro.columnaLibro, registro.columnaNumero,
                                      registro.columnaFecha};
  if (!registro.columnaFolio.empty()) nombres.push_back(registro.columnaFolio);
  store::Table destino(registro.tabla);
  destino.longs({REGISTRO});
  std::vector<std::size_t> columnas;
  std::string cabeza = "INSERT INTO " + registro.tabla + " (" + REGISTRO;
  for (const std::string& nombre : nombres) {
    const auto columna = claves.find(nombre);
    declarar(destino, nombre, columna ? &claves.fields()[*columna] : nullptr);
    if (!columna) continue;  // null in every row
    columnas.push_back(*columna);
    cabeza += ", " + nombre;
  }
  destino.index({registro.columnaLibro.c_str()});
  esquema_ = std::make_unique<store::Schema>("Inpar", 1, std::vector{destino});
  conexion_ = store::passingDatabase(*esquema_);
  claves.only(columnas);
  store::Transaction todo(*conexion_);
  for (dbase::Row fila; claves.next(fila); ++filas_) {
    std::string sql = cabeza + ") VALUES (" + std::to_string(fila.record());
    for (const std::size_t columna : columnas) sql += ", " + literal(fila[columna]);
    conexion_->Execute(sql + ")");
  }
  todo.commit();
  borradas_ = claves.deleted();
}

const dbase::Row& TablaInpar::at(std::int64_t registro) {
  // What is doubtful in a row is told each time that it is read.
  if (registro == fila_.record()) return fila_;
  if (!tabla_->at(registro, fila_)) throw dbase::Error("La tabla se ha cortado mientras se leía.");
  return fila_;
}

std::string escrito(const store::Value& valor) {
  return valor.isReal() ? sinExponente(valor.real()) : valor.text();
}

std::string igualA(const store::Value& valor) {
  if (valor.isNull()) return " IS NULL";
  return "=" + (valor.isText() ? entreComillas(valor.text()) : escrito(valor));
}

}  // namespace fidaleon
