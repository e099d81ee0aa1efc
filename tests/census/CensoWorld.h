#pragma once
// A parish with people: helpers that put persons, activities, groups and offices into the store.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "support/TestWorld.h"

namespace fidaleon::tests {

/// Roles of a person, as Tipo_Persona numbers them.
enum Tipo : std::int32_t { EMPADRONADO = 2, COLABORADOR = 3 };

/// The parish "San Ginés" is there from the start; keys are given back by every helper.
struct CensoWorld : TestWorld {
  CensoWorld() { parroquia = institucion("San Ginés"); }

  /// A person with one row in each satellite.
  std::int32_t persona(const std::string& nombre, const std::string& primerApellido,
                       const std::string& segundoApellido, const std::string& dni = {},
                       const std::vector<Tipo>& tipos = {EMPADRONADO}) {
    con().Execute(
        "INSERT INTO Padron (Nombre,PrimerApellido,SegundoApellido,DNI,Direccion,CodMunicipio,"
        "CPostal,Telefono,Telefono2,CorreoElectronico,EstadoCivil,Sexo,[Profesion/Colegio],"
        "PosicionFamiliar,Comentarios,Observaciones,CodInstitucionEmpadronado,Nif_Responsable,"
        "Cumpleaños,AñoNacimiento) VALUES (" +
        texto(nombre) + "," + texto(primerApellido) + "," + texto(segundoApellido) + "," +
        texto(dni) +
        ",\"Calle Mayor, 3\",0,\"28013\",\"915550101\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"," +
        std::to_string(parroquia) + ",'','','')");
    const std::int32_t id = ultimo("Padron", "IDPadron");
    satelites(id);
    for (const Tipo tipo : tipos) darTipo(id, tipo);
    return id;
  }
  void satelites(std::int32_t id) {
    const auto fila = [&](const std::string& tabla, const std::string& columnas,
                          const std::string& valores) {
      con().Execute("INSERT INTO " + tabla + " (CodPadron," + columnas + ") VALUES (" +
                    std::to_string(id) + "," + valores + ")");
    };
    fila("Padron_Nacimiento", "FechaNacimiento,CodMunicipioNac,NombrePadre,NombreMadre",
         "'19700315',0,'Luis','Carmen'");
    fila("Padron_Bautismo", "FechaBautizo,CodMunicipioParrBaut,ParroquiaBaut,DireccionParrBaut",
         "'19700410',0,'San Ginés','Arenal, 13'");
    fila("Padron_Comunion", "AñoComunion,ParroquiaCom", "'1979','San Ginés'");
    fila("Padron_Confirmacion",
         "FechaConfirmacion,CodMunicipioParrConf,ParroquiaConf,DireccionParrConf", "'',0,'',''");
    fila("Padron_Matrimonio",
         "FechaMatrimonio,CodMunicipioParrMatr,ParroquiaMatr,DireccionParrMatr", "'',0,'',''");
    fila("Padron_Defuncion", "FechaDefuncion,Nicho,ImporteEur,Importe,Pagado",
         "'','','6,01','1.000',FALSE");
  }
  void darTipo(std::int32_t idPadron, Tipo tipo) {
    con().Execute("INSERT INTO Padron_TipoPersona (CodPadron,CodTipoPersona) VALUES (" +
                  std::to_string(idPadron) + "," + std::to_string(tipo) + ")");
  }
  std::int32_t nota(std::int32_t idPadron, const std::string& nombre,
                    const std::string& descripcion = "Descripción") {
    con().Execute("INSERT INTO Padron_NotasPersonales (CodPadron,Nombre,Descripcion) VALUES (" +
                  std::to_string(idPadron) + "," + texto(nombre) + "," + texto(descripcion) + ")");
    return ultimo("Padron_NotasPersonales", "IDNota");
  }

  /// Of the parish unless another institution is named.
  std::int32_t actividad(const std::string& nombre, std::int32_t codInstitucion = 0) {
    con().Execute("INSERT INTO Actividad (Nombre,Descripcion,CodInstitucion) VALUES (" +
                  texto(nombre) + ",\"\"," +
                  std::to_string(codInstitucion ? codInstitucion : parroquia) + ")");
    return ultimo("Actividad", "IDActividad");
  }
  std::int32_t grupo(std::int32_t codActividad, const std::string& nombre,
                     const std::string& sala = "Aula 1") {
    con().Execute("INSERT INTO Grupo (CodActividad,Nombre,Año,Dia,Hora,Sala,Comentarios) VALUES (" +
                  std::to_string(codActividad) + "," + texto(nombre) +
                  ",\"2026\",\"Lunes\",\"18:00\"," + texto(sala) + ",\"\")");
    return ultimo("Grupo", "IDGrupo");
  }
  std::int32_t cargo(const std::string& nombre, const std::string& descripcion = {}) {
    con().Execute("INSERT INTO Cargo (Nombre,Descripcion) VALUES (" + texto(nombre) + "," +
                  texto(descripcion) + ")");
    return ultimo("Cargo", "IDCargo");
  }
  /// A membership: the person has the office in the group.
  std::int32_t miembro(std::int32_t codPadron, std::int32_t codGrupo, std::int32_t codCargo) {
    con().Execute("INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo) VALUES (" +
                  std::to_string(codPadron) + "," + std::to_string(codGrupo) + "," +
                  std::to_string(codCargo) + ")");
    return ultimo("Padron_Actividad", "IDActividadesPadron");
  }

  /// Locks of another workstation, held for as long as the result lives.
  std::unique_ptr<FDAPI::cProcesarBloqueos> otroUsaTabla(const char* tabla) {
    FDAPI::DefinicionBloqueo entera;
    entera.strTabla = tabla;
    return otroToma(entera);
  }
  std::unique_ptr<FDAPI::cProcesarBloqueos> otroUsaRegistro(const char* tabla, std::int32_t id) {
    FDAPI::DefinicionBloqueo uno;
    uno.strTabla = tabla;
    uno.strRegistro = std::to_string(id);
    uno.conBd = &con();
    return otroToma(uno);
  }
  /// Whether the table could be taken whole elsewhere at this moment.
  bool libre(const char* tabla) {
    const auto sesion = otherSession();
    FDAPI::DefinicionBloqueo entera;
    entera.strTabla = tabla;
    sesion->DefinirBloqueo(entera);
    otherUser.answerAnything(forms::Answer::Ok);
    return sesion->lngEfectuarBloqueos(true) == 0;
  }

  std::int32_t parroquia = 0;

 private:
  static std::string texto(const std::string& s) { return "\"" + s + "\""; }
  std::int32_t ultimo(const char* tabla, const char* clave) {
    return static_cast<std::int32_t>(
        std::stol(value(std::string("SELECT MAX(") + clave + ") AS ID FROM " + tabla)));
  }
  std::unique_ptr<FDAPI::cProcesarBloqueos> otroToma(const FDAPI::DefinicionBloqueo& bloqueo) {
    auto sesion = otherSession();
    sesion->DefinirBloqueo(bloqueo);
    EXPECT_EQ(sesion->lngEfectuarBloqueos(), 0);
    return sesion;
  }
};

}  // namespace fidaleon::tests
