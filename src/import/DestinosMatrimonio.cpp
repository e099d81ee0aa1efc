#include "import/Destinos.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

using enum Origen;

constexpr const char* ERROR_DATOS =
    "¡Se ha producido un error al introducir datos de una partida de matrimonio!";
constexpr const char* ERROR_PARTIDA =
    "¡Se ha producido un error al introducir una partida de matrimonio!";
constexpr const char* ERROR_LIBRO =
    "¡Se ha producido un error al introducir un libro de matrimonio!";

/// The columns of one spouse: "%" is O for the groom and A for the bride, as the older program has
/// it.
std::vector<TablaDestino> contrayente(const std::string& quien, const std::string& error,
                                      Clave clave) {
  const std::string base = "Matrimonio_" + quien + "s", enlace = "Cod" + quien + "s";
  const Destino padre = llave(enlace, clave);
  std::vector<TablaDestino> tablas = {
      {base,
       error,
       {{"Nombre", Texto, "Nombre_%"},
        {"PrimerApellido", Texto, "Apellido1%"},
        {"SegundoApellido", Texto, "Apellido2%"},
        {"DNI", Texto, "DNI_%"},
        {"Edad", Edad, "F_Nac_%", "FECHA_BODA"},
        {"Religion", Texto, "Relig_%"},
        {"FechaNac", Fecha, "F_Nac_%"},
        {"CodMunicipioNac", Lugar, "Pobl_Nac_%", "Prov_Nac_%"},
        {"FechaConfirmacion", Fecha, "F_Con_%"},
        {"CodMunicipioConfirmacion", LugarSuelto, "POBL_CON_%"},
        {"DomicilioActual", Texto, "Di_Resac_%"},
        {"CodMunicipioActual", Lugar, "Po_Resac_%", "Pr_Resac_%"},
        {"TResidenciaDomAct", Valor, "F_RESAC_%"},
        {"DomicilioAnterior"},
        {"CodMunicipioAnterior"}},
       "SELECT MAX(ID" + quien + "s) AS ID" + quien + " FROM " + base,
       clave},
      {base + "_Bautismo",
       error,
       {padre,
        {"FechaBaut", Fecha, "F_Bau_%"},
        {"ParroquiaBaut", Texto, "Parr_Bau_%"},
        {"DiocesisBaut", Texto, "Dioc_Bau_%"},
        {"CodMunicipioBaut", LugarSuelto, "POBL_BAU_%"},
        {"LibroBaut", Texto, "Libro_B_%"},
        {"FolioBaut", Valor, "Folio_B_%"},
        {"NumeroBaut", Texto, "Numero_B_%"}}},
      {base + "_RegCivil",
       error,
       {padre,
        {"EstadoCivil", Texto, "E_Civil_%"},
        {"NombrePadre", Texto, "Nom_P%"},
        {"NombreMadre", Texto, "Nom_M%"},
        {"MunicipioInscrito", Texto, "R_CIVIL_%"},
        {"Tomo", Texto, "Tomo_%"},
        {"Pagina", Texto, "Pagina_%"},
        {"NombreCivil"}}}};
  for (TablaDestino& tabla : tablas)
    for (Destino& destino : tabla.columnas)
      destino.fuente = text::replaceAll(destino.fuente, "%", quien == "Novio" ? "O" : "A"),
      destino.otra = text::replaceAll(destino.otra, "%", quien == "Novio" ? "O" : "A");
  return tablas;
}

const TablaDestino PARTIDA = {"Matrimonio",
                              ERROR_PARTIDA,
                              {llave("CodNovios", Clave::Novios),
                               llave("CodNovias", Clave::Novias),
                               {"InstitucionSolicitud"},
                               {"Parroquia", ParroquiaO, "Iglesia"},
                               {"CodMunicipio", Municipio},
                               {"Diocesis", Diocesis},
                               {"Estado", Cero},
                               {"NotasMarginales", Lineas},
                               {"Observaciones", Texto, "Observa"},
                               llave("CodLibro", Clave::Libro),
                               {"Folio", Valor, "Folio_M"},
                               {"Numero", Texto, "Numero_M"},
                               {"Anulada", No}},
                              "SELECT MAX(IDMatrimonio) AS IDMatrimonio FROM Matrimonio",
                              Clave::Partida};

const TablaDestino COMPROMISO = {"Matrimonio_Compromiso",
                                 ERROR_DATOS,
                                 {llave("CodMatrimonio", Clave::Partida),
                                  {"FechaMatrimonio", Fecha, "Fecha_Boda"},
                                  {"Padrino"},
                                  {"Madrina"},
                                  {"Testigos"},
                                  {"Celebrante", Texto, "Sacerdote"},
                                  {"NihilObstat", Texto, "Nihil"},
                                  {"Demarcacion"},
                                  {"ExpedInst"},
                                  {"DomicilioMatrimonio", Texto, "Domic_Matr"},
                                  {"CodMunicipioDomicMatr", Lugar, "Pobl_Matr", "Prov_Matr"},
                                  {"TelefonoDomicMatr", Texto, "Tfno_Matr"}}};

TablaDestino expediente() {
  TablaDestino tabla = {
      "Matrimonio_Expediente", ERROR_DATOS, {llave("CodMatrimonio", Clave::Partida)}};
  for (const std::string n : {"1", "2"}) {
    const std::string testigo = "Testigo" + n, test = "Test" + n;
    tabla.columnas.insert(tabla.columnas.end(),
                          {{"Nombre" + testigo, Nombre, testigo},
                           {"PrimerApellido" + testigo, Apellido1, testigo},
                           {"SegundoApellido" + testigo, Apellido2, testigo},
                           {"DNI" + testigo, Texto, test + "_DNI"},
                           {"Domicilio" + testigo, Texto, test + "_Dir"},
                           {"CodMunicipio" + testigo, Lugar, test + "_Pob", test + "_Pro"}});
  }
  return tabla;
}

std::vector<TablaDestino> tablas() {
  std::vector<TablaDestino> todas = contrayente(
      "Novio", "¡Se ha producido un error al introducir datos del novio!", Clave::Novios);
  for (TablaDestino& tabla : contrayente(
           "Novia", "¡Se ha producido un error al introducir datos de la novia!", Clave::Novias))
    todas.push_back(std::move(tabla));
  todas.insert(todas.end(), {PARTIDA, COMPROMISO, expediente()});
  return todas;
}

}  // namespace

const RegistroInpar& inparMatrimonio() {
  static const RegistroInpar registro = {
      .palabra = "Matrimonio",
      .titulo = "Matrimonio",
      .tabla = "MATR",
      .etapa = 3,
      .columnaLibro = "Libro_M",
      .columnaFolio = "Folio_M",
      .columnaNumero = "Numero_M",
      .columnaFecha = "Fecha_Boda",
      .sqlLibros = "SELECT DISTINCT Libro_M From Matr ORDER BY Libro_M",
      .sqlPartidas = "SELECT * FROM Matr WHERE Libro_M",
      .sqlPartidasOrden = " ORDER BY Libro_M, Val(Folio_M), Val(Numero_M)",
      .sqlFecha = "",
      .sqlSiguiente =
          "SELECT MAX(Folio_M) AS Folio, MAX(Numero_M) AS Numero FROM Matr WHERE Libro_M",
      .tablaLibros = "Libro_Matrimonio",
      .sqlClaveLibro = "SELECT MAX(IDLibroMatrimonio) as IDLibroMatr FROM Libro_Matrimonio",
      .sqlTrasLibro = "",
      .errorLibro = ERROR_LIBRO,
      .tablas = tablas()};
  return registro;
}

}  // namespace fidaleon
