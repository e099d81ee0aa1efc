#include "census/collaborators/TablasColaborador.h"

namespace fidaleon {

#define TEXTO(miembro) \
  { #miembro, #miembro, &Persona::miembro, Cita::Texto }
#define VACIO(miembro) \
  { #miembro, #miembro, &Persona::miembro, Cita::TextoSimple }
#define NUMERO(miembro) \
  { #miembro, #miembro, &Persona::miembro, Cita::Numero }

namespace {

using Columnas = std::span<const Columna<Persona>>;

constexpr std::size_t SOLO_AL_ALTA = 5;  // at the end of COLUMNAS_PADRON

constexpr Columna<Persona> COLUMNAS_PADRON[] = {
    TEXTO(Nombre),
    TEXTO(PrimerApellido),
    TEXTO(SegundoApellido),
    TEXTO(Direccion),
    NUMERO(CodMunicipio),
    TEXTO(CPostal),
    TEXTO(Telefono),
    TEXTO(Telefono2),
    TEXTO(CorreoElectronico),
    {"[Profesion/Colegio]", "Profesion/Colegio", &Persona::ProfesionColegio, Cita::Texto},
    TEXTO(Comentarios),
    TEXTO(Observaciones),
    TEXTO(Cumpleaños),
    TEXTO(AñoNacimiento),
    VACIO(DNI),
    VACIO(Sexo),
    VACIO(PosicionFamiliar),
    VACIO(Nif_Responsable),
    VACIO(EstadoCivil),
};

constexpr Columna<Persona> COLUMNAS_NACIMIENTO[] = {
    NUMERO(CodPadron),
    TEXTO(NombrePadre),
    TEXTO(NombreMadre),
    TEXTO(FechaNacimiento),
};

constexpr Columna<Persona> COLUMNAS_BAUTISMO[] = {
    NUMERO(CodPadron),    TEXTO(FechaBautizo),      NUMERO(CodMunicipioParrBaut),
    TEXTO(ParroquiaBaut), TEXTO(DireccionParrBaut),
};

}  // namespace

const Tabla<Persona> ALTA_COLABORADOR{"Padron", ",", "=", COLUMNAS_PADRON};
const Tabla<Persona> ALTA_COLABORADOR_NACIMIENTO{"Padron_Nacimiento", ",", " = ",
                                                 COLUMNAS_NACIMIENTO};
const Tabla<Persona> ALTA_COLABORADOR_BAUTISMO{"Padron_Bautismo", ",", "=", COLUMNAS_BAUTISMO};
const Tabla<Persona> FICHA_COLABORADOR{
    "Padron", ",", "=", Columnas(COLUMNAS_PADRON).first(std::size(COLUMNAS_PADRON) - SOLO_AL_ALTA)};
const Tabla<Persona> FICHA_COLABORADOR_NACIMIENTO{"Padron_Nacimiento", ",", " = ",
                                                  Columnas(COLUMNAS_NACIMIENTO).subspan(1)};
const Tabla<Persona> FICHA_COLABORADOR_BAUTISMO{"Padron_Bautismo", ",", "=",
                                                Columnas(COLUMNAS_BAUTISMO).subspan(1)};

std::vector<std::string> sqlSatelitesVacios(std::int32_t idPadron) {
  const std::string id = std::to_string(idPadron);
  return {
      "INSERT INTO Padron_Comunion (CodPadron,AñoComunion,ParroquiaCom) VALUES (" + id + ",'','');",
      "INSERT INTO Padron_Confirmacion (CodPadron,FechaConfirmacion,ParroquiaConf,"
      "DireccionParrConf,CodMunicipioParrConf) VALUES (" +
          id + ",'','','',0);",
      "INSERT INTO Padron_Matrimonio (CodPadron,FechaMatrimonio,ParroquiaMatr,DireccionParrMatr,"
      "CodMunicipioParrMatr) VALUES (" +
          id + ",'','','',0);",
      "INSERT INTO Padron_Defuncion (CodPadron,FechaDefuncion,Pagado,Nicho,Importe) VALUES (" + id +
          ",'',FALSE,'',0);",
  };
}

}  // namespace fidaleon
