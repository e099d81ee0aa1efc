#include "census/persons/FichaEmpadronado.h"

#include "store/Transaction.h"

namespace fidaleon {

namespace {

using FDAPI::cCOperacion;
using FDAPI::Conexion;

constexpr std::int64_t TIPO_EMPADRONADO = 2;

void insertarTipo(Conexion& conexion, std::int32_t id, std::int64_t tipo) {
  conexion.Execute("INSERT INTO Padron_TipoPersona (CodPadron,CodTipoPersona) VALUES (" +
                   std::to_string(id) + "," + std::to_string(tipo) + ");");
}

constexpr Columna<cPadronNotas> COLUMNAS_NOTA[] = {
    {"CodPadron", "CodPadron", &cPadronNotas::CodPadron, Cita::Numero},
    {"Nombre", "Nombre", &cPadronNotas::Nombre, Cita::Texto},
    {"Descripcion", "Descripcion", &cPadronNotas::Descripcion, Cita::Texto},
};
constexpr Tabla<cPadronNotas> ALTA_NOTA{"Padron_NotasPersonales", ",", "=", COLUMNAS_NOTA};
constexpr Tabla<cPadronNotas> EDICION_NOTA{"Padron_NotasPersonales", ",", "=",
                                           std::span(COLUMNAS_NOTA).subspan(1)};

}  // namespace

bool FichaEmpadronado::leer(Conexion& conexion, std::int32_t id) {
  const store::Recordset fila =
      conexion.Execute("SELECT * FROM Padron WHERE IDPadron=" + std::to_string(id));
  if (fila.EOF_()) return false;
  persona = {};
  copiarFila(tablaPadronAlta(), fila, persona, true);
  persona.IDPadron = persona.CodPadron = id;
  for (const Satelite s : SATELITES) {
    const store::Recordset suya = conexion.Execute(sqlLeerSatelite(s, id));
    bool& guardado = guardado_[static_cast<std::size_t>(s)];
    guardado = !suya.EOF_();
    if (guardado) copiarSatelite(s, suya, persona);
  }
  leerNotas(conexion);
  return true;
}

void FichaEmpadronado::leerNotas(Conexion& conexion) {
  notas.clear();
  store::Recordset filas = conexion.Execute(
      "SELECT * FROM Padron_NotasPersonales WHERE CodPadron=" + std::to_string(persona.IDPadron));
  for (; !filas.EOF_(); filas.MoveNext()) {
    cPadronNotas& nota = notas.emplace_back();
    nota.Estado = true;
    nota.IDNota = static_cast<std::int32_t>(filas.integer("IDNota"));
    copiarFila(ALTA_NOTA, filas, nota);
  }
}

void FichaEmpadronado::agregar(Conexion& conexion) {
  persona.Nif_Responsable = persona.Cumpleaños = persona.AñoNacimiento = {};
  store::Transaction transaccion(conexion);
  conexion.Execute(sqlInsertar(tablaPadronAlta(), persona));
  const auto id = static_cast<std::int32_t>(
      conexion.Execute("SELECT MAX(IDPADRON) AS IDPADRON FROM PADRON").integer("IDPADRON"));
  transaccion.commit();
  persona.IDPadron = persona.CodPadron = id;

  aMedias_ = true;
  guardarSatelites(conexion);
  guardarNotas(conexion);
  const store::Recordset tipo =
      conexion.Execute("SELECT * FROM Tipo_Persona WHERE Nombre='Empadronado'");
  insertarTipo(conexion, id, tipo.EOF_() ? TIPO_EMPADRONADO : tipo.integer("IDTipoPersona"));
  aMedias_ = false;
}

void FichaEmpadronado::editar(Conexion& conexion) {
  const std::string id = std::to_string(persona.IDPadron);
  conexion.Execute(sqlActualizar(tablaPadronEdicion(), persona) + " WHERE IDPadron=" + id);
  guardarSatelites(conexion);
  guardarNotas(conexion);
  if (conexion
          .Execute("SELECT * FROM [Padron_TipoPersona] WHERE CodPadron=" + id +
                   " And CodTipoPersona=2")
          .EOF_())
    insertarTipo(conexion, persona.IDPadron, TIPO_EMPADRONADO);
  aMedias_ = false;
}

void FichaEmpadronado::retirar(Conexion& conexion) {
  const std::string id = std::to_string(persona.IDPadron);
  if (!aMedias_ ||
      !conexion.Execute("SELECT * FROM Padron_TipoPersona WHERE CodPadron=" + id).EOF_())
    return;
  store::Transaction transaccion(conexion, store::Removes::Yes);
  for (const std::string& sentencia : sqlBorrarPersona(persona.IDPadron))
    conexion.Execute(sentencia);
  transaccion.commit();
  aMedias_ = false;
}

// Writing over a row that is missing would lose what was typed for it.
void FichaEmpadronado::guardarSatelites(Conexion& conexion) {
  for (const Satelite s : SATELITES) {
    bool& guardado = guardado_[static_cast<std::size_t>(s)];
    conexion.Execute(guardado ? sqlActualizarSatelite(s, persona)
                              : sqlInsertarSatelite(s, persona));
    guardado = true;
  }
}

void FichaEmpadronado::guardarNotas(Conexion& conexion) {
  for (cPadronNotas& nota : notas) {
    if (nota.Estado && nota.IDNota == 0) leerClave(conexion, nota);
    const std::string donde = std::to_string(nota.IDNota);
    if (nota.Operacion == cCOperacion::Borrar) {
      if (nota.Estado)
        conexion.Execute("DELETE * FROM Padron_NotasPersonales WHERE IDNota = " + donde);
      nota.Estado = false;
    } else if (nota.Operacion == cCOperacion::EDITAR && nota.Estado) {
      conexion.Execute(sqlActualizar(EDICION_NOTA, nota) + " WHERE IDNota=" + donde);
      nota.Operacion = {};
    } else if (nota.Operacion == cCOperacion::ANADIR || nota.Operacion == cCOperacion::EDITAR) {
      insertarNota(conexion, nota);
    }
  }
}

void FichaEmpadronado::insertarNota(Conexion& conexion, cPadronNotas& nota) {
  nota.CodPadron = persona.IDPadron;
  conexion.Execute(sqlInsertar(ALTA_NOTA, nota));
  nota.Estado = true;
  nota.Operacion = {};
  leerClave(conexion, nota);
}

// Of the note that was inserted last. The key is needed only if a failure further on makes the
// note be stored again.
void FichaEmpadronado::leerClave(Conexion& conexion, cPadronNotas& nota) {
  nota.IDNota = static_cast<std::int32_t>(
      conexion
          .Execute("SELECT MAX(IDNota) AS IDNota FROM Padron_NotasPersonales WHERE CodPadron=" +
                   std::to_string(nota.CodPadron))
          .integer("IDNota"));
}

}  // namespace fidaleon
