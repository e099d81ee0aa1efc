// The register books of the four sacraments.

#include "store/schema/Parish.h"

namespace fidaleon::store {

namespace {

Table book(const std::string& sacrament) {
  Table table("Libro_" + sacrament);
  table.counter("IDLibro" + sacrament)
      .refers("Institucion", {"CodInstitucion"})
      .refers("Libros_Formato", {"CodFormato"})
      .refers("Libros_TipoNombre", {"CodTipoNombre"}, Type::Integer)
      .texts({"Nombre"})
      .add(Type::Text, {"FechaCreacion"}, 10)
      .yesNos({"Nuevo", "Cerrado"})
      .texts({"NumeroSiguiente"})
      .longs({"FolioSiguiente"})
      .index({"CodInstitucion", "Nombre"})
      .from(5)
      .index({"FechaCreacion"});
  return table;
}

Table formats() {
  Table table("Libros_Formato");
  table.counter("IDFormato").texts({"Descripcion"}).add(Type::Integer, {"Partidas_Folio"});
  const auto row = [&](std::int64_t id, const char* text, std::int64_t entries) {
    table.row({Value(id), Value(std::string(text)), Value(entries)});
  };
  row(1, "Cuatro partidas por folio", 4);
  row(2, "Dos partidas por folio", 2);
  row(3, "Una partida por folio", 1);
  row(4, "Dos partidas por folio (modelo antiguo)", 2);
  return table;
}

Table nameTypes() {
  Table table("Libros_TipoNombre");
  table.counter("IDTipoNombre").texts({"Tipo"});
  std::int64_t id = 0;
  for (const char* text :
       {"Año y número de orden", "Número de orden", "Números romanos", "Abierto"}) {
    table.row({Value(++id), Value(std::string(text))});
  }
  return table;
}

}  // namespace

void addBooks(std::vector<Table>& tables) {
  tables.push_back(formats());
  tables.push_back(nameTypes());
  for (const char* sacrament : {"Bautismo", "Confirmacion", "Matrimonio", "Defuncion"}) {
    tables.push_back(book(sacrament));
  }
}

}  // namespace fidaleon::store
