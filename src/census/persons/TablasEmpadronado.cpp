#include "census/persons/TablasEmpadronado.h"

namespace fidaleon {

namespace {

using P = Persona;
using C = Columna<Persona>;
using enum Cita;

// Blanks before a name are those of the statement.
constexpr C PADRON[] = {
    {"Nombre", "Nombre", &P::Nombre, Texto},
    {"PrimerApellido", "PrimerApellido", &P::PrimerApellido, Texto},
    {"SegundoApellido", "SegundoApellido", &P::SegundoApellido, Texto},
    {"DNI", "DNI", &P::DNI, Texto},
    {" Direccion", "Direccion", &P::Direccion, Texto},
    {"CodMunicipio", "CodMunicipio", &P::CodMunicipio, Numero},
    {"CPostal", "CPostal", &P::CPostal, Texto},
    {"Telefono", "Telefono", &P::Telefono, Texto},
    {"Telefono2", "Telefono2", &P::Telefono2, Texto},
    {" CorreoElectronico", "CorreoElectronico", &P::CorreoElectronico, Texto},
    {"EstadoCivil", "EstadoCivil", &P::EstadoCivil, Texto},
    {"Sexo", "Sexo", &P::Sexo, Texto},
    {"[Profesion/Colegio]", "Profesion/Colegio", &P::ProfesionColegio, Texto},
    {" PosicionFamiliar", "PosicionFamiliar", &P::PosicionFamiliar, Texto},
    {"Comentarios", "Comentarios", &P::Comentarios, Texto},
    {"Observaciones", "Observaciones", &P::Observaciones, Texto},
    {"CodInstitucionEmpadronado", "CodInstitucionEmpadronado", &P::CodInstitucionEmpadronado,
     Numero},
    {" Nif_Responsable", "Nif_Responsable", &P::Nif_Responsable, TextoSimple},
    {" Cumpleaños", "Cumpleaños", &P::Cumpleaños, TextoSimple},
    {" AñoNacimiento", "AñoNacimiento", &P::AñoNacimiento, TextoSimple},
};
constexpr std::size_t DE_COLABORADOR = 3;

constexpr C COD_PADRON{"CodPadron", "CodPadron", &P::CodPadron, Numero};

constexpr C FILA_NACIMIENTO[] = {
    COD_PADRON,
    {"FechaNacimiento", "FechaNacimiento", &P::FechaNacimiento, Texto},
    {"CodMunicipioNac", "CodMunicipioNac", &P::CodMunicipioNac, Numero},
    {"NombrePadre", "NombrePadre", &P::NombrePadre, Texto},
    {"NombreMadre", "NombreMadre", &P::NombreMadre, Texto},
};
constexpr C FILA_BAUTISMO[] = {
    COD_PADRON,
    {"FechaBautizo", "FechaBautizo", &P::FechaBautizo, Texto},
    {"CodMunicipioParrBaut", "CodMunicipioParrBaut", &P::CodMunicipioParrBaut, Numero},
    {"ParroquiaBaut", "ParroquiaBaut", &P::ParroquiaBaut, Texto},
    {"DireccionParrBaut", "DireccionParrBaut", &P::DireccionParrBaut, Texto},
};
constexpr C FILA_COMUNION[] = {
    COD_PADRON,
    {"AñoComunion", "AñoComunion", &P::AñoComunion, Texto},
    {"ParroquiaCom", "ParroquiaCom", &P::ParroquiaCom, Texto},
};
constexpr C FILA_CONFIRMACION[] = {
    COD_PADRON,
    {"FechaConfirmacion", "FechaConfirmacion", &P::FechaConfirmacion, Texto},
    {"CodMunicipioParrConf", "CodMunicipioParrConf", &P::CodMunicipioParrConf, Numero},
    {"ParroquiaConf", "ParroquiaConf", &P::ParroquiaConf, Texto},
    {"DireccionParrConf", "DireccionParrConf", &P::DireccionParrConf, Texto},
};
constexpr C FILA_MATRIMONIO[] = {
    COD_PADRON,
    {"FechaMatrimonio", "FechaMatrimonio", &P::FechaMatrimonio, Texto},
    {"CodMunicipioParrMatr", "CodMunicipioParrMatr", &P::CodMunicipioParrMatr, Numero},
    {"ParroquiaMatr", "ParroquiaMatr", &P::ParroquiaMatr, Texto},
    {"DireccionParrMatr", "DireccionParrMatr", &P::DireccionParrMatr, Texto},
};
constexpr C FILA_DEFUNCION[] = {
    COD_PADRON,
    {"FechaDefuncion", "FechaDefuncion", &P::FechaDefuncion, Texto},
    {"Nicho", "Nicho", &P::Nicho, Texto},
    {"ImporteEur", "ImporteEur", &P::ImporteEur, TextoSimple},
    {"Importe", "Importe", &P::Importe, TextoSimple},
    {"Pagado", "Pagado", &P::Pagado, Numero},
};
enum ColumnaDefuncion { FECHA = 1, NICHO, EUROS, PESETAS };

constexpr Tabla<Persona> tabla(const char* nombre, std::span<const C> columnas) {
  return {nombre, ",", "=", columnas};
}

constexpr std::array<Tabla<Persona>, SATELITES.size()> TABLAS{{
    tabla("Padron_Nacimiento", FILA_NACIMIENTO),
    tabla("Padron_Bautismo", FILA_BAUTISMO),
    tabla("Padron_Comunion", FILA_COMUNION),
    tabla("Padron_Confirmacion", FILA_CONFIRMACION),
    tabla("Padron_Matrimonio", FILA_MATRIMONIO),
    tabla("Padron_Defuncion", FILA_DEFUNCION),
}};

const Tabla<Persona>& tablaDe(Satelite satelite) {
  return TABLAS[static_cast<std::size_t>(satelite)];
}

const char* palabra(bool pagado) {
  return pagado ? "TRUE" : "FALSE";
}

std::string sqlInsertarDefuncion(const Persona& p) {
  const auto valor = [&](ColumnaDefuncion c) { return valorSQL(p, FILA_DEFUNCION[c]); };
  return "INSERT INTO Padron_Defuncion "
         "(CodPadron,FechaDefuncion,Nicho,ImporteEur,Importe,Pagado) VALUES (" +
         std::to_string(p.CodPadron) + "," + valor(FECHA) + "," + valor(NICHO) + "," +
         valor(EUROS) + "," + valor(PESETAS) + "," + palabra(p.Pagado) + ")";
}

std::string sqlActualizarDefuncion(const Persona& p) {
  const auto valor = [&](ColumnaDefuncion c) { return valorSQL(p, FILA_DEFUNCION[c]); };
  return "UPDATE Padron_Defuncion SET FechaDefuncion=" + valor(FECHA) + ", Nicho=" + valor(NICHO) +
         ", Importe = " + valor(PESETAS) + ", Pagado=" + palabra(p.Pagado) +
         ", ImporteEur= " + valor(EUROS);
}

}  // namespace

const Tabla<Persona>& tablaPadronAlta() {
  static constexpr Tabla<Persona> t = tabla("Padron", PADRON);
  return t;
}

const Tabla<Persona>& tablaPadronEdicion() {
  static constexpr Tabla<Persona> t =
      tabla("Padron", std::span<const C>(PADRON).first(std::size(PADRON) - DE_COLABORADOR));
  return t;
}

std::string sqlLeerSatelite(Satelite satelite, std::int32_t codPadron) {
  const char* nombre =
      satelite == Satelite::Defuncion ? "Padron_defuncion" : tablaDe(satelite).nombre;
  return std::string("SELECT * FROM ") + nombre + " WHERE CodPadron=" + std::to_string(codPadron);
}

void copiarSatelite(Satelite satelite, const store::Recordset& fila, Persona& persona) {
  copiarFila(tablaDe(satelite), fila, persona);
}

std::string sqlInsertarSatelite(Satelite satelite, const Persona& persona) {
  return satelite == Satelite::Defuncion ? sqlInsertarDefuncion(persona)
                                         : sqlInsertar(tablaDe(satelite), persona);
}

std::string sqlActualizarSatelite(Satelite satelite, const Persona& persona) {
  const std::string donde = " WHERE CodPadron=" + std::to_string(persona.CodPadron);
  if (satelite == Satelite::Defuncion) return sqlActualizarDefuncion(persona) + donde;
  Tabla<Persona> sinClave = tablaDe(satelite);
  sinClave.columnas = sinClave.columnas.subspan(1);
  return sqlActualizar(sinClave, persona) + donde;
}

std::vector<std::string> sqlBorrarPersona(std::int32_t id) {
  std::vector<std::string> sentencias;
  for (const char* tabla :
       {"Padron_TipoPersona", "Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
        "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion"})
    sentencias.push_back(sqlBorrarDe(tabla, id));
  sentencias.push_back("DELETE * FROM Padron WHERE IDPadron=" + std::to_string(id));
  sentencias.push_back(sqlBorrarDe("Padron_NotasPersonales", id));
  return sentencias;
}

std::string sqlBorrarDe(const char* tabla, std::int32_t id) {
  return std::string("DELETE * FROM ") + tabla + " WHERE CodPadron=" + std::to_string(id);
}

}  // namespace fidaleon
