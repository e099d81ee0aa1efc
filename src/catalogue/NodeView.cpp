#include "catalogue/NodeView.h"

#include <algorithm>

#include "catalogue/CensusLists.h"
#include "core/contract/CcNodos.h"
#include "core/statements/Sentencia.h"
#include "documents/Duplicada.h"
#include "registers/entry/DialogoDePartida.h"
#include "registers/requests/OrigenSolicitudes.h"

namespace fidaleon::app {
namespace {

constexpr const char* SPOKEN[] = {"Bautismo", "Confirmación", "Matrimonio", "Defunción"};

class Tree {
 public:
  NodeView& folder(const std::string& name, const NodeView* parent = nullptr) {
    return add(name, name, NodeKind::Folder, parent);
  }

  NodeView& add(const std::string& name, const std::string& description, NodeKind kind,
                const NodeView* parent) {
    NodeView v;
    v.kind = kind;
    v.node.Nombre = name;
    v.node.Descripcion = description;
    v.node.IDNodo = static_cast<std::int32_t>(nodes_.size()) + 1;
    v.node.Visible = true;
    v.node.Expandido = true;
    v.node.Path = description;
    if (parent) {
      v.node.CodPadre = parent->node.IDNodo;
      v.node.Nivel = static_cast<std::int16_t>(parent->node.Nivel + 1);
      v.node.Path = parent->node.Path + "\\" + description;
      v.node.PadreDeNivel2 = v.node.Nivel > 2 ? parent->node.PadreDeNivel2 : v.node.Nombre;
    }
    nodes_.push_back(v);
    return nodes_.back();
  }

  std::vector<NodeView> take() { return std::move(nodes_); }

 private:
  std::vector<NodeView> nodes_;
};

/// The list of one table, whose changed rows are read one by one.
void describeRows(NodeView& v, const std::string& table, const std::string& key,
                  std::vector<std::string> order) {
  v.key = key;
  v.parts = {{table, {}}};
  v.order = std::move(order);
}

void describeBooks(NodeView& v, const Sacramento& s) {
  const std::string table = s.tablaLibros;
  v.sacrament = &s;
  describeRows(v, table, s.claveLibro, {"FechaCreacion"});
  v.thing = "libro";
  v.things = "libros";
  v.node.SQLSelect = "SELECT " + table + "." + v.key + ", " + table + ".Nombre, " +
                     "Institucion.Nombre AS Institucion, Libros_Formato.Descripcion, " + table +
                     ".FechaCreacion, " + table + ".Nuevo, " + table + ".Cerrado FROM " + table +
                     ", Institucion, Libros_Formato WHERE Institucion.IDInstitucion=" + table +
                     ".CodInstitucion AND Libros_Formato.IDFormato=" + table +
                     ".CodFormato ORDER BY " + table + ".FechaCreacion, " + table + "." + v.key;
  v.columns = {{"Nombre", "Libro", ColumnKind::Text, 22, {}},
               {"Institucion", "Institución", ColumnKind::Text, 28, {}},
               {"Descripcion", "Formato", ColumnKind::Text, 26, {}},
               {"FechaCreacion", "Fecha", ColumnKind::Date, 11, {}},
               {"Nuevo", "Tipo", ColumnKind::Flag, 9, "Nuevo|Antiguo"},
               {"Cerrado", "Estado", ColumnKind::Flag, 9, "Cerrado|Abierto"}};
}

/// Whom an entry is about: the table that bears the name.
struct Person {
  const char* table;
  const char* title;        // over the name
  const char* prefix = "";  // of its columns, where there are two persons
};

/// Where the entries and requests of a register keep what their lists show.
struct Register {
  const Sacramento& sacrament;
  std::vector<Person> persons;
  const char* beside;  // tables that are joined to the entry's own
  PlantillaSql joined;
  const char* day;  // table and column
  const char* dayTitle;
  const char* otherDay;  // null where there is none
  const char* otherTitle;
  std::vector<RowPart> parts;  // beside the entry's own
};

const Register REGISTERS[] = {
    {BAUTISMO,
     {{"Bautismo_Hijo", "Nombre"}},
     "Bautismo_Hijo",
     "Bautismo_Hijo.CodBautismo={Partidas}.{IDPartida}",
     "Bautismo.FechaBautismo",
     "Bautismo",
     "Bautismo_Hijo.FechaNac",
     "Nacimiento",
     {{"Bautismo_Hijo", {"CodBautismo", "Bautismo_Hijo", {}}}}},
    {CONFIRMACION,
     {{"Confirmacion", "Nombre"}},
     "Confirmacion_Datos",
     "Confirmacion_Datos.CodConfirmacion={Partidas}.{IDPartida}",
     "Confirmacion_Datos.FechaConfirmacion",
     "Confirmación",
     "Confirmacion.FechaNac",
     "Nacimiento",
     {{"Confirmacion_Datos", {"CodConfirmacion", "Confirmacion_Datos", {}}}}},
    {MATRIMONIO,
     {{"Matrimonio_Novios", "Novio", "Novio"}, {"Matrimonio_Novias", "Novia", "Novia"}},
     "Matrimonio_Compromiso, Matrimonio_Novios, Matrimonio_Novias",
     "Matrimonio_Compromiso.CodMatrimonio={Partidas}.{IDPartida} AND "
     "Matrimonio_Novios.IDNovios={Partidas}.CodNovios AND "
     "Matrimonio_Novias.IDNovias={Partidas}.CodNovias",
     "Matrimonio_Compromiso.FechaMatrimonio",
     "Matrimonio",
     nullptr,
     nullptr,
     {{"Matrimonio_Compromiso", {"CodMatrimonio", "Matrimonio_Compromiso", {}}},
      {"Matrimonio_Novios", {"IDMatrimonio", "Matrimonio", "CodNovios"}},
      {"Matrimonio_Novias", {"IDMatrimonio", "Matrimonio", "CodNovias"}}}},
    {DEFUNCION,
     {{"Defuncion", "Nombre"}},
     "Defuncion_Datos",
     "Defuncion_Datos.CodDifunto={Partidas}.{IDPartida}",
     "Defuncion_Datos.FechaDefuncion",
     "Defunción",
     "Defuncion_Datos.FechaInhumacion",
     "Inhumación",
     {{"Defuncion_Datos", {"CodDifunto", "Defuncion_Datos", {}}}}},
};

std::string columnOf(const char* qualified) {
  const std::string name = qualified;
  return name.substr(name.find('.') + 1);
}

constexpr struct {
  const char* column;
  const char* title;  // null: that of the person
  int width;
  const char* shortTitle;  // where there are two persons
  int shortWidth;
} NAMES[] = {{"Nombre", nullptr, 18, nullptr, 13},
             {"PrimerApellido", "Primer apellido", 15, "1.er apellido", 12},
             {"SegundoApellido", "Segundo apellido", 15, "2.º apellido", 12}};

/// ", Bautismo_Hijo.Nombre, ... FROM Bautismo, Bautismo_Hijo, `tables` WHERE ..." up to what joins
/// the tables of one entry.
std::string personOf(const Register& r, const std::string& columns, const std::string& tables) {
  std::string names;
  for (const Person& person : r.persons)
    for (const auto& name : NAMES) {
      names += std::string(", ") + person.table + "." + name.column;
      if (*person.prefix) names += std::string(" AS ") + person.prefix + name.column;
    }
  return names + ", " + r.day + (r.otherDay ? std::string(", ") + r.otherDay : "") + columns +
         sentencia(r.sacrament, " FROM {Partidas}, ") + r.beside + tables + " WHERE " +
         sentencia(r.sacrament, r.joined) + " AND ";
}

std::vector<ColumnView> namesOf(const Register& r) {
  std::vector<ColumnView> columns;
  for (const Person& person : r.persons)
    for (const auto& name : NAMES) {
      const bool two = *person.prefix != 0;
      const char* title = two ? name.shortTitle : name.title;
      columns.push_back({std::string(person.prefix) + name.column,
                         title ? title : person.title,
                         ColumnKind::Text,
                         two ? name.shortWidth : name.width,
                         {}});
    }
  return columns;
}

ColumnView day(const char* column, const char* title) {
  return {columnOf(column), title, ColumnKind::Date, 11, {}};
}

void describeParts(NodeView& v, const Register& r, std::vector<std::string> order) {
  describeRows(v, r.sacrament.tablaPartidas, r.sacrament.clavePartida, std::move(order));
  v.parts.insert(v.parts.end(), r.parts.begin(), r.parts.end());
}

void describeEntries(NodeView& v, const Register& r) {
  v.sacrament = &r.sacrament;
  describeParts(v, r, {"Folio", "Numero"});
  v.thing = "partida";
  v.things = "partidas";
  v.annulled = "Anulada";
  v.group = "CodLibro";
  v.groupColumn = sentencia(r.sacrament, "{Partidas}.CodLibro");
  v.groups =
      sentencia(r.sacrament, "SELECT {IDLibro} FROM {Libros} ORDER BY FechaCreacion, {IDLibro}");
  v.node.SQLSelect =
      sentencia(r.sacrament,
                "SELECT {Partidas}.{IDPartida}, {Partidas}.CodLibro, {Libros}.Nombre AS Libro, "
                "{Partidas}.Folio, {Partidas}.Numero") +
      personOf(r, sentencia(r.sacrament, ", Institucion.Nombre AS Institucion, {Partidas}.Anulada"),
               sentencia(r.sacrament, ", {Libros}, Institucion")) +
      sentencia(r.sacrament,
                "{Libros}.{IDLibro}={Partidas}.CodLibro AND "
                "Institucion.IDInstitucion={Libros}.CodInstitucion ORDER BY "
                "{Libros}.FechaCreacion, {Partidas}.CodLibro, {Partidas}.Folio, "
                "Val({Partidas}.Numero), {Partidas}.{IDPartida}");
  v.columns = {{"Libro", "Libro", ColumnKind::Text, 10, {}},
               {"Folio", "Folio", ColumnKind::Number, 6, {}},
               {"Numero", "Número", ColumnKind::Number, 8, {}}};
  for (ColumnView& name : namesOf(r)) v.columns.push_back(std::move(name));
  v.columns.push_back(day(r.day, r.dayTitle));
  if (r.otherDay) v.columns.push_back(day(r.otherDay, r.otherTitle));
  v.columns.push_back({"Anulada", "Anulada", ColumnKind::Flag, 9, "Anulada|"});
  v.columns.push_back({"Institucion", "Institución", ColumnKind::Text, 22, {}});
}

void describeRequests(NodeView& v, const Register& r) {
  v.sacrament = &r.sacrament;
  describeParts(v, r, {});
  v.thing = "solicitud";
  v.things = "solicitudes";
  v.node.SQLSelect = sentencia(r.sacrament, "SELECT {Partidas}.{IDPartida}") +
                     personOf(r, ", Institucion.Nombre AS Institucion", ", Institucion") +
                     sentencia(r.sacrament,
                               "{Partidas}.CodLibro=0 AND "
                               "Institucion.IDInstitucion={Partidas}.InstitucionSolicitud ORDER BY "
                               "{Partidas}.{IDPartida}");
  v.columns = namesOf(r);
  if (r.otherDay) v.columns.push_back(day(r.otherDay, r.otherTitle));
  v.columns.push_back(day(r.day, r.dayTitle));
  v.columns.push_back({"Institucion", "Institución", ColumnKind::Text, 28, {}});
}

void describeInstitutions(NodeView& v) {
  describeRows(v, "Institucion", "IDInstitucion", {});
  v.thing = "institución";
  v.things = "instituciones";
  v.node.SQLSelect =
      "SELECT IDInstitucion, Nombre, InstitucionNombre, Domicilio, CP, Telefono, Parroco, Diocesis "
      "FROM Institucion ORDER BY IDInstitucion";
  v.columns = {{"Nombre", "Nombre", ColumnKind::Text, 24, {}},
               {"InstitucionNombre", "Nombre en los documentos", ColumnKind::Text, 26, {}},
               {"Domicilio", "Domicilio", ColumnKind::Text, 24, {}},
               {"CP", "C. P.", ColumnKind::Text, 7, {}},
               {"Telefono", "Teléfono", ColumnKind::Text, 13, {}},
               {"Parroco", "Párroco", ColumnKind::Text, 26, {}},
               {"Diocesis", "Diócesis", ColumnKind::Text, 18, {}}};
}

void describeProvinces(NodeView& v) {
  describeRows(v, "Provincia", "IDProvincia", {"Nombre"});
  v.thing = "provincia";
  v.things = "provincias";
  v.node.SQLSelect = "SELECT IDProvincia, Nombre, Codigo_Oficial FROM Provincia ORDER BY Nombre";
  v.columns = {{"Nombre", "Provincia", ColumnKind::Text, 30, {}},
               {"Codigo_Oficial", "Código oficial", ColumnKind::Number, 14, {}}};
}

void describeTowns(NodeView& v) {
  describeRows(v, "Municipio", "IDMunicipio", {"Nombre"});
  v.thing = "municipio";
  v.things = "municipios";
  v.node.SQLSelect =
      "SELECT Municipio.IDMunicipio, Municipio.Nombre, Provincia.Nombre AS Provincia FROM "
      "Municipio, Provincia WHERE Provincia.IDProvincia=Municipio.CodProvincia ORDER BY "
      "Municipio.Nombre, Municipio.IDMunicipio";
  v.columns = {{"Nombre", "Municipio", ColumnKind::Text, 34, {}},
               {"Provincia", "Provincia", ColumnKind::Text, 26, {}}};
}

void addCensus(Tree& tree, const NodeView& parish) {
  const auto add = [&](const char* name, NodeKind kind) -> NodeView& {
    return tree.add(name, name, kind, &parish);
  };
  describePeople(add(CcNodos::PADRON, NodeKind::People));
  describeCollaborators(add(CcNodos::COLABORADOR, NodeKind::Collaborators));
  describeActivities(add(CcNodos::ACTIVIDAD, NodeKind::Activities));
  describeOffices(add(CcNodos::CARGO, NodeKind::Offices));
  describeTasks(add("Tareas", NodeKind::Tasks));
}

// Some of these read like the lists they print.
void addListReports(Tree& tree, const NodeView& reports) {
  for (const char* title : {CcNodos::INFACTIVIDADES, CcNodos::INFCOLABORADORES,
                            CcNodos::INFCOLABORADORESEXTENDIDO, CcNodos::INFAGENDA})
    tree.add(CcNodos::INFORMES + std::string(title), title, NodeKind::ListReports, &reports);
}

std::vector<NodeView> makeNodes() {
  Tree tree;
  const NodeView parish = tree.folder(CcNodos::GESTIONPARROQUIAL);
  const NodeView books = tree.folder(CcNodos::LIBROS, &parish);
  for (const Sacramento& s : SACRAMENTOS)
    describeBooks(
        tree.add(CcNodos::LIBROS + std::string(s.palabra), SPOKEN[s.byte], NodeKind::Books, &books),
        s);
  const NodeView entries = tree.folder(CcNodos::PARTIDAS, &parish);
  for (const Register& r : REGISTERS)
    if (dialogoDePartida(&r.sacrament))
      describeEntries(tree.add(CcNodos::PARTIDAS + std::string(r.sacrament.palabra),
                               SPOKEN[r.sacrament.byte], NodeKind::Entries, &entries),
                      r);
  const NodeView requests = tree.folder(CcNodos::SOLICITUDES, &parish);
  for (const Register& r : REGISTERS)
    if (dialogoDePartida(&r.sacrament) && origenSolicitudes(&r.sacrament))
      describeRequests(tree.add(CcNodos::SOLICITUDES + std::string(r.sacrament.palabra),
                                SPOKEN[r.sacrament.byte], NodeKind::Requests, &requests),
                       r);
  addCensus(tree, parish);
  const NodeView reports = tree.folder(CcNodos::INFORMESYDOCUMENTOS);
  for (const documents::Duplicada& d : documents::duplicadas())
    tree.add(d.nodo, d.nodo, NodeKind::Reports, &reports).sacrament = &d.sacramento;
  NodeView& notices =
      tree.add(CcNodos::INFNOTIFICACIONCONFIRMACIONPARR, CcNodos::INFNOTIFICACIONCONFIRMACIONPARR,
               NodeKind::Reports, &reports);
  notices.sacrament = &CONFIRMACION;
  notices.report = "sin-libro";
  addListReports(tree, reports);
  describeInstitutions(
      tree.add(CcNodos::INSTITUCION, CcNodos::INSTITUCION, NodeKind::Institutions, nullptr));
  describeProvinces(tree.add(CcNodos::PROVINCIA, CcNodos::PROVINCIA, NodeKind::Provinces, nullptr));
  describeTowns(tree.add(CcNodos::MUNICIPIO, CcNodos::MUNICIPIO, NodeKind::Towns, nullptr));
  return tree.take();
}

}  // namespace

const std::vector<NodeView>& nodeViews() {
  static const std::vector<NodeView> nodes = makeNodes();
  return nodes;
}

const NodeView* findNode(std::string_view name) {
  for (const NodeView& v : nodeViews())
    if (v.node.Nombre == name) return &v;
  return nullptr;
}

namespace {

std::string limited(const NodeView& view, const std::string& condition) {
  std::string sql = view.node.SQLSelect;
  const std::size_t order = std::min(sql.rfind(" ORDER BY "), sql.size());
  const bool more =
      sql.rfind(" WHERE ") != std::string::npos && sql.rfind(" WHERE ") > sql.rfind(" FROM ");
  return sql.insert(order, (more ? " AND " : " WHERE ") + condition);
}

}  // namespace

std::string statementOfGroup(const NodeView& view, std::int32_t group) {
  return limited(view, view.groupColumn + "=" + std::to_string(group));
}

std::string statementOfRange(const NodeView& view, std::int64_t after, std::int64_t upTo) {
  const std::string key = view.parts.front().table + "." + view.key;
  const std::string sql = limited(
      view, key + ">" + std::to_string(after) + " AND " + key + "<=" + std::to_string(upTo));
  return sql.substr(0, sql.rfind(" ORDER BY ")) + " ORDER BY " + key;
}

std::string statementOfKeys(const NodeView& view, const std::vector<std::int32_t>& keys) {
  std::string list;
  for (const std::int32_t key : keys) list += (list.empty() ? "" : ",") + std::to_string(key);
  return limited(view, view.parts.front().table + "." + view.key + " IN (" + list + ")");
}

bool readsFrom(const NodeView& view, std::string_view table) {
  const std::string& sql = view.node.SQLSelect;
  const auto letter = [](char c) { return c == '_' || (c >= '0' && c <= '9') || (c | 32) >= 'a'; };
  for (std::size_t at = sql.find(table); at != std::string::npos; at = sql.find(table, at + 1)) {
    const std::size_t end = at + table.size();
    if ((at == 0 || !letter(sql[at - 1])) && (end == sql.size() || !letter(sql[end]))) return true;
  }
  return false;
}

const NodeView* entriesNode(const Sacramento& sacrament) {
  return findNode(CcNodos::PARTIDAS + std::string(sacrament.palabra));
}

}  // namespace fidaleon::app
