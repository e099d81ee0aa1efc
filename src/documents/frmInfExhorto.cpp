#include "documents/frmInfExhorto.h"

#include <algorithm>
#include <stdexcept>

#include "core/statements/Citas.h"
#include "store/Transaction.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr int ANCHO = 255;
constexpr const char* COLUMNAS[] = {"ParroquiaExhorto", "PoblacionExhorto", "DiocesisExhorto"};

/// A box holds what a statement takes between its apostrophes; what came into it in another way
/// than by the keys may hold single ones.
std::string entreLosSuyos(const std::string& caja) {
  return entreApostrofos(text::replaceAll(caja, "''", "'"));
}

bool enBlanco(const forms::TextBox& caja) {
  return text::trim(caja.text()).empty();
}

}  // namespace

frmInfExhorto::frmInfExhorto(Contexto& contexto)
    : Dialogo(contexto, "frmInfExhorto"),
      fraNovio(*this, "fraNovio", "EL CONTRAYENTE"),
      fraNovia(*this, "fraNovia", "LA CONTRAYENTE"),
      txtDato(*this, "txtDato"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Datos exhorto de amonestaciones");
  crearCajas();
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  const auto lado = [this](forms::Frame& marco, int primera) {
    return forms::group(
        marco, {forms::fields(1, {forms::item(txtDato[primera]), forms::item(txtDato[primera + 1]),
                                  forms::item(txtDato[primera + 2])})});
  };
  setLayout(
      forms::column({lado(fraNovio, ParroquiaNovio), lado(fraNovia, ParroquiaNovia),
                     forms::stretch(), forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfExhorto::crearCajas() {
  const char* const rotulos[] = {
      "PARROQUIA DE RESIDENCIA:", "POBLACIÓN DE RESIDENCIA:", "DIÓCESIS:"};
  for (int i = ParroquiaNovio; i <= DiocesisNovia; ++i) {
    forms::TextBox& caja = txtDato.add(i, rotulos[i % 3]);
    caja.setMaxLength(ANCHO);
    caja.setWidthChars(40);
    caja.onKeyPress = [](forms::KeyPress& tecla) {
      if (tecla.character == U'\'' && !tecla.ctrl && !tecla.alt) tecla.replaceWith("''");
    };
  }
}

void frmInfExhorto::Form_Load() {
  procedimiento("Form_Load()", [this] { cargar(); });
}

void frmInfExhorto::cargar() {
  const store::Recordset matrimonio = conBaseDatos->Execute(
      "SELECT CodNovios, CodNovias FROM Matrimonio WHERE IDMatrimonio=" + strID);
  if (matrimonio.EOF_()) return;
  novio_ = matrimonio.text("CodNovios");
  novia_ = matrimonio.text("CodNovias");
  const auto mostrar = [this](const std::string& sql, int primera) {
    const store::Recordset ficha = conBaseDatos->Execute(sql);
    if (ficha.EOF_()) return;
    for (const char* columna : COLUMNAS) txtDato[primera++].setText(ficha.text(columna));
  };
  mostrar(
      "SELECT ParroquiaExhorto, PoblacionExhorto, DiocesisExhorto FROM Matrimonio_Novios Where "
      "idNovios = " +
          novio_,
      ParroquiaNovio);
  mostrar("SELECT * FROM Matrimonio_Novias Where idNovias = " + novia_, ParroquiaNovia);
}

void frmInfExhorto::aceptar() {
  const auto blancas =
      std::count_if(txtDato.all().begin(), txtDato.all().end(),
                    [](const auto& numerada) { return enBlanco(*numerada.second); });
  if (blancas != 0 && blancas != static_cast<long>(txtDato.all().size()))
    return forms::warn(ui(),
                       "¡Debe dejar en blanco o rellenar todos los campos, para poder continuar!");
  if (forms::ask(ui(), "¿Desea Guardar los datos en la Solicitud de Matrimonio?")) guardar();
  blnCancelar = false;
  Unload();
}

void frmInfExhorto::guardar() {
  try {
    guardarEnteros();
  } catch (const std::exception&) {
    forms::warn(ui(), "Se ha producido un error y no se guardaran los datos");
  }
}

void frmInfExhorto::guardarEnteros() {
  if (bloquear && !bloquear()) throw std::runtime_error("held elsewhere");
  store::Transaction transaction(*conBaseDatos);
  const auto actualizar = [this](const std::string& tabla, const std::string& clave,
                                 const std::string& id, int primera) {
    if (conBaseDatos->Execute("SELECT " + clave + " FROM " + tabla + " WHERE " + clave + " = " + id)
            .EOF_())
      throw std::runtime_error("gone");
    std::string valores;
    for (const char* columna : COLUMNAS)
      valores += std::string(valores.empty() ? "" : ", ") + columna + "=" +
                 entreLosSuyos(txtDato[primera++].text());
    conBaseDatos->Execute("UPDATE " + tabla + " SET " + valores + " WHERE " + clave + " = " + id);
  };
  actualizar("Matrimonio_Novios", "idNovios", novio_, ParroquiaNovio);
  actualizar("Matrimonio_Novias", "idNovias", novia_, ParroquiaNovia);
  transaction.commit();
}

}  // namespace fidaleon
