#include "app/CommandLine.h"

#include <array>

#include "parish/ParishFiles.h"

namespace fidaleon::app {
namespace {

struct Option {
  const char* name;
  CommandLine::Task task;
  const char* needs;
  const char* goesWith = nullptr;
};

constexpr std::array<Option, 18> OPTIONS{{
    {"--datos", CommandLine::Task::Desktop, "una carpeta"},
    {"--demo", CommandLine::Task::Demo, "una carpeta"},
    {"--pictures", CommandLine::Task::Pictures, "una carpeta"},
    {"--tabla", CommandLine::Task::Table, "un archivo"},
    {"--import", CommandLine::Task::Import, "un archivo"},
    {"--servidor", CommandLine::Task::Server, "una carpeta"},
    {"--trasladar", CommandLine::Task::Move, "una carpeta"},
    {"--guion", CommandLine::Task::Script, "el nombre de una base de datos"},
    // Go with --servidor or --trasladar.
    {"--base", CommandLine::Task::Wrong, "SERVIDOR[:PUERTO]/BASE"},
    {"--usuario", CommandLine::Task::Wrong, "un usuario del servidor", "--base"},
    {"--clave", CommandLine::Task::Wrong, "un archivo con la contraseña", "--base"},
    {"--certificado", CommandLine::Task::Wrong, "un archivo", "--base"},
    {"--a", CommandLine::Task::Wrong, "una carpeta", "--trasladar"},
    {"--nueva", CommandLine::Task::Wrong, "el nombre de la parroquia", "--servidor"},
    {"--poblacion", CommandLine::Task::Wrong, "una población", "--nueva"},
    {"--provincia", CommandLine::Task::Wrong, "el código de una provincia, del 1 al 52", "--nueva"},
    {"--edicion", CommandLine::Task::Wrong, "Madrid, Santiago, Zaragoza o Menorca", "--nueva"},
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

bool isGiven(const CommandLine& line, const std::string& name) {
  const Option* option = optionNamed(name);
  return line.more.contains(name) ||
         (option->task == line.task && line.task != CommandLine::Task::Wrong);
}

/// An option that would be passed over without a word.
const Option* leftAlone(const CommandLine& line) {
  for (const Option& o : OPTIONS)
    if (o.goesWith != nullptr && line.more.contains(o.name) && !isGiven(line, o.goesWith))
      return &o;
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
    if (option->task == Task::Wrong) {
      line.more[option->name] = value;
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
  if (!line.more.empty() && line.task != Task::Server && line.task != Task::Move)
    return wrong("La opción " + line.more.begin()->first + " va con --servidor o --trasladar.");
  if (const Option* alone = leftAlone(line))
    return wrong("La opción " + std::string(alone->name) + " va con " + alone->goesWith + ".");
  return line;
}

std::string CommandLine::with(const std::string& option) const {
  const auto found = more.find(option);
  return found == more.end() ? std::string() : found->second;
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
         "\n"
         "Para quien lleva un servidor PostgreSQL (manual, capítulo 18):\n"
         "  fidaleon --guion BASE       escribe las órdenes que preparan la base de datos y sus\n"
         "                              papeles: quien la posee, quien la usa y quien la lee\n"
         "  fidaleon --servidor CARPETA --base SERVIDOR[:PUERTO]/BASE --usuario USUARIO\n"
         "                              la carpeta será la de la parroquia que hay allí\n"
         "           --nueva NOMBRE --poblacion POBLACIÓN --provincia CÓDIGO [--edicion EDICIÓN]\n"
         "                              créala allí, vacía\n"
         "  fidaleon --trasladar CARPETA --a CARPETA [--base ... --usuario ...]\n"
         "                              lleva la parroquia entera a otra carpeta: con --base, al\n"
         "                              servidor; sin ella, a un archivo. La primera no cambia.\n"
         "                              Ctrl+C la deja a medias; la misma orden sigue\n"
         "           --clave ARCHIVO    la contraseña es su primera línea (si no, PGPASSWORD, o\n"
         "                              se pregunta sin mostrarla)\n"
         "           --certificado ARCHIVO  el de quien firma el certificado del servidor\n"
         "\n"
         "  fidaleon --help             muestra esta ayuda\n";
}

}  // namespace fidaleon::app
