#include "documents/MatrimonioPartes.h"

#include "documents/Conditions.h"

namespace fidaleon::documents {

namespace {

/// Both spouses have the same columns.
#define CONYUGE(p)                                                                                 \
  "ID" #p                                                                                          \
  "s, Nombre, PrimerApellido, SegundoApellido, DNI, Edad, Religion, FechaNac, "                    \
  "CodMunicipioNac, FechaConfirmacion, CodMunicipioConfirmacion, DomicilioActual, "                \
  "CodMunicipioActual, TResidenciaDomAct, DomicilioAnterior, CodMunicipioAnterior, Nacionalidad, " \
  "Profesion, DiocesisNac, Email" #p ", Telefono" #p                                               \
  ", ParroquiaExhorto, PoblacionExhorto, "                                                         \
  "DiocesisExhorto"
#define BAUTISMO_DE(p)                                                                  \
  "Cod" #p                                                                              \
  "s, FechaBaut, ParroquiaBaut, DiocesisBaut, CodMunicipioBaut, LibroBAut, FolioBAut, " \
  "NumeroBaut"
#define REGCIVIL_DE(p)                                                          \
  "Cod" #p                                                                      \
  "s, EstadoCivil, NombrePadre, NombreMadre, MunicipioInscrito, Tomo, Pagina, " \
  "NombreCivil, SujetoDerecho"

constexpr const char* LIBRO = "Libro_Matrimonio";
constexpr const char* INSTITUCION = "Institucion";

/// A table that is found by what the marriage says of it.
struct Parte {
  const char* tabla;
  const char* clave;
  const char* enlace;  // field of the marriage
  const char* columnas;
};

constexpr Parte PARTES[] = {
    {"Matrimonio_Compromiso", "CodMatrimonio", "IDMatrimonio",
     "CodMatrimonio, FechaMatrimonio, Demarcacion, Padrino, Madrina, Testigos, Celebrante, "
     "NihilObstat, ExpedInst, DomicilioMatrimonio, CPCompromiso, CodMunicipioDomicMatr, "
     "TelefonoDomicMatr, HoraMatrimonio, TestigosParroquia, Testigo1, Testigo1_Natural_de, "
     "Testigo1_Poblacion, Testigo2, Testigo2_Natural_de, Testigo2_Poblacion"},
    {LIBRO, "IDLibroMatrimonio", "CodLibro",
     "IDLibroMatrimonio, CodInstitucion, CodFormato, CodTipoNombre, Nombre, FechaCreacion, Nuevo, "
     "Cerrado, NumeroSiguiente, FolioSiguiente, FechaCreacion"},
    {"Matrimonio_Expediente", "CodMatrimonio", "IDMatrimonio",
     "CodMatrimonio, NombreTestigo1, PrimerApellidoTestigo1, SegundoApellidoTestigo1, DNITestigo1, "
     "DomicilioTestigo1, CodMunicipioTestigo1, NombreTestigo2, PrimerApellidoTestigo2, "
     "SegundoApellidoTestigo2, DNITestigo2, DomicilioTestigo2, CodMunicipioTestigo2"},
    {"Matrimonio_Novios", "IDNovios", "CodNovios", CONYUGE(Novio)},
    {"Matrimonio_Novias", "IDNovias", "CodNovias", CONYUGE(Novia)},
    {"Matrimonio_Novios_Bautismo", "CodNovios", "CodNovios", BAUTISMO_DE(Novio)},
    {"Matrimonio_Novias_Bautismo", "CodNovias", "CodNovias", BAUTISMO_DE(Novia)},
    {"Matrimonio_Novios_RegCivil", "CodNovios", "CodNovios", REGCIVIL_DE(Novio)},
    {"Matrimonio_Novias_RegCivil", "CodNovias", "CodNovias", REGCIVIL_DE(Novia)},
};

constexpr const char* COLUMNAS_INSTITUCION =
    "IDInstitucion, ResponsableNombre, ResponsablePrimerApellido, ResponsableSegundoApellido, "
    "ResponsableTelefono, ResponsableCargo, ResponsableNIF, Parroco, EncargadoArchivo, Nombre, "
    "InstitucionNombre, InstitucionTipo, Domicilio, CIF, CodMunicipio, CP, Telefono, DiaCobro, "
    "Diocesis, Vicaria, Delegacion, CuentaCorreo, PasswordCorreo, RegimenFiscal, CodAdvocacion, "
    "CodigoIdentificativo, OperacionCorreo, CommError, Sufijo, Arciprestazgo, Ayuntamiento, "
    "InstitucionEmail";

void leerParte(FDAPI::Conexion& conFidaleon, const Parte& parte, std::int64_t valor,
               FilaCompuesta& fila) {
  fila.ponerParte(parte.tabla, conFidaleon.Execute(std::string("SELECT ") + parte.columnas +
                                                   " FROM " + parte.tabla + " WHERE " +
                                                   parte.clave + " = " + std::to_string(valor)));
}

/// Marriages that have all their rows; `libro` and `institucion` are the ends of FROM and WHERE.
std::string entries(const std::string& which, const char* libro, const std::string& institucion,
                    const char* further = "") {
  return std::string(
             "SELECT IDMatrimonio, Matrimonio.CodNovios, Matrimonio.CodNovias, "
             "Matrimonio.CodLibro, InstitucionSolicitud, Parroquia, Matrimonio.CodMunicipio, "
             "Matrimonio.Diocesis, Estado, NotasMarginales, Observaciones, Folio, Numero, "
             "Anulada") +
         further +
         " FROM Matrimonio, Matrimonio_Novios, Matrimonio_Novios_RegCivil, "
         "Matrimonio_Novios_Bautismo, Matrimonio_Novias, Matrimonio_Novias_RegCivil, "
         "Matrimonio_Novias_Bautismo, Matrimonio_Compromiso, Matrimonio_Expediente" +
         libro + ", Institucion WHERE " + which +
         " AND Matrimonio_Novios.IDNovios = Matrimonio.CodNovios "
         "AND Matrimonio_Novios_RegCivil.CodNovios = Matrimonio_Novios.IDNovios "
         "AND Matrimonio_Novios_Bautismo.CodNovios = Matrimonio_Novios.IDNovios "
         "AND Matrimonio_Novias.IDNovias = Matrimonio.CodNovias "
         "AND Matrimonio_Novias_RegCivil.CodNovias = Matrimonio_Novias.IDNovias "
         "AND Matrimonio_Novias_Bautismo.CodNovias = Matrimonio_Novias.IDNovias "
         "AND Matrimonio_Compromiso.CodMatrimonio = Matrimonio.IDMatrimonio "
         "AND Matrimonio_Expediente.CodMatrimonio = Matrimonio.IDMatrimonio AND " +
         institucion;
}

std::string inBooks(const std::string& which, const char* further = "") {
  return entries(which, ", Libro_Matrimonio",
                 "Libro_Matrimonio.IDLibroMatrimonio=Matrimonio.CodLibro AND "
                 "Institucion.IDInstitucion=Libro_Matrimonio.CodInstitucion",
                 further);
}

std::string ofBook(std::int32_t idLibro, const char* order) {
  return inBooks("Libro_Matrimonio.IDLibroMatrimonio = " + std::to_string(idLibro)) + order;
}

}  // namespace

std::string matrimonioStatement(std::int32_t idMatrimonio) {
  return inBooks("Matrimonio.IDMatrimonio = " + std::to_string(idMatrimonio));
}

std::string expedienteStatement(std::int32_t idMatrimonio) {
  return entries("Matrimonio.IDMatrimonio = " + std::to_string(idMatrimonio), "",
                 "Institucion.IDInstitucion= Matrimonio.InstitucionSolicitud");
}

std::string matrimonioBookStatement(std::int32_t idLibro) {
  return ofBook(idLibro, " ORDER BY Folio, Val(Numero)");
}

std::string matrimonioIndexStatement(std::int32_t idLibro) {
  return ofBook(idLibro,
                " ORDER BY Matrimonio_Novios.PrimerApellido, Matrimonio_Novios.SegundoApellido, "
                "Matrimonio_Novios.Nombre, Matrimonio_Novias.PrimerApellido, "
                "Matrimonio_Novias.SegundoApellido, Matrimonio_Novias.Nombre");
}

std::string matrimonioDuplicateStatement(std::int32_t ano, std::int32_t idInstitucion) {
  return inBooks(inYear("FechaMatrimonio", ano), ", Libro_Matrimonio.FechaCreacion") +
         ofBooks(LIBRO, idInstitucion);
}

void CargarMatrimonioCompleto(FDAPI::Conexion& conFidaleon, const store::Recordset& matrimonios,
                              FilaCompuesta& fila) {
  for (const Parte& parte : PARTES)
    leerParte(conFidaleon, parte, matrimonios.integer(parte.enlace), fila);
  leerParte(conFidaleon, {INSTITUCION, "IDInstitucion", "", COLUMNAS_INSTITUCION},
            fila.tiene(LIBRO) ? fila.integer("Libro_Matrimonio.CodInstitucion")
                              : matrimonios.integer("InstitucionSolicitud"),
            fila);
  if (!fila.tiene(INSTITUCION)) fila.ponerDato("Institucion.InstitucionTipo", "Parroquia de");
}

}  // namespace fidaleon::documents
