// Is the entry being accepted already in a book, and has it changed at all?

#include "core/statements/Citas.h"
#include "registers/baptism/TablasBautismo.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

std::string igual(const char* columna, const std::string& texto, const char* signo = " = ") {
  return std::string(" AND ") + columna + signo + entreComillas(texto);
}

std::string igual(const char* columna, std::int32_t numero, const char* signo = " = ") {
  return std::string(" AND ") + columna + signo + std::to_string(numero);
}

/// Parents' rows with the same values, as a statement.
std::string sqlPadres(const cBautismo& b) {
  return "SELECT IDPadres FROM bautismo_padres WHERE Nombre = " + entreComillas(b.NombrePadres) +
         igual("PrimerApellido", b.PrimerApellidoPadres) +
         igual("SegundoApellido", b.SegundoApellidoPadres) +
         igual("CodMunicipio", b.CodPoblacionPadres) + igual("Abuelo", b.AbueloPadres) +
         igual("CodMunicipioAbuelo", b.CodPoblacionAbueloPadres, "=") +
         igual("Abuela", b.AbuelaPadres, "=") + igual("TelefonoPadre", b.TelefonoPadre, "=") +
         igual("EmailPadre", b.EmailPadre, "=") +
         igual("CodMunicipioAbuela", b.CodPoblacionAbuelaPadres, "=");
}

std::string sqlMadres(const cBautismo& b) {
  return "SELECT IDMadres FROM Bautismo_Madres WHERE Nombre = " + entreComillas(b.NombreMadres) +
         igual("PrimerApellido", b.PrimerApellidoMadres) +
         igual("SegundoApellido", b.SegundoApellidoMadres) +
         igual("CodMunicipio", b.CodPoblacionMadres) + igual("Abuelo", b.AbueloMadres) +
         igual("CodMunicipioAbuelo", b.CodPoblacionAbueloMadres, "=") +
         igual("Abuela", b.AbuelaMadres, "=") + igual("TelefonoMadre", b.TelefonoMadre, "=") +
         igual("EmailMadre", b.EmailMadre, "=") +
         igual("CodMunicipioAbuela", b.CodPoblacionAbuelaMadres, "=");
}

std::string sqlMatrimonio(const cBautismo& b) {
  return "SELECT IDMatrimonio FROM Bautismo_Matrimonio WHERE Parroquia = " +
         entreComillas(b.ParroquiaMatrimonio) + igual("FechaMatr", b.FechaMatrMatrimonio) +
         igual("DireccionPadres", b.DireccionPadresMatrimonio) +
         igual("CodMunicipioMatr", b.CodPoblacionMatrMatrimonio) +
         igual("CodMunicipioPadres", b.CodPoblacionPadresMatrimonio);
}

/// "CodPadres = 7" with the row found. Each child of a family has rows of its own with the same
/// values, so where several rows are found any of them counts. Empty when none is.
std::string condicionEnlace(FDAPI::Conexion& conexion, const char* enlace, const std::string& sql) {
  store::Recordset filas = conexion.Execute(sql);
  if (filas.EOF_()) return {};
  const std::string primera = filas.Fields(0).Value().text();
  filas.MoveNext();
  return std::string(" AND ") + enlace + (filas.EOF_() ? " = " + primera : " IN (" + sql + ")");
}

bool mismoTexto(const std::string& a, const std::string& b) {
  const auto enBlanco = [](const std::string& v) { return v.empty() || v == "---"; };
  return a == b || (enBlanco(a) && enBlanco(b));
}

/// What both records must share to be the same baptism, parents aside.
bool mismoBautismo(const cBautismo& a, const cBautismo& b) {
  for (const auto miembro :
       {&cBautismo::FechaBautismo, &cBautismo::PadrinoBautismo, &cBautismo::MadrinaBautismo,
        &cBautismo::ParroquiaBautismo, &cBautismo::DiocesisBautismo, &cBautismo::MinistroBautismo,
        &cBautismo::NombreHijo, &cBautismo::PrimerApellidoHijo, &cBautismo::SegundoApellidoHijo,
        &cBautismo::SexoHijo, &cBautismo::FechaNacHijo, &cBautismo::HoraNacHijo,
        &cBautismo::DireccionNacHijo})
    if (!text::equalsNoCase(a.*miembro, b.*miembro)) return false;
  return a.CodPoblacionNacHijo == b.CodPoblacionNacHijo &&
         a.CodPoblacionBautismo == b.CodPoblacionBautismo;
}

}  // namespace

std::string frmPartidaBautismo::sqlRepetida(const cBautismo& b) {
  const std::string padres = condicionEnlace(*conBaseDatos, "CodPadres", sqlPadres(b));
  if (padres.empty()) return {};
  const std::string madres = condicionEnlace(*conBaseDatos, "CodMadres", sqlMadres(b));
  if (madres.empty()) return {};
  const std::string matrimonio = condicionEnlace(*conBaseDatos, "CodMatrimonio", sqlMatrimonio(b));
  if (matrimonio.empty()) return {};
  return "SELECT * FROM Bautismo, Bautismo_Hijo WHERE FechaBautismo = " +
         entreComillas(b.FechaBautismo) + igual("Padrino", b.PadrinoBautismo) +
         igual("Madrina", b.MadrinaBautismo) + padres + igual("Parroquia", b.ParroquiaBautismo) +
         igual("Diocesis", b.DiocesisBautismo) + madres + matrimonio +
         igual("Ministro", b.MinistroBautismo) + igual("Nombre", b.NombreHijo) +
         igual("CodMunicipioNac", b.CodPoblacionNacHijo) + igual("Sexo", b.SexoHijo) +
         igual("PrimerApellido", b.PrimerApellidoHijo) +
         igual("SegundoApellido", b.SegundoApellidoHijo) + igual("FechaNac", b.FechaNacHijo) +
         igual("HoraNac", b.HoraNacHijo) + igual("DireccionNac", b.DireccionNacHijo) +
         igual("CodMunicipio", b.CodPoblacionBautismo) + " AND CodBautismo = IDBautismo";
}

bool frmPartidaBautismo::mismosDatos(const cBautismo& a, const cBautismo& b) const {
  return mismoBautismo(a, b) && mismaFila(TABLA_PADRES, a, b) && mismaFila(TABLA_MADRES, a, b) &&
         mismaFila(TABLA_MATRIMONIO, a, b);
}

bool frmPartidaBautismo::ComprobarCambios(cBautismo& nuevo) const {
  const bool padre = !mismaFila(TABLA_PADRES, registro_, nuevo) ||
                     !mismoTexto(registro_.TelefonoMadre, nuevo.TelefonoMadre) ||
                     !mismoTexto(registro_.TelefonoPadres, nuevo.TelefonoPadres);
  const bool madre = !mismaFila(TABLA_MADRES, registro_, nuevo);
  const bool matrimonio = !mismaFila(TABLA_MATRIMONIO, registro_, nuevo);
  // An item of a list may have been changed before, in the same sitting.
  nuevo.CambioPadre = nuevo.CambioPadre || padre;
  nuevo.CambioMadre = nuevo.CambioMadre || madre;
  nuevo.CambioMatrimonio = nuevo.CambioMatrimonio || matrimonio;
  return padre || frmPartidaDe::ComprobarCambios(nuevo);
}

}  // namespace fidaleon
