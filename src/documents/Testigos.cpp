#include "documents/Testigos.h"

#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

std::string testigo(const FieldSource& matrimonio, const std::string& n) {
  const std::string compuesto =
      ValorImprimible(text::trim(matrimonio.text("Matrimonio_Compromiso.Testigo" + n)));
  if (compuesto != BLANK) return compuesto;
  std::string nombre;
  for (const char* campo : {"Nombre", "PrimerApellido", "SegundoApellido"}) {
    const std::string parte = text::trim(text::replaceAll(
        matrimonio.text(std::string("Matrimonio_Expediente.") + campo + "Testigo" + n), BLANK, ""));
    if (!parte.empty()) nombre += (nombre.empty() ? "" : " ") + parte;
  }
  return ValorImprimible(nombre);
}

}  // namespace

std::string testigosDeBoda(const FieldSource& matrimonio) {
  const std::string escritos = ValorImprimible(matrimonio.text("Matrimonio_Compromiso.Testigos"));
  if (escritos != BLANK) return escritos;
  const std::string uno = testigo(matrimonio, "1");
  const std::string otro = testigo(matrimonio, "2");
  if (uno == BLANK || otro == BLANK) return uno == BLANK ? otro : uno;
  return uno + " y " + otro;
}

}  // namespace fidaleon::documents
