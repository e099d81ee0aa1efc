#include "registers/baptism/TablasBautismo.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace fidaleon {

#define TEXTO(columna, miembro) \
  { columna, #miembro, &cBautismo::miembro, Cita::Texto }
#define NUMERO(columna, miembro) \
  { columna, #miembro, &cBautismo::miembro, Cita::Numero }

namespace {

constexpr Columna<cBautismo> PADRES[] = {
    TEXTO("nombre", NombrePadres),
    TEXTO("primerapellido", PrimerApellidoPadres),
    TEXTO("segundoapellido", SegundoApellidoPadres),
    NUMERO("codmunicipio", CodPoblacionPadres),
    TEXTO("abuelo", AbueloPadres),
    NUMERO("codmunicipioabuelo", CodPoblacionAbueloPadres),
    TEXTO("abuela", AbuelaPadres),
    NUMERO("codmunicipioabuela", CodPoblacionAbuelaPadres),
    TEXTO("PadreParroquiaBaut", PadreParroquiaBaut),
    NUMERO("PadreCodMunicipioParrBaut", PadreCodMunicipioParrBaut),
    TEXTO("PadreProfesion", PadreProfesion),
    TEXTO("AbueloPatParroquiaBaut", AbueloPatParroquiaBaut),
    NUMERO("AbueloPatCodMunicipioParrBaut", AbueloPatCodMunicipioParrBaut),
    TEXTO("AbuelaPatParroquiaBaut", AbuelaPatParroquiaBaut),
    NUMERO("AbuelaPatCodMunicipioParrBaut", AbuelaPatCodMunicipioParrBaut),
    TEXTO("TelefonoPadre", TelefonoPadre),
    TEXTO("EmailPadre", EmailPadre),
};

constexpr Columna<cBautismo> MADRES[] = {
    TEXTO("nombre", NombreMadres),
    TEXTO("primerapellido", PrimerApellidoMadres),
    TEXTO("segundoapellido", SegundoApellidoMadres),
    NUMERO("codmunicipio", CodPoblacionMadres),
    TEXTO("abuelo", AbueloMadres),
    NUMERO("codmunicipioabuelo", CodPoblacionAbueloMadres),
    TEXTO("abuela", AbuelaMadres),
    NUMERO("codmunicipioabuela", CodPoblacionAbuelaMadres),
    TEXTO("MadreParroquiaBaut", MadreParroquiaBaut),
    NUMERO("MadreCodMunicipioParrBaut", MadreCodMunicipioParrBaut),
    TEXTO("MadreProfesion", MadreProfesion),
    TEXTO("AbueloMatParroquiaBaut", AbueloMatParroquiaBaut),
    NUMERO("AbueloMatCodMunicipioParrBaut", AbueloMatCodMunicipioParrBaut),
    TEXTO("AbuelaMatParroquiaBaut", AbuelaMatParroquiaBaut),
    NUMERO("AbuelaMatCodMunicipioParrBaut", AbuelaMatCodMunicipioParrBaut),
    TEXTO("EmailMadre", EmailMadre),
    TEXTO("TelefonoMadre", TelefonoMadre),
};

constexpr Columna<cBautismo> MATRIMONIOS[] = {
    TEXTO("parroquia", ParroquiaMatrimonio),
    TEXTO("fechamatr", FechaMatrMatrimonio),
    NUMERO("codmunicipiomatr", CodPoblacionMatrMatrimonio),
    TEXTO("direccionpadres", DireccionPadresMatrimonio),
    NUMERO("codmunicipiopadres", CodPoblacionPadresMatrimonio),
    TEXTO("DiocesisMatrimonio ", DiocesisMatrimonio),
    TEXTO("TelefonoPadres", TelefonoPadres),
};

constexpr Columna<cBautismo> BAUTISMOS[] = {
    NUMERO("codpadres", CodPadres),
    NUMERO("codmadres", CodMadres),
    NUMERO("codmatrimonio", CodMatrimonio),
    NUMERO("institucionsolicitud", CodInstitucionBautismo),
    TEXTO("fechabautismo", FechaBautismo),
    TEXTO("padrino", PadrinoBautismo),
    TEXTO("madrina", MadrinaBautismo),
    TEXTO("ministro", MinistroBautismo),
    TEXTO("parroquia", ParroquiaBautismo),
    NUMERO("codmunicipio", CodPoblacionBautismo),
    TEXTO("diocesis", DiocesisBautismo),
    TEXTO("notasmarginales", NotasMarginalesBautismo),
    TEXTO("observaciones", ObservacionesBautismo),
    NUMERO("codlibro", CodLibroBautismo),
    NUMERO("folio", FolioBautismo),
    TEXTO("numero", NumeroBautismo),
    NUMERO("anulada", AnuladaBautismo),
    TEXTO("EdadPadrino", EdadPadrino),
    TEXTO("EdadMadrina", EdadMadrina),
    TEXTO("ParroquiaDomicilioPadrino", ParroquiaDomicilioPadrino),
    TEXTO("ParroquiaDomicilioMadrina", ParroquiaDomicilioMadrina),
    TEXTO("ProfesionPadrino", ProfesionPadrino),
    TEXTO("NaturalPadrino", NaturalPadrino),
    TEXTO("EstatPadrino", EstatPadrino),
    TEXTO("ProfesionMadrina", ProfesionMadrina),
    TEXTO("NaturalMadrina", NaturalMadrina),
    TEXTO("EstatMadrina ", EstatMadrina),
    TEXTO("MinistroCargo", MinistroCargo),
};

constexpr Columna<cBautismo> HIJOS[] = {
    {"codbautismo", "CodBautismo", &cBautismo::CodBautismo, Cita::Numero, Uso::Clave},
    TEXTO("nombre", NombreHijo),
    TEXTO("primerapellido", PrimerApellidoHijo),
    TEXTO("segundoapellido", SegundoApellidoHijo),
    TEXTO("sexo", SexoHijo),
    TEXTO("fechanac", FechaNacHijo),
    TEXTO("horanac", HoraNacHijo),
    TEXTO("direccionnac", DireccionNacHijo),
    NUMERO("codmunicipionac", CodPoblacionNacHijo),
};

/// The same columns as an update names them: the mark of annulment follows the keys.
constexpr auto BAUTISMOS_AL_ACTUALIZAR = [] {
  auto columnas = std::to_array(BAUTISMOS);
  const auto anulada = std::find_if(columnas.begin(), columnas.end(), [](const auto& c) {
    return std::string_view(c.nombre) == "anulada";
  });
  std::rotate(columnas.begin() + 3, anulada, anulada + 1);
  return columnas;
}();

/// An update names the telephone before the diocese.
constexpr auto MATRIMONIOS_AL_ACTUALIZAR = [] {
  auto columnas = std::to_array(MATRIMONIOS);
  std::swap(columnas[columnas.size() - 2], columnas[columnas.size() - 1]);
  return columnas;
}();

}  // namespace

const Tabla<cBautismo> TABLA_PADRES{"bautismo_padres", ", ", "=", PADRES};
const Tabla<cBautismo> TABLA_MADRES{"bautismo_madres", ", ", "=", MADRES};
const Tabla<cBautismo> TABLA_MATRIMONIO{"bautismo_matrimonio", ",", "=", MATRIMONIOS};
const Tabla<cBautismo> TABLA_MATRIMONIO_AL_ACTUALIZAR{"bautismo_matrimonio", ",", "=",
                                                      MATRIMONIOS_AL_ACTUALIZAR};
const Tabla<cBautismo> TABLA_BAUTISMO{"bautismo", ", ", " = ", BAUTISMOS};
const Tabla<cBautismo> TABLA_BAUTISMO_AL_ACTUALIZAR{"bautismo", ", ", " = ",
                                                    BAUTISMOS_AL_ACTUALIZAR};
const Tabla<cBautismo> TABLA_HIJO{"bautismo_hijo", ",", "=", HIJOS};

}  // namespace fidaleon
