#include "registers/common/FormaPartida.h"

#include "core/contract/NombreYApellidos.h"
#include "core/statements/Sentencia.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr FilaDePartida DE_BAUTISMO[] = {
    {"madre", "Bautismo_Madres", "IDMadres", "CodMadres", true},
    {"padre", "Bautismo_Padres", "IDPadres", "CodPadres", true},
    {"matrimonio de los padres", "Bautismo_Matrimonio", "IDMatrimonio", "CodMatrimonio", true},
    {"bautizado", "Bautismo_Hijo", "CodBautismo", "IDBautismo", false},
    {nullptr, "Bautismo", "IDBautismo", "IDBautismo", false},
};
constexpr const char* BAUTIZADO[] = {"Bautismo_Hijo"};

constexpr FilaDePartida DE_CONFIRMACION[] = {
    {nullptr, "Confirmacion", "IDConfirmacion", "IDConfirmacion", false},
    {"confirmación", "Confirmacion_Datos", "CodConfirmacion", "IDConfirmacion", false},
    {"bautismo", "Confirmacion_Bautismo", "CodConfirmacion", "IDConfirmacion", false},
};
constexpr const char* CONFIRMADO[] = {"Confirmacion"};

constexpr FilaDePartida DE_DEFUNCION[] = {
    {nullptr, "Defuncion", "IDDifunto", "IDDifunto", false},
    {"defunción", "Defuncion_Datos", "CodDifunto", "IDDifunto", false},
};
constexpr const char* DIFUNTO[] = {"Defuncion"};

constexpr FilaDePartida DE_MATRIMONIO[] = {
    {"novia", "Matrimonio_Novias", "IDNovias", "CodNovias", false},
    {"registro civil de la novia", "Matrimonio_Novias_RegCivil", "CodNovias", "CodNovias", false},
    {"bautismo de la novia", "Matrimonio_Novias_Bautismo", "CodNovias", "CodNovias", false},
    {"novio", "Matrimonio_Novios", "IDNovios", "CodNovios", false},
    {"registro civil del novio", "Matrimonio_Novios_RegCivil", "CodNovios", "CodNovios", false},
    {"bautismo del novio", "Matrimonio_Novios_Bautismo", "CodNovios", "CodNovios", false},
    {nullptr, "Matrimonio", "IDMatrimonio", "IDMatrimonio", false},
    {"celebración", "Matrimonio_Compromiso", "CodMatrimonio", "IDMatrimonio", false},
    {"expediente", "Matrimonio_Expediente", "CodMatrimonio", "IDMatrimonio", false},
};
constexpr const char* NOVIOS[] = {"Matrimonio_Novios", "Matrimonio_Novias"};

constexpr FormaPartida FORMAS[] = {
    {BAUTISMO, "Bautismo", "FechaBautismo", DE_BAUTISMO, BAUTIZADO},
    {CONFIRMACION, "Confirmación", "FechaConfirmacion", DE_CONFIRMACION, CONFIRMADO},
    {MATRIMONIO, "Matrimonio", "FechaMatrimonio", DE_MATRIMONIO, NOVIOS},
    {DEFUNCION, "Defunción", "FechaDefuncion", DE_DEFUNCION, DIFUNTO},
};

bool usaOtra(Conexion& conexion, const Sacramento& s, const FilaDePartida& fila,
             const std::string& valor, const std::string& id) {
  return !conexion
              .Execute(sentencia(s, "SELECT * FROM {partidas} WHERE ") + fila.enlace + "=" + valor +
                       sentencia(s, " AND {idpartida}<>") + id)
              .EOF_();
}

}  // namespace

std::span<const FormaPartida> formasPartida() {
  return FORMAS;
}

const FormaPartida* formaPartida(const Sacramento& sacramento) {
  for (const FormaPartida& f : FORMAS)
    if (&f.sacramento == &sacramento) return &f;
  return nullptr;
}

std::string sqlPartida(const Sacramento& s, std::int32_t id) {
  return sentencia(s, "SELECT * FROM {partidas} WHERE {idpartida}=") + std::to_string(id);
}

void borrarFilas(Conexion& conexion, const FormaPartida& forma, const store::Recordset& partida,
                 Compartidas compartidas) {
  const std::string id = partida.text(forma.sacramento.clavePartida);
  for (const FilaDePartida& f : forma.filas) {
    const std::string valor = partida.text(f.enlace);
    if (f.compartida && compartidas == Compartidas::Respetar &&
        usaOtra(conexion, forma.sacramento, f, valor, id))
      continue;
    conexion.Execute(std::string("DELETE * FROM ") + f.tabla + " WHERE " + f.clave + "=" + valor);
  }
}

void borrarPartida(Conexion& conexion, const FormaPartida& forma, std::int32_t id,
                   Compartidas compartidas) {
  const Sacramento& s = forma.sacramento;
  const store::Recordset partida = conexion.Execute(sqlPartida(s, id));
  if (partida.EOF_()) return;
  conexion.Execute(
      sentencia(s,
                "UPDATE {Libros} SET FolioSiguiente = 1, NumeroSiguiente = 1 WHERE {IDLibro} = ") +
      partida.text("CodLibro"));
  borrarFilas(conexion, forma, partida, compartidas);
}

std::string nombrePartida(Conexion& conexion, const Sacramento& s, std::int32_t lngID,
                          const char* entrePersonas) {
  const FormaPartida* forma = formaPartida(s);
  const store::Recordset partida = conexion.Execute(sqlPartida(s, lngID));
  if (!forma || partida.EOF_()) return {};
  std::string nombre;
  for (const std::string_view persona : forma->personas)
    for (const FilaDePartida& f : forma->filas) {
      if (persona != f.tabla) continue;
      const store::Recordset fila =
          conexion.Execute(std::string("SELECT Nombre, PrimerApellido, SegundoApellido FROM ") +
                           f.tabla + " WHERE " + f.clave + "=" + partida.text(f.enlace));
      if (!fila.EOF_()) nombre += (nombre.empty() ? "" : entrePersonas) + nombreYApellidos(fila);
    }
  const store::Recordset libro = conexion.Execute(
      sentencia(s, "SELECT Nombre FROM {Libros} WHERE {IDLibro}=") + partida.text("CodLibro"));
  if (libro.EOF_()) return nombre;
  return nombre + "\n" + libro.text("Nombre") + ", folio " + partida.text("Folio") + ", número " +
         partida.text("Numero");
}

}  // namespace fidaleon
