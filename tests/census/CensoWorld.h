#pragma once
// A parish with people, groups and offices.

#include <cstdint>

#include "support/Fields.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

inline std::string texto(std::int64_t n) {
  return std::to_string(n);
}

/// Roles of a person, as Tipo_Persona numbers them.
enum Tipo : std::int32_t { EMPADRONADO = 2, COLABORADOR = 3 };

/// The parish "San Ginés" is there from the start; keys are given back by every helper.
struct CensoWorld : TestWorld {
  CensoWorld() { parroquia = institucion("San Ginés"); }

  /// A person with one row in each satellite.
  std::int32_t persona(const std::string& nombre, const std::string& primerApellido,
                       const std::string& segundoApellido, const std::string& dni = {},
                       const std::vector<Tipo>& tipos = {EMPADRONADO}) {
    const std::int32_t id = nueva(
        "Padron",
        "Direccion=Calle Mayor, 3; CodMunicipio=0; CPostal=28013; Telefono=915550101; Telefono2=; "
        "CorreoElectronico=; EstadoCivil=; Sexo=; [Profesion/Colegio]=; PosicionFamiliar=; "
        "Comentarios=; Observaciones=; Nif_Responsable=; Cumpleaños=; AñoNacimiento=; Nombre=" +
            nombre + "; PrimerApellido=" + primerApellido + "; SegundoApellido=" + segundoApellido +
            "; DNI=" + dni + "; CodInstitucionEmpadronado=" + texto(parroquia));
    const auto fila = [&](const char* tabla, const std::string& resto) {
      insert(con(), std::string("Padron_") + tabla, "CodPadron=" + texto(id) + "; " + resto);
    };
    fila("Nacimiento",
         "FechaNacimiento=19700315; CodMunicipioNac=0; NombrePadre=Luis; NombreMadre=Carmen");
    fila("Bautismo",
         "FechaBautizo=19700410; CodMunicipioParrBaut=0; ParroquiaBaut=San Ginés; "
         "DireccionParrBaut=Arenal, 13");
    fila("Comunion", "AñoComunion=1979; ParroquiaCom=San Ginés");
    fila("Confirmacion",
         "FechaConfirmacion=; CodMunicipioParrConf=0; ParroquiaConf=; DireccionParrConf=");
    fila("Matrimonio",
         "FechaMatrimonio=; CodMunicipioParrMatr=0; ParroquiaMatr=; DireccionParrMatr=");
    fila("Defuncion", "FechaDefuncion=; Nicho=; ImporteEur=6,01; Importe=1.000; Pagado=FALSE");
    for (const Tipo tipo : tipos) fila("TipoPersona", "CodTipoPersona=" + texto(tipo));
    return id;
  }
  std::int32_t colaborador(const std::string& nombre, const std::string& apellido) {
    return persona(nombre, apellido, "Ruiz", {}, {COLABORADOR});
  }
  std::int32_t nota(std::int32_t idPadron, const std::string& nombre,
                    const std::string& descripcion = "Descripción") {
    ejecutar("INSERT INTO Padron_NotasPersonales (CodPadron,Nombre,Descripcion) VALUES (" +
             texto(idPadron) + ",\"" + nombre + "\",\"" + descripcion + "\")");
    return std::stoi(value("SELECT MAX(IDNota) AS ID FROM Padron_NotasPersonales"));
  }
  /// Of the parish unless another institution is named.
  std::int32_t actividad(const std::string& nombre, std::int32_t codInstitucion = 0) {
    return nueva("Actividad", "Descripcion=; Nombre=" + nombre + "; CodInstitucion=" +
                                  texto(codInstitucion ? codInstitucion : parroquia));
  }
  std::int32_t grupo(std::int32_t codActividad, const std::string& nombre,
                     const std::string& sala = "Aula 1") {
    return nueva("Grupo", "Año=2026; Dia=Lunes; Hora=18:00; Comentarios=; CodActividad=" +
                              texto(codActividad) + "; Nombre=" + nombre + "; Sala=" + sala);
  }
  std::int32_t cargo(const std::string& nombre) {
    return nueva("Cargo", "Descripcion=; Nombre=" + nombre);
  }
  /// A membership: the person has the office in the group.
  std::int32_t miembro(std::int32_t codPadron, std::int32_t codGrupo, std::int32_t codCargo) {
    return nueva("Padron_Actividad",
                 "CodPadron=" + texto(codPadron) + "; CodGrupo=" + texto(codGrupo) +
                     "; CodCargo=" + texto(codCargo),
                 "IDActividadesPadron");
  }
  std::int32_t tarea(const std::string& nombre) {
    return nueva("Tareas",
                 "Fecha=20260301; HoraInicio=0700; HoraFin=2359; Descripcion=; Nombre=" + nombre,
                 "IDTarea");
  }
  void ejecutar(const std::string& sentencia) { con().Execute(sentencia); }
  void quitar(const std::string& tabla) { ejecutar("DELETE * FROM " + tabla); }

  /// Each row with "|" between its fields, and rows with "/" between them.
  std::string filas(const std::string& sql) {
    std::string todo;
    for (store::Recordset rs = con().Execute(sql); !rs.EOF_(); rs.MoveNext()) {
      if (!todo.empty()) todo += "/";
      for (int i = 0; i < rs.FieldCount(); ++i)
        todo += (i ? "|" : "") + rs.Fields(i).Value().text();
    }
    return todo;
  }
  std::string satelite(const std::string& tabla, std::int32_t id) {
    return filas("SELECT * FROM Padron_" + tabla + " WHERE CodPadron=" + texto(id));
  }
  /// "Primero|Ana|Catequista" of every membership whose person, group and office are there.
  std::string membresias(const std::string& ademas = {}) {
    return filas(
        "SELECT Grupo.Nombre AS G, Padron.Nombre AS P, Cargo.Nombre AS C FROM Padron_Actividad, "
        "Padron, Grupo, Cargo WHERE CodPadron=IDPadron AND CodGrupo=IDGrupo AND CodCargo=IDCargo" +
        ademas + " ORDER BY IDActividadesPadron");
  }
  /// Every row of the census, to see that nothing has changed or that the same has come about.
  std::string censo() {
    std::string todo;
    for (const char* tabla :
         {"Padron", "Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
          "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion", "Padron_TipoPersona",
          "Padron_NotasPersonales", "Padron_Actividad", "Actividad", "Grupo", "Cargo", "Tareas"})
      todo += std::string(tabla) + ": " + filas(std::string("SELECT * FROM ") + tabla) + "\n";
    return todo;
  }

  std::int32_t parroquia = 0;

 private:
  /// The key of the new row.
  std::int32_t nueva(const std::string& tabla, const std::string& fila, std::string clave = {}) {
    insert(con(), tabla, fila);
    if (clave.empty()) clave = "ID" + tabla;
    return std::stoi(value("SELECT MAX(" + clave + ") AS ID FROM " + tabla));
  }
};

}  // namespace fidaleon::tests
