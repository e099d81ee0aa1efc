// The sworn examinations of a marriage, to and from their table.

#include "registers/marriage/Examenes.h"

#include <algorithm>
#include <utility>

#include "core/statements/Apunte.h"
#include "core/statements/Citas.h"
#include "registers/common/Guiones.h"

namespace fidaleon {

namespace {

constexpr std::array TIPOS_PERSONA{4, 5, 6, 7};
constexpr int ANTES_DE_LAS_RESPUESTAS = 2;  // fields of a row: marriage and person
constexpr int SIN_LEER = 3;                 // at its end

struct Respuesta {
  int columna;
  const std::string* texto;
};

/// The columns of the row of one person, in their order.
std::vector<Respuesta> filaDe(int tipoPersona, const RespuestasExamen& respuestas) {
  std::vector<Respuesta> fila;
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i) {
    if (PAGINAS_DE_EXAMEN[i].tipoPersona != tipoPersona) continue;
    int columna = PAGINAS_DE_EXAMEN[i].primeraColumna;
    for (const std::string& texto : respuestas[i]) fila.push_back({columna++, &texto});
  }
  std::ranges::sort(fila, {}, &Respuesta::columna);
  return fila;
}

std::string sqlInsertar(int tipoPersona, const std::string& id, const RespuestasExamen& r) {
  std::string columnas = "CodMatrimonio, Cod_Tipo_Persona";
  std::string valores = id + ", " + std::to_string(tipoPersona);
  for (const auto& [columna, texto] : filaDe(tipoPersona, r)) {
    columnas += ", " + std::to_string(columna);
    valores += ", ";
    citarEn(valores, *texto, '\'');
  }
  return (tipoPersona == TIPOS_PERSONA.front() ? "INSERT INTO Matrimonio_cursos ("
                                               : "INSERT INTO Matrimonio_Cursos (") +
         columnas + ") VALUES (" + valores + ")";
}

std::string sqlActualizar(int tipoPersona, const std::string& id, const RespuestasExamen& r) {
  std::string asignaciones;
  for (const auto& [columna, texto] : filaDe(tipoPersona, r)) {
    asignaciones += (asignaciones.empty() ? "" : ", ") + std::to_string(columna) + " = ";
    citarEn(asignaciones, *texto, '\'');
  }
  return "UPDATE Matrimonio_Cursos SET " + asignaciones + " WHERE CodMatrimonio=" + id +
         " AND Cod_Tipo_Persona = " + std::to_string(tipoPersona);
}

/// Answers of their own are read by their place in the row, the general data by their names.
void leerPagina(const store::Recordset& fila, const PaginaExamen& pagina,
                std::vector<std::string>& respuestas) {
  const int primera = pagina.primeraColumna;
  for (std::size_t i = 0; i < respuestas.size(); ++i) {
    const int lugar = ANTES_DE_LAS_RESPUESTAS + static_cast<int>(i);
    if (primera != 0)
      respuestas[i] = fila.text(std::to_string(primera + static_cast<int>(i)));
    else if (lugar <= fila.FieldCount() - SIN_LEER)
      respuestas[i] = fila.Fields(lugar).Value().text();
  }
}

std::string nombreDe(std::size_t pagina, std::size_t pregunta) {
  return std::string(PAGINAS_DE_EXAMEN.at(pagina).nombre) + std::to_string(pregunta);
}

}  // namespace

RespuestasExamen respuestasEnBlanco() {
  RespuestasExamen respuestas;
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
    respuestas[i].resize(PAGINAS_DE_EXAMEN[i].preguntas.size());
  return respuestas;
}

bool hayRespuestas(const RespuestasExamen& respuestas) {
  return std::ranges::any_of(
      respuestas, [](const auto& pagina) { return !std::ranges::all_of(pagina, enBlanco); });
}

RespuestasExamen CargarExamenes(FDAPI::Conexion& conexion, std::int32_t idMatrimonio) {
  RespuestasExamen respuestas = respuestasEnBlanco();
  store::Recordset fila = conexion.Execute("SELECT * FROM Matrimonio_Cursos WHERE CodMatrimonio=" +
                                           std::to_string(idMatrimonio));
  for (; !fila.EOF_(); fila.MoveNext())
    for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
      if (fila.integer("Cod_tipo_Persona") == PAGINAS_DE_EXAMEN[i].tipoPersona)
        leerPagina(fila, PAGINAS_DE_EXAMEN[i], respuestas[i]);
  return respuestas;
}

void GrabarExamenes(FDAPI::Conexion& conexion, FDAPI::cCOperacion operacion,
                    std::int32_t idMatrimonio, const RespuestasExamen& respuestas) {
  using enum FDAPI::cCOperacion;
  const std::string id = std::to_string(idMatrimonio);
  const bool corrige = operacion == EDITAR || operacion == EDITARSOLICITUD;
  for (const int tipo : TIPOS_PERSONA) {
    const bool hay =
        corrige && !conexion
                        .Execute("SELECT 0 FROM Matrimonio_Cursos WHERE CodMatrimonio=" + id +
                                 " and Cod_Tipo_Persona = " + std::to_string(tipo))
                        .EOF_();
    conexion.Execute(hay ? sqlActualizar(tipo, id, respuestas) : sqlInsertar(tipo, id, respuestas));
  }
}

std::string textoDeExamenes(const RespuestasExamen& respuestas) {
  if (!hayRespuestas(respuestas)) return {};
  Apunte apunte;
  for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
    for (std::size_t j = 0; j < respuestas[i].size(); ++j)
      apunte.poner(nombreDe(i, j), respuestas[i][j]);
  return apunte.texto();
}

RespuestasExamen examenesDeTexto(const std::string& texto) {
  RespuestasExamen respuestas = respuestasEnBlanco();
  for (const Apunte& apunte : Apunte::todos(texto))
    for (std::size_t i = 0; i < PAGINAS_EXAMEN; ++i)
      for (std::size_t j = 0; j < respuestas[i].size(); ++j)
        respuestas[i][j] = apunte.valor(nombreDe(i, j));
  return respuestas;
}

}  // namespace fidaleon
