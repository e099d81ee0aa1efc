#include "documents/BautismoStatements.h"

#include "documents/Conditions.h"

namespace fidaleon::documents {

namespace {

constexpr const char* POSITION =
    "Bautismo.Folio, Bautismo.Numero, Bautismo_Hijo.Nombre AS NombreHijo, "
    "Bautismo_Hijo.PrimerApellido AS PrimerApellidoHijo, "
    "Bautismo_Hijo.SegundoApellido AS SegundoApellidoHijo, Bautismo.FechaBautismo, "
    "Bautismo.Parroquia AS ParroquiaBaut, Bautismo.CodMunicipio AS CodMunicipioBaut, "
    "Bautismo.Diocesis, ";

constexpr const char* NOTES = "Bautismo.NotasMarginales";

constexpr const char* PERSONS =
    "Bautismo.Ministro, Bautismo_Hijo.Sexo, Bautismo_Hijo.FechaNac, Bautismo_Hijo.HoraNac, "
    "Bautismo_Hijo.DireccionNac, Bautismo_Hijo.CodMunicipioNac, "
    "Bautismo_Padres.Nombre AS NombrePadre, "
    "Bautismo_Padres.PrimerApellido AS PrimerApellidoPadre, "
    "Bautismo_Padres.SegundoApellido AS SegundoApellidoPadre, "
    "Bautismo_Padres.CodMunicipio AS CodMunicipioPadre, "
    "Bautismo_Madres.Nombre AS NombreMadre, "
    "Bautismo_Madres.PrimerApellido AS PrimerApellidoMadre, "
    "Bautismo_Madres.SegundoApellido AS SegundoApellidoMadre, "
    "Bautismo_Madres.CodMunicipio AS CodMunicipioMadre, Bautismo_Matrimonio.DireccionPadres, "
    "Bautismo_Matrimonio.CodMunicipioPadres, Bautismo_Matrimonio.Parroquia AS ParroquiaMatr, "
    "Bautismo_Matrimonio.FechaMatr, Bautismo_Matrimonio.CodMunicipioMatr, "
    "Bautismo_Padres.Abuelo AS AbueloPaterno, "
    "Bautismo_Padres.CodMunicipioAbuelo AS CodMunicipioAbueloPaterno, "
    "Bautismo_Padres.Abuela AS AbuelaPaterna, "
    "Bautismo_Padres.CodMunicipioAbuela AS CodMunicipioAbuelaPaterna, "
    "Bautismo_Madres.Abuelo AS AbueloMaterno, "
    "Bautismo_Madres.CodMunicipioAbuelo AS CodMunicipioAbueloMaterno, "
    "Bautismo_Madres.Abuela AS AbuelaMaterna, "
    "Bautismo_Madres.CodMunicipioAbuela AS CodMunicipioAbuelaMaterna, "
    "Bautismo.Padrino, Bautismo.Madrina";

constexpr const char* INSTITUTION =
    ", Institucion.codmunicipio as codMunicipioInst, Institucionnombre, InstitucionTipo, "
    "Institucion.Diocesis as DiocesisInst, Institucion.encargadoarchivo as encargado";

constexpr const char* DETAILS =
    "Bautismo, Bautismo_Hijo, Bautismo_Padres, Bautismo_Madres, Bautismo_Matrimonio";

constexpr const char* BOOK_OF_ENTRY = "Libro_Bautismo.IDLibroBautismo = Bautismo.CodLibro AND ";

constexpr const char* INSTITUTION_OF_BOOK =
    " AND Institucion.IDInstitucion = Libro_Bautismo.CodInstitucion";

std::string byKey(std::int32_t idBautismo) {
  return "bautismo.idbautismo=" + std::to_string(idBautismo);
}

/// The conditions that hold entries and their details together. `which` chooses the entries, and
/// `book` is the condition of the book, if it is read.
std::string joinedEntries(const std::string& which, const char* book) {
  return " WHERE " + which +
         " AND "
         "Bautismo_Hijo.CodBautismo = Bautismo.IDBautismo AND "
         "Bautismo_Matrimonio.IDMatrimonio = Bautismo.CodMatrimonio AND " +
         book +
         "Bautismo_Padres.IDPadres = Bautismo.CodPadres AND "
         "Bautismo_Madres.IDMadres = Bautismo.CodMadres";
}

/// Entries of books with the institution that keeps the book; `further` are more columns.
std::string bookEntries(const std::string& which, const char* further) {
  return std::string("SELECT Bautismo.CodLibro, Libro_Bautismo.Nombre AS NombreLibro, ") +
         POSITION + NOTES + ", " + PERSONS + INSTITUTION + further + " FROM " + DETAILS +
         ", Libro_Bautismo, Institucion" + joinedEntries(which, BOOK_OF_ENTRY) +
         INSTITUTION_OF_BOOK;
}

/// A request with the institution that made it; `institution` are the columns read of that.
std::string request(std::int32_t idBautismo, const char* institution, const char* further) {
  return std::string("SELECT Bautismo.CodLibro, ") + POSITION + NOTES + ", " + PERSONS +
         ", Institucion.codmunicipio as codMunicipioInst, " + institution +
         "Institucion.Diocesis as DiocesisInst, institucion.encargadoarchivo" + further + " FROM " +
         DETAILS + ", Institucion" + joinedEntries(byKey(idBautismo), "") +
         " AND Institucion.IDInstitucion = Bautismo.InstitucionSolicitud";
}

}  // namespace

std::string certificateStatement(std::int32_t idBautismo) {
  return bookEntries(byKey(idBautismo), "");
}

std::string literalCertificateMenorcaStatement(std::int32_t idBautismo) {
  return bookEntries(byKey(idBautismo),
                     ", DiocesisMatrimonio, ProfesionPadrino, NaturalPadrino, EstatPadrino, "
                     "ProfesionMadrina, NaturalMadrina, EstatMadrina, MadreProfesion, "
                     "PadreProfesion");
}

std::string entryStatement(std::int32_t idBautismo) {
  return std::string("SELECT Bautismo.CodLibro, Libro_Bautismo.Nombre AS NombreLibro, ") +
         POSITION + PERSONS + ", " + NOTES + " FROM " + DETAILS + ", Libro_Bautismo" +
         joinedEntries(byKey(idBautismo), BOOK_OF_ENTRY);
}

std::string volanteStatement(std::int32_t idBautismo) {
  return bookEntries(byKey(idBautismo),
                     ", institucion.domicilio as DomicilioInst, institucion.cp as CPInst");
}

std::string requestStatement(std::int32_t idBautismo) {
  return request(idBautismo, "InstitucionNombre, InstitucionTipo, ", "");
}

std::string requestSantiagoStatement(std::int32_t idBautismo) {
  return request(
      idBautismo, "Institucion.nombre as nombreInst, ",
      ", Bautismo.EdadPadrino, Bautismo.ParroquiaDomicilioPadrino, Bautismo.EdadMadrina, "
      "Bautismo.ParroquiaDomicilioMadrina, Bautismo_Padres.PadreParroquiaBaut, "
      "Bautismo_Padres.PadreProfesion, Bautismo_Padres.PadreCodMunicipioParrBaut, "
      "Bautismo_Madres.MadreParroquiaBaut, Bautismo_Madres.MadreProfesion, "
      "Bautismo_Madres.MadreCodMunicipioParrBaut, Bautismo_Padres.AbueloPatParroquiaBaut, "
      "Bautismo_Padres.AbueloPatCodMunicipioParrBaut, Bautismo_Padres.AbuelaPatParroquiaBaut, "
      "Bautismo_Padres.AbuelaPatCodMunicipioParrBaut, Bautismo_Madres.AbueloMatParroquiaBaut, "
      "Bautismo_Madres.AbueloMatCodMunicipioParrBaut, Bautismo_Madres.AbuelaMatParroquiaBaut, "
      "Bautismo_Madres.AbuelaMatCodMunicipioParrBaut, Bautismo_Matrimonio.TelefonoPadres");
}

std::string bookStatement(std::int32_t idLibro) {
  return bookEntries("bautismo.codlibro=" + std::to_string(idLibro), "") +
         " ORDER BY Val(CStr(Folio)) , Val(Numero)";
}

std::string indexStatement(std::int32_t idLibro) {
  const std::string key = std::to_string(idLibro);
  return "SELECT InstitucionNombre, InstitucionTipo, Libro_Bautismo.Nombre AS NombreLibro, "
         "Libro_Bautismo.FechaCreacion, Bautismo.Folio, Bautismo.Numero, "
         "Bautismo_Hijo.Nombre AS NombreHijo, Bautismo_Hijo.PrimerApellido AS PrimerApellidoHijo, "
         "Bautismo_Hijo.SegundoApellido AS SegundoApellidoHijo "
         "FROM Bautismo, Bautismo_Hijo, Libro_Bautismo, Institucion WHERE Bautismo.Codlibro=" +
         key +
         " AND Bautismo_Hijo.CodBautismo=Bautismo.IDBautismo AND "
         "Libro_Bautismo.IDLibroBautismo=" +
         key +
         " AND Institucion.IDInstitucion=Libro_Bautismo.CodInstitucion "
         "ORDER BY Bautismo_Hijo.PrimerApellido, Bautismo_Hijo.SegundoApellido, "
         "Bautismo_Hijo.Nombre";
}

std::string duplicateStatement(std::int32_t ano, std::int32_t idInstitucion) {
  return bookEntries(inYear("FechaBautismo", ano), ", Libro_Bautismo.FechaCreacion") +
         ofBooks("Libro_Bautismo", idInstitucion);
}

}  // namespace fidaleon::documents
