#include "printing/TextReport.h"

#include <sstream>

#include "core/statements/Citas.h"
#include "printing/Templates.h"
#include "store/Open.h"
#include "store/Transaction.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::app {

paper::Report makeTextReport(const std::string& title, const std::string& text,
                             paper::ReportOptions options) {
  static const store::Schema schema("Texto", 1,
                                    {store::Table("Lineas").memos({"Cabeza", "Detalle"})});
  const auto rows = store::passingDatabase(schema);
  store::Transaction all(*rows);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::string said = text::trim(line);
    if (said.empty()) continue;
    rows->Execute(std::string("INSERT INTO Lineas (") + (line[0] == ' ' ? "Detalle" : "Cabeza") +
                  ") VALUES (" + entreComillas(said) + ")");
  }
  all.commit();
  const QString name = QString::fromStdString(title);
  options.values["Titulo"] = name;
  return paper::Report(*rows, templateDirectory(), "informe_texto", name, std::move(options));
}

}  // namespace fidaleon::app
