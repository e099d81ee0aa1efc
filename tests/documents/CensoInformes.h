#pragma once
// People, groups and tasks, and the rows that their reports leave.

#include "census/Manos.h"
#include "core/facade/cNucleo.h"
#include "support/Fields.h"

namespace fidaleon::tests {

using Fila = Row;

/// Notes what it is told, and stops the work when the bar stands at `hasta`.
struct ProgresoAnotado : FDAPI::cProgreso {
  void Cargar(std::int64_t cuenta, const std::string& mensaje, int modo, int minimo) override {
    sucesos.push_back("Cargar " + std::to_string(cuenta) + " " + mensaje + " " +
                      std::to_string(modo) + " " + std::to_string(minimo));
  }
  void setValue(std::int64_t valor) override {
    sucesos.push_back(std::to_string(valor));
    if (valor == hasta) throw forms::Cancelled();
  }
  std::vector<std::string> sucesos;
  std::int64_t hasta = -1;
};

struct CensoInformes : ManosWorld {
  void run(const std::string& sql) { con().Execute(sql); }
  std::int32_t colaborador(const std::string& nombre, const std::string& apellido = "Sanz",
                           std::int32_t codGrupo = 0) {
    const std::int32_t id = persona(nombre, apellido, "Gil", {}, {COLABORADOR});
    if (codGrupo != 0) miembro(id, codGrupo, 1);
    return id;
  }
  void tarea(const std::string& fecha, const std::string& inicio, const std::string& nombre,
             const std::string& descripcion = "Descripción", const std::string& fin = "2030") {
    insert(con(), "Tareas",
           "Fecha=" + fecha + "; HoraInicio=" + inicio + "; HoraFin=" + fin + "; Nombre=" + nombre +
               "; Descripcion=" + descripcion);
  }

  std::vector<Fila> filas(const std::string& tabla = "Informe_Colaboradores") {
    return rowsIn(conInformes(), tabla);
  }
  /// The named columns of each row, with blanks between.
  std::vector<std::string> lineas(std::initializer_list<const char*> columnas,
                                  const std::string& tabla = "Informe_Colaboradores") {
    std::vector<std::string> todas;
    for (Fila& fila : filas(tabla)) {
      std::string& linea = todas.emplace_back();
      for (const char* columna : columnas) linea += (linea.empty() ? "" : " ") + fila[columna];
    }
    return todas;
  }

  /// A statement on the reports fails once, and all that is told of it is answered.
  void fallanInformes(const std::string& sentencia, int vez = 1) {
    store::FailingEngine::wrap(conInformes())->failOn(sentencia, store::ErrorKind::DiskFull, vez);
    user.answerAnything(Answer::Ok);
  }

  ProgresoAnotado progreso;
  cNucleo informes{entorno};
};

}  // namespace fidaleon::tests
