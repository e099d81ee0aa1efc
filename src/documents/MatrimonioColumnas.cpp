// What each edition of the loader of marriages writes.

#include "documents/CargadorMatrimonio.h"

namespace fidaleon::documents {

namespace {

#define COMPROMISO(columna) \
  { #columna, Source::Printable, "Matrimonio_Compromiso." #columna }
#define TESTIGO(n)                                                                                 \
  {"NombreTestigo" #n, Source::Printable, "Matrimonio_Expediente.NombreTestigo" #n},               \
      {"PrimerApellidoTestigo" #n, Source::Printable,                                              \
       "Matrimonio_Expediente.PrimerApellidoTestigo" #n},                                          \
      {"SegundoApellidoTestigo" #n, Source::Printable,                                             \
       "Matrimonio_Expediente.SegundoApellidoTestigo" #n},                                         \
      {"DNITestigo" #n, Source::Printable, "Matrimonio_Expediente.DNITestigo" #n},                 \
      {"DomicilioTestigo" #n, Source::Printable, "Matrimonio_Expediente.DomicilioTestigo" #n},     \
      {"ProvinciaTestigo" #n, Source::Province, "Matrimonio_Expediente.CodMunicipioTestigo" #n}, { \
    "PoblacionTestigo" #n, Source::Town, "Matrimonio_Expediente.CodMunicipioTestigo" #n            \
  }

// Both spouses have the same columns, with the one word or the other in each name.
#define PERSONAL(p, columna) \
  { #columna #p, Source::Printable, "Matrimonio_" #p "s." #columna }
#define BAUTISMAL(p, columna) \
  { #columna #p, Source::Printable, "Matrimonio_" #p "s_Bautismo." #columna }
#define CIVIL(p, columna) \
  { #columna #p, Source::Printable, "Matrimonio_" #p "s_RegCivil." #columna }
#define LUGAR(p, cual, parte)                                                                   \
  {"Provincia" #cual #p, Source::Province, "Matrimonio_" #p "s" parte ".CodMunicipio" #cual}, { \
    "Poblacion" #cual #p, Source::Town, "Matrimonio_" #p "s" parte ".CodMunicipio" #cual        \
  }
#define FECHA(p, cual, parte)                                                    \
  {#cual #p "Corta", Source::ShortDate, "Matrimonio_" #p "s" parte "." #cual}, { \
#cual #p "Larga", Source::LongDate, "Matrimonio_" #p "s" parte "." #cual     \
  }
/// What all editions write of a spouse.
#define CONYUGE(p)                                                                              \
  {"CodDocumentos_Matrimonio", Source::Stored, CLAVE, Quoting::None}, PERSONAL(p, Nombre),      \
      PERSONAL(p, PrimerApellido), PERSONAL(p, SegundoApellido), PERSONAL(p, DNI),              \
      PERSONAL(p, Edad), PERSONAL(p, Religion), FECHA(p, FechaNac, ""), LUGAR(p, Nac, ""),      \
      PERSONAL(p, Nacionalidad), FECHA(p, FechaConfirmacion, ""), LUGAR(p, Confirmacion, ""),   \
      PERSONAL(p, DomicilioActual), LUGAR(p, Actual, ""), PERSONAL(p, TResidenciaDomAct),       \
      PERSONAL(p, DomicilioAnterior), LUGAR(p, Anterior, ""), FECHA(p, FechaBaut, "_Bautismo"), \
      BAUTISMAL(p, ParroquiaBaut), BAUTISMAL(p, DiocesisBaut), LUGAR(p, Baut, "_Bautismo"),     \
      BAUTISMAL(p, LibroBaut), BAUTISMAL(p, FolioBaut), BAUTISMAL(p, NumeroBaut),               \
      CIVIL(p, EstadoCivil), CIVIL(p, NombrePadre), CIVIL(p, NombreMadre),                      \
      {"ProvinciaInscrito" #p, Source::ProvinceIfKey,                                           \
       "Matrimonio_" #p "s_RegCivil.MunicipioInscrito"},                                        \
      {"PoblacionInscrito" #p, Source::TownOrText,                                              \
       "Matrimonio_" #p "s_RegCivil.MunicipioInscrito"},                                        \
      CIVIL(p, Tomo), CIVIL(p, Pagina), CIVIL(p, NombreCivil)
#define CONTACTO(p)                                                                           \
  {"Email" #p, Source::Printable, "Matrimonio_" #p "s.Email" #p},                             \
      {"Telefono" #p, Source::Printable, "Matrimonio_" #p "s.Telefono" #p},                   \
      {"ParroquiaResidencia" #p, Source::Printable, "Matrimonio_" #p "s.ParroquiaExhorto"},   \
      {"PoblacionResidencia" #p, Source::Printable, "Matrimonio_" #p "s.PoblacionExhorto"}, { \
    "DiocesisResidencia" #p, Source::Printable, "Matrimonio_" #p "s.DiocesisExhorto"          \
  }
#define DIOCESIS_NAC(p) \
  { #p "DiocesisNac", Source::Printable, "Matrimonio_" #p "s.DiocesisNac" }
#define NACIONALIDAD(p) \
  { #p "Nacionalidad", Source::Printable, "Matrimonio_" #p "s.Nacionalidad" }
#define PROFESION(p) \
  { #p "Profesion", Source::Printable, "Matrimonio_" #p "s.Profesion" }
#define SUJETO(p) \
  { #p "SujetoDerecho", Source::Printable, "Matrimonio_" #p "s_RegCivil.SujetoDerecho" }

constexpr const char* CLAVE = "Clave";
constexpr Column TESTIGOS{"Testigos", Source::Stored, "Testigos"};
constexpr Column CREACION{"FechaCreacionLibro", Source::ShortDate,
                          "Libro_Matrimonio.FechaCreacion"};

/// All editions, up to what each goes on with.
Columns matrimonio(const Column& notas) {
  return {
      {"Parroquia", Source::Printable, "Parroquia"},
      {"ProvinciaParroquia", Source::Province, "CodMunicipio"},
      {"PoblacionParroquia", Source::Town, "CodMunicipio"},
      {"Diocesis", Source::Printable, "Diocesis"},
      {"Libro", Source::Printable, "Libro_Matrimonio.Nombre"},
      {"Folio", Source::Printable, "Folio"},
      {"Numero", Source::Printable, "Numero"},
      {"FechaMatrimonioCorta", Source::ShortDate, "Matrimonio_Compromiso.FechaMatrimonio"},
      {"FechaMatrimonioLarga", Source::LongDate, "Matrimonio_Compromiso.FechaMatrimonio"},
      COMPROMISO(HoraMatrimonio),
      COMPROMISO(Padrino),
      COMPROMISO(Madrina),
      TESTIGOS,
      COMPROMISO(Celebrante),
      COMPROMISO(NihilObstat),
      COMPROMISO(ExpedInst),
      COMPROMISO(DomicilioMatrimonio),
      {"ProvinciaDomicMatr", Source::Province, "Matrimonio_Compromiso.CodMunicipioDomicMatr"},
      {"PoblacionDomicMatr", Source::Town, "Matrimonio_Compromiso.CodMunicipioDomicMatr"},
      COMPROMISO(TelefonoDomicMatr),
      notas,
      {"FechaSistemaLarga", Source::LongDate, "Fecha"},
      {"FechaSistemaCorta", Source::ShortDate, "Fecha"},
      COMPROMISO(Demarcacion),
      {"Letra", Source::Initial, "Matrimonio_Novios.PrimerApellido"},
      {"Año", Source::Stored, "Año"},
      // Box by box as they were asked for, which is not what each column is called.
      {"DiocesisResidenciaNovio", Source::Printable, "Exhorto1"},
      {"PoblacionResidenciaNovio", Source::Printable, "Exhorto2"},
      {"ParroquiaResidenciaNovio", Source::Printable, "Exhorto3"},
      {"DiocesisResidenciaNovia", Source::Printable, "Exhorto4"},
      {"PoblacionResidenciaNovia", Source::Printable, "Exhorto5"},
      {"ParroquiaResidenciaNovia", Source::Printable, "Exhorto6"},
  };
}

Column notas(Source como) {
  return {"NotasMarginales", como, "NotasMarginales"};
}

const Columns& cierre() {
  static const Columns columns{COMPROMISO(CPCompromiso),
                               {"Observaciones", Source::Printable, "Observaciones"}};
  return columns;
}

Columns otros() {
  return {{"CodDocumentos_Matrimonio", Source::Stored, CLAVE, Quoting::None},
          TESTIGO(1),
          TESTIGO(2),
          {"InstitucionNombre", Source::Printable, "Institucion.InstitucionNombre"},
          {"InstitucionTipo", Source::Printable, "Institucion.InstitucionTipo"},
          {"InstitucionDiocesis", Source::Printable, "Institucion.Diocesis"},
          {"InstitucionDomicilio", Source::Printable, "Institucion.Domicilio"},
          {"InstitucionCP", Source::Printable, "Institucion.CP"},
          {"InstitucionPoblacion", Source::Town, "Institucion.CodMunicipio"},
          {"InstitucionProvincia", Source::Province, "Institucion.CodMunicipio"},
          {"InstitucionParroco", Source::Printable, "Institucion.Parroco"},
          {"InstitucionEncargado", Source::Printable, "Encargado"},
          {"InstitucionVicaria", Source::Printable, "Institucion.Vicaria"},
          {"InstitucionEmail", Source::Printable, "Institucion.InstitucionEmail"},
          {"InstitucionTelefono", Source::Printable, "Institucion.Telefono"}};
}

Columns otrosSantiago() {
  return joined({without(otros(), {"InstitucionTipo", "InstitucionEmail", "InstitucionTelefono"}),
                 {{"InstitucionArciprestazgo", Source::Printable, "Institucion.Arciprestazgo"},
                  {"InstitucionAyuntamiento", Source::Printable, "Institucion.Ayuntamiento"}}});
}

/// The four tables of one edition, the spouses' and the last as `columnas` has them.
CargadorMatrimonio cargador(const char* nombre, Wording wording, const Columns& principal,
                            const std::array<Columns, 3>& columnas, bool santiago) {
  const auto tabla = [&](const char* cual, const Columns& suyas) {
    return DocumentKind{nombre, cual, wording, nullptr, suyas};
  };
  return {tabla("Documentos_Matrimonio", principal),
          {tabla("Documentos_Matrimonio_Novios", columnas[0]),
           tabla("Documentos_Matrimonio_Novias", columnas[1]),
           tabla("Documentos_Matrimonio_Otros", columnas[2])},
          santiago,
          !santiago,
          !santiago};
}

}  // namespace

const CargadorMatrimonio& Cargar_Documentos_Matrimonio() {
  static const CargadorMatrimonio este =
      cargador(__func__, Wording::Castellano,
               joined({matrimonio(notas(Source::PrintablePaddedNotes)), {CREACION}, cierre()}),
               {Columns{CONYUGE(Novio), CONTACTO(Novio), DIOCESIS_NAC(Novio), NACIONALIDAD(Novio),
                        PROFESION(Novio)},
                Columns{CONYUGE(Novia), CONTACTO(Novia), DIOCESIS_NAC(Novia), NACIONALIDAD(Novia),
                        PROFESION(Novia)},
                otros()},
               false);
  return este;
}

const CargadorMatrimonio& Cargar_Documentos_MatrimonioMenorca() {
  static const CargadorMatrimonio este = cargador(
      __func__, Wording::Menorca,
      joined({without(matrimonio(notas(Source::Printable)), {"Testigos"}),
              {CREACION, TESTIGOS},
              cierre()}),
      {Columns{CONYUGE(Novio), CONTACTO(Novio)}, Columns{CONYUGE(Novia), CONTACTO(Novia)}, otros()},
      false);
  return este;
}

const CargadorMatrimonio& Cargar_Documentos_MatrimonioSantiago() {
  static const CargadorMatrimonio este = cargador(
      __func__, Wording::Castellano,
      joined({replacing(matrimonio(notas(Source::Printable)), "Testigos", COMPROMISO(Testigos)),
              {COMPROMISO(TestigosParroquia),
               {"NombreJuzgado", Source::Stored, "NombreJuzgado", Quoting::Single},
               CREACION}}),
      {Columns{CONYUGE(Novio), PROFESION(Novio), DIOCESIS_NAC(Novio), SUJETO(Novio),
               NACIONALIDAD(Novio)},
       // Here the two columns of her nationality have changed places.
       replacing(Columns{CONYUGE(Novia), PROFESION(Novia), DIOCESIS_NAC(Novia), SUJETO(Novia),
                         PERSONAL(Novia, Nacionalidad)},
                 "NacionalidadNovia", NACIONALIDAD(Novia)),
       otrosSantiago()},
      true);
  return este;
}

const DocumentKind& cursosMatrimonio() {
  static const DocumentKind este = [] {
    static const auto numeros = [] {
      std::array<std::string, 34> todos;
      for (std::size_t i = 0; i < todos.size(); ++i) todos[i] = std::to_string(i);
      return todos;
    }();
    Columns columnas{{"CodDocumentos_Matrimonio", Source::Stored, CLAVE, Quoting::None},
                     {"Cod_Tipo_Persona", Source::Stored, "Cod_Tipo_Persona", Quoting::None}};
    for (const std::string& numero : numeros)
      columnas.push_back({numero.c_str(), Source::Stored, numero.c_str(), Quoting::Single});
    return DocumentKind{"CargarCursosMatrimonio", "Documentos_Matrimonio_Cursos",
                        Wording::Castellano, nullptr, columnas};
  }();
  return este;
}

}  // namespace fidaleon::documents
