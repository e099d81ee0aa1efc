// The scratch tables that templates print from: one flat table per family of documents. A
// document fills the columns it needs and leaves the others Null. All columns but keys are text
// of any length.

#include <string>

#include "store/Open.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

namespace {

Table baptism() {
  Table table("Documentos_Bautismo");
  table
      .memos({"Libro",
              "Folio",
              "Numero",
              "PrimerApellidoHijo",
              "SegundoApellidoHijo",
              "NombreHijo",
              "FechaBautismoCorta",
              "ParroquiaBaut",
              "PoblacionBaut",
              "ProvinciaBaut",
              "Diocesis",
              "FechaBautismoLarga",
              "Ministro",
              "Al niño/A la niña",
              "Nacido/Nacida",
              "FechaNacCorta",
              "FechaNacLarga",
              "HoraNac",
              "DireccionNac",
              "PoblacionNac",
              "ProvinciaNac",
              "NombrePadre",
              "PrimerApellidoPadre",
              "SegundoApellidoPadre",
              "PoblacionPadre",
              "ProvinciaPadre",
              "NombreMadre",
              "PrimerApellidoMadre",
              "SegundoApellidoMadre",
              "PoblacionMadre",
              "ProvinciaMadre",
              "DireccionPadres",
              "PoblacionPadres",
              "ProvinciaPadres",
              "ParroquiaMatr",
              "PoblacionMatr",
              "ProvinciaMatr",
              "FechaMatrCorta",
              "FechaMatrLarga",
              "AbueloPaterno",
              "PoblacionAbueloPaterno",
              "AbuelaPaterna",
              "PoblacionAbuelaPaterna",
              "AbueloMaterno",
              "PoblacionAbueloMaterno",
              "AbuelaMaterna",
              "PoblacionAbuelaMaterna",
              "Padrino",
              "Madrina",
              "ProvinciaAbueloPaterno",
              "ProvinciaAbuelaPaterna",
              "ProvinciaAbueloMaterno",
              "ProvinciaAbuelaMaterna"})
      .memos({"InstitucionNombre", "InstitucionTipo", "InstitucionDiocesis", "InstitucionDomicilio",
              "InstitucionCP", "InstitucionPoblacion", "InstitucionProvincia", "InstitucionParroco",
              "InstitucionEncargado", "NotasMarginales", "FechaSistemaCorta", "FechaSistemaLarga",
              "FechaSisteLargMeno", "Sexo", "FechaNacLargaMeno", "FechaBauLargaMeno", "Año",
              "Letra", "FechaCreacionLibro"})
      .memos({"DiocesisMatrimonio",
              "ProfesionPadrino",
              "NaturalPadrino",
              "EstatPadrino",
              "ProfesionMadrina",
              "NaturalMadrina",
              "EstatMadrina",
              "MadreProfesion",
              "PadreProfesion",
              "EdadPadrino",
              "ParroquiaDomicilioPadrino",
              "EdadMadrina",
              "ParroquiaDomicilioMadrina",
              "PadreParroquiaBaut",
              "PadreProvinciaParrBaut",
              "MadreParroquiaBaut",
              "MadreProvinciaParrBaut",
              "AbueloPatParroquiaBaut",
              "AbueloPatProvinciaParrBaut",
              "AbuelaPatParroquiaBaut",
              "AbuelaPatProvinciaParrBaut",
              "AbueloMatParroquiaBaut",
              "AbueloMatProvinciaParrBaut",
              "AbuelaMatParroquiaBaut",
              "AbuelaMatProvinciaParrBaut",
              "TelefonoPadres"});
  return table;
}

Table confirmation() {
  Table table("Documentos_Confirmacion");
  table
      .memos({"Nombre",
              "PrimerApellido",
              "SegundoApellido",
              "Domicilio",
              "ProvinciaDomicilio",
              "PoblacionDomicilio",
              "FechaNacCorta",
              "FechaNacLarga",
              "ProvinciaNac",
              "PoblacionNac",
              "FeligresDe",
              "NombrePadre",
              "NombreMadre",
              "Parroquia",
              "ProvinciaParr",
              "PoblacionParr",
              "DiocesisParr",
              "Libro",
              "Folio",
              "Numero",
              "FechaConfirmacionCorta",
              "FechaConfirmacionLarga",
              "Padrino",
              "Ministro",
              "CargoMinistro",
              "FechaBautCorta",
              "FechaBautLarga",
              "ParroquiaBaut",
              "DireccionBaut",
              "ProvinciaBaut",
              "PoblacionBaut",
              "LibroBaut",
              "FolioBaut",
              "NumeroBaut"})
      .memos({"InstitucionNombre", "InstitucionTipo", "InstitucionDiocesis", "InstitucionDomicilio",
              "InstitucionCP", "InstitucionPoblacion", "InstitucionProvincia", "InstitucionParroco",
              "InstitucionEncargado", "NotasMarginales", "FechaSistemaLarga", "FechaSistemaCorta",
              "Edad", "FechaConfiLargaMeno", "FechaBautLargaMeno", "FechaSisteLargMeno", "Año",
              "Letra", "FechaCreacionLibro"});
  return table;
}

Table death() {
  Table table("Documentos_Defuncion");
  table
      .memos({"Libro",
              "Folio",
              "Numero",
              "FechaInhumacionCorta",
              "FechaInhumacionLarga",
              "Parroquia",
              "PoblacionParr",
              "ProvinciaParr",
              "DiocesisParr",
              "InstitucionParroco",
              "Cementerio",
              "Nombre",
              "PrimerApellido",
              "SegundoApellido",
              "EstadoCivil",
              "Consorte",
              "DomicilioActual",
              "PoblacionActual",
              "ProvinciaActual",
              "DomicilioDefn",
              "PoblacionDefn",
              "ProvinciaDefn",
              "FechaDefuncionCorta",
              "FechaDefuncionLarga",
              "HoraDefuncion",
              "Causa",
              "PoblacionNaturalDe",
              "ProvinciaNaturalDe",
              "Edad",
              "NotasMarginales",
              "NumeroHijos",
              "NombresHijos",
              "Sacramentos",
              "Sacerdote",
              "InstitucionEncargado",
              "NombrePadre",
              "NombreMadre"})
      .memos({"FechaSistemaLarga", "FechaSistemaCorta", "InstitucionNombre", "InstitucionTipo",
              "InstitucionPoblacion", "InstitucionProvincia", "InstitucionDiocesis", "Año", "Letra",
              "FechaCreacionLibro"});
  return table;
}

Table marriage() {
  Table table("Documentos_Matrimonio");
  table.counter("IDDocumentos_Matrimonio")
      .memos({"Parroquia",
              "ProvinciaParroquia",
              "PoblacionParroquia",
              "Diocesis",
              "Libro",
              "Folio",
              "Numero",
              "FechaMatrimonioCorta",
              "FechaMatrimonioLarga",
              "HoraMatrimonio",
              "Padrino",
              "Madrina",
              "Testigos",
              "Celebrante",
              "NihilObstat",
              "ExpedInst",
              "DomicilioMatrimonio",
              "ProvinciaDomicMatr",
              "PoblacionDomicMatr",
              "TelefonoDomicMatr",
              "NotasMarginales",
              "FechaSistemaLarga",
              "FechaSistemaCorta",
              "Demarcacion",
              "Letra",
              "Año",
              "DiocesisResidenciaNovio",
              "PoblacionResidenciaNovio",
              "ParroquiaResidenciaNovio",
              "DiocesisResidenciaNovia",
              "PoblacionResidenciaNovia",
              "ParroquiaResidenciaNovia",
              "FechaCreacionLibro",
              "CPCompromiso",
              "Observaciones",
              "TestigosParroquia",
              "NombreJuzgado"});
  return table;
}

/// `spouse` is "Novio" or "Novia". A '%' in a name stands for it.
Table spouses(const std::string& spouse) {
  Table table("Documentos_Matrimonio_" + spouse + "s");
  table.longs({"CodDocumentos_Matrimonio"});
  for (const char* pattern : {"Nombre%",
                              "PrimerApellido%",
                              "SegundoApellido%",
                              "DNI%",
                              "Edad%",
                              "Religion%",
                              "FechaNac%Corta",
                              "FechaNac%Larga",
                              "ProvinciaNac%",
                              "PoblacionNac%",
                              "Nacionalidad%",
                              "FechaConfirmacion%Corta",
                              "FechaConfirmacion%Larga",
                              "ProvinciaConfirmacion%",
                              "PoblacionConfirmacion%",
                              "DomicilioActual%",
                              "ProvinciaActual%",
                              "PoblacionActual%",
                              "TResidenciaDomAct%",
                              "DomicilioAnterior%",
                              "ProvinciaAnterior%",
                              "PoblacionAnterior%",
                              "FechaBaut%Corta",
                              "FechaBaut%Larga",
                              "ParroquiaBaut%",
                              "DiocesisBaut%",
                              "ProvinciaBaut%",
                              "PoblacionBaut%",
                              "LibroBaut%",
                              "FolioBaut%",
                              "NumeroBaut%",
                              "EstadoCivil%",
                              "NombrePadre%",
                              "NombreMadre%",
                              "ProvinciaInscrito%",
                              "PoblacionInscrito%",
                              "Tomo%",
                              "Pagina%",
                              "NombreCivil%",
                              "Email%",
                              "Telefono%",
                              "ParroquiaResidencia%",
                              "PoblacionResidencia%",
                              "DiocesisResidencia%",
                              "%DiocesisNac",
                              "%Nacionalidad",
                              "%Profesion",
                              "%SujetoDerecho"}) {
    std::string name = pattern;
    name.replace(name.find('%'), 1, spouse);
    table.memos({name.c_str()});
  }
  return table.key({"CodDocumentos_Matrimonio"}, false);
}

Table witnesses() {
  Table table("Documentos_Matrimonio_Otros");
  table.longs({"CodDocumentos_Matrimonio"});
  for (const std::string n : {"1", "2"}) {
    for (const char* column :
         {"NombreTestigo", "PrimerApellidoTestigo", "SegundoApellidoTestigo", "DNITestigo",
          "DomicilioTestigo", "ProvinciaTestigo", "PoblacionTestigo"}) {
      table.memos({(column + n).c_str()});
    }
  }
  table
      .memos({"InstitucionNombre", "InstitucionTipo", "InstitucionDiocesis", "InstitucionDomicilio",
              "InstitucionCP", "InstitucionPoblacion", "InstitucionProvincia", "InstitucionParroco",
              "InstitucionEncargado", "InstitucionVicaria", "InstitucionEmail",
              "InstitucionTelefono", "InstitucionArciprestazgo", "InstitucionAyuntamiento"})
      .key({"CodDocumentos_Matrimonio"}, false);
  return table;
}

Table examinations() {
  Table table("Documentos_Matrimonio_Cursos");
  table.longs({"CodDocumentos_Matrimonio", "Cod_Tipo_Persona"});
  for (int answer = 0; answer <= 33; ++answer) table.memos({std::to_string(answer).c_str()});
  return table.key({"CodDocumentos_Matrimonio", "Cod_Tipo_Persona"}, false);
}

Table collaborators() {
  Table table("Informe_Colaboradores");
  table.memos({"InstitucionNombre",
               "InstitucionTipo",
               "NombreActividad",
               "NombreGrupo",
               "Nombre",
               "Apellido1",
               "Apellido2",
               "Direccion",
               "PoblacionProvincia",
               "Telefono1",
               "Telefono2",
               "Email",
               "Comentarios",
               "FechaNacimiento",
               "NombresPadres",
               "FechaBautismo",
               "ParroquiaBaut",
               "DireccionBaut",
               "PoblacionProvinciaBaut",
               "Profesion",
               "Colaboradores"});
  return table;
}

}  // namespace

const Schema& reportsSchema() {
  static const Schema schema("Informes", 1, [] {
    Table tasks("Tareas_Agenda");
    tasks.memos({"Fecha", "HInicio", "HFin", "Nombre", "Descripcion"});
    return std::vector<Table>{
        baptism(),        confirmation(), death(),        marriage(),      spouses("Novio"),
        spouses("Novia"), witnesses(),    examinations(), collaborators(), tasks};
  }());
  return schema;
}

}  // namespace fidaleon::store
