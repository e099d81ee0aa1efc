// The store of baptisms.

#include "registers/baptism/AlmacenBautismo.h"

#include <array>

#include "registers/baptism/TablasBautismo.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr Columna<cBautismo> LISTA[] = {
    {"IDBautismo", "IDBautismo", &cBautismo::IDBautismo, Cita::Numero},
    {"Folio", "FolioBautismo", &cBautismo::FolioBautismo, Cita::Numero},
    {"Numero", "NumeroBautismo", &cBautismo::NumeroBautismo, Cita::Texto},
    {"Nombre", "NombreHijo", &cBautismo::NombreHijo, Cita::Texto},
    {"PrimerApellido", "PrimerApellidoHijo", &cBautismo::PrimerApellidoHijo, Cita::Texto},
    {"SegundoApellido", "SegundoApellidoHijo", &cBautismo::SegundoApellidoHijo, Cita::Texto},
    {"FechaBautismo", "FechaBautismo", &cBautismo::FechaBautismo, Cita::Texto},
    {"Anulada", "AnuladaBautismo", &cBautismo::AnuladaBautismo, Cita::Numero},
};
constexpr Tabla<cBautismo> TABLA_LISTA{"Bautismo", ", ", "=", LISTA};

std::string sqlLista(std::int32_t libro) {
  return "SELECT Bautismo.IDBautismo, Bautismo.Folio as Folio, Bautismo.Numero, "
         "Bautismo.FechaBautismo, Bautismo.Anulada, Bautismo_Hijo.Nombre, "
         "Bautismo_Hijo.PrimerApellido, Bautismo_Hijo.SegundoApellido FROM Bautismo, "
         "Bautismo_Hijo, Bautismo_Madres, Bautismo_Padres, Bautismo_Matrimonio, Libro_Bautismo "
         "WHERE CodLibro=" +
         std::to_string(libro) +
         " AND idBautismo=codBautismo AND IdLibroBautismo=CodLibro AND "
         "Bautismo_Madres.IDMadres=Bautismo.CodMadres AND "
         "Bautismo_Padres.IDPadres=Bautismo.CodPadres AND "
         "Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio ORDER BY Folio, Val(Numero), "
         "IDBautismo";
}

std::string sqlEntera(std::int32_t /*libro*/, std::int32_t id) {
  return "SELECT Bautismo.IDBautismo, " + sqlAlias(TABLA_BAUTISMO, "Bautismo") + ", " +
         sqlAlias(TABLA_HIJO, "Bautismo_Hijo") + ", " + sqlAlias(TABLA_PADRES, "Bautismo_Padres") +
         ", " + sqlAlias(TABLA_MADRES, "Bautismo_Madres") + ", " +
         sqlAlias(TABLA_MATRIMONIO, "Bautismo_Matrimonio") +
         " FROM Bautismo, Bautismo_Hijo, Bautismo_Madres, Bautismo_Padres, Bautismo_Matrimonio"
         " WHERE IDBautismo=" +
         std::to_string(id) +
         " AND idBautismo=codBautismo AND Bautismo_Madres.IDMadres=Bautismo.CodMadres"
         " AND Bautismo_Padres.IDPadres=Bautismo.CodPadres"
         " AND Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio";
}

/// The rows it points at are found by the keys that the entry itself holds.
void tomarClaves(cBautismo& b) {
  b.CodBautismo = b.IDBautismo;
  b.IDPadres = b.CodPadres;
  b.IDMadres = b.CodMadres;
  b.IDMatrimonio = b.CodMatrimonio;
}

void alLeer(cBautismo& b) {
  tomarClaves(b);
  b.IDLibroBautismo = b.CodLibroBautismo;
}

std::int32_t claveNueva(Conexion& conexion, const char* sql, const std::string& texto) {
  return static_cast<std::int32_t>(conexion.Execute(sql + entreComillas(texto)).integer("ID"));
}

void insertarPadres(Conexion& conexion, cBautismo& b) {
  for (const Tabla<cBautismo>* tabla : {&TABLA_PADRES, &TABLA_MADRES, &TABLA_MATRIMONIO})
    conexion.Execute(sqlInsertar(*tabla, b));
  b.CodPadres = claveNueva(
      conexion, "SELECT MAX(IDPadres) AS ID FROM bautismo_padres WHERE Nombre = ", b.NombrePadres);
  b.CodMadres = claveNueva(
      conexion, "SELECT MAX(IDMadres) AS ID FROM bautismo_madres WHERE Nombre = ", b.NombreMadres);
  b.CodMatrimonio = claveNueva(
      conexion, "SELECT MAX(IDMatrimonio) AS ID FROM bautismo_matrimonio WHERE Parroquia = ",
      b.ParroquiaMatrimonio);
  if (b.EdadPadrino.empty()) b.EdadPadrino = "0";
  if (b.EdadMadrina.empty()) b.EdadMadrina = "0";
}

void retomar(cBautismo& b, const store::Recordset& fila) {
  b.CodPadres = static_cast<std::int32_t>(fila.integer("CodPadres"));
  b.CodMadres = static_cast<std::int32_t>(fila.integer("CodMadres"));
  b.CodMatrimonio = static_cast<std::int32_t>(fila.integer("CodMatrimonio"));
  tomarClaves(b);
  b.CambioPadre = b.CambioMadre = b.CambioMatrimonio = true;
}

void actualizarCompartidas(Conexion& conexion, const cBautismo& b) {
  const auto escribir = [&](const Tabla<cBautismo>& tabla, const char* donde, std::int32_t clave) {
    conexion.Execute(sqlActualizar(tabla, b) + donde + std::to_string(clave));
  };
  if (b.CambioPadre) escribir(TABLA_PADRES, " WHERE idpadres=", b.IDPadres);
  if (b.CambioMadre) escribir(TABLA_MADRES, " WHERE idmadres=", b.IDMadres);
  if (b.CambioMatrimonio)
    escribir(TABLA_MATRIMONIO_AL_ACTUALIZAR, " WHERE idmatrimonio = ", b.IDMatrimonio);
}

constexpr std::array PROPIAS{&TABLA_HIJO};
constexpr std::array COMPARTIDAS{&TABLA_PADRES, &TABLA_MADRES, &TABLA_MATRIMONIO};
constexpr std::array<std::pair<const char*, std::int32_t cBautismo::*>, 5> CLAVES{
    {{"IDLibroBautismo", &cBautismo::IDLibroBautismo},
     {"IDPadres", &cBautismo::IDPadres},
     {"IDMadres", &cBautismo::IDMadres},
     {"IDMatrimonio", &cBautismo::IDMatrimonio},
     {"CodBautismo", &cBautismo::CodBautismo}}};
constexpr std::array<std::pair<const char*, bool cBautismo::*>, 3> SIGNOS{
    {{"CambioPadre", &cBautismo::CambioPadre},
     {"CambioMadre", &cBautismo::CambioMadre},
     {"CambioMatrimonio", &cBautismo::CambioMatrimonio}}};

}  // namespace

const DescripcionAlmacen<cBautismo> ALMACEN_BAUTISMO{
    .forma = *formaPartida(BAUTISMO),
    .partida = TABLA_BAUTISMO,
    .partidaAlActualizar = TABLA_BAUTISMO_AL_ACTUALIZAR,
    .propias = PROPIAS,
    .compartidas = COMPARTIDAS,
    .id = &cBautismo::IDBautismo,
    .anulada = &cBautismo::AnuladaBautismo,
    .libro = [](const cBautismo& b) { return b.CodLibroBautismo; },
    .completa = &cBautismo::SexoHijo,
    .lista = TABLA_LISTA,
    .sqlLista = sqlLista,
    .sqlEntera = sqlEntera,
    .conAlias = true,
    .claves = CLAVES,
    .signos = SIGNOS,
    .procCompletar = "ActualizarColeccion",
    .procGrabar = "GrabarColeccionBasesDatos",
    .procAnular = "AnularDesanularPar",
    .avisoCargar = "¡Se ha producido un error al cargar las partidas del libro!",
    .insertarCompartidas = insertarPadres,
    .compartidasQuedan = true,
    .sqlUltima = "SELECT * FROM {partidas} ORDER BY {idpartida} DESC",
    .retomar = retomar,
    .actualizarCompartidas = actualizarCompartidas,
    .alLeer = alLeer,
};

template class Almacen<cBautismo>;

}  // namespace fidaleon
