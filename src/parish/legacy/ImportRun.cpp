#include "parish/legacy/ImportRun.h"

#include "core/statements/Citas.h"
#include "parish/Preferences.h"
#include "parish/copies/Precaution.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

std::int32_t institutionOf(store::Connection& parish, const std::string& asked) {
  const auto key = text::toInteger(asked);
  const std::string which = asked.empty() ? ""
                            : key         ? " WHERE IDInstitucion=" + std::to_string(*key)
                                          : " WHERE Nombre=" + entreComillas(asked);
  const auto rows = parish.Execute("SELECT IDInstitucion FROM Institucion" + which);
  if (rows.RecordCount() == 1) return static_cast<std::int32_t>(rows.integer("IDInstitucion"));
  throw WrongOrder(asked.empty() ? "Hay varias instituciones: diga cuál con «institucion»."
                                 : "No hay ninguna institución «" + asked + "», o hay varias.");
}

std::int32_t municipalityOf(store::Connection& parish, const ImportOrder::Register& r) {
  if (!r.useParish || r.town.empty()) return 0;
  const auto rows = parish.Execute(
      "SELECT IDMunicipio FROM Municipio INNER JOIN Provincia ON Municipio.CodProvincia = "
      "Provincia.IDProvincia WHERE Municipio.Nombre=" +
      entreComillas(r.town) + " AND Provincia.Nombre=" + entreComillas(r.province));
  if (!rows.EOF_()) return static_cast<std::int32_t>(rows.integer("IDMunicipio"));
  throw WrongOrder("La parroquia no tiene la población «" + r.town + "» en la provincia «" +
                   r.province + "». Añádala antes.");
}

void requireFormat(store::Connection& parish, const ImportOrder::Register& r) {
  const std::string sql = "SELECT * FROM Libros_Formato WHERE IdFormato=";
  if (r.folder.empty() || !parish.Execute(sql + std::to_string(r.format)).EOF_()) return;
  throw WrongOrder("No hay ningún formato de libro con el número " + std::to_string(r.format) +
                   ".");
}

void import(Desk& desk, const ImportOrder& order, FDAPI::cProgreso& progress,
            const FDAPI::ColEtiqueta& labels) {
  store::Connection& parish = desk.parish();
  const std::int32_t institution = institutionOf(parish, order.institution);
  std::array<std::int32_t, 4> town{};
  for (std::size_t i = 0; i < town.size(); ++i) {
    town[i] = municipalityOf(parish, order.registers[i]);
    requireFormat(parish, order.registers[i]);
  }
  const auto& [b, c, m, d] = order.registers;
  desk.nucleo().OpcionesImportacion(order.codePage, order.trial);
  desk.nucleo().ImportarInparGP(parish, labels, b.folder.string(), c.folder.string(),
                                m.folder.string(), d.folder.string(), institution, order.year00,
                                progress, b.useParish, b.parish, b.diocese, town[0], c.useParish,
                                c.parish, c.diocese, town[1], m.useParish, m.parish, m.diocese,
                                town[2], d.useParish, d.parish, d.diocese, town[3],
                                order.nameFirst ? 0 : 1, b.format, c.format, m.format, d.format);
}

}  // namespace

ResultadoImportacion runImport(Desk& desk, const ImportOrder& order, FDAPI::cProgreso& progress,
                               const FDAPI::ColEtiqueta& labels) {
  const SafetyCopies copies(desk.files().directory,
                            copiesKept(desk.entorno().settings, desk.config()));
  const auto there = desk.presence().alone("está trayendo los datos del programa anterior", [&] {
    std::optional<Precaution> copy;
    if (!order.trial)
      copy.emplace(copies, desk.parish(), "Traer los datos del programa anterior", thisMoment());
    import(desk, order, progress, labels);
  });
  if (!there.empty())
    throw WrongOrder("Otro puesto tiene abierta la parroquia: " + spoken(there.front()) +
                     ". Ciérrela allí y vuelva a empezar.");
  return desk.nucleo().UltimaImportacion();
}

std::filesystem::path reportFile(const ImportOrder& order, const std::string& today,
                                 const std::string& now) {
  if (!order.report.empty()) return order.report;
  return order.parish / ("importacion " + today + " " + text::replaceAll(now, ":", ".") + ".txt");
}

}  // namespace fidaleon::app
