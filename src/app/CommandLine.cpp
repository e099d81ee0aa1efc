#include "app/CommandLine.h"

#include <array>

#include "parish/ParishFiles.h"

namespace fidaleon::app {
namespace {

struct Option {
  const char* name;
  CommandLine::Task task;
};

constexpr std::array<Option, 3> WITH_DIRECTORY{{
    {"--datos", CommandLine::Task::Desktop},
    {"--demo", CommandLine::Task::Demo},
    {"--pictures", CommandLine::Task::Pictures},
}};

CommandLine wrong(const std::string& complaint) {
  return {CommandLine::Task::Wrong, {}, complaint};
}

const Option* optionNamed(const std::string& name) {
  for (const Option& o : WITH_DIRECTORY)
    if (name == o.name) return &o;
  return nullptr;
}

}  // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) {
  CommandLine line;
  bool given = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") return {Task::Help, {}, {}};
    const std::size_t sign = argument.find('=');
    const Option* option = optionNamed(argument.substr(0, sign));
    if (!option) return wrong("Opción desconocida: " + argument);
    if (given) return wrong("Solo puede darse una opción a la vez.");
    if (sign == std::string::npos && ++i == arguments.size())
      return wrong("La opción " + argument + " necesita una carpeta.");
    const std::string directory =
        sign == std::string::npos ? arguments[i] : argument.substr(sign + 1);
    if (directory.empty()) return wrong("La opción " + argument + " necesita una carpeta.");
    if (!isReadable(directory)) return wrong(UNREADABLE_NAME);
    line.task = option->task;
    line.directory = directory;
    given = true;
  }
  return line;
}

std::string CommandLine::help() {
  return "Fidaleon: registros sacramentales de la parroquia\n"
         "\n"
         "Uso:\n"
         "  fidaleon                    abre la parroquia (la primera vez, ayuda a crearla)\n"
         "  fidaleon --datos CARPETA    abre la parroquia guardada en esa carpeta\n"
         "  fidaleon --demo CARPETA     recorre por sí solo lo principal, desde una parroquia "
         "nueva:\n"
         "                              bautismos, confirmaciones y defunciones con sus "
         "documentos,\n"
         "                              y las personas, los grupos y sus informes; deja en la\n"
         "                              carpeta la parroquia, los documentos y un registro\n"
         "  fidaleon --pictures CARPETA guarda una imagen de cada diálogo y de cada documento\n"
         "  fidaleon --help             muestra esta ayuda\n";
}

}  // namespace fidaleon::app
