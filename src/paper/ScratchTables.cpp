#include "paper/ScratchTables.h"

namespace fidaleon::paper {

const std::vector<std::string>& scratchTables() {
  static const std::vector<std::string> tables{
      "Documentos_Bautismo",          "Documentos_Confirmacion",
      "Documentos_Defuncion",         "Documentos_Matrimonio_Cursos",
      "Documentos_Matrimonio_Otros",  "Documentos_Matrimonio_Novios",
      "Documentos_Matrimonio_Novias", "Documentos_Matrimonio",
      "Informe_Colaboradores",        "Tareas_Agenda"};
  return tables;
}

void emptyScratchTables(store::Connection& reports) {
  reports.BeginTrans();
  try {
    for (const std::string& table : scratchTables()) reports.Execute("DELETE * FROM " + table);
    reports.CommitTrans();
  } catch (...) {
    reports.RollbackTrans();
    throw;
  }
}

}  // namespace fidaleon::paper
