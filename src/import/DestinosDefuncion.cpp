#include "import/Destinos.h"

namespace fidaleon {

namespace {

using enum Origen;

constexpr const char* ERROR_LIBRO =
    "¡Se ha producido un error al introducir un libro de defunción!";

const TablaDestino PARTIDA = {"Defuncion",
                              "¡Se ha producido un error al introducir una partida de defunción!",
                              {{"Nombre", Texto, "Nombre", {}, 20},
                               {"PrimerApellido", Texto, "Apellido1", {}, 20},
                               {"SegundoApellido", Texto, "Apellido2", {}, 20},
                               {"CodMunicipioNaturalDe", Lugar, "Pobl_Nac", "Prov_Nac"},
                               {"DomicilioActual", Texto, "Direccion", {}, 50},
                               {"CodMunicipioActual", Lugar, "Poblacion", "Provincia"},
                               {"EstadoCivil", Texto, "E_Civil", {}, 15},
                               {"Consorte", Union, "Nom_Cony Ap1_Cony Ap2_Cony"},
                               {"NumeroHijos", Texto, "N_Hijos"},
                               {"NombresHijos", Texto, "Hijos"},
                               {"NombrePadre", Texto, "Padre"},
                               {"NombreMadre", Texto, "Madre"},
                               {"Parroquia", Parroquia},
                               {"CodMunicipioParr", Municipio},
                               {"DiocesisParr", Diocesis},
                               {"NotasMarginales"},
                               {"Observaciones", Texto, "Observa"},
                               llave("CodLibro", Clave::Libro),
                               {"Folio", Valor, "Folio_D"},
                               {"Numero", Texto, "Numero_D"},
                               {"Anulada", No},
                               {"Parroco"}},
                              "SELECT MAX(IDDifunto) AS ID FROM Defuncion",
                              Clave::Partida};

const TablaDestino DATOS = {"Defuncion_Datos",
                            "¡Se ha producido un error al introducir datos de defunción!",
                            {llave("CodDifunto", Clave::Partida),
                             {"Causa", Texto, {}, {}, 20},
                             {"Edad", Edad, "F_Nac Fecha_Nac", "F_Fallec"},
                             {"FechaDefuncion", Fecha, "F_Fallec"},
                             {"HoraDefuncion", Texto, "H_Fallec", {}, 5},
                             {"DomicilioDefn", Texto, "Lugar_Fac", {}, 50},
                             {"CodMunicipioDefn", Lugar, "Pobl_Fac", "Prov_Fac"},
                             {"FechaInhumacion", Fecha, "F_Inhum"},
                             {"Cementerio", Texto, {}, {}, 50},
                             {"Sacramentos", Texto, "Sacra", {}, 60},
                             {"Sacerdote", Texto, {}, {}, 60}}};

}  // namespace

const RegistroInpar& inparDefuncion() {
  static const RegistroInpar registro = {
      .palabra = "Defuncion",
      .titulo = "Defunción",
      .tabla = "DEFU",
      .etapa = 4,
      .columnaLibro = "Libro_D",
      .columnaFolio = "Folio_D",
      .columnaNumero = "Numero_D",
      .columnaFecha = "F_Fallec",
      .sqlLibros = "SELECT DISTINCT Libro_D From Defu ORDER BY Libro_D",
      .sqlPartidas = "SELECT * FROM Defu WHERE Libro_D",
      .sqlPartidasOrden = " ORDER BY Libro_D, Val(Folio_D), Val(Numero_D)",
      .sqlFecha = "",
      .sqlSiguiente =
          "SELECT MAX(Folio_D) AS Folio, MAX(Numero_D) AS Numero FROM Defu WHERE Libro_D",
      .tablaLibros = "Libro_Defuncion",
      .sqlClaveLibro = "SELECT MAX(IDLibroDefuncion) as IDLibroDef FROM Libro_Defuncion",
      .sqlTrasLibro = "",
      .errorLibro = ERROR_LIBRO,
      .tablas = {PARTIDA, DATOS}};
  return registro;
}

}  // namespace fidaleon
