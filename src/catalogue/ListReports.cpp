#include "catalogue/ListReports.h"

#include "core/contract/CcNodos.h"

namespace fidaleon::app {

const std::vector<ListReport>& listReports() {
  const auto node = [](const char* title) { return CcNodos::INFORMES + std::string(title); };
  static const std::vector<ListReport> all{
      {node(CcNodos::INFACTIVIDADES), CcNodos::ACTIVIDAD, "informe_actividades",
       "Informe de actividades", &cNucleo::SelInfActividad, &cNucleo::InformeActividad},
      {node(CcNodos::INFCOLABORADORES), CcNodos::COLABORADOR, "informe_colaboradores",
       "Informe de colaboradores", &cNucleo::SelInfColaborador, &cNucleo::InformeColaborador},
      {node(CcNodos::INFCOLABORADORESEXTENDIDO), "", "informe_colaboradores_ext",
       "Informe de colaboradores (extendido)", &cNucleo::SelInfColaboradorExt,
       &cNucleo::InformeColaboradorExt},
      {node(CcNodos::INFAGENDA), "Tareas", "informe_agenda", "Informe de tareas",
       &cNucleo::SelInfTareasAgenda, &cNucleo::InformeAgenda},
  };
  return all;
}

const ListReport* findListReport(const std::string& node) {
  for (const ListReport& r : listReports())
    if (r.node == node || r.list == node) return &r;
  return nullptr;
}

}  // namespace fidaleon::app
