#include "census/activities/AlmacenActividades.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "core/statements/Citas.h"
#include "store/Transaction.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::Conexion;
using store::Recordset;

namespace {

std::int32_t clave(const Recordset& fila, const char* columna) {
  return static_cast<std::int32_t>(fila.integer(columna));
}

std::string numero(std::int32_t n) {
  return std::to_string(n);
}

bool existe(Conexion& conexion, const std::string& tabla, const std::string& columna,
            std::int32_t id) {
  return !conexion
              .Execute("SELECT " + columna + " FROM " + tabla + " WHERE " + columna + "=" +
                       numero(id))
              .EOF_();
}

/// A person who was removed meanwhile takes the membership along; another office can be chosen.
void insertarMiembro(Conexion& conexion, const cPadronActGrupos& g, std::int32_t grupo,
                     const cPadronActividad& miembro) {
  if (!existe(conexion, "Padron", "IDPadron", miembro.IDPadron)) return;
  if (!existe(conexion, "Cargo", "IDCargo", miembro.IDCargo))
    throw std::runtime_error("Un cargo elegido para el grupo «" + g.Nombre +
                             "» ya no existe. Elija otro.");
  conexion.Execute("INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo ) VALUES (" +
                   numero(miembro.IDPadron) + "," + numero(grupo) + "," + numero(miembro.IDCargo) +
                   ")");
}

void insertarGrupo(Conexion& conexion, std::int32_t actividad, const cPadronActGrupos& g) {
  conexion.Execute(
      "INSERT INTO Grupo (CodActividad,Nombre,Año,Dia,Hora,Sala,Comentarios ) VALUES (" +
      numero(actividad) + "," + entreComillas(g.Nombre) + "," + entreComillas(g.Año) + "," +
      entreComillas(g.Dia) + "," + entreComillas(g.Hora) + "," + entreComillas(g.Sala) + "," +
      entreComillas(g.Comentarios) + ")");
  const std::int32_t id =
      clave(conexion.Execute("SELECT MAX(IDGrupo) as IDGrupo FROM Grupo"), "IDGrupo");
  for (const cPadronActividad& miembro : g.miembros)
    if (miembro.Operacion != cCOperacion::Borrar) insertarMiembro(conexion, g, id, miembro);
}

std::string miembrosDe(std::int32_t grupo) {
  return "SELECT * FROM Padron_Actividad WHERE CodGrupo=" + numero(grupo);
}

void guardarMiembros(Conexion& conexion, const cPadronActGrupos& g) {
  std::set<std::int32_t> almacenados;
  for (Recordset rs = conexion.Execute(miembrosDe(g.IDGrupo)); !rs.EOF_(); rs.MoveNext())
    almacenados.insert(clave(rs, "CodPadron"));
  for (const cPadronActividad& miembro : g.miembros)
    if (miembro.Operacion == cCOperacion::Borrar && almacenados.erase(miembro.IDPadron) > 0)
      conexion.Execute("DELETE * FROM Padron_Actividad WHERE CodPadron=" +
                       numero(miembro.IDPadron) + " AND CodGrupo=" + numero(g.IDGrupo));
  for (const cPadronActividad& miembro : g.miembros)
    if (miembro.Operacion == cCOperacion::ANADIR && almacenados.insert(miembro.IDPadron).second)
      insertarMiembro(conexion, g, g.IDGrupo, miembro);
}

/// What is gone cannot be changed, and nothing must be hung on it.
void exigirGrupo(Conexion& conexion, const cPadronActGrupos& g) {
  if (!existe(conexion, "Grupo", "IDGrupo", g.IDGrupo))
    throw std::runtime_error("El grupo «" + g.Nombre + "» ya no existe.");
}

void actualizarGrupo(Conexion& conexion, const cPadronActGrupos& g) {
  exigirGrupo(conexion, g);
  conexion.Execute("UPDATE Grupo SET Nombre=" + entreComillas(g.Nombre) +
                   ", Año=" + entreComillas(g.Año) + ",Dia=" + entreComillas(g.Dia) +
                   ",Hora=" + entreComillas(g.Hora) + ",Sala=" + entreComillas(g.Sala) +
                   ",Comentarios=" + entreComillas(g.Comentarios) +
                   " WHERE IDGrupo=" + numero(g.IDGrupo));
  guardarMiembros(conexion, g);
}

void borrarGrupo(Conexion& conexion, const cPadronActGrupos& g) {
  conexion.Execute("DELETE * FROM Padron_Actividad WHERE CodGrupo=" + numero(g.IDGrupo));
  conexion.Execute("DELETE * FROM Grupo WHERE IDGrupo=" + numero(g.IDGrupo));
}

store::Removes loQuitado(const ColeccionGrupos& grupos) {
  const auto borrado = [](const auto& cual) { return cual.Operacion == cCOperacion::Borrar; };
  const bool alguno = std::ranges::any_of(grupos, [&](const cPadronActGrupos& g) {
    return borrado(g) || std::ranges::any_of(g.miembros, borrado);
  });
  return alguno ? store::Removes::Yes : store::Removes::No;
}

std::vector<cPadronActividad> leerMiembros(Conexion& conexion, std::int32_t grupo) {
  std::vector<cPadronActividad> miembros;
  for (Recordset rs = conexion.Execute(miembrosDe(grupo)); !rs.EOF_(); rs.MoveNext())
    miembros.push_back({clave(rs, "IDActividadesPadron"), grupo, clave(rs, "CodCargo"), true,
                        cCOperacion{}, clave(rs, "CodPadron")});
  return miembros;
}

cPadronActGrupos comoGrupo(const Recordset& fila) {
  cPadronActGrupos g;
  g.IDGrupo = clave(fila, "IDGrupo");
  g.IDActividad = clave(fila, "CodActividad");
  g.Estado = true;
  g.Comentarios = fila.text("Comentarios");
  g.Sala = fila.text("Sala");
  g.Hora = fila.text("Hora");
  g.Dia = fila.text("Dia");
  g.Año = fila.text("Año");
  g.Nombre = fila.text("Nombre");
  return g;
}

}  // namespace

std::optional<Actividad> leerActividad(Conexion& conexion, std::int32_t IDActividad) {
  const Recordset fila =
      conexion.Execute("SELECT * FROM Actividad WHERE IDActividad=" + numero(IDActividad));
  if (fila.EOF_()) return std::nullopt;
  return Actividad{IDActividad, fila.text("Nombre"), fila.text("Descripcion"),
                   clave(fila, "CodInstitucion")};
}

ColeccionGrupos leerGrupos(Conexion& conexion, std::int32_t IDActividad) {
  ColeccionGrupos grupos;
  for (Recordset rs =
           conexion.Execute("SELECT * FROM Grupo WHERE CodActividad=" + numero(IDActividad));
       !rs.EOF_(); rs.MoveNext()) {
    grupos.push_back(comoGrupo(rs));
    grupos.back().miembros = leerMiembros(conexion, grupos.back().IDGrupo);
  }
  return grupos;
}

void agregarActividad(Conexion& conexion, const Actividad& actividad,
                      const ColeccionGrupos& grupos) {
  store::Transaction transaccion(conexion);
  conexion.Execute("INSERT INTO Actividad (Nombre,Descripcion,CodInstitucion ) VALUES (" +
                   entreComillas(actividad.Nombre) + "," + entreComillas(actividad.Descripcion) +
                   "," + numero(actividad.CodInstitucion) + ")");
  const std::int32_t id = clave(
      conexion.Execute("SELECT MAX(IDActividad) as IDActividad FROM Actividad"), "IDActividad");
  for (const cPadronActGrupos& grupo : grupos)
    if (grupo.Operacion != cCOperacion::Borrar) insertarGrupo(conexion, id, grupo);
  transaccion.commit();
}

void editarActividad(Conexion& conexion, const Actividad& actividad,
                     const ColeccionGrupos& grupos) {
  store::Transaction transaccion(conexion, loQuitado(grupos));
  if (!leerActividad(conexion, actividad.IDActividad))
    throw std::runtime_error("La actividad ya no existe.");
  conexion.Execute("UPDATE Actividad SET Nombre=" + entreComillas(actividad.Nombre) +
                   ",Descripcion=" + entreComillas(actividad.Descripcion) +
                   ",CodInstitucion=" + numero(actividad.CodInstitucion) +
                   " WHERE IDActividad=" + numero(actividad.IDActividad));
  for (const cPadronActGrupos& grupo : grupos) {
    if (grupo.Operacion == cCOperacion::ANADIR)
      insertarGrupo(conexion, actividad.IDActividad, grupo);
    else if (grupo.Operacion == cCOperacion::EDITAR)
      actualizarGrupo(conexion, grupo);
    else if (grupo.Operacion == cCOperacion::Borrar && grupo.Estado)
      borrarGrupo(conexion, grupo);
  }
  transaccion.commit();
}

}  // namespace fidaleon
