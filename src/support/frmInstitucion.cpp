#include "support/frmInstitucion.h"

#include <array>

#include "core/statements/NombreRepetido.h"
#include "support/Identidad.h"
#include "support/Listas.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

struct Field {
  frmInstitucion::Dato dato;
  const char* column;
  const char* caption;
  int maxLength;
  int width;
};

using F = frmInstitucion;
constexpr std::array<Field, 13> FIELDS{{
    {F::Nombre, "Nombre", "NOMBRE:", 100, 40},
    {F::InstitucionTipo, "InstitucionTipo", "TIPO:", 60, 25},
    {F::InstitucionNombre, "InstitucionNombre", "NOMBRE EN LOS DOCUMENTOS:", 150, 40},
    {F::Domicilio, "Domicilio", "DIRECCION:", 150, 40},
    {F::CP, "CP", "C.P.:", 5, 6},
    {F::Telefono, "Telefono", "TELEFONO:", 30, 15},
    {F::InstitucionEmail, "InstitucionEmail", "CORREO ELECTRONICO:", 100, 30},
    {F::CIF, "CIF", "C.I.F.:", 15, 12},
    {F::Diocesis, "Diocesis", "DIOCESIS:", 100, 30},
    {F::Vicaria, "Vicaria", "VICARIA:", 100, 30},
    {F::Arciprestazgo, "Arciprestazgo", "ARCIPRESTAZGO:", 100, 30},
    {F::Parroco, "Parroco", "PARROCO:", 120, 30},
    {F::EncargadoArchivo, "EncargadoArchivo", "ENCARGADO DEL ARCHIVO:", 120, 30},
}};

constexpr const char* USUAL_TYPE = "Parroquia de";

}  // namespace

frmInstitucion::frmInstitucion(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                               FDAPI::Conexion& conexion, const FDAPI::cConfig& config,
                               std::int32_t id)
    : Ficha(ui, settings, clock, conexion, config, "frmInstitucion", id) {
  setCaption(id == 0 ? "Agregar institución" : "Propiedades de la institución");
  for (const Field& f : FIELDS) {
    forms::TextBox& box = txtInstitucion.add(f.dato, f.caption);
    box.setMaxLength(f.maxLength);
    box.setWidthChars(f.width);
  }
  txtInstitucion[CP].setDigitsOnly(true);
  txtInstitucion[Nombre].setToolTip("Nombre corto, con el que aparece en todas las listas");
  txtInstitucion[InstitucionNombre].setToolTip(
      "Nombre que se imprime en los documentos detrás del tipo");
  // The name on documents is nearly always the short one.
  txtInstitucion[Nombre].onLostFocus = [this](forms::Control*) {
    if (sinBlancos(txtInstitucion[InstitucionNombre]).empty())
      txtInstitucion[InstitucionNombre].setText(sinBlancos(txtInstitucion[Nombre]));
  };
  cboProvincia.onClick = [this] { cboProvincia_Click(); };
  cmdAltaProvincia.onClick = [this] { cmdAltaProvincia_Click(); };
  cmdAltaPoblacion.onClick = [this] { cmdAltaPoblacion_Click(); };
  for (forms::ComboBox* list : {&cboProvincia, &cboPoblacion})
    list->onKeyPress = [this, list](forms::KeyPress& key) {
      fidaleon_.Comprobar_borrarcombo(key, *list);
      if (key.changed() && list == &cboProvincia) cboPoblacion.clear();
    };
  makeLayout();
}

void frmInstitucion::makeLayout() {
  const auto field = [this](Dato d) { return forms::item(txtInstitucion[d]); };
  setLayout(forms::column(
      {forms::group(fraNombre, {forms::fields(1, {field(Nombre), field(InstitucionTipo),
                                                  field(InstitucionNombre), field(CIF)})}),
       forms::group(fraDomicilio,
                    {forms::fields(1, {field(Domicilio)}),
                     forms::fields(1, {forms::item(cboProvincia, {&cmdAltaProvincia}),
                                       forms::item(cboPoblacion, {&cmdAltaPoblacion})}),
                     forms::fields(2, {field(CP), field(Telefono),
                                       forms::item(txtInstitucion[InstitucionEmail], 2)})}),
       forms::group(fraPersonas,
                    {forms::fields(1, {field(Diocesis), field(Vicaria), field(Arciprestazgo),
                                       field(Parroco), field(EncargadoArchivo)})}),
       forms::stretch(), botones()}));
}

void frmInstitucion::cargar() {
  if (id_ == 0) {
    txtInstitucion[InstitucionTipo].setText(USUAL_TYPE);
    selectTown(0);
    return;
  }
  const store::Recordset rs =
      conexion_.Execute("SELECT * FROM Institucion WHERE IDInstitucion=" + std::to_string(id_));
  if (rs.EOF_()) throw std::runtime_error("La institución ya no existe.");
  for (const Field& f : FIELDS) txtInstitucion[f.dato].setText(rs.text(f.column));
  selectTown(static_cast<std::int32_t>(rs.integer("CodMunicipio")));
}

void frmInstitucion::selectTown(std::int32_t town) {
  const store::Recordset rs = conexion_.Execute(
      "SELECT CodProvincia FROM Municipio WHERE IDMunicipio=" + std::to_string(town));
  const auto province = rs.EOF_() ? 0 : static_cast<std::int32_t>(rs.integer("CodProvincia"));
  Listas lists(settings_, config_.AppTitle);
  lists.fillProvincias(cboProvincia, province, conexion_);
  lists.fillMunicipios(cboPoblacion, province, town, false, conexion_);
}

void frmInstitucion::cboProvincia_Click() {
  informado("cboProvincia_Click()", [this] {
    Listas(settings_, config_.AppTitle)
        .fillMunicipios(cboPoblacion, static_cast<std::int32_t>(cboProvincia.data()), 0, false,
                        conexion_);
  });
}

void frmInstitucion::cmdAltaProvincia_Click() {
  informado("cmdAltaProvincia_Click()", [this] {
    frmProvincia dialog(ui(), settings_, clock_, conexion_, config_);
    dialog.Show();
    if (dialog.aceptado())
      Listas(settings_, config_.AppTitle).fillProvincias(cboProvincia, dialog.id(), conexion_);
  });
}

void frmInstitucion::cmdAltaPoblacion_Click() {
  informado("cmdAltaPoblacion_Click()", [this] {
    frmMunicipio dialog(ui(), settings_, clock_, conexion_, config_);
    dialog.Show();
    if (dialog.aceptado()) selectTown(dialog.id());
  });
}

bool frmInstitucion::comprobar() {
  if (sinBlancos(txtInstitucion[Nombre]).empty()) return falta(txtInstitucion[Nombre]);
  if (hayMismoNombre(conexion_,
                     "SELECT Nombre FROM Institucion WHERE IDInstitucion<>" + std::to_string(id_),
                     txtInstitucion[Nombre].text()))
    return rechazar(txtInstitucion[Nombre], "¡Ya existe una institución con ese nombre!");
  const std::string cif = sinBlancos(txtInstitucion[CIF]);
  if (!cif.empty() && !fidaleon_.CIF_NIF_Valido(cif))
    return rechazar(txtInstitucion[CIF], "¡El C.I.F. no es válido!");
  const std::string cp = sinBlancos(txtInstitucion[CP]);
  if (!cp.empty() && text::length(cp) != 5)
    return rechazar(txtInstitucion[CP], "¡El código postal debe tener cinco cifras!");
  return true;
}

void frmInstitucion::guardar() {
  if (sinBlancos(txtInstitucion[InstitucionNombre]).empty())
    txtInstitucion[InstitucionNombre].setText(sinBlancos(txtInstitucion[Nombre]));
  const std::int32_t edited = id_;
  conexion_.BeginTrans();
  try {
    edited != 0 ? update() : insert();
    ensureLastValues();
    conexion_.CommitTrans();
  } catch (const std::exception&) {
    id_ = edited;
    conexion_.RollbackTrans();
    throw;
  }
}

std::string frmInstitucion::columns() const {
  std::string list = "CodMunicipio";
  for (const Field& f : FIELDS) list += std::string(", ") + f.column;
  return list;
}

std::string frmInstitucion::values() const {
  std::string list = std::to_string(cboPoblacion.data());
  for (const Field& f : FIELDS) list += ", " + entreComillas(txtInstitucion[f.dato].text());
  return list;
}

void frmInstitucion::insert() {
  conexion_.Execute("INSERT INTO Institucion (" + columns() + ") VALUES (" + values() + ")");
  const std::string id =
      conexion_.Execute("SELECT MAX(IDInstitucion) AS ID FROM Institucion").text("ID");
  id_ = text::toInteger(id).value_or(0);
}

// The library only updates this row: an institution of another origin may still be without it.
void frmInstitucion::ensureLastValues() {
  const std::string id = std::to_string(id_);
  if (conexion_.Execute("SELECT IDInstitucion FROM Ultimos WHERE IDInstitucion=" + id).EOF_())
    conexion_.Execute("INSERT INTO Ultimos (IDInstitucion, Encargado) VALUES (" + id + ", \"\")");
}

void frmInstitucion::update() {
  std::string assignments = "CodMunicipio=" + std::to_string(cboPoblacion.data());
  for (const Field& f : FIELDS)
    assignments +=
        std::string(", ") + f.column + "=" + entreComillas(txtInstitucion[f.dato].text());
  conexion_.Execute("UPDATE Institucion SET " + assignments +
                    " WHERE IDInstitucion=" + std::to_string(id_));
}

}  // namespace fidaleon::support
