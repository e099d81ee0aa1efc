#include "import/Destinos.h"

namespace fidaleon {

namespace {

using enum Origen;

constexpr const char* ERROR = "¡Se ha producido un error al introducir datos de bautismo!";

/// `lado` is "Padre" or "Madre"; `p` and `m` end the columns of its own parents.
TablaDestino progenitor(const std::string& lado, const std::string& linea, Clave clave) {
  const std::string letra = linea == "Pat" ? "p" : "m";
  const std::string id = "ID" + lado + "s", tabla = "Bautismo_" + lado + "s";
  return {tabla,
          ERROR,
          {{"Nombre", Nombre, lado},
           {"PrimerApellido", Apellido1, lado},
           {"SegundoApellido", Apellido2, lado},
           {"CodMunicipio", Lugar, "Pobl_" + lado, "Prov_" + lado},
           {"Abuelo", Texto, "Abo_" + linea},
           {"CodMunicipioAbuelo", Lugar, "Pobl_Abo" + letra, "Prov_Abo" + letra},
           {"Abuela", Texto, "Aba_" + linea},
           {"CodMunicipioAbuela", Lugar, "Pobl_Aba" + letra, "Prov_Aba" + letra}},
          "SELECT MAX(" + id + ") AS " + id + " FROM " + tabla,
          clave};
}

const TablaDestino ENLACE = {"Bautismo_Matrimonio",
                             ERROR,
                             {{"Parroquia", Texto, "Parr_Mat"},
                              {"FechaMatr", Fecha, "Fecha_Mat"},
                              {"CodMunicipioMatr", Lugar, "Pobl_Mat", "Prov_Mat"},
                              {"DireccionPadres", Texto, "Dir_Padres"},
                              {"CodMunicipioPadres", Lugar, "Pobl_Padrs", "Prov_Padrs"}},
                             "SELECT MAX(IDMatrimonio) AS IDMatrimonio FROM Bautismo_Matrimonio",
                             Clave::Enlace};

const TablaDestino PARTIDA = {"Bautismo",
                              ERROR,
                              {llave("CodPadres", Clave::Padres),
                               llave("CodMadres", Clave::Madres),
                               llave("CodMatrimonio", Clave::Enlace),
                               {"InstitucionSolicitud"},
                               {"FechaBautismo", Fecha, "Fecha_Bau"},
                               {"Padrino"},
                               {"Madrina"},
                               {"Ministro"},
                               {"Parroquia", Parroquia},
                               {"CodMunicipio", Municipio},
                               {"Diocesis", Diocesis},
                               {"NotasMarginales", Lineas},
                               {"Observaciones", Texto, "Observa"},
                               llave("CodLibro", Clave::Libro),
                               {"Folio", Valor, "Folio_B"},
                               {"Numero", Texto, "Numero_B"},
                               {"Anulada", No}},
                              "SELECT MAX(IDBautismo) AS IDBautismo FROM Bautismo",
                              Clave::Partida};

const TablaDestino HIJO = {"Bautismo_Hijo",
                           ERROR,
                           {llave("CodBautismo", Clave::Partida),
                            {"Nombre", Falta, "Nombre"},
                            {"PrimerApellido", Falta, "Apellido1"},
                            {"SegundoApellido", Falta, "Apellido2"},
                            {"Sexo", Sexo},
                            {"FechaNac", Fecha, "Fecha_Nac"},
                            {"HoraNac", Texto, "Hora_Nac"},
                            {"DireccionNac", Texto, "Dir_Nac"},
                            {"CodMunicipioNac", Lugar, "Pobl_Nac", "Prov_Nac"}}};

}  // namespace

const RegistroInpar& inparBautismo() {
  static const RegistroInpar registro = {
      .palabra = "Bautismo",
      .titulo = "Bautismo",
      .tabla = "BAUT",
      .etapa = 1,
      .columnaLibro = "Libro_B",
      .columnaFolio = "Folio_B",
      .columnaNumero = "Numero_B",
      .columnaFecha = "Fecha_Bau",
      .sqlLibros = "SELECT DISTINCT(Libro_B) FROM BAUT ORDER BY Libro_B",
      .sqlPartidas = "SELECT * FROM Baut WHERE LIBRO_B",
      .sqlPartidasOrden = " ORDER BY Val(Folio_B), Val(Numero_B)",
      .sqlFecha = "SELECT MAX(Fecha_Bau) as FechaBau FROM BAUT WHERE LIBRO_B",
      .sqlSiguiente =
          "SELECT MAX(Folio_B) as Folio,MAX(Numero_B) as Numero FROM Baut WHERE LIBRO_B",
      .tablaLibros = "Libro_Bautismo",
      .sqlClaveLibro = "SELECT MAX(IDLibroBautismo) as IDLibroBaut FROM Libro_Bautismo",
      .sqlTrasLibro = "",
      .errorLibro = ERROR,
      .tablas = {progenitor("Padre", "Pat", Clave::Padres),
                 progenitor("Madre", "Mat", Clave::Madres), ENLACE, PARTIDA, HIJO}};
  return registro;
}

}  // namespace fidaleon
