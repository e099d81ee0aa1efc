#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "dbase/Table.h"
#include "import/Destinos.h"
#include "store/Connection.h"
#include "store/schema/Schema.h"

namespace fidaleon {

/// A table of the older program behind a connection that takes the statements of the import. The
/// columns that they name, and the place of each row in its file, lie in a database of this
/// program's own; the others are read from the file when a row is asked for.
class TablaInpar {
 public:
  /// Column of Execute("SELECT * ...") that at() wants.
  static constexpr const char* REGISTRO = "Registro";

  /// Throws dbase::Error when the folder has no such table, or none that can be read, or the table
  /// has no column for the book; store::Error. `codigos` as dbase::Table takes it; what is doubtful
  /// in the table is told once.
  TablaInpar(const std::filesystem::path& carpeta, const RegistroInpar& registro,
             const std::string& codigos, const dbase::Table::Told& told);

  store::Connection& conexion() { return *conexion_; }
  std::int64_t filas() const { return filas_; }
  std::int64_t borradas() const { return borradas_; }

  /// Its place in the row; empty when there is none.
  std::optional<std::size_t> columna(const std::string& nombre) const {
    return tabla_->find(nombre);
  }
  const dbase::Row& at(std::int64_t registro);

 private:
  void copiar(dbase::Table& tabla, const RegistroInpar& registro);

  std::unique_ptr<dbase::Table> tabla_;
  std::unique_ptr<store::Schema> esquema_;
  std::unique_ptr<store::Connection> conexion_;
  dbase::Row fila_;
  std::int64_t filas_ = 0;
  std::int64_t borradas_ = 0;
};

/// A value of such a table as the older program showed it: no number has an exponent.
std::string escrito(const store::Value& valor);
/// How it stands in a statement behind the name of a column.
std::string igualA(const store::Value& valor);

}  // namespace fidaleon
