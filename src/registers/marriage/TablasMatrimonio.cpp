#include "registers/marriage/TablasMatrimonio.h"

namespace fidaleon {

#define TEXTO(columna, miembro) \
  { columna, #miembro, &cMatrimonio::miembro, Cita::Texto }
#define NUMERO(columna, miembro) \
  { columna, #miembro, &cMatrimonio::miembro, Cita::Numero }
#define CLAVE(columna, miembro) \
  { columna, #miembro, &cMatrimonio::miembro, Cita::Numero, Uso::Clave }

// Both spouses have the same tables.
#define PERSONA(p)                                                                                \
  TEXTO("nombre", p##Nombre), TEXTO("primerapellido", p##PrimerApellido),                         \
      TEXTO("segundoapellido", p##SegundoApellido), TEXTO("dni", p##DNI), TEXTO("edad", p##Edad), \
      TEXTO("religion", p##Religion), TEXTO("fechanac", p##FechaNac),                             \
      NUMERO("codmunicipionac", p##IDMunicipioNac), TEXTO("domicilioactual", p##DomicilioActual), \
      NUMERO("codmunicipioactual", p##IDMunicipioActual),                                         \
      TEXTO("domicilioanterior", p##DomicilioAnterior),                                           \
      NUMERO("codmunicipioanterior", p##IDMunicipioAnterior),                                     \
      TEXTO("fechaconfirmacion", p##FechaConfirmacion),                                           \
      NUMERO("codmunicipioconfirmacion", p##CodMunicipioConfirmacion),                            \
      NUMERO("tresidenciadomact", p##TResidenciaDomAct), TEXTO("Profesion", p##Profesion),        \
      TEXTO("DiocesisNac", p##DiocesisNac), TEXTO("Nacionalidad", p##Nacionalidad),               \
      TEXTO("Email" #p, Email##p), TEXTO("Telefono" #p, Telefono##p),                             \
      TEXTO("ParroquiaExhorto", ParroquiaExhorto##p),                                             \
      TEXTO("PoblacionExhorto", PoblacionExhorto##p), TEXTO("DiocesisExhorto", DiocesisExhorto##p)
#define REGCIVIL(p)                                                                             \
  TEXTO("estadocivil", p##EstadoCivil), TEXTO("nombrepadre", p##NombrePadre),                   \
      TEXTO("nombremadre", p##NombreMadre), TEXTO("MunicipioInscrito", p##MunicipioInscrito),   \
      TEXTO("tomo", p##Tomo), TEXTO("pagina", p##Pagina), TEXTO("nombrecivil", p##NombreCivil), \
      TEXTO("SujetoDerecho", p##SujetoDerecho)
#define BAUTIZADO(p)                                                                          \
  TEXTO("fechabaut", p##FechaBaut), TEXTO("parroquiabaut", p##ParroquiaBaut),                 \
      TEXTO("diocesisbaut", p##DiocesisBaut), NUMERO("codmunicipiobaut", p##IDMunicipioBaut), \
      TEXTO("librobaut", p##LibroBaut), NUMERO("foliobaut", p##FolioBaut),                    \
      TEXTO("numerobaut", p##NumeroBaut)

namespace {

using C = Columna<cMatrimonio>;

constexpr C NOVIOS[] = {PERSONA(Novio)};
constexpr C NOVIAS[] = {PERSONA(Novia)};
constexpr C NOVIOS_REGCIVIL[] = {REGCIVIL(Novio), CLAVE("codnovios", IDNovios)};
constexpr C NOVIAS_REGCIVIL[] = {REGCIVIL(Novia), CLAVE("codnovias", IDNovias)};
constexpr C NOVIOS_BAUTISMO[] = {CLAVE("codnovios", IDNovios), BAUTIZADO(Novio)};
constexpr C NOVIAS_BAUTISMO[] = {CLAVE("codnovias", IDNovias), BAUTIZADO(Novia)};

constexpr C MATRIMONIOS[] = {
    {"institucionsolicitud", "InstitucionSolicitud", &cMatrimonio::InstitucionSolicitud, Cita::Byte,
     Uso::SoloAlta},
    TEXTO("parroquia", Parroquia),
    NUMERO("codmunicipio", IDMunicipio),
    TEXTO("diocesis", Diocesis),
    TEXTO("notasmarginales", NotasMarginales),
    TEXTO("observaciones", Observaciones),
    NUMERO("codlibro", IDLibro),
    NUMERO("folio", Folio),
    TEXTO("numero", Numero),
    NUMERO("anulada", Anulada),
    NUMERO("codnovios", IDNovios),
    NUMERO("codnovias", IDNovias),
};

constexpr C COMPROMISO[] = {
    CLAVE("codmatrimonio", IDMatrimonio),
    TEXTO("fechamatrimonio", FechaMatrimonio),
    TEXTO("padrino", Padrino),
    TEXTO("madrina", Madrina),
    TEXTO("testigos", Testigos),
    TEXTO("celebrante", Celebrante),
    TEXTO("expedinst", ExpedInst),
    TEXTO("domiciliomatrimonio", DomicilioMatrimonio),
    NUMERO("codmunicipiodomicmatr", CodMunicipioDomicMatr),
    TEXTO("telefonodomicmatr", TelefonoDomicMatr),
    TEXTO("NihilObstat", NihilObstat),
    TEXTO("Demarcacion", Demarcacion),
    TEXTO("HoraMatrimonio", HoraMatrimonio),
    TEXTO("TestigosParroquia", TestigosParroquia),
    TEXTO("Testigo1", Testigo1),
    TEXTO("Testigo1_Natural_de", Testigo1_Natural_De),
    TEXTO("Testigo1_Poblacion", Testigo1_Poblacion),
    TEXTO("Testigo2", Testigo2),
    TEXTO("Testigo2_Natural_de", Testigo2_Natural_De),
    TEXTO("Testigo2_Poblacion", Testigo2_Poblacion),
    TEXTO("CPCompromiso", CPCompromiso),
};

constexpr C EXPEDIENTE[] = {
    CLAVE("codmatrimonio", IDMatrimonio),
    TEXTO("nombretestigo1", NombreTestigo1),
    TEXTO("primerapellidotestigo1", PrimerApellidoTestigo1),
    TEXTO("segundoapellidotestigo1", SegundoApellidoTestigo1),
    TEXTO("dnitestigo1", DNITestigo1),
    TEXTO("domiciliotestigo1", DomicilioTestigo1),
    NUMERO("codmunicipiotestigo1", CodMunicipioTestigo1),
    TEXTO("nombretestigo2", NombreTestigo2),
    TEXTO("primerapellidotestigo2", PrimerApellidoTestigo2),
    TEXTO("segundoapellidotestigo2", SegundoApellidoTestigo2),
    TEXTO("dnitestigo2", DNITestigo2),
    TEXTO("domiciliotestigo2", DomicilioTestigo2),
    NUMERO("codmunicipiotestigo2", CodMunicipioTestigo2),
};

}  // namespace

const Tabla<cMatrimonio> TABLA_MATRIMONIOS{"matrimonio", ",", "=", MATRIMONIOS};
const Tabla<cMatrimonio> TABLA_NOVIOS{"matrimonio_novios", ",", "=", NOVIOS};
const Tabla<cMatrimonio> TABLA_NOVIOS_REGCIVIL{"matrimonio_novios_regcivil", ",", "=",
                                               NOVIOS_REGCIVIL};
const Tabla<cMatrimonio> TABLA_NOVIOS_BAUTISMO{"matrimonio_novios_bautismo", ",", "=",
                                               NOVIOS_BAUTISMO};
const Tabla<cMatrimonio> TABLA_NOVIAS{"matrimonio_novias", ",", "=", NOVIAS};
const Tabla<cMatrimonio> TABLA_NOVIAS_REGCIVIL{"matrimonio_novias_regcivil", ",", "=",
                                               NOVIAS_REGCIVIL};
const Tabla<cMatrimonio> TABLA_NOVIAS_BAUTISMO{"matrimonio_novias_bautismo", ",", "=",
                                               NOVIAS_BAUTISMO};
const Tabla<cMatrimonio> TABLA_COMPROMISO{"matrimonio_compromiso", ",", "=", COMPROMISO};
const Tabla<cMatrimonio> TABLA_EXPEDIENTE{"matrimonio_expediente", ",", "=", EXPEDIENTE};

}  // namespace fidaleon
