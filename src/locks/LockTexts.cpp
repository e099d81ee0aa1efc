#include "locks/LockTexts.h"

#include <array>

#include "text/Utf8.h"

namespace fidaleon::locks {

namespace {

struct Words {
  const char* table;
  const char* one;
  const char* all;
};

constexpr std::array<Words, 20> WORDS{{
    {"Bautismo", "la partida de bautismo", "las partidas de bautismo"},
    {"Confirmacion", "la partida de confirmación", "las partidas de confirmación"},
    {"Matrimonio", "la partida de matrimonio", "las partidas de matrimonio"},
    {"Defuncion", "la partida de defunción", "las partidas de defunción"},
    {"Libro_Bautismo", "el libro de bautismo", "los libros de bautismo"},
    {"Libro_Confirmacion", "el libro de confirmación", "los libros de confirmación"},
    {"Libro_Matrimonio", "el libro de matrimonio", "los libros de matrimonio"},
    {"Libro_Defuncion", "el libro de defunción", "los libros de defunción"},
    {"Institucion", "la institución", "las instituciones"},
    {"Institucion_Encargado", "el encargado del archivo", "los encargados del archivo"},
    {"Provincia", "la provincia", "las provincias"},
    {"Municipio", "el municipio", "los municipios"},
    {"Libros_Formato", "el formato de los libros", "los formatos de los libros"},
    {"Libros_TipoNombre", "el tipo de nombre de los libros", "los tipos de nombre de los libros"},
    {"Padron", "la persona", "las personas"},
    {"Padron_Actividad", "la actividad del colaborador", "las actividades de los colaboradores"},
    {"Actividad", "la actividad", "las actividades"},
    {"Grupo", "el grupo", "los grupos"},
    {"Cargo", "el cargo", "los cargos"},
    {"Tareas", "la tarea", "las tareas"},
}};

const Words* wordsOf(const std::string& table) {
  for (const Words& w : WORDS)
    if (text::equalsNoCase(w.table, table)) return &w;
  return nullptr;
}

bool wholeTable(Kind kind) {
  return kind == Kind::Table || kind == Kind::SharedTable;
}

/// "la tiene" of "la partida de bautismo".
std::string isHeld(const std::string& what) {
  const std::string article = what.substr(0, what.find(' '));
  return (article == "el" ? "lo" : article) + " tiene ";
}

}  // namespace

std::string oneOf(const std::string& table) {
  const Words* w = wordsOf(table);
  return w ? w->one : "el registro de " + table;
}

std::string allOf(const std::string& table) {
  const Words* w = wordsOf(table);
  return w ? w->all : "los registros de " + table;
}

std::string whoAndSince(const Holder& holder, const Holder& own) {
  const bool here = holder.host == own.host && holder.process == own.process;
  const std::string who = holder.user.empty() ? "usuario sin nombre" : holder.user;
  const std::string where =
      here ? "este mismo equipo, en otra ventana del programa" : "el equipo " + holder.host;
  const std::string since = holder.since.empty() ? "" : ", desde el " + holder.since;
  return who + ", en " + where + since;
}

std::string refusal(const LockEntry& wanted, const HeldEntry& held, const Holder& own) {
  std::string text;
  if (wholeTable(wanted.kind))
    text = "En este momento no se puede trabajar con " + allOf(wanted.table) + ".";
  else
    text = "En este momento no se puede abrir " + oneOf(wanted.table) + ".";
  const std::string what =
      held.entry.kind == Kind::Table ? "Tiene reservado todo el conjunto: " : "Lo está usando: ";
  return text + "\n" + what + whoAndSince(held.holder, own) +
         ".\nInténtelo de nuevo cuando termine.";
}

std::string refusal(const LockEntry& wanted, const HeldEntry& held, const Holder& own,
                    const std::string& consequence) {
  const bool all = wholeTable(wanted.kind) || held.entry.kind == Kind::Table;
  const std::string what = all ? allOf(wanted.table) : oneOf(wanted.table);
  return consequence + ": " + what + " " + isHeld(what) + whoAndSince(held.holder, own) + ".";
}

std::string recordGone(const std::string& table) {
  return "Ya no existe " + oneOf(table) +
         ": se ha eliminado desde otro puesto. Actualice la lista.";
}

std::string goingOn(const HeldEntry& work) {
  return "Hay que esperar: " + whoAndSince(work.holder, {}) + ", " + work.entry.table +
         ".\nVuelva a intentarlo cuando termine.";
}

std::string lostMeanwhile(const LockEntry* wanted, const HeldEntry* held) {
  const std::string what =
      "Mientras este puesto estaba sin conexión con el servidor, otro ha abierto lo que aquí se "
      "estaba escribiendo";
  return (held ? refusal(*wanted, *held, {}, what) : what + ".") +
         "\n\nPara no deshacer lo que se haya cambiado allí, no se ha guardado nada. Lo escrito "
         "sigue en la ventana: anote lo que no quiera perder, ciérrela y vuelva a abrirla.";
}

std::string unseen(const std::string& folder, const Holder& other) {
  return "En la carpeta «" + folder + "» ya trabaja " + whoAndSince(other, {}) +
         ".\n\n"
         "La carpeta está en una unidad en la que un equipo no ve lo que otro tiene abierto, y dos "
         "a la vez estropearían los datos. Puede trabajar uno solo: cierre el programa en el otro "
         "equipo.\n\n"
         "Para trabajar varios a la vez, la parroquia tiene que estar en una carpeta de un "
         "servidor "
         "que guarde los bloqueos, conectada por el sistema (NFS o Samba) y no por el gestor de "
         "ficheros ni por sshfs.";
}

}  // namespace fidaleon::locks
