#include "core/statements/Sentencia.h"

#include "text/Utf8.h"

namespace fidaleon {

std::string sentencia(const Sacramento& sacramento, const PlantillaSql& plantilla) {
  std::string sql;
  std::string_view resto = plantilla.texto();
  for (std::size_t abre = resto.find('{'); abre != std::string_view::npos; abre = resto.find('{')) {
    const std::size_t cierra = resto.find('}', abre);
    const std::string_view nombre = resto.substr(abre + 1, cierra - abre - 1);
    const PlantillaSql::Lugar& lugar = PlantillaSql::LUGARES[PlantillaSql::lugar(nombre)];
    const char* valor = sacramento.*lugar.miembro;
    sql += resto.substr(0, abre);
    sql += nombre == lugar.nombre ? valor : text::lower(valor);
    resto.remove_prefix(cierra + 1);
  }
  return sql.append(resto);
}

}  // namespace fidaleon
