#include "registers/death/TablasDefuncion.h"

namespace fidaleon {

#define TEXTO(columna, miembro) \
  { columna, #miembro, &cDefuncion::miembro, Cita::Texto }
#define NUMERO(columna, miembro) \
  { columna, #miembro, &cDefuncion::miembro, Cita::Numero }

namespace {

constexpr Columna<cDefuncion> DEFUNCIONES[] = {
    TEXTO("Nombre", Nombre),
    TEXTO("PrimerApellido", PrimerApellido),
    TEXTO("SegundoApellido", SegundoApellido),
    NUMERO("CodMunicipioNaturalDe", CodMunicipioNaturalDe),
    TEXTO("DomicilioActual", DomicilioActual),
    NUMERO("CodMunicipioActual", CodMunicipioActual),
    TEXTO("EstadoCivil", EstadoCivil),
    TEXTO("Consorte", Consorte),
    TEXTO("NumeroHijos", NumeroHijos),
    TEXTO("NombresHijos", NombreHijos),
    TEXTO("NombrePadre", NombrePadre),
    TEXTO("NombreMadre", NombreMadre),
    TEXTO("Parroquia", Parroquia),
    NUMERO("CodMunicipioParr", CodMunicipioParr),
    TEXTO("DiocesisParr", DiocesisParr),
    TEXTO("NotasMarginales", NotasMarginales),
    TEXTO("Observaciones", Observaciones),
    NUMERO("CodLibro", CodLibro),
    NUMERO("Folio", Folio),
    TEXTO("Numero", Numero),
    NUMERO("Anulada", Anulada),
    TEXTO("Parroco", Parroco),
};

constexpr Columna<cDefuncion> DATOS[] = {
    {"CodDifunto", "IDDifunto", &cDefuncion::IDDifunto, Cita::Numero, Uso::Clave},
    TEXTO("Causa", Causa),
    TEXTO("Edad", Edad),
    TEXTO("FechaDefuncion", FechaDefuncion),
    TEXTO("HoraDefuncion", HoraDefuncion),
    TEXTO("DomicilioDefn", DomicilioDefn),
    NUMERO("CodMunicipioDefn", CodMunicipioDefn),
    TEXTO("FechaInhumacion", FechaInhumacion),
    TEXTO("Cementerio", Cementerio),
    TEXTO("Sacramentos", Sacramentos),
    TEXTO("Sacerdote", Sacerdote),
    TEXTO("NombreContacto", NombreContacto),
    TEXTO("PrimerApellidoContacto", ApellidoContacto),
    TEXTO("SegundoApellidoContacto", Apellido2Contacto),
    TEXTO("EmailContacto", EmailContacto),
    TEXTO("TelefonoContacto", TelefonoContacto),
    TEXTO("RelacionDifunto", RelacionDifunto),
};

}  // namespace

const Tabla<cDefuncion> TABLA_DEFUNCION{"Defuncion", ", ", " = ", DEFUNCIONES};
const Tabla<cDefuncion> TABLA_DEFUNCION_DATOS{"Defuncion_Datos", ", ", " = ", DATOS};

}  // namespace fidaleon
