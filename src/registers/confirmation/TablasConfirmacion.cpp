#include "registers/confirmation/TablasConfirmacion.h"

namespace fidaleon {

#define TEXTO(columna, miembro) \
  { columna, #miembro, &cConfirmacion::miembro, Cita::Texto }
#define NUMERO(columna, miembro) \
  { columna, #miembro, &cConfirmacion::miembro, Cita::Numero }

namespace {

constexpr Columna<cConfirmacion> CONFIRMACIONES[] = {
    {"institucionsolicitud", "InstitucionSolicitud", &cConfirmacion::InstitucionSolicitud,
     Cita::Byte, Uso::SoloAlta},
    TEXTO("nombre", Nombre),
    TEXTO("primerapellido", PrimerApellido),
    TEXTO("segundoapellido", SegundoApellido),
    TEXTO("fechanac", FechaNac),
    TEXTO("nombrepadre", NombrePadre),
    TEXTO("nombremadre", NombreMadre),
    TEXTO("parroquia", Parroquia),
    NUMERO("codmunicipioparr", CodMunicipioParr),
    TEXTO("diocesisparr", DiocesisParr),
    TEXTO("notasmarginales", NotasMarginales),
    TEXTO("observaciones", Observaciones),
    NUMERO("codlibro", CodLibro),
    NUMERO("folio", Folio),
    TEXTO("numero", Numero),
    NUMERO("anulada", Anulada),
    TEXTO("domicilio", Domicilio),
    NUMERO("codmunicipiodomicilio", CodMunicipioDomicilio),
    NUMERO("codmunicipionac", CodMunicipioNac),
    TEXTO("feligresde", FeligresDe),
    TEXTO("EmailConfirmado", EmailConfirmado),
    TEXTO("TelefonoConfirmado", TelefonoConfirmado),
};

constexpr Columna<cConfirmacion> DATOS[] = {
    {"codconfirmacion", "IDConfirmacion", &cConfirmacion::IDConfirmacion, Cita::Numero, Uso::Clave},
    TEXTO("fechaconfirmacion", FechaConfirmacion),
    TEXTO("padrino", Padrino),
    TEXTO("ministro", MinistroPrinc),
    TEXTO("cargoministro", CargoMinistro),
};

constexpr Columna<cConfirmacion> BAUTISMOS[] = {
    {"codconfirmacion", "IDConfirmacion", &cConfirmacion::IDConfirmacion, Cita::Numero, Uso::Clave},
    TEXTO("fechabaut", FechaBaut),
    TEXTO("parroquiabaut", ParroquiaBaut),
    TEXTO("direccionbaut", DireccionBaut),
    NUMERO("codmunicipiobaut", CodMunicipioBaut),
    TEXTO("librobaut", LibroBaut),
    NUMERO("foliobaut", FolioBaut),
    TEXTO("numerobaut", NumeroBaut),
};

}  // namespace

const Tabla<cConfirmacion> TABLA_CONFIRMACION{"Confirmacion", ",", "=", CONFIRMACIONES};
const Tabla<cConfirmacion> TABLA_CONFIRMACION_DATOS{"confirmacion_datos", ",", "=", DATOS};
const Tabla<cConfirmacion> TABLA_CONFIRMACION_BAUTISMO{"confirmacion_bautismo", ",", "=",
                                                       BAUTISMOS};

}  // namespace fidaleon
