#include "catalogue/Command.h"

#include <tuple>

#include "catalogue/Catalogue.h"
#include "catalogue/CensusCommands.h"
#include "catalogue/CommandParts.h"
#include "core/facade/Documentos.h"
#include "registers/common/FormaPartida.h"

namespace fidaleon::app {
namespace {

constexpr unsigned BOOKS = bit(NodeKind::Books);
constexpr unsigned ENTRIES = bit(NodeKind::Entries);
constexpr unsigned REQUESTS = bit(NodeKind::Requests);
constexpr unsigned INSTITUTIONS = bit(NodeKind::Institutions);
constexpr unsigned PROVINCES = bit(NodeKind::Provinces);
constexpr unsigned TOWNS = bit(NodeKind::Towns);
constexpr unsigned REPORTS = bit(NodeKind::Reports);
constexpr unsigned TASKS = bit(NodeKind::Tasks);
constexpr unsigned CATALOGUES = INSTITUTIONS | PROVINCES | TOWNS | TASKS;

const std::string& nodeName(const Choice& c) {
  return c.node->node.Nombre;
}

void newEntry(Workplace& w, const Choice& c) {
  w.nucleo().NuevaPartida(w.parish(), w.config(), nodeName(c));
}
void oldEntry(Workplace& w, const Choice& c) {
  w.nucleo().AntiguaPartida(w.parish(), w.config(), nodeName(c));
}
void openEntry(Workplace& w, const Choice& c) {
  w.nucleo().PropiedadesPartida(w.parish(), c.id, w.config(), nodeName(c));
}
// The list may have been read before another desk changed the entry.
void toggleAnnulled(Workplace& w, const Choice& c) {
  w.nucleo().AnularPartidas(w.parish(), c.id, w.config(), nodeName(c), [&](bool annulled) {
    if (annulled != c.annulled) {
      avisarYaEsta(w.entorno().ui, annulled);
      return false;
    }
    return annulled || forms::ask(w.entorno().ui,
                                  "La partida quedará anulada: conservará su folio y su número. "
                                  "¿Desea anularla?");
  });
}
void deleteEntry(Workplace& w, const Choice& c) {
  w.nucleo().EliminarPartida(w.parish(), c.id, w.config(), nodeName(c));
}

void newRequest(Workplace& w, const Choice& c) {
  w.nucleo().NuevaSolicitud(w.parish(), w.config(), nodeName(c));
}
void openRequest(Workplace& w, const Choice& c) {
  w.nucleo().PropiedadesSolicitudes(w.parish(), c.id, w.config(), nodeName(c));
}
// The operation itself does not ask, and what it deletes cannot be brought back.
void deleteRequest(Workplace& w, const Choice& c) {
  if (forms::ask(w.entorno().ui, "¿Está seguro que desea eliminar la solicitud?", {},
                 forms::Stake::Loss, nombrePartida(w.parish(), *c.node->sacrament, c.id)))
    w.nucleo().EliminarSolicitud(w.parish(), c.id, w.config(), nodeName(c));
}
void moveRequests(Workplace& w, const Choice& c) {
  w.nucleo().ImportarSolicitudes(w.parish(), w.config(), nodeName(c), c.id);
}

void openBook(Workplace& w, const Choice& c) {
  w.nucleo().PropiedadesLibro(w.parish(), c.id, w.config(), nodeName(c));
}
void newBook(Workplace& w, const Choice& c) {
  w.nucleo().NuevoLibro(w.parish(), w.config(), nodeName(c));
}
void closeBook(Workplace& w, const Choice& c) {
  using Operation = void (cNucleo::*)(FDAPI::Conexion&, std::int32_t, const FDAPI::cConfig&);
  static constexpr Operation BY_SACRAMENT[] = {
      &cNucleo::cerrarLiBautismo, &cNucleo::cerrarLiconfirmacion, &cNucleo::cerrarLiMatrimonio,
      &cNucleo::cerrarLiDefuncion};
  (w.nucleo().*BY_SACRAMENT[c.node->sacrament->byte])(w.parish(), c.id, w.config());
}
void deleteBook(Workplace& w, const Choice& c) {
  w.nucleo().EliminarLibro(w.parish(), c.id, w.config(), nodeName(c));
}

void newCatalogueRow(Workplace& w, const Choice& c) {
  openCatalogueRow(w, c.node->kind, 0);
}
void editCatalogueRow(Workplace& w, const Choice& c) {
  openCatalogueRow(w, c.node->kind, c.id);
}
void removeCatalogueRow(Workplace& w, const Choice& c) {
  deleteCatalogueRow(w, c.node->kind, c.id);
}

/// A document of the catalogue, in the words of the window.
Command document(const char* id, const char* text, const char* shortcut, const char* tip,
                 unsigned kinds) {
  const auto show = [id](Workplace& w, const Choice& c) {
    if (const Documento* d = documento(*c.node->sacrament, id, c.edition)) w.showDocument(*d, c.id);
  };
  Command c =
      line(id, text, shortcut, tip, kinds, kinds == REPORTS ? Needs::Nothing : Needs::Row, show);
  c.document = true;
  return inMenu(Menu::Documents, std::move(c));
}

void addEntryCommands(std::vector<Command>& all) {
  all.push_back(inToolbar("new", line("nueva-partida", "&Nueva partida…", "Ins",
                                      "Inscribe una partida en el libro nuevo abierto", ENTRIES,
                                      Needs::Nothing, newEntry)));
  all.push_back(inToolbar("old", line("antigua-partida", "Partida an&tigua…", "Shift+Ins",
                                      "Transcribe una partida de un libro antiguo", ENTRIES,
                                      Needs::Nothing, oldEntry)));
  all.push_back(
      opening(inToolbar("edit", line("propiedades-partida", "&Propiedades…", "Return",
                                     "Abre la partida elegida para consultarla o corregirla",
                                     ENTRIES, Needs::Row, openEntry))));
  all.push_back(inToolbar("annul", line("anular", "&Anular", "Ctrl+U",
                                        "Anula la partida: conserva su folio y su número", ENTRIES,
                                        Needs::ValidRow, toggleAnnulled)));
  all.push_back(inToolbar(
      "valid", line("validar", "&Validar", "Ctrl+U", "Devuelve su validez a la partida anulada",
                    ENTRIES, Needs::AnnulledRow, toggleAnnulled)));
  all.push_back(
      destructive(line("eliminar-partida", "&Eliminar", "Del",
                       "Elimina la partida: cualquiera de un libro antiguo, la última de uno nuevo",
                       ENTRIES, Needs::Row, deleteEntry)));
}

void addRequestCommands(std::vector<Command>& all) {
  all.push_back(inToolbar("new", line("nueva-solicitud", "&Nueva solicitud…", "Ins",
                                      "Recoge los datos de quien aún no está inscrito en un libro",
                                      REQUESTS, Needs::Nothing, newRequest)));
  all.push_back(opening(
      inToolbar("edit", line("propiedades-solicitud", "&Propiedades…", "Return",
                             "Abre la solicitud elegida", REQUESTS, Needs::Row, openRequest))));
  all.push_back(
      destructive(line("eliminar-solicitud", "&Eliminar", "Del", "Elimina la solicitud elegida",
                       REQUESTS, Needs::Row, deleteRequest)));
  all.push_back(inToolbar("book", line("pasar-al-libro", "Pasar al li&bro…", "Ctrl+B",
                                       "Inscribe solicitudes en el libro nuevo abierto", REQUESTS,
                                       Needs::Nothing, moveRequests)));
}

void addBookCommands(std::vector<Command>& all) {
  all.push_back(inToolbar(
      "new", line("nuevo-libro", "&Nuevo libro…", "Ins",
                  "Abre un libro nuevo o da de alta uno antiguo", BOOKS, Needs::Nothing, newBook)));
  all.push_back(inToolbar("lock", line("cerrar-libro", "&Cerrar libro…", "",
                                       "Cierra el libro nuevo: no admitirá más partidas", BOOKS,
                                       Needs::Row, closeBook)));
  all.push_back(
      destructive(line("eliminar-libro", "&Eliminar libro…", "Del",
                       "Elimina un libro que no tenga partidas", BOOKS, Needs::Row, deleteBook)));
  const auto withEntries = [](const Sacramento& s) { return entriesNode(s) != nullptr; };
  all.push_back(
      opening(of(withEntries, inToolbar("edit", line("propiedades-libro", "&Propiedades…", "Return",
                                                     "Abre el libro con todas sus partidas", BOOKS,
                                                     Needs::Row, openBook)))));
  all.push_back(
      of(withEntries, inToolbar("list", line("ver-partidas", "&Ver sus partidas", "Ctrl+Return",
                                             "Muestra las partidas de este libro", BOOKS,
                                             Needs::Row, [](Workplace& w, const Choice& c) {
                                               w.showEntriesOf(*c.node->sacrament, c.id);
                                             }))));
}

void addFamilyCommand(std::vector<Command>& all) {
  all.push_back(line("familia", "La persona y su &familia…", "Ctrl+M",
                     "Reúne los sacramentos de la persona y los de su familia",
                     ENTRIES | REQUESTS | bit(NodeKind::People) | bit(NodeKind::Collaborators),
                     Needs::Row, [](Workplace& w, const Choice& c) { w.showFamily(c); }));
}

void addRepairCommands(std::vector<Command>& all) {
  all.push_back(line(
      "partidas-incompletas", "Partidas &incompletas…", "",
      "Muestra las partidas a las que les falta alguna de sus fichas", 0, Needs::Nothing,
      [](Workplace& w, const Choice&) { w.nucleo().PartidasIncompletas(w.parish(), w.config()); }));
}

void addCatalogueCommands(std::vector<Command>& all) {
  all.push_back(inToolbar(
      "new", line("nueva-institucion", "&Nueva institución…", "Ins", "Da de alta una institución",
                  INSTITUTIONS, Needs::Nothing, newCatalogueRow)));
  all.push_back(inToolbar(
      "new", line("nueva-provincia", "&Nueva provincia…", "Ins", "Da de alta una provincia",
                  PROVINCES, Needs::Nothing, newCatalogueRow)));
  all.push_back(
      inToolbar("new", line("nuevo-municipio", "&Nuevo municipio…", "Ins",
                            "Da de alta un municipio", TOWNS, Needs::Nothing, newCatalogueRow)));
  all.push_back(inToolbar("new", line("nueva-tarea", "&Nueva tarea…", "Ins",
                                      "Apunta una tarea en la agenda de la parroquia", TASKS,
                                      Needs::Nothing, newCatalogueRow)));
  all.push_back(opening(
      inToolbar("edit", line("propiedades", "&Propiedades…", "Return", "Abre la ficha elegida",
                             CATALOGUES, Needs::Row, editCatalogueRow))));
  all.push_back(
      destructive(line("eliminar", "&Eliminar", "Del", "Elimina la ficha elegida, si nadie la usa",
                       CATALOGUES, Needs::Row, removeCatalogueRow)));
}

void addDocumentCommands(std::vector<Command>& all) {
  const auto add = [&](Command c) { all.push_back(std::move(c)); };
  add(inToolbar("print", document("certificado", "&Certificado…", "Ctrl+P",
                                  "Certificado de la partida, firmado por el encargado del archivo",
                                  ENTRIES)));
  add(document("literal", "Certificado &literal…", "Ctrl+L", "Copia literal de la partida, firmada",
               ENTRIES));
  add(document("partida", "&Partida…", "Ctrl+E", "La partida tal como está en el libro", ENTRIES));
  add(document("volante", "&Volante…", "Ctrl+T", "Volante con las señas de la parroquia", ENTRIES));
  add(document("notificacion", "&Notificación a la parroquia de bautismo…", "Ctrl+N",
               "Pide que se anote al margen de la partida de bautismo, con acuse de recibo",
               ENTRIES));
  add(document("comunicacion", "Co&municación a las parroquias de bautismo…", "Ctrl+N",
               "Una hoja para la parroquia de bautismo de cada contrayente, con acuse de recibo",
               ENTRIES));
  add(document("registro-civil", "&Notificación al Registro Civil…", "Ctrl+R",
               "Certificación del matrimonio para que el Registro Civil lo inscriba", ENTRIES));
  add(document("estado", "E&stado del expediente…", "", "Qué consta del expediente del matrimonio",
               ENTRIES));
  add(inToolbar("print",
                document("expediente", "&Expediente matrimonial…", "Ctrl+P",
                         "El expediente entero, con sus declaraciones y diligencias", REQUESTS)));
  add(document("expediente-1", "Expediente (formato &1)…", "Ctrl+1",
               "El expediente y, detrás, su estado", REQUESTS));
  add(document("expediente-2", "Expediente (formato &2)…", "Ctrl+2",
               "El expediente breve, con las declaraciones de ambos en una hoja", REQUESTS));
  add(document("expediente-3", "Expediente (formato &3)…", "Ctrl+3",
               "Según se tramite en la parroquia o se envíe a la curia", REQUESTS));
  add(document("exhorto", "Ex&horto de amonestaciones…", "Ctrl+H",
               "Pide a las parroquias de residencia que publiquen las amonestaciones", REQUESTS));
  add(document("atestado", "&Atestado para otras diócesis…", "",
               "Da fe de la libertad de los contrayentes para casarse en otra diócesis", REQUESTS));
  add(document("resumen", "&Resumen (Allegato V), página 1…", "",
               "Resumen del expediente: las personas y sus pruebas", REQUESTS));
  add(document("resumen-2", "Resumen (Allegato V), pá&gina 2…", "",
               "Resumen del expediente: amonestaciones, licencias y firmas", REQUESTS));
  add(inToolbar("print", document("datos", "&Datos de la solicitud…", "Ctrl+P",
                                  "Hoja con los datos de la solicitud", REQUESTS)));
  add(inToolbar("print", document("libro", "&Libro entero…", "Ctrl+P",
                                  "Todas las partidas del libro, una tras otra", BOOKS)));
  add(inToolbar("print",
                document("indice", "Índi&ce del libro…", "Ctrl+I",
                         "Las partidas del libro por apellidos, con folio y número", BOOKS)));
  add(opening(inToolbar(
      "print", document("duplicadas", "&Duplicadas…", "Ctrl+P",
                        "Las partidas de un año, para enviarlas a la diócesis", REPORTS))));
  add(opening(inToolbar(
      "print", document("sin-libro", "&Notificación sin libro…", "Ctrl+P",
                        "Notificaciones a parroquias de bautismo de confirmaciones que no están en "
                        "ningún libro",
                        REPORTS))));
}

void addCommandsForSeveral(std::vector<Command>& all) {
  const auto print = [](Workplace& w, const Choice& c) { w.makeDocumentsOfChosen(c); };
  for (const auto& [id, text, tip, kinds] :
       {std::tuple{"certificados-elegidas", "C&ertificados de las elegidas…",
                   "El mismo documento de cada partida elegida: en un PDF, en uno cada una o en "
                   "papel",
                   ENTRIES},
        {"documentos-elegidas", "Documentos de las &elegidas…",
         "El mismo documento de cada solicitud elegida: en un PDF, en uno cada una o en papel",
         REQUESTS}})
    all.push_back(inMenu(Menu::Documents, still(line(id, text, "Ctrl+Shift+P", tip, kinds,
                                                     Needs::SeveralRows, print))));
}

void addWindowCommands(std::vector<Command>& all) {
  const auto add = [&](Menu menu, Command c) { all.push_back(inMenu(menu, std::move(c))); };
  add(Menu::View, still(line("actualizar", "&Actualizar", "F5", "Vuelve a leer la lista", 0,
                             Needs::List, [](Workplace& w, const Choice&) { w.readListAnew(); })));
  add(Menu::View,
      still(line("columnas", "&Columnas…", "", "Elige qué columnas se ven en la lista", 0,
                 Needs::List, [](Workplace& w, const Choice&) { w.chooseColumns(); })));
  add(Menu::View,
      still(line("buscar", "&Buscar en todo", "Ctrl+K",
                 "Busca en todos los registros, las solicitudes y el padrón", 0, Needs::Nothing,
                 [](Workplace& w, const Choice&) { w.focusSearch(); })));
  add(Menu::View,
      still(line("filtrar", "&Filtrar", "Ctrl+F", "Busca en la lista según se escribe", 0,
                 Needs::Nothing, [](Workplace& w, const Choice&) { w.focusFilter(); })));
  add(Menu::File, still(line("nueva-parroquia", "&Nueva parroquia…", "",
                             "Crea una parroquia en otra carpeta y pasa a trabajar en ella", 0,
                             Needs::Nothing, [](Workplace& w, const Choice&) { w.newParish(); })));
  add(Menu::File, still(line("abrir-parroquia", "&Abrir parroquia…", "Ctrl+O",
                             "Pasa a trabajar en la parroquia de otra carpeta", 0, Needs::Nothing,
                             [](Workplace& w, const Choice&) { w.openParish(); })));
  add(Menu::File,
      still(line("conectar-servidor", "C&onectar con un servidor…", "",
                 "Pasa a trabajar en la parroquia que está en un servidor PostgreSQL", 0,
                 Needs::Nothing, [](Workplace& w, const Choice&) { w.connectToServer(); })));
  add(Menu::File,
      still(line("cerrar-parroquia", "C&errar parroquia", "",
                 "Deja de trabajar en esta parroquia y vuelve al comienzo", 0, Needs::Nothing,
                 [](Workplace& w, const Choice&) { w.closeParish(); })));
  add(Menu::File,
      still(line("guardar-lista", "&Guardar la lista…", "Ctrl+S",
                 "Guarda la lista tal como se ve, para una hoja de cálculo", 0, Needs::List,
                 [](Workplace& w, const Choice&) { w.saveList(Extent::Entire); })));
  add(Menu::File, still(line("guardar-elegidas", "Gua&rdar las elegidas…", "Ctrl+Shift+S",
                             "Guarda solo las filas elegidas de la lista", 0, Needs::SeveralRows,
                             [](Workplace& w, const Choice&) { w.saveList(Extent::Chosen); })));
  add(Menu::File, still(line("copia", "&Copia de seguridad…", "",
                             "Guarda una copia de la parroquia en otro sitio", 0, Needs::Nothing,
                             [](Workplace& w, const Choice&) { w.backUp(); })));
  add(Menu::File, line("volver-a-una-copia", "&Volver a una copia…", "",
                       "Deja la parroquia como estaba cuando se hizo una copia", 0, Needs::Nothing,
                       [](Workplace& w, const Choice&) { w.returnToCopy(); }));
  add(Menu::File,
      still(line("trasladar-parroquia", "Tras&ladar la parroquia…", "",
                 "La lleva de un fichero a un servidor, o de un servidor a un fichero", 0,
                 Needs::Nothing, [](Workplace& w, const Choice&) { w.moveParish(); })));
  add(Menu::File, line("traer-datos", "&Traer datos del programa anterior…", "",
                       "Lee los registros de las tablas de dBase y hace con ellos libros antiguos",
                       0, Needs::Nothing, [](Workplace& w, const Choice&) { w.importLegacy(); }));
  add(Menu::File,
      still(line("preferencias", "Pre&ferencias…", "Ctrl+,",
                 "Usuario, letra, impresora, copias y lo demás que se puede elegir", 0,
                 Needs::Nothing, [](Workplace& w, const Choice&) { w.preferences(); })));
  add(Menu::File, still(line("salir", "&Salir", "Ctrl+Q", "Cierra el programa", 0, Needs::Nothing,
                             [](Workplace& w, const Choice&) { w.leave(); })));
  add(Menu::Help,
      still(line("manual", "&Manual", "F1", "Abre el manual donde habla de lo que se está haciendo",
                 0, Needs::Nothing, [](Workplace& w, const Choice&) { w.help({}); })));
  add(Menu::Help,
      still(line("primeros-pasos", "&Primeros pasos", "",
                 "Del primer libro al primer certificado, paso a paso", 0, Needs::Nothing,
                 [](Workplace& w, const Choice&) { w.help("primeros-pasos"); })));
  add(Menu::Help, still(line("acerca-de", "&Acerca de Fidaleon…", "", "", 0, Needs::Nothing,
                             [](Workplace& w, const Choice&) { w.about(); })));
}

std::vector<Command> makeCommands() {
  std::vector<Command> all;
  addEntryCommands(all);
  addRequestCommands(all);
  addBookCommands(all);
  addFamilyCommand(all);
  addRepairCommands(all);
  addCensusCommands(all);
  addCatalogueCommands(all);
  addDocumentCommands(all);
  addCommandsForSeveral(all);
  addListReportCommands(all);
  addWindowCommands(all);
  return all;
}

}  // namespace

const std::vector<Command>& commands() {
  static const std::vector<Command> all = makeCommands();
  return all;
}

bool belongs(const Command& command, const Choice& choice) {
  if (command.kinds == 0) return true;
  if (!choice.node || !(command.kinds & bit(choice.node->kind))) return false;
  const Sacramento* sacrament = choice.node->sacrament;
  if (command.document && isReport(choice.node->kind) && choice.node->report != command.id)
    return false;
  if (command.document)
    return sacrament && documento(*sacrament, command.id, choice.edition) != nullptr;
  return !command.of || command.of(*sacrament);
}

bool applies(const Command& command, const Choice& choice) {
  if (!belongs(command, choice)) return false;
  const bool one = choice.id != 0 && !choice.several;
  switch (command.needs) {
    case Needs::Nothing:
      return true;
    case Needs::List:
      return choice.node && hasRows(choice.node->kind);
    case Needs::Row:
      return one;
    case Needs::ValidRow:
      return one && !choice.annulled;
    case Needs::AnnulledRow:
      return one && choice.annulled;
    case Needs::SeveralRows:
      return choice.several;
  }
  return false;
}

}  // namespace fidaleon::app
