#include "census/search/frmPadronImportar.h"

#include "census/common/CamposPersona.h"
#include "census/search/frmPadronBusqueda.h"
#include "core/dialogs/Guard.h"
#include "core/statements/Citas.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOrigen;

namespace {

constexpr int MAXIMO_TEXTO = 255;
constexpr int CIFRAS_DNI = 8;
// So that the second field begins under its part of the heading.
constexpr int LETRAS_PRIMER_APELLIDO = 19;
constexpr const char* Y = " AND";

}  // namespace

frmPadronImportar::frmPadronImportar(Contexto& contexto)
    : Dialogo(contexto, "frmPadronImportar"),
      txtNombre(*this, "txtNombre", "NOMBRE:"),
      lblApellidos(*this, "lblApellidos", "PRIMER APELLIDO:            SEGUNDO APELLIDO:"),
      txtPrimerApellido(*this, "txtPrimerApellido"),
      txtSegundoApellido(*this, "txtSegundoApellido"),
      txtDNI(*this, "txtDNI", "DNI:"),
      lblDonde(*this, "lblDonde", "Se buscarán datos en: donantes, colaboradores y padrón."),
      cmdPadronImportar(*this, "cmdPadronImportar") {
  setCaption("Importar");
  for (forms::TextBox* campo : {&txtNombre, &txtPrimerApellido, &txtSegundoApellido})
    campo->setMaxLength(MAXIMO_TEXTO);
  txtPrimerApellido.setWidthChars(LETRAS_PRIMER_APELLIDO);
  txtPrimerApellido.setToolTip("Primer apellido");
  txtSegundoApellido.setToolTip("Segundo apellido");
  txtDNI.setDigitsOnly(true);
  txtDNI.setMaxLength(CIFRAS_DNI);
  txtDNI.setWidthChars(CIFRAS_DNI);
  cmdPadronImportar.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdPadronImportar.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdPadronImportar[ACEPTAR].onClick = [this] { cmdPadronImportar_Click(); };
  cmdPadronImportar[CANCELAR].onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column(
      {forms::fields(1, {forms::item(txtNombre)}), forms::item(lblApellidos),
       forms::row({forms::item(txtPrimerApellido), forms::item(txtSegundoApellido)}),
       forms::fields(1, {forms::item(txtDNI)}), forms::item(lblDonde), forms::stretch(),
       forms::buttons({&cmdPadronImportar[ACEPTAR], &cmdPadronImportar[CANCELAR]})}));
}

void frmPadronImportar::Form_Load() {
  txtDNI.setEnabled(Origen != cCOrigen::COLABORADOR);
}

void frmPadronImportar::cmdPadronImportar_Click() {
  procedimiento("cmdPadronImportar_Click(", [this] { buscar(); });
}

void frmPadronImportar::buscar() {
  const std::string clausulas = condiciones();
  if (clausulas.empty()) {
    forms::warn(ui(), "¡Debe introducir datos en algún campo!");
    return setFocus(txtNombre);
  }
  store::Recordset encontrados = conBaseDatos->Execute("SELECT * FROM Padron WHERE " + clausulas);
  if (encontrados.EOF_()) return forms::warn(ui(), "¡No se han encontrado coincidencias!");
  mostrar(encontrados);
}

std::string frmPadronImportar::condiciones() const {
  std::string clausulas;
  const auto agregar = [&](const char* columna, const std::string& valor) {
    clausulas += columna + entreComillas(valor) + Y;
  };
  if (!txtNombre.text().empty()) agregar("Nombre=", txtNombre.text());
  if (!txtPrimerApellido.text().empty()) agregar(" PrimerApellido=", txtPrimerApellido.text());
  if (!txtSegundoApellido.text().empty()) agregar(" SegundoApellido=", txtSegundoApellido.text());
  const std::string numero = conCerosNIF(txtDNI.text());
  if (!numero.empty())
    agregar(" DNI=", numero + "-" + contexto_.fidaleon()->ObtenerLetraNIF(numero));
  if (!clausulas.empty()) clausulas.erase(clausulas.size() - std::string_view(Y).size());
  return clausulas;
}

void frmPadronImportar::mostrar(store::Recordset& encontrados) {
  frmPadronBusqueda lista(contexto_);
  lista.conBaseDatos = conBaseDatos;
  lista.registros = &encontrados;
  lista.Origen = txtDNI.enabled() ? cCOrigen::PADRON : cCOrigen::COLABORADOR;
  lista.blnSeleccionar = blnSeleccionar;
  lista.Nombre = txtNombre.text();
  lista.PrimerApellido = txtPrimerApellido.text();
  lista.SegundoApellido = txtSegundoApellido.text();
  lista.Show();
  lngSeleccionado = lista.lngSeleccionado;
  Unload();
}

}  // namespace fidaleon
