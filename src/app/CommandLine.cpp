#include "app/CommandLine.h"

#include <array>

#include "parish/ParishFiles.h"

namespace fidaleon::app {
namespace {

struct Option {
  const char* name;
  CommandLine::Task task;
  const char* needs;
};

constexpr std::array<Option, 6> OPTIONS{{
    {"--datos", CommandLine::Task::Desktop, "una carpeta"},
    {"--demo", CommandLine::Task::Demo, "una carpeta"},
    {"--pictures", CommandLine::Task::Pictures, "una carpeta"},
    {"--tabla", CommandLine::Task::Table, "un archivo"},
    {"--import", CommandLine::Task::Import, "un archivo"},
    // Goes with --tabla.
    {"--codigos", CommandLine::Task::Table, "una página de códigos, como 850 o 1252"},
}};
constexpr const Option& CODE_PAGE = OPTIONS.back();

CommandLine wrong(const std::string& complaint) {
  return {CommandLine::Task::Wrong, {}, complaint, {}};
}

const Option* optionNamed(const std::string& name) {
  for (const Option& o : OPTIONS)
    if (name == o.name) return &o;
  return nullptr;
}

/// As file managers hand it over; it stands for the folder in which it lies.
bool isParishFile(const std::filesystem::path& given) {
  return given.extension() == ".fidaleon";
}

std::filesystem::path folderOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  CommandLine line;
  bool given = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") return {Task::Help, {}, {}, {}};
    const bool plain = isParishFile(argument);
    const std::size_t sign = plain ? std::string::npos : argument.find('=');
    const Option* option = plain ? &OPTIONS.front() : optionNamed(argument.substr(0, sign));
    if (!option) return wrong("Opción desconocida: " + argument);
    if (!plain && sign == std::string::npos && ++i == arguments.size())
      return wrong("La opción " + argument + " necesita " + option->needs + ".");
    const std::string value = sign == std::string::npos ? arguments[i] : argument.substr(sign + 1);
    if (value.empty()) return wrong("La opción " + argument + " necesita " + option->needs + ".");
    if (option == &CODE_PAGE) {
      line.codePage = value;
      continue;
    }
    if (given) return wrong("Solo puede darse una opción a la vez.");
    // A file may come from a disk that names its files in another way.
    const bool isFile = option->task == Task::Table || option->task == Task::Import;
    if (!isFile && !isReadable(value)) return wrong(UNREADABLE_NAME);
    line.task = option->task;
    line.path = plain ? folderOf(value) : std::filesystem::path(value);
    given = true;
  }
  if (!line.codePage.empty() && line.task != Task::Table)
    return wrong("La opción --codigos solo va con --tabla.");
  return line;
}

std::string CommandLine::help() {
  return "Fidaleon: registros sacramentales de la parroquia\n"
         "\n"
         "Uso:\n"
         "  fidaleon                    abre la parroquia (la primera vez, ayuda a crearla)\n"
         "  fidaleon ARCHIVO.fidaleon   abre la parroquia de ese archivo\n"
         "  fidaleon --datos CARPETA    abre la parroquia guardada en esa carpeta\n"
         "  fidaleon --demo CARPETA     recorre por sí solo lo principal, desde una parroquia "
         "nueva:\n"
         "                              bautismos, confirmaciones y defunciones con sus "
         "documentos,\n"
         "                              y las personas, los grupos y sus informes; deja en la\n"
         "                              carpeta la parroquia, los documentos y un registro\n"
         "  fidaleon --pictures CARPETA guarda una imagen de cada diálogo y de cada documento\n"
         "  fidaleon --tabla ARCHIVO    escribe una tabla de dBase o FoxPro como CSV en UTF-8, con "
         "sus\n"
         "                              memos y sin lo borrado; lo dudoso, por el canal de "
         "errores\n"
         "           --codigos PÁGINA   con --tabla: léela con esta página de códigos (850, "
         "1252...)\n"
         "  fidaleon --import ARCHIVO   trae los registros del programa anterior como diga ese "
         "archivo\n"
         "                              de texto (manual, capítulo 15)\n"
         "  fidaleon --help             muestra esta ayuda\n";
}

}  // namespace fidaleon::app
