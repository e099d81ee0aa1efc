// The store of marriages.

#include "registers/marriage/AlmacenMatrimonio.h"

#include <array>

#include "registers/marriage/Examenes.h"
#include "registers/marriage/TablasMatrimonio.h"

namespace fidaleon {

using FDAPI::Conexion;
using M = cMatrimonio;

namespace {

constexpr Columna<M> LISTA[] = {
    {"IDMatrimonio", "IDMatrimonio", &M::IDMatrimonio, Cita::Numero},
    {"Folio", "Folio", &M::Folio, Cita::Numero},
    {"Numero", "Numero", &M::Numero, Cita::Texto},
    {"NovioNombre", "NovioNombre", &M::NovioNombre, Cita::Texto},
    {"NovioPrimerApellido", "NovioPrimerApellido", &M::NovioPrimerApellido, Cita::Texto},
    {"NovioSegundoApellido", "NovioSegundoApellido", &M::NovioSegundoApellido, Cita::Texto},
    {"NoviaNombre", "NoviaNombre", &M::NoviaNombre, Cita::Texto},
    {"NoviaPrimerApellido", "NoviaPrimerApellido", &M::NoviaPrimerApellido, Cita::Texto},
    {"NoviaSegundoApellido", "NoviaSegundoApellido", &M::NoviaSegundoApellido, Cita::Texto},
    {"FechaMatrimonio", "FechaMatrimonio", &M::FechaMatrimonio, Cita::Texto},
    {"Anulada", "Anulada", &M::Anulada, Cita::Numero},
};
constexpr Tabla<M> TABLA_LISTA{"Matrimonio", ", ", "=", LISTA};

/// The nine tables of the marriages of a book. The spouses' columns bear the same names, so that
/// whoever reads them has to say which.
std::string sqlDelLibro(const std::string& columnas, std::int32_t libro) {
  return "SELECT Matrimonio.IDMatrimonio, " + columnas +
         " FROM Matrimonio, Matrimonio_Compromiso, Matrimonio_Expediente, Matrimonio_Novios, "
         "Matrimonio_Novios_RegCivil, Matrimonio_Novios_Bautismo, Matrimonio_Novias, "
         "Matrimonio_Novias_RegCivil, Matrimonio_Novias_Bautismo WHERE Matrimonio.codlibro=" +
         std::to_string(libro) +
         " AND Matrimonio_Compromiso.CodMatrimonio=Matrimonio.IDMatrimonio"
         " AND Matrimonio_Expediente.CodMatrimonio=Matrimonio.IDMatrimonio"
         " AND Matrimonio_Novios.IDNovios=Matrimonio.CodNovios"
         " AND Matrimonio_Novios_RegCivil.CodNovios=Matrimonio.CodNovios"
         " AND Matrimonio_Novios_Bautismo.CodNovios=Matrimonio.CodNovios"
         " AND Matrimonio_Novias.IDNovias=Matrimonio.CodNovias"
         " AND Matrimonio_Novias_RegCivil.CodNovias=Matrimonio.CodNovias"
         " AND Matrimonio_Novias_Bautismo.CodNovias=Matrimonio.CodNovias";
}

std::string sqlLista(std::int32_t libro) {
  return sqlDelLibro(
             "Matrimonio.Folio as Folio, Matrimonio.Numero, Matrimonio.Anulada, "
             "Matrimonio_Compromiso.FechaMatrimonio, Matrimonio_Novios.Nombre as NovioNombre, "
             "Matrimonio_Novios.PrimerApellido as NovioPrimerApellido, "
             "Matrimonio_Novios.SegundoApellido as NovioSegundoApellido, "
             "Matrimonio_Novias.Nombre as NoviaNombre, "
             "Matrimonio_Novias.PrimerApellido as NoviaPrimerApellido, "
             "Matrimonio_Novias.SegundoApellido as NoviaSegundoApellido",
             libro) +
         " ORDER BY Folio, Val(Numero), idMatrimonio";
}

constexpr std::array PROPIAS{&TABLA_COMPROMISO, &TABLA_EXPEDIENTE};
constexpr std::array DE_LOS_NOVIOS{&TABLA_NOVIOS, &TABLA_NOVIOS_REGCIVIL, &TABLA_NOVIOS_BAUTISMO,
                                   &TABLA_NOVIAS, &TABLA_NOVIAS_REGCIVIL, &TABLA_NOVIAS_BAUTISMO};

std::string sqlEntera(std::int32_t libro, std::int32_t id) {
  std::string columnas = sqlAlias(TABLA_MATRIMONIOS, TABLA_MATRIMONIOS.nombre);
  for (const auto& tablas : {std::span<const Tabla<M>* const>(PROPIAS), {DE_LOS_NOVIOS}})
    for (const Tabla<M>* tabla : tablas) columnas += ", " + sqlAlias(*tabla, tabla->nombre);
  return sqlDelLibro(columnas, libro) + " AND Matrimonio.IDMatrimonio = " + std::to_string(id) +
         " ORDER BY idMatrimonio";
}

/// A spouse's rows: the person, which gives the key, and those that hold it.
struct Contrayente {
  const char* clave;
  const char* enlace;
  std::int32_t M::*miembro;
  std::span<const Tabla<M>* const> fichas;
};
constexpr std::array CONTRAYENTES{
    Contrayente{"IDNovios", "codnovios", &M::IDNovios, std::span(DE_LOS_NOVIOS).first(3)},
    Contrayente{"IDNovias", "codnovias", &M::IDNovias, std::span(DE_LOS_NOVIOS).last(3)}};

void leerClave(Conexion& conexion, const Contrayente& c, M& m) {
  m.*c.miembro = static_cast<std::int32_t>(
      conexion.Execute(std::string("SELECT MAX(") + c.clave + ") AS ID FROM " + c.fichas[0]->nombre)
          .integer("ID"));
}

void insertarContrayentes(Conexion& conexion, M& m) {
  for (const Contrayente& c : CONTRAYENTES) conexion.Execute(sqlInsertar(*c.fichas[0], m));
  for (const Contrayente& c : CONTRAYENTES) {
    leerClave(conexion, c, m);
    for (const Tabla<M>* ficha : c.fichas.subspan(1)) conexion.Execute(sqlInsertar(*ficha, m));
  }
  for (const Contrayente& c : CONTRAYENTES) leerClave(conexion, c, m);
}

void actualizarContrayentes(Conexion& conexion, const M& m) {
  for (const Contrayente& c : CONTRAYENTES)
    for (const Tabla<M>* ficha : c.fichas)
      conexion.Execute(sqlActualizar(*ficha, m) + " WHERE " +
                       (ficha == c.fichas[0] ? text::lower(c.clave) : c.enlace) + "=" +
                       std::to_string(m.*c.miembro));
}

void retomar(M& m, const store::Recordset& fila) {
  m.IDNovios = static_cast<std::int32_t>(fila.integer("CodNovios"));
  m.IDNovias = static_cast<std::int32_t>(fila.integer("CodNovias"));
}

void guardarExamenesEnEspera(Conexion& conexion, const M& m) {
  GrabarExamenes(conexion, FDAPI::cCOperacion::EDITAR, m.IDMatrimonio,
                 examenesDeTexto(m.ExamenesEnEspera));
}

}  // namespace

const DescripcionAlmacen<M> ALMACEN_MATRIMONIO{
    .forma = *formaPartida(MATRIMONIO),
    .partida = TABLA_MATRIMONIOS,
    .partidaAlActualizar = TABLA_MATRIMONIOS,
    .propias = PROPIAS,
    .compartidas = DE_LOS_NOVIOS,
    .id = &M::IDMatrimonio,
    .anulada = &M::Anulada,
    .libro = [](const M& m) { return m.IDLibro; },
    .completa = &M::Parroquia,
    .lista = TABLA_LISTA,
    .sqlLista = sqlLista,
    .sqlEntera = sqlEntera,
    .conAlias = true,
    .insertarCompartidas = insertarContrayentes,
    .retomar = retomar,
    .actualizarCompartidas = actualizarContrayentes,
    .enEspera = &M::ExamenesEnEspera,
    .guardarEnEspera = guardarExamenesEnEspera,
    .procEnEspera = "GrabarExamenes",
};

template class Almacen<M>;

}  // namespace fidaleon
