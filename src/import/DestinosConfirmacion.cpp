#include "import/Destinos.h"

namespace fidaleon {

namespace {

using enum Origen;

constexpr const char* ERROR = "¡Se ha producido un error al introducir datos de confirmación!";

const TablaDestino PARTIDA = {"Confirmacion",
                              ERROR,
                              {{"InstitucionSolicitud"},
                               {"Nombre", Falta, "Nombre"},
                               {"PrimerApellido", Falta, "Apellido1"},
                               {"SegundoApellido", Falta, "Apellido2"},
                               {"Domicilio", Texto, "Direccion"},
                               {"CodMunicipioDomicilio", Lugar, "Poblacion", "Provincia"},
                               {"FechaNac", Fecha, "F_Nac"},
                               {"CodMunicipioNac"},
                               {"FeligresDe"},
                               {"NombrePadre", Texto, "Padre"},
                               {"NombreMadre", Texto, "Madre"},
                               {"Parroquia", Parroquia},
                               {"CodMunicipioParr", Municipio},
                               {"NotasMarginales"},
                               llave("CodLibro", Clave::Libro),
                               {"Folio", Uno},
                               {"Numero", Texto, "Numero_C"},
                               {"Anulada", No},
                               {"Observaciones", Texto, "Observa"},
                               {"DiocesisParr", Diocesis}},
                              "SELECT MAX(IDConfirmacion) AS IDConfirmacion FROM Confirmacion",
                              Clave::Partida};

const TablaDestino DATOS = {"Confirmacion_Datos",
                            ERROR,
                            {llave("CodConfirmacion", Clave::Partida),
                             {"FechaConfirmacion", Fecha, "F_Conf"},
                             {"Padrino"},
                             {"Ministro"},
                             {"CargoMinistro"}}};

const TablaDestino BAUTISMO = {"Confirmacion_Bautismo",
                               ERROR,
                               {llave("CodConfirmacion", Clave::Partida),
                                {"FechaBaut", Fecha, "F_Bau"},
                                {"ParroquiaBaut", Texto, "Parr_Bau"},
                                {"DireccionBaut"},
                                {"CodMunicipioBaut", Lugar, "Pobl_Bau", "Prov_Bau"},
                                {"LibroBaut", Texto, "Libro_B"},
                                {"FolioBaut", Valor, "Folio_B"},
                                {"NumeroBaut", Texto, "Numero_B"}}};

}  // namespace

const RegistroInpar& inparConfirmacion() {
  static const RegistroInpar registro = {
      .palabra = "Confirmacion",
      .titulo = "Confirmación",
      .tabla = "CONF",
      .etapa = 2,
      .columnaLibro = "Libro_C",
      .columnaFolio = "",
      .columnaNumero = "Numero_C",
      .columnaFecha = "F_Conf",
      .sqlLibros = "SELECT DISTINCT(Libro_C) FROM CONF ORDER BY LIBRO_C",
      .sqlPartidas = "SELECT * FROM Conf WHERE LIBRO_C",
      .sqlPartidasOrden = " ORDER BY Val(Numero_C)",
      .sqlFecha = "SELECT MAX(F_Conf) as FechaConf FROM CONF WHERE LIBRO_C",
      .sqlSiguiente = "SELECT MAX(Numero_C) as Numero FROM CONF WHERE LIBRO_C",
      .tablaLibros = "Libro_Confirmacion",
      .sqlClaveLibro = "SELECT MAX(IDLibroConfirmacion) as IDLibroConf FROM Libro_Confirmacion",
      .sqlTrasLibro = "UPDATE Libro_Confirmacion SET FolioSiguiente=2 WHERE IDLibroConfirmacion=",
      .errorLibro = ERROR,
      .tablas = {PARTIDA, DATOS, BAUTISMO}};
  return registro;
}

}  // namespace fidaleon
