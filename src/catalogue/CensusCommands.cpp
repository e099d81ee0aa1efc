#include "catalogue/CensusCommands.h"

#include "catalogue/CommandParts.h"
#include "catalogue/ListReports.h"
#include "census/common/Eliminacion.h"

namespace fidaleon::app {
namespace {

constexpr unsigned PEOPLE = bit(NodeKind::People);
constexpr unsigned COLLABORATORS = bit(NodeKind::Collaborators);
constexpr unsigned ACTIVITIES = bit(NodeKind::Activities);
constexpr unsigned OFFICES = bit(NodeKind::Offices);
constexpr unsigned TASKS = bit(NodeKind::Tasks);
constexpr unsigned LIST_REPORTS = bit(NodeKind::ListReports);

Command adds(const char* id, const char* text, const char* tip, unsigned kinds, Run run) {
  return inToolbar("new", line(id, text, "Ins", tip, kinds, Needs::Nothing, run));
}
Command opens(const char* id, const char* tip, unsigned kinds, Run run) {
  return opening(
      inToolbar("edit", line(id, "&Propiedades…", "Return", tip, kinds, Needs::Row, run)));
}
Command removes(const char* id, const char* tip, unsigned kinds, Run run) {
  return destructive(line(id, "&Eliminar", "Del", tip, kinds, Needs::Row, run));
}

void editPerson(Workplace& w, const Choice& c) {
  w.nucleo().EditaEmpadronado(w.parish(), c.id, w.config());
}
void editCollaborator(Workplace& w, const Choice& c) {
  w.nucleo().EditaColaborador(w.parish(), c.id, w.config());
}

// What the operation does to everybody else cannot be guessed from its own question.
bool agreesToEmptyOthers(Workplace& w, std::int32_t person) {
  const bool collaborator = !w.parish()
                                 .Execute(
                                     "SELECT CodPadron FROM Padron_TipoPersona WHERE "
                                     "CodTipoPersona=3 AND CodPadron=" +
                                     std::to_string(person))
                                 .EOF_();
  return !collaborator ||
         forms::ask(w.entorno().ui,
                    "Esta persona es también colaboradora. Si la elimina del padrón se vaciarán la "
                    "comunión, la confirmación, el matrimonio y la defunción de TODAS las "
                    "personas.\n\nPara que nadie más pierda nada, elimínela primero en "
                    "Colaboradores y después en Padrón.\n\n¿Desea seguir de todos modos?",
                    {}, forms::Stake::Loss, nombrePersona(w.parish(), person));
}

void deletePerson(Workplace& w, const Choice& c) {
  if (agreesToEmptyOthers(w, c.id)) w.nucleo().EliminaEmpadronado(w.parish(), c.id, w.config());
}

void addPeopleCommands(std::vector<Command>& all) {
  all.push_back(adds(
      "nuevo-empadronado", "&Nuevo empadronado…", "Añade una persona al padrón", PEOPLE,
      [](Workplace& w, const Choice&) { w.nucleo().NuevoEmpadronado(w.parish(), w.config()); }));
  all.push_back(
      opens("propiedades-empadronado", "Abre la ficha de la persona elegida", PEOPLE, editPerson));
  all.push_back(inToolbar(
      "people",
      line("abrir-como-colaborador", "Abrir como &colaborador…", "Ctrl+Return",
           "Abre a la persona como colaborador; al aceptar pasa a serlo, sin dejar el padrón",
           PEOPLE, Needs::Row, editCollaborator)));
  all.push_back(removes("eliminar-empadronado",
                        "Quita del padrón a la persona elegida, con todos sus datos", PEOPLE,
                        deletePerson));
}

void addCollaboratorCommands(std::vector<Command>& all) {
  all.push_back(adds(
      "nuevo-colaborador", "&Nuevo colaborador…", "Da de alta a un colaborador", COLLABORATORS,
      [](Workplace& w, const Choice&) { w.nucleo().NuevoColaborador(w.parish(), w.config()); }));
  all.push_back(opens("propiedades-colaborador", "Abre la ficha del colaborador elegido",
                      COLLABORATORS, editCollaborator));
  all.push_back(inToolbar(
      "person", line("ver-en-el-padron", "&Ver en el padrón…", "Ctrl+Return",
                     "Abre al colaborador en el padrón; al aceptar queda también empadronado",
                     COLLABORATORS, Needs::Row, editPerson)));
  all.push_back(removes("eliminar-colaborador",
                        "Quita al colaborador elegido de todas sus actividades", COLLABORATORS,
                        [](Workplace& w, const Choice& c) {
                          w.nucleo().EliminaColaborador(w.parish(), c.id, w.config());
                        }));
}

void addActivityCommands(std::vector<Command>& all) {
  all.push_back(
      adds("nueva-actividad", "&Nueva actividad…", "Da de alta una actividad", ACTIVITIES,
           [](Workplace& w, const Choice&) { w.nucleo().NuevaActividad(w.parish(), w.config()); }));
  all.push_back(opens("propiedades-actividad", "Abre la actividad elegida, con sus grupos",
                      ACTIVITIES, [](Workplace& w, const Choice& c) {
                        w.nucleo().EditaActividad(w.parish(), c.id, w.config());
                      }));
  all.push_back(removes("eliminar-actividad", "Elimina la actividad elegida, con sus grupos",
                        ACTIVITIES, [](Workplace& w, const Choice& c) {
                          w.nucleo().EliminaActividad(w.parish(), c.id, w.config());
                        }));
}

void addOfficeCommands(std::vector<Command>& all) {
  all.push_back(
      adds("nuevo-cargo", "&Nuevo cargo…", "Da de alta un cargo", OFFICES,
           [](Workplace& w, const Choice&) { w.nucleo().NuevoCargo(w.parish(), w.config()); }));
  all.push_back(opens(
      "propiedades-cargo", "Abre el cargo elegido", OFFICES,
      [](Workplace& w, const Choice& c) { w.nucleo().EditaCargo(w.parish(), c.id, w.config()); }));
  all.push_back(removes("eliminar-cargo",
                        "Elimina el cargo elegido y quita de sus grupos a quienes lo tienen",
                        OFFICES, [](Workplace& w, const Choice& c) {
                          w.nucleo().EliminaCargo(w.parish(), c.id, w.config());
                        }));
}

template <Extent EXTENT>
void print(Workplace& w, const Choice& c) {
  if (const ListReport* report = findListReport(c.node->node.Nombre))
    w.showListReport(*report, EXTENT);
}

}  // namespace

void addCensusCommands(std::vector<Command>& all) {
  addPeopleCommands(all);
  addCollaboratorCommands(all);
  addActivityCommands(all);
  addOfficeCommands(all);
}

void addListReportCommands(std::vector<Command>& all) {
  const auto add = [&](Command c) { all.push_back(inMenu(Menu::Documents, still(std::move(c)))); };
  add(opening(inToolbar("print", line("informe", "&Elegir e imprimir…", "Ctrl+P",
                                      "Pregunta qué se quiere imprimir y lo muestra", LIST_REPORTS,
                                      Needs::Nothing, print<Extent::Chosen>))));
  add(inToolbar("print",
                line("informe-de-la-lista", "&Informe…", "Ctrl+P",
                     "Pregunta qué se quiere imprimir de la lista y lo muestra",
                     COLLABORATORS | ACTIVITIES | TASKS, Needs::Nothing, print<Extent::Chosen>)));
  add(inToolbar("list", line("informe-entero", "Imprimir &todo…", "Ctrl+Shift+P",
                             "Muestra el informe entero sin preguntar; las tareas, las del año",
                             LIST_REPORTS, Needs::Nothing, print<Extent::Entire>)));
}

}  // namespace fidaleon::app
