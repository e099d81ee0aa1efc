// What the controls of the census dialog set off.

#include <algorithm>
#include <utility>

#include "census/common/CamposPersona.h"
#include "census/money/cCurrency.h"
#include "census/persons/frmPadron.h"
#include "census/search/frmMensaje.h"
#include "census/search/frmPadronImportar.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;

void frmPadron::crearSucesos() {
  mstPadron.onMouseDown = [this](int pestana) { return mstPadron_MouseDown(pestana); };
  sucesosDeNombreYNIF();
  sucesosDeBotones();
  for (const Lista lista : {Sexo, Pagado, Institucion})
    cboPadron[lista].onKeyPress = [this, lista](forms::KeyPress& tecla) {
      contexto_.fidaleon()->Comprobar_borrarcombo(tecla, cboPadron[lista]);
    };
  txtPadron[ImporteNicho].onKeyPress = [this](forms::KeyPress& tecla) { importe_KeyPress(tecla); };
  txtPadron[ImporteNicho].onLostFocus = [this](forms::Control*) {
    procedimiento("txtPadron_LostFocus", [this] { formatearImporte(); });
  };
  msgNotas.onDblClick = [this] {
    if (cmdNotas[MODIFICAR].usable()) cmdNotas_Click(MODIFICAR);
  };
}

void frmPadron::sucesosDeNombreYNIF() {
  for (const Texto nombre : {Nombre, PrimerApellido, SegundoApellido}) {
    txtPadron[nombre].onChange = [this] { coincidencias_.nombreCambiado(); };
    txtPadron[nombre].onLostFocus = [this](forms::Control* siguiente) {
      procedimiento("txtPadron_LostFocus", [&] { nombre_LostFocus(siguiente); });
    };
  }
  for (const Texto parte : {NIF, LetraNIF})
    txtPadron[parte].onChange = [this] { dniCambiado_ = true; };
  txtPadron[NIF].onLostFocus = [this](forms::Control* siguiente) {
    procedimiento("txtPadron_LostFocus", [&] { NIF_LostFocus(siguiente); });
  };
  txtPadron[LetraNIF].onKeyPress = [this](forms::KeyPress& tecla) { letraNIF_KeyPress(tecla); };
  txtPadron[LetraNIF].onLostFocus = [this](forms::Control* siguiente) {
    procedimiento("txtPadron_LostFocus", [&] { letraNIF_LostFocus(siguiente); });
  };
}

void frmPadron::sucesosDeBotones() {
  const auto alPulsar = [this](forms::Button& boton, const char* nombre,
                               void (frmPadron::*accion)()) {
    boton.onClick = [this, nombre, accion] { procedimiento(nombre, [&] { (this->*accion)(); }); };
  };
  alPulsar(cmdAltaInstitucion, "cmdAltaInstitucion_Click", &frmPadron::altaInstitucion);
  for (const auto& [lista, boton] : cmdAltaProvincia.all())
    alPulsar(*boton, "cmdAltaProvincia_Click", &frmPadron::altaProvincia);
  for (const auto& [lista, boton] : cmdAltaPoblacion.all())
    alPulsar(*boton, "cmdAltaPoblacion_Click", &frmPadron::altaPoblacion);
  alPulsar(cmdPadron[ACEPTAR], "cmdPadron_Click", &frmPadron::aceptar);
  alPulsar(cmdPadron[BUSCAR], "cmdPadron_Click", &frmPadron::buscar);
  cmdPadron[CANCELAR].onClick = [this] { Unload(); };
  for (const auto& [indice, boton] : cmdNotas.all())
    boton->onClick = [this, indice = indice] { cmdNotas_Click(BotonNota(indice)); };
}

// Who only looks could not choose the institution that may be missing.
bool frmPadron::mstPadron_MouseDown(int pestana) {
  const bool elegida = !text::trim(cboPadron[Institucion].text()).empty();
  if (pestana == TAB_DATOS || elegida || isReadOnly()) return true;
  forms::warn(ui(), "¡Debe seleccionar una Institución!");
  return false;
}

/// Without a number there is no letter to be typed.
bool frmPadron::settled(const forms::Control& campo) const {
  const bool sinNIF = txtPadron[NIF].text().empty() && txtPadron[LetraNIF].text().empty();
  return (sinNIF && &campo == &txtPadron[LetraNIF]) || DialogoConMemoria::settled(campo);
}

bool frmPadron::vaACancelar(const forms::Control* siguiente) const {
  return siguiente == &cmdPadron[CANCELAR];
}

void frmPadron::nombre_LostFocus(const forms::Control* siguiente) {
  if (Operacion != cCOperacion::ANADIR || vaACancelar(siguiente)) return;
  cerrarCon(coincidencias_.alSalir(*conBaseDatos, 0, true));
}

void frmPadron::cerrarCon(std::int32_t id) {
  if (id == 0) return;
  lngSeleccionado = id;
  Unload();
}

void frmPadron::buscar() {
  frmPadronImportar busqueda(contexto_);
  busqueda.conBaseDatos = conBaseDatos;
  busqueda.Origen = cCOrigen::PADRON;
  busqueda.Show();
  cerrarCon(busqueda.lngSeleccionado);
}

void frmPadron::NIF_LostFocus(const forms::Control* siguiente) {
  forms::TextBox& nif = txtPadron[NIF];
  if (nif.locked() || dniIntacto()) return;
  if (nif.text().empty()) txtPadron[LetraNIF].setText("");
  nif.setText(conCerosNIF(nif.text()));
  // With the letter still to be mended there is no number yet to be looked for.
  if (letraCorrecta()) DNI_LostFocus(siguiente);
}

void frmPadron::letraNIF_KeyPress(forms::KeyPress& tecla) {
  const bool tecleada = tecla.key == forms::Key::Character && !tecla.ctrl && !tecla.alt;
  if (!tecleada || tecla.character == U'"') return;
  const bool cifra = tecla.character >= U'0' && tecla.character <= U'9';
  cifra ? tecla.swallow()
        : tecla.replaceWith(text::upper(text::toUtf8(std::u32string(1, tecla.character))));
}

void frmPadron::letraNIF_LostFocus(const forms::Control* siguiente) {
  forms::TextBox& letra = txtPadron[LetraNIF];
  if (letra.locked()) return;
  letra.setText(text::upper(letra.text()));
  DNI_LostFocus(siguiente);
}

void frmPadron::DNI_LostFocus(const forms::Control* siguiente) {
  const bool ambos = !txtPadron[NIF].text().empty() && !txtPadron[LetraNIF].text().empty();
  if (!dniCambiado_ || !ambos || vaACancelar(siguiente)) return;
  dniCambiado_ = false;
  comprobarDNI();
}

void frmPadron::comprobarDNI() {
  const bool alta = Operacion == cCOperacion::ANADIR;
  const store::Recordset otro =
      conBaseDatos->Execute("SELECT DNI,IDPadron FROM Padron WHERE DNI= " + entreComillas(dni()) +
                            (alta ? "" : " AND IDPadron <>" + std::to_string(IDPadron)));
  if (otro.EOF_()) return;
  if (!alta) return forms::warn(ui(), "¡Ya existe una persona con este DNI!");
  avisarDNI(static_cast<std::int32_t>(otro.integer("IDPadron")));
}

void frmPadron::avisarDNI(std::int32_t otra) {
  frmMensaje mensaje(contexto_);
  mensaje.conBaseDatos = conBaseDatos;
  mensaje.Origen = cCOrigen::PADRON;
  mensaje.IDPadron = otra;
  mensaje.Show();
  if (mensaje.blnImportar) importar(otra);
}

// The whole table is held for the new person, and with it the row of this one. Until all of it has
// been read, what was typed stays that of a new person.
void frmPadron::importar(std::int32_t id) {
  const store::Recordset nombre = conBaseDatos->Execute(
      "SELECT Nombre,PrimerApellido,SegundoApellido FROM Padron WHERE IDPadron=" +
      std::to_string(id));
  FichaEmpadronado otra;
  if (nombre.EOF_() || !otra.leer(*conBaseDatos, id)) return;
  ficha_ = std::move(otra);
  Operacion = cCOperacion::EDITAR;
  IDPadron = id;
  cmdPadron[BUSCAR].setVisible(false);
  mostrarTitulo(nombre.text("Nombre"), nombre.text("PrimerApellido"),
                nombre.text("SegundoApellido"));
  // Fields of two persons must not be stored as those of one.
  if (!procedimiento("importar", [this] { mostrarPersona(); })) return Unload();
  mstPadron.setTab(TAB_DATOS);
  // Wherever the user was going, what was taken is to be looked at first.
  setFocus(txtPadron[Nombre]);
}

void frmPadron::importe_KeyPress(forms::KeyPress& tecla) {
  const int enteros = conPesetas() ? 8 : 7;
  const int decimales = conPesetas() ? 0 : 2;
  cCurrency moneda;
  moneda.VerificarCurrencyKeyDown(txtPadron[ImporteNicho], tecla, enteros, decimales, false);
  moneda.VerificarCurrencyKeyPress(txtPadron[ImporteNicho], tecla, enteros, decimales, false);
}

void frmPadron::formatearImporte() {
  forms::TextBox& importe = txtPadron[ImporteNicho];
  if (importe.locked()) return;
  if (importe.text().empty()) importe.setText(importeCero());
  importe.setText(cCurrency().FormatearCurrency(importe.text(), !conPesetas()));
}

void frmPadron::altaInstitucion() {
  forms::ComboBox& instituciones = cboPadron[Institucion];
  std::int64_t elegida = instituciones.data();
  const int antes = instituciones.listCount();
  contexto_.fidaleon()->NuevaInstitucion(*conBaseDatos, contexto_.config());
  contexto_.entorno.support.create_cIListas()->fillInstituciones(instituciones, 0, *conBaseDatos);
  const bool agregada = instituciones.listCount() > antes;
  for (int i = 0; agregada && i < instituciones.listCount(); ++i)
    elegida = std::max(elegida, instituciones.itemData(i));
  instituciones.selectData(elegida);
}

void frmPadron::altaProvincia() {
  bool agregada = false;
  contexto_.fidaleon()->NuevaProvincia(agregada, *conBaseDatos, contexto_.config());
  if (!agregada) return;
  for (ParProvinciaPoblacion& par : pares_) par.refrescar();
}

void frmPadron::altaPoblacion() {
  bool agregada = false;
  contexto_.fidaleon()->NuevoMunicipio(agregada, *conBaseDatos, contexto_.config());
  if (!agregada) return;
  for (ParProvinciaPoblacion& par : pares_) par.refrescar();
}

}  // namespace fidaleon
