#include "import/ResultadoImportacion.h"

#include <algorithm>

namespace fidaleon {

namespace {

void linea(std::string& texto, const char* que, std::int64_t cuantos) {
  texto += std::string("  ") + que + ": " + std::to_string(cuantos) + "\n";
}

void contar(const RegistroImportado& r, bool ensayo, std::string& texto) {
  texto += r.titulo + " (tabla " + r.tabla + ")\n";
  linea(texto, ensayo ? "Libros que se harán" : "Libros hechos", r.libros);
  linea(texto, "Partidas de la tabla", r.enTabla);
  linea(texto, "Partidas leídas", r.leidas);
  linea(texto, ensayo ? "Partidas que se escribirán" : "Partidas escritas enteras", r.escritas);
  if (!ensayo) linea(texto, "Partidas que hay en esos libros", r.encontradas);
  linea(texto, "Partidas rechazadas o incompletas", r.rechazadas);
  linea(texto, "Registros borrados, que no se traen", r.borradas);
  linea(texto, "Fechas que cambian de siglo", r.siglos);
  linea(texto, "Valores cortados", r.cortados);
  linea(texto, "Nombres que no se han podido separar del todo", r.sinSeparar);
  if (!r.fallo.empty()) texto += "  No se ha podido seguir: " + r.fallo + "\n";
}

void detallar(const RegistroImportado& r, std::string& texto) {
  if (r.incidencias.empty()) return;
  texto += "\n" + r.titulo + ": lo que conviene mirar\n";
  for (const bool rechazada : {true, false})
    for (const IncidenciaInpar& i : r.incidencias) {
      if (i.rechazada != rechazada) continue;
      texto += rechazada ? "  RECHAZADA: " : "  ";
      texto += r.tabla;
      if (i.registro > 0) texto += ", registro " + std::to_string(i.registro);
      texto += ": " + i.que + "\n";
    }
  if (r.masIncidencias > 0) linea(texto, "Otras incidencias, que no se detallan", r.masIncidencias);
}

}  // namespace

void RegistroImportado::anotar(IncidenciaInpar incidencia) {
  if (incidencias.size() < MAX_INCIDENCIAS || incidencia.rechazada)
    incidencias.push_back(std::move(incidencia));
  else
    ++masIncidencias;
}

bool ResultadoImportacion::completa() const {
  return !cancelada &&
         std::all_of(registros.begin(), registros.end(), [this](const RegistroImportado& r) {
           return r.fallo.empty() && r.leidas == r.enTabla && r.escritas == r.leidas &&
                  (ensayo || r.encontradas == r.leidas);
         });
}

std::string ResultadoImportacion::texto() const {
  std::string todo = ensayo ? "ENSAYO DE LA IMPORTACIÓN: no se ha escrito nada.\n"
                            : "IMPORTACIÓN DEL PROGRAMA ANTERIOR\n";
  if (cancelada)
    todo += ensayo ? "Se ha cancelado: lo que sigue es solo lo que se había mirado.\n"
                   : "Se ha cancelado: solo están los libros que ya se habían terminado.\n";
  const bool cortes = std::any_of(registros.begin(), registros.end(),
                                  [](const RegistroImportado& r) { return r.cortados > 0; });
  todo += !completa()
              ? "ATENCIÓN: no están todas las partidas de las tablas. Mire lo que se dice abajo"
          : ensayo ? "Se escribirán todas las partidas de las tablas"
                   : "Están todas las partidas de las tablas";
  todo += completa() && cortes ? ", y abajo se dice qué valores se cortan.\n" : ".\n";
  for (const RegistroImportado& r : registros) {
    todo += "\n";
    contar(r, ensayo, todo);
  }
  for (const RegistroImportado& r : registros) detallar(r, todo);
  return todo;
}

}  // namespace fidaleon
