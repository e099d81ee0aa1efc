#include "paper/Rows.h"

#include <algorithm>
#include <map>
#include <set>

#include "documents/Duplicada.h"
#include "documents/Miembros.h"
#include "documents/MiembrosMatrimonio.h"
#include "documents/NotificacionSinLibro.h"
#include "documents/TextRules.h"
#include "store/schema/Schema.h"
#include "support/Fields.h"
#include "text/Utf8.h"

namespace fidaleon::paper::test {
namespace {

bool endsIn(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

const std::map<std::string, std::string>& believable() {
  static const std::map<std::string, std::string> values = tests::row(R"(
    CodDocumentos_Matrimonio=1; EdadNovio=33; EdadNovia=31; TResidenciaDomActNovio=4
    TResidenciaDomActNovia=7; FolioBautNovio=98; FolioBautNovia=21
    Libro=Libro XXIII de Bautismos; Folio=137; Numero=12a; PrimerApellidoHijo=Fernández de Córdoba
    SegundoApellidoHijo=Ruiz-Castañeda; NombreHijo=María del Carmen Inmaculada
    FechaBautismoCorta=12/10/1987; ParroquiaBaut=Nuestra Señora de la Asunción
    PoblacionBaut=Alcalá de Henares; ProvinciaBaut=Madrid; Diocesis=Madrid-Alcalá
    FechaBautismoLarga=12 de octubre de 1987; Ministro=José Ignacio Gutiérrez Peñalver
    [Al niño/A la niña]=a la niña; [Nacido/Nacida]=nacida; FechaNacCorta=03/09/1987
    FechaNacLarga=3 de septiembre de 1987; HoraNac=14:35
    DireccionNac=Hospital Universitario Príncipe de Asturias; PoblacionNac=Alcalá de Henares
    ProvinciaNac=Madrid; NombrePadre=Francisco Javier; PrimerApellidoPadre=Fernández de Córdoba
    SegundoApellidoPadre=Muñoz; PoblacionPadre=Priego de Córdoba; ProvinciaPadre=Córdoba
    NombreMadre=Ana María; PrimerApellidoMadre=Ruiz-Castañeda; SegundoApellidoMadre=Gómez
    PoblacionMadre=Sigüenza; ProvinciaMadre=Guadalajara
    DireccionPadres=calle Mayor, 24, 3.º izquierda; PoblacionPadres=Alcalá de Henares
    ProvinciaPadres=Madrid; ParroquiaMatr=Santa María la Mayor; PoblacionMatr=Alcalá de Henares
    ProvinciaMatr=Madrid; FechaMatrCorta=08/06/1985; FechaMatrLarga=8 de junio de 1985
    AbueloPaterno=Antonio Fernández de Córdoba Lara; PoblacionAbueloPaterno=Priego de Córdoba
    AbuelaPaterna=Dolores Muñoz Serrano; PoblacionAbuelaPaterna=Cabra
    AbueloMaterno=Manuel Ruiz-Castañeda Ortega; PoblacionAbueloMaterno=Sigüenza
    AbuelaMaterna=Pilar Gómez Íñiguez; PoblacionAbuelaMaterna=Atienza
    Padrino=Luis Alfonso Ruiz-Castañeda Gómez; Madrina=Mercedes Fernández de Córdoba Muñoz
    ProvinciaAbueloPaterno=Córdoba; ProvinciaAbuelaPaterna=Córdoba
    ProvinciaAbueloMaterno=Guadalajara; ProvinciaAbuelaMaterna=Guadalajara
    InstitucionNombre=Nuestra Señora de la Asunción; InstitucionTipo=Parroquia de
    InstitucionDiocesis=Madrid-Alcalá; InstitucionDomicilio=plaza de los Santos Niños, 1
    InstitucionCP=28801; InstitucionPoblacion=Alcalá de Henares; InstitucionProvincia=Madrid
    InstitucionEncargado=Juan Bautista Espínola Yagüe
    NotasMarginales=Recibió la Confirmación el 20 de mayo de 2001 en esta parroquia. Contrajo matrimonio canónico con D. Ángel Núñez Güell el 14 de julio de 2012 en la parroquia de San Pedro.
    FechaSistemaCorta=22/11/2026; FechaSistemaLarga=22 de noviembre de 2026
    FechaSisteLargMeno=22 de novembre de 2026; FechaNacLargaMeno=3 de setembre de 1987
    FechaBauLargaMeno=12 d’octubre de 1987; Sexo=Dª.; DiocesisMatrimonio=Madrid-Alcalá
    ProfesionPadrino=mestre; NaturalPadrino=Ciutadella; EstatPadrino=casat
    ProfesionMadrina=metgessa; NaturalMadrina=Ferreries; EstatMadrina=soltera
    MadreProfesion=arquitecta; PadreProfesion=fuster; EdadPadrino=34
    ParroquiaDomicilioPadrino=San Isidro Labrador; EdadMadrina=29
    ParroquiaDomicilioMadrina=San Juan de Ávila; PadreParroquiaBaut=La Asunción
    PadreProvinciaParrBaut=Córdoba; MadreParroquiaBaut=San Vicente
    MadreProvinciaParrBaut=Guadalajara; AbueloPatParroquiaBaut=La Asunción
    AbueloPatProvinciaParrBaut=Córdoba; AbuelaPatParroquiaBaut=Santo Domingo
    AbuelaPatProvinciaParrBaut=Córdoba; AbueloMatParroquiaBaut=San Vicente
    AbueloMatProvinciaParrBaut=Guadalajara; AbuelaMatParroquiaBaut=La Trinidad
    AbuelaMatProvinciaParrBaut=Guadalajara; TelefonoPadres=918 880 000; Año=1987; Letra=F
    InstitucionParroco=Andrés Quiñones Bermúdez; FechaCreacionLibro=07/01/1985
    Nombre=María del Carmen Inmaculada; PrimerApellido=Fernández de Córdoba
    SegundoApellido=Ruiz-Castañeda; Domicilio=calle Mayor, 24, 3.º izquierda
    PoblacionDomicilio=Alcalá de Henares; ProvinciaDomicilio=Madrid
    FeligresDe=San Isidro Labrador; Parroquia=Nuestra Señora de la Asunción
    PoblacionParr=Alcalá de Henares; ProvinciaParr=Madrid; DiocesisParr=Madrid-Alcalá
    FechaConfirmacionCorta=20/05/2001; FechaConfirmacionLarga=20 de mayo de 2001
    FechaConfiLargaMeno=20 de maig de 2001; CargoMinistro=Obispo de Alcalá de Henares
    FechaBautCorta=12/10/1987; FechaBautLarga=12 de octubre de 1987
    FechaBautLargaMeno=12 d’octubre de 1987; DireccionBaut=plaza de los Santos Niños, 1
    LibroBaut=XXIII; FolioBaut=98; NumeroBaut=7; Edad=13; FechaInhumacionCorta=16/03/2004
    FechaInhumacionLarga=16 de marzo de 2004; Cementerio=Nuestra Señora de la Almudena
    EstadoCivil=viuda; Consorte=Ángel Núñez Güell; DomicilioActual=calle de Santiago, 8
    PoblacionActual=Alcalá de Henares; ProvinciaActual=Madrid
    DomicilioDefn=Hospital Universitario Príncipe de Asturias; PoblacionDefn=Alcalá de Henares
    ProvinciaDefn=Madrid; FechaDefuncionCorta=15/03/2004; FechaDefuncionLarga=15 de marzo de 2004
    HoraDefuncion=04:15; Causa=insuficiencia cardiaca; PoblacionNaturalDe=Priego de Córdoba
    ProvinciaNaturalDe=Córdoba; NumeroHijos=2; NombresHijos=Luis y Pilar
    Sacramentos=Penitencia y Unción de los Enfermos; Sacerdote=José Ignacio Gutiérrez Peñalver)");
  return values;
}

/// What the Menorca, request and slip members write otherwise.
void adapt(const std::string& operation, Values& row) {
  const auto set = [&](const char* column, const char* value) {
    for (auto& [c, v] : row)
      if (c == column) v = value;
  };
  const bool entry =
      endsIn(operation, "PartidaBautismoMenorca") || operation == "InformeLibroBautismoMenorca";
  if (entry && operation.find("Certificado") != 0) {
    set("[Al niño/A la niña]", "la filleta");
    set("[Nacido/Nacida]", "nada");
  }
  if (endsIn(operation, "Menorca")) {
    set("InstitucionTipo", "Parròquia de");
    set("InstitucionNombre", "Santa Maria");
    set("InstitucionDiocesis", "Bisbat de Menorca");
    set("InstitucionPoblacion", "Maó");
    set("InstitucionProvincia", "Illes Balears");
    if (operation.find("Certificado") == std::string::npos) {
      set("FechaBautismoLarga", "12 d’octubre de 1987");
      set("FechaNacLarga", "3 de setembre de 1987");
      set("FechaMatrLarga", "8 de juny de 1985");
      set("FechaSistemaLarga", "22 de novembre de 2026");
    }
  }
  if (operation.find("Volante") != std::string::npos) set("[Nacido/Nacida]", "hija");
  if (operation.find("Solicitud") != std::string::npos) {
    set("[Al niño/A la niña]", endsIn(operation, "Menorca") ? "La filla" : "La niña");
    set("[Nacido/Nacida]", endsIn(operation, "Menorca") ? "nada" : "nacida");
    set("InstitucionTipo", endsIn(operation, "Menorca") ? "PARRÒQUIA DE" : "PARROQUIA DE");
    set("Folio", "0");
    set("Numero", "---");
    set("NotasMarginales", "---");
  }
  static const std::set<std::string> padded{"InformePartidaBautismo",
                                            "InformePartidaConfirmacion",
                                            "InformePartidaDefuncion",
                                            "InformeCertificadoPartidaDefuncion",
                                            "InformeCertificadoPartidaMatrimonio",
                                            "InformeCertificadoLiteralPartidaMatrimonio",
                                            "InformePartidaMatrimonio",
                                            "InformeVolanteMatrimonio"};
  if (padded.count(operation) != 0)
    for (auto& [c, v] : row)
      if (c == "NotasMarginales") v = documents::paddedNotes(v);
}

std::vector<std::string> columnsIn(const std::string& table) {
  std::vector<std::string> names;
  for (const store::Column& c : store::reportsSchema().find(table)->columns())
    if (c.type != store::Type::Counter) names.push_back(c.name);
  return names;
}

/// The tables of the operation's rows.
std::vector<std::string> tablesOf(const std::string& operation) {
  const std::string table = filasDocumento(*documento(operation)->sacramento)->tabla;
  std::vector<std::string> tables{table};
  for (const char* beside : {"_Novios", "_Novias", "_Otros"})
    if (store::reportsSchema().find(table + beside)) tables.push_back(table + beside);
  return tables;
}

/// What the edition of the loader that the operation runs writes.
std::vector<std::string> columnsOfMarriage(const std::string& operation) {
  const documents::CargadorMatrimonio* loader = &documents::Cargar_Documentos_Matrimonio();
  for (const auto& m : documents::miembrosMatrimonio())
    if (operation == m.nombre || "Imprimir" + operation.substr(7) == m.nombre) loader = &m.cargador;
  std::set<std::string> names;
  for (const auto& column : loader->matrimonio.columns) names.insert(column.name);
  for (const auto& beside : loader->companeras)
    for (const auto& column : beside.columns) names.insert(column.name);
  return {names.begin(), names.end()};
}

}  // namespace

std::vector<std::string> columnsOf(const std::string& operation) {
  const Documento& d = *documento(operation);
  if (d.sacramento == &MATRIMONIO) return columnsOfMarriage(operation);
  if (d.clase == ClaseDocumento::SinLibro) return documents::columnasNotificacion();
  const documents::Columns* columns = nullptr;
  if (d.clase == ClaseDocumento::Duplicada) {
    const std::string node = std::string("Partidas") + d.sacramento->palabra;
    columns = &documents::duplicadaDeNodo(node)->documento.columns;
  } else {
    std::string member = "Imprimir" + operation.substr(7);
    for (const char* shared : {"ImprimirVolanteBautismo", "ImprimirIndiceLibroBautismo"})
      if (member.starts_with(shared)) member = shared;
    columns = &documents::miembro(member).kind.columns;
  }
  std::vector<std::string> names;
  for (const documents::Column& column : *columns) names.emplace_back(column.name);
  return names;
}

Values fullRow(const std::string& operation) {
  Values row;
  // What has no value of its own here is known by its name.
  for (const std::string& column : columnsOf(operation)) {
    const auto found = believable().find(column);
    row.emplace_back(column, found == believable().end() ? column : found->second);
  }
  adapt(operation, row);
  return row;
}

Values blankRow(const std::string& operation) {
  Values row;
  for (const std::string& column : columnsOf(operation))
    row.emplace_back(column, column.starts_with("CodDocumentos") ? "1" : "---");
  return row;
}

Values with(Values row, const Values& changes) {
  for (const auto& change : changes) {
    const auto there = std::find_if(row.begin(), row.end(),
                                    [&](const auto& v) { return v.first == change.first; });
    there == row.end() ? row.push_back(change) : void(there->second = change.second);
  }
  return row;
}

void insert(store::Connection& reports, const std::string& operation, const Values& row) {
  const auto tables = tablesOf(operation);
  if (tables.size() == 1) return insert(reports, row, tables.front());
  for (const std::string& table : tables) {
    const auto columns = columnsIn(table);
    Values own;
    for (const auto& value : row)
      if (std::count(columns.begin(), columns.end(), value.first) != 0) own.push_back(value);
    insert(reports, own, table);
  }
}

void insert(store::Connection& reports, const Values& row, const std::string& table) {
  std::string columns, values;
  for (const auto& [column, value] : row) {
    columns += (columns.empty() ? "" : ",") + column;
    values += (values.empty() ? "\"" : ",\"") + text::replaceAll(value, "\"", "\"\"") + "\"";
  }
  reports.Execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + values + ")");
}

}  // namespace fidaleon::paper::test
