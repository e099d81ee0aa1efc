#include "window/help/SupportReport.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QScreen>
#include <QStorageInfo>
#include <QSysInfo>
#include <algorithm>
#include <sstream>

#include "locks/Reach.h"
#include "parish/Preferences.h"
#include "parish/copies/SafetyCopies.h"
#include "store/schema/Schema.h"
#include "window/help/Version.h"

namespace fidaleon::app {
namespace {

/// "1.234.567", or that there is no such file.
std::string sizeOf(const std::filesystem::path& file) {
  std::error_code none;
  const std::uintmax_t bytes = std::filesystem::file_size(file, none);
  return none ? "no hay" : QLocale().toString(static_cast<qulonglong>(bytes)).toStdString();
}

std::filesystem::path beside(std::filesystem::path file, const char* ending) {
  file += ending;
  return file;
}

void tellProgram(std::ostream& out, const Desk& desk) {
  out << "Fidaleon " << version() << ", Qt " << qVersion() << "\n"
      << "Sistema: " << QSysInfo::prettyProductName().toStdString() << ", "
      << QSysInfo::kernelType().toStdString() << " " << QSysInfo::kernelVersion().toStdString()
      << ", " << QSysInfo::currentCpuArchitecture().toStdString() << "\n"
      << "Ventanas: " << QGuiApplication::platformName().toStdString() << "; idioma "
      << QLocale::system().name().toStdString() << "\n";
  for (const QScreen* screen : QGuiApplication::screens())
    out << "Pantalla: " << screen->size().width() << " x " << screen->size().height() << ", "
        << screen->devicePixelRatio() * 100 << " %, " << qRound(screen->logicalDotsPerInch())
        << " puntos por pulgada\n";
  out << "Edición: " << desk.edition() << "\n";
}

void tellStore(std::ostream& out, Desk& desk) {
  const ParishFiles& files = desk.files();
  const QStorageInfo disk(QString::fromStdString(files.directory.string()));
  out << "\nLa parroquia\n"
      << "Esquema: " << desk.parish().schema().version() << "\n"
      << "Fichero, en bytes: " << sizeOf(files.parish())
      << "; diario: " << sizeOf(beside(files.parish(), "-wal")) << " / "
      << sizeOf(beside(files.parish(), "-journal")) << "\n"
      << "Disco: " << disk.fileSystemType().toStdString() << ", libres "
      << disk.bytesAvailable() / (1 << 20) << " MB de " << disk.bytesTotal() / (1 << 20) << "\n"
      << "Varios equipos a la vez: "
      << (locks::reachOf(files.directory) == locks::Reach::OneMachine ? "no" : "sí") << "\n";
  std::uintmax_t bytes = 0;
  const std::vector<SafetyCopy> copies = SafetyCopies(files.directory).list();
  for (const SafetyCopy& copy : copies) bytes += copy.bytes;
  out << "Copias: " << copies.size() << ", en total " << bytes / (1 << 20) << " MB\n";
}

void tellRows(std::ostream& out, store::Connection& parish) {
  out << "\nFilas\n";
  for (const store::Table& table : parish.schema().tables())
    out << table.name() << ": "
        << parish.Execute("SELECT COUNT(*) AS Filas FROM " + table.name()).integer("Filas") << "\n";
}

// A list of what may be told: what a setting says may be a name, a folder or a printer.
void tellSettings(std::ostream& out, Desk& desk) {
  out << "\nAjustes\n";
  for (const auto& [name, value] : harmlessPreferences(desk.entorno().settings, desk.config()))
    out << name << ": " << value << "\n";
}

void tellErrors(std::ostream& out, Desk& desk) {
  out << "\nÚltimos errores, sin lo que decían\n";
  for (const support::ErrorLog::Entry& e : desk.errors().entries())
    out << e.when << "  " << e.where << "  (" << e.kind << ")\n";
  if (desk.errors().entries().empty()) out << "ninguno desde que se abrió la parroquia\n";
}

}  // namespace

std::string supportReport(Desk& desk) {
  std::ostringstream out;
  out << "Informe para quien ayuda con Fidaleon. No lleva datos de personas.\n\n";
  tellProgram(out, desk);
  tellStore(out, desk);
  tellRows(out, desk.parish());
  tellSettings(out, desk);
  tellErrors(out, desk);
  return out.str();
}

}  // namespace fidaleon::app
