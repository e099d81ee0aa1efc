#include "window/help/HelpTopics.h"

#include <string_view>

namespace fidaleon::app {
namespace {

struct Topic {
  const char* name;  // "*" at its end stands for any ending
  const char* file;
  const char* heading;
};

constexpr const char* START = "01-empezar.md";
constexpr const char* BOOKS = "02-libros.md";
constexpr const char* BAPTISM = "03-partidas-bautismo.md";
constexpr const char* CONFIRMATION = "03-partidas-confirmacion.md";
constexpr const char* MARRIAGE = "03-partidas-matrimonio.md";
constexpr const char* DEATH = "03-partidas-defuncion.md";
constexpr const char* REQUESTS = "04-solicitudes.md";
constexpr const char* DOCUMENTS = "05-documentos.md";
constexpr const char* CENSUS = "06-padron.md";
constexpr const char* COLLABORATORS = "07-colaboradores.md";
constexpr const char* GROUPS = "08-actividades-grupos-cargos.md";
constexpr const char* TASKS = "09-tareas-y-agenda.md";
constexpr const char* REPORTS = "10-informes.md";
constexpr const char* LISTS = "11-guardar-una-lista.md";
constexpr const char* COPIES = "12-copias-de-seguridad.md";
constexpr const char* TROUBLE = "14-si-algo-va-mal.md";
constexpr const char* LEGACY = "15-programa-anterior.md";
constexpr const char* PROGRAM = "16-el-programa.md";
constexpr const char* SEARCH = "17-buscar.md";
constexpr const char* SERVER = "18-servidor.md";

/// The first line that fits counts.
constexpr Topic TOPICS[] = {
    // Nodes of the tree.
    {"Gestión Parroquial", START, "La ventana"},
    {"Libros*", BOOKS, ""},
    {"Partidas", BAPTISM, ""},
    {"PartidasBautismo", BAPTISM, ""},
    {"PartidasConfirmacion", CONFIRMATION, ""},
    {"PartidasMatrimonio", MARRIAGE, ""},
    {"PartidasDefuncion", DEATH, ""},
    {"Solicitudes*", REQUESTS, ""},
    {"Padrón", CENSUS, ""},
    {"Colaboradores", COLLABORATORS, ""},
    {"Actividades", GROUPS, ""},
    {"Cargos", GROUPS, "Los cargos"},
    {"Tareas", TASKS, ""},
    {"Informes y documentos", REPORTS, ""},
    {"Duplicadas de *", DOCUMENTS, "El duplicado para la diócesis"},
    {"Informes*", REPORTS, "Qué se elige en cada uno"},
    {"Notificación confirmación*", DOCUMENTS, "La notificación a la parroquia de bautismo"},
    {"Instituciones", PROGRAM, "Instituciones, provincias y municipios"},
    {"Provincias", PROGRAM, "Instituciones, provincias y municipios"},
    {"Municipios", PROGRAM, "Instituciones, provincias y municipios"},

    {"buscar", SEARCH, ""},
    {"familia", SEARCH, "La persona y su familia"},
    {"FamilyDialog", SEARCH, "La persona y su familia"},
    {"SearchBox", SEARCH, ""},

    // Forms.
    {"frmAltaLibro*", BOOKS, "Abrir un libro"},
    {"frmPropiedadesLibro*", BOOKS, "Ver y cambiar un libro"},
    {"frmPartidaBautismo", BAPTISM, "Una partida nueva"},
    {"frmPartidaConfirmacion", CONFIRMATION, "Inscribir un grupo"},
    {"frmPartidaMatrimonio", MARRIAGE, "Inscribir"},
    {"frmPartidaDefuncion", DEATH, "Inscribir"},
    {"frmPartidasIncompletas", BAPTISM, "Partidas incompletas"},
    {"frmBuscaPadres", BAPTISM, "Una partida nueva"},
    {"frmDetallePadres", BAPTISM, "Una partida nueva"},
    {"frmSolicitudes", REQUESTS, ""},
    {"frmEncargado", DOCUMENTS, ""},
    {"frmDatosSetup", START, "La primera vez"},
    {"frmPadron", CENSUS, "Dar de alta a una persona"},
    {"frmPadronNotas", CENSUS, "Las notas personales"},
    {"frmPadron*", CENSUS, "Si la persona ya estaba"},
    {"frmMensaje", CENSUS, "Si la persona ya estaba"},
    {"frmColaborador", COLLABORATORS, "Dar de alta a un colaborador"},
    {"frmColaboradorActividad", COLLABORATORS, "Sus actividades"},
    {"frmActividad", GROUPS, "Las actividades"},
    {"frmActividadGrupos", GROUPS, "Un grupo"},
    {"frmCargo", GROUPS, "Los cargos"},
    {"frmTarea", TASKS, ""},
    {"frmInfActividad", REPORTS, "Qué se elige en cada uno"},
    {"frmInfAgenda", REPORTS, "Qué se elige en cada uno"},
    {"frmInfDuplicadas", DOCUMENTS, "El duplicado para la diócesis"},
    {"frmInfNotConf*", DOCUMENTS, "La notificación a la parroquia de bautismo"},
    {"frmInfExhorto", DOCUMENTS, "Los documentos de un matrimonio"},
    {"frmInfFecha", DOCUMENTS, "Los documentos de un matrimonio"},
    {"frmInfFormato3", DOCUMENTS, "Los documentos de un matrimonio"},
    {"frmInstitucion", PROGRAM, "Instituciones, provincias y municipios"},
    {"frmProvincia", PROGRAM, "Instituciones, provincias y municipios"},
    {"frmMunicipio", PROGRAM, "Instituciones, provincias y municipios"},
    {"frmBorrador", TROUBLE, "Lo que se estaba escribiendo"},

    // Windows of the program.
    {"StartDialog", START, "De una parroquia a otra"},
    {"ServerDialog", SERVER, "Conectar un puesto"},
    {"PasswordDialog", SERVER, "La contraseña"},
    {"MoveDialog", SERVER, "Trasladar la parroquia"},
    {"FirstRunWizard", START, "La primera vez"},
    {"PreviewDialog", DOCUMENTS, ""},
    {"CopiesDialog", COPIES, "Volver a una copia"},
    {"ImportDialog", LEGACY, "Con el programa abierto"},
    {"AboutDialog", PROGRAM, "Pedir ayuda a alguien"},
    {"PreferencesDialog", PROGRAM, "Preferencias"},

    // Commands, where the manual says more of them than of the list that they belong to.
    {"nueva-parroquia", START, "De una parroquia a otra"},
    {"abrir-parroquia", START, "De una parroquia a otra"},
    {"cerrar-parroquia", START, "De una parroquia a otra"},
    {"conectar-servidor", SERVER, "Conectar un puesto"},
    {"trasladar-parroquia", SERVER, "Trasladar la parroquia"},
    {"preferencias", PROGRAM, "Preferencias"},
    {"guardar-lista", LISTS, ""},
    {"guardar-elegidas", LISTS, "Solo algunas filas"},
    {"copia", COPIES, "Las que hace usted"},
    {"volver-a-una-copia", COPIES, "Volver a una copia"},
    {"traer-datos", LEGACY, "Con el programa abierto"},
    {"partidas-incompletas", BAPTISM, "Partidas incompletas"},
    {"cerrar-libro", BOOKS, "Cerrar y eliminar"},
    {"eliminar-libro", BOOKS, "Cerrar y eliminar"},
    {"eliminar-empadronado", CENSUS, "Quitar a una persona del padrón"},
    {"eliminar-colaborador", COLLABORATORS, "Quitar a un colaborador"},
    {"eliminar-actividad", GROUPS, "Eliminar una actividad"},
    {"libro", DOCUMENTS, "El libro entero y su índice"},
    {"indice", DOCUMENTS, "El libro entero y su índice"},
    {"notificacion", DOCUMENTS, "La notificación a la parroquia de bautismo"},
    {"comunicacion", DOCUMENTS, "Los documentos de un matrimonio"},
    {"registro-civil", DOCUMENTS, "Los documentos de un matrimonio"},
    {"expediente*", DOCUMENTS, "Los documentos de un matrimonio"},
    {"exhorto", DOCUMENTS, "Los documentos de un matrimonio"},
    {"atestado", DOCUMENTS, "Los documentos de un matrimonio"},
    {"resumen*", DOCUMENTS, "Los documentos de un matrimonio"},
    {"estado", DOCUMENTS, "Los documentos de un matrimonio"},
    {"certificado", DOCUMENTS, ""},
    {"certificados-elegidas", DOCUMENTS, "Los de varias partidas a la vez"},
    {"documentos-elegidas", DOCUMENTS, "Los de varias partidas a la vez"},
    {"ManyDocumentsDialog", DOCUMENTS, "Los de varias partidas a la vez"},
    {"literal", DOCUMENTS, ""},
    {"partida", DOCUMENTS, ""},
    {"volante", DOCUMENTS, ""},
    {"datos", DOCUMENTS, "La solicitud de confirmación"},
    {"filtrar", START, "La ventana"},
    {"columnas", START, "La ventana"},
    {"actualizar", START, "El teclado"},
    {"acerca-de", PROGRAM, "Pedir ayuda a alguien"},
    {"primeros-pasos", Manual::FIRST_STEPS, ""},
};

bool fits(std::string_view name, std::string_view pattern) {
  if (!pattern.ends_with('*')) return name == pattern;
  return name.starts_with(pattern.substr(0, pattern.size() - 1));
}

}  // namespace

std::optional<Place> helpPlace(const std::string& name) {
  for (const Topic& topic : TOPICS)
    if (fits(name, topic.name)) return Place{topic.file, topic.heading};
  return std::nullopt;
}

}  // namespace fidaleon::app
