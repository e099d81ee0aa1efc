#include "documents/CensoRows.h"

#include <utility>
#include <vector>

#include "core/statements/Citas.h"
#include "documents/TextRules.h"
#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

/// Column and finished text, in the order of the statement.
using Fila = std::vector<std::pair<const char*, std::string>>;

constexpr const char* TABLA_COLABORADORES = "Informe_Colaboradores";

std::string insercion(const char* tabla, const Fila& fila) {
  std::string columnas;
  std::string valores;
  for (const auto& [columna, valor] : fila) {
    const char* separador = columnas.empty() ? "" : ", ";
    columnas += separador;
    columnas += columna;
    valores += separador;
    valores += entreComillas(valor);
  }
  return std::string("INSERT INTO ") + tabla + " (" + columnas + ") VALUES (" + valores + ")";
}

bool vacio(const std::string& valor) {
  return text::trim(valor).empty();
}

std::string direccion(const store::Recordset& persona) {
  const std::string postal = persona.text("CPostal");
  return persona.text("Direccion") + (vacio(postal) ? "" : " C.P.: " + postal);
}

std::string poblacionProvincia(std::int64_t municipio, Lookups& lookups) {
  const auto clave = static_cast<std::int32_t>(municipio);
  const std::string& provincia = lookups.province(clave);
  if (vacio(provincia)) return text::trim(lookups.town(clave));
  return lookups.town(clave) + " (" + provincia + ")";
}

/// Here alone a date that is not known prints nothing.
std::string fechaCorta(const std::string& fecha, Lookups& lookups) {
  const std::string corta = lookups.shortDate(fecha);
  return corta == "//" ? std::string() : corta;
}

std::string nombresPadres(const store::Recordset& persona) {
  const std::string padre = text::trim(persona.text("NombrePadre"));
  const std::string madre = text::trim(persona.text("NombreMadre"));
  if (vacio(padre) || vacio(madre)) return padre + madre;
  const std::string clave = text::searchKey(madre);
  const bool suena =
      clave.starts_with("i") || (clave.starts_with("hi") && !clave.starts_with("hie"));
  return padre + (suena ? " e " : " y ") + madre;
}

std::string profesion(const std::string& profesion) {
  return vacio(profesion) ? std::string() : "(" + profesion + ")";
}

}  // namespace

InstitucionInforme::InstitucionInforme(const store::Recordset& instituciones)
    : id(static_cast<std::int32_t>(instituciones.integer("IDInstitucion"))),
      nombre(ValorImprimible(instituciones.value("InstitucionNombre"))),
      tipo(ValorImprimible(instituciones.value("InstitucionTipo"))) {}

void InsertarFilaActividad(store::Connection& conInformes, const store::Recordset& grupo) {
  conInformes.Execute(
      insercion(TABLA_COLABORADORES, {{"InstitucionTipo", grupo.text("InstitucionTipo")},
                                      {"InstitucionNombre", grupo.text("InstitucionNombre")},
                                      {"NombreActividad", grupo.text("Actividad")},
                                      {"NombreGrupo", grupo.text("Grupo")},
                                      {"Colaboradores", grupo.text("Colaboradores")}}));
}

void InsertarFilaColaborador(store::Connection& conInformes, const store::Recordset& persona,
                             const InstitucionInforme& institucion, Pertenencia pertenencia,
                             Lookups& lookups) {
  const bool con = pertenencia == Pertenencia::CON_ACTIVIDAD;
  const auto imprimible = [&](const char* campo) { return ValorImprimible(persona.value(campo)); };
  conInformes.Execute(insercion(
      TABLA_COLABORADORES,
      {{"InstitucionNombre", institucion.nombre},
       {"InstitucionTipo", institucion.tipo},
       {"NombreActividad", con ? persona.text("Actividad") : "Sin actividad asociada"},
       {"NombreGrupo", con ? persona.text("Grupo") : "Sin grupo"},
       {"Nombre", imprimible("Nombre")},
       {"Apellido1", imprimible("PrimerApellido")},
       {"Apellido2", imprimible("SegundoApellido")},
       {"Direccion", direccion(persona)},
       {"PoblacionProvincia", poblacionProvincia(persona.integer("CodMunicipio"), lookups)},
       {"Telefono1", imprimible("Telefono")},
       {"Telefono2", imprimible("Telefono2")},
       {"Email", imprimible("CorreoElectronico")},
       {"Comentarios", imprimible("Comentarios")},
       {"FechaNacimiento", fechaCorta(persona.text("FechaNacimiento"), lookups)},
       {"NombresPadres", nombresPadres(persona)},
       {"FechaBautismo", fechaCorta(persona.text("FechaBautizo"), lookups)},
       {"ParroquiaBaut", imprimible("ParroquiaBaut")},
       {"DireccionBaut", imprimible("DireccionParrBaut")},
       {"PoblacionProvinciaBaut",
        poblacionProvincia(persona.integer("CodMunicipioParrBaut"), lookups)},
       {"Profesion", profesion(persona.text("Profesion"))}}));
}

void InsertarFilaTarea(store::Connection& conInformes, const store::Recordset& tarea) {
  const std::string fecha = tarea.text("Fecha");
  const auto hora = [&](const char* campo) {
    const std::string h = tarea.text(campo);
    return text::left(h, 2) + ":" + text::right(h, 2);
  };
  conInformes.Execute(
      insercion("Tareas_Agenda", {{"Fecha", text::mid(fecha, 6, 2) + "/" + text::mid(fecha, 4, 2) +
                                                "/" + text::left(fecha, 4)},
                                  {"HInicio", hora("HoraInicio")},
                                  {"HFin", hora("HoraFin")},
                                  {"Nombre", tarea.text("Nombre")},
                                  {"Descripcion", tarea.text("Descripcion")}}) +
      ";");
}

}  // namespace fidaleon::documents
