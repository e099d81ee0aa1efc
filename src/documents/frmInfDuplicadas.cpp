#include "documents/frmInfDuplicadas.h"

#include "core/dialogs/Guard.h"
#include "documents/EscribirFilas.h"
#include "documents/ProgresoImpresion.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr int DIGITOS_ANO = 4;

/// The bar of the dialog, and the host's display over it.
class BarraYVentana : public FDAPI::cProgreso {
 public:
  BarraYVentana(forms::Progress& barra, FDAPI::cFidaleon& fidaleon, std::int64_t cuenta)
      : barra_(barra), ventana_(fidaleon, cuenta) {}
  void Cargar(std::int64_t, const std::string&, int, int) override {}
  void setValue(std::int64_t fila) override {
    barra_.setValue(fila);
    ventana_.avanzar(static_cast<std::int32_t>(fila));
  }

 private:
  forms::Progress& barra_;
  documents::ProgresoImpresion ventana_;
};

}  // namespace

frmInfDuplicadas::frmInfDuplicadas(Contexto& contexto)
    : Dialogo(contexto, "frmInfDuplicadas"),
      cboInstitucion(*this, "cboInstitucion", "Institución:"),
      adtpAno(*this, "adtpAno", "Año:"),
      cboOrden(*this, "cboOrden", "Ordenar por:"),
      abpProgreso(*this, "abpProgreso"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Ver informes duplicadas");
  cboInstitucion.setWidthChars(40);
  cboOrden.setWidthChars(40);
  adtpAno.setMaxLength(DIGITOS_ANO);
  adtpAno.setDigitsOnly(true);
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] {
    procedimiento("cmdBoton_Click()", [this] { cancelar(); });
  };
  setDisposable();
  setLayout(
      forms::column({forms::fields(1, {forms::item(cboInstitucion), forms::item(adtpAno),
                                       forms::item(cboOrden), forms::item(abpProgreso)}),
                     forms::stretch(), forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfDuplicadas::Form_Load() {
  procedimiento("Form_Load()", [this] { cargar(); });
}

void frmInfDuplicadas::cargar() {
  adtpAno.setText(text::left(contexto_.hoy(), DIGITOS_ANO));
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conBaseDatos);
  if (cboInstitucion.listCount() > 0) cboInstitucion.setListIndex(0);
  duplicada_ = documents::duplicadaDeNodo(strNodo);
  for (const documents::OrdenDuplicada& orden : duplicada_->ordenes) cboOrden.addItem(orden.texto);
}

std::optional<std::int32_t> frmInfDuplicadas::ano() const {
  const auto tecleado = text::toInteger(adtpAno.text());
  if (!tecleado || *tecleado < 1000) return {};
  return static_cast<std::int32_t>(*tecleado);
}

void frmInfDuplicadas::aceptar() {
  if (cboInstitucion.listIndex() < 0)
    return forms::warn(ui(), "¡Debe especificar una Institución!");
  if (cboOrden.listIndex() < 0)
    return forms::warn(ui(), "¡Debe especificar la forma de ordenación!");
  const auto elegido = ano();
  if (!elegido) {
    forms::warn(ui(), "¡Debe especificar un año de cuatro cifras!");
    return setFocus(adtpAno);
  }
  const forms::Hourglass hourglass(ui());
  const auto& orden = duplicada_->ordenes.at(static_cast<std::size_t>(cboOrden.listIndex()));
  procedimiento(duplicada_->documento.member, [&] {
    imprimir(orden, *elegido, static_cast<std::int32_t>(cboInstitucion.data()));
  });
}

void frmInfDuplicadas::cancelar() {
  strOrden.clear();
  Unload();
}

void frmInfDuplicadas::imprimir(const documents::OrdenDuplicada& orden, std::int32_t ano,
                                std::int32_t idInstitucion) {
  if (!duplicada_->cargador) empezarTransaccion();
  strOrden = orden.strOrden;
  store::Recordset entries =
      conBaseDatos->Execute(duplicada_->sentencia(ano, idInstitucion) + orden.sql);
  const bool hay = !entries.EOF_();
  if (!hay)
    forms::warn(ui(), "¡No se ha encontrado ningún registro!", forms::MsgIcon::Information);
  else if (!escribirODeshacer(entries, idInstitucion))
    return;
  if (transaccionAbierta_) terminarTransaccion();
  if (hay) abpProgreso.setValue(0);
  Unload();
}

/// A user who stops the work keeps nothing of it, and is back in the dialog.
bool frmInfDuplicadas::escribirODeshacer(store::Recordset& entries, std::int32_t idInstitucion) {
  try {
    return escribir(entries, idInstitucion);
  } catch (const forms::Cancelled&) {
    if (transaccionAbierta_) conInformes->RollbackTrans();
    transaccionAbierta_ = false;
    strOrden.clear();
    abpProgreso.setValue(0);
    throw;
  }
}

bool frmInfDuplicadas::escribir(store::Recordset& entries, std::int32_t idInstitucion) {
  const std::int64_t cuenta = entries.RecordCount();
  abpProgreso.Cargar(cuenta, duplicada_->progreso);
  abpProgreso.setValue(0);
  const auto fidaleon = contexto_.fidaleon();
  BarraYVentana progreso(abpProgreso, *fidaleon, cuenta);
  if (!duplicada_->cargador)
    escribirFilas(entries, idInstitucion, progreso);
  else if (!documents::cargarDocumentos(contexto_, duplicada_->cargador(), entries,
                                        cCTipoDocumento::DuplicadasMatrimonio, *conBaseDatos,
                                        *conInformes, &progreso))
    return false;
  abpProgreso.setValue(cuenta);
  return true;
}

void frmInfDuplicadas::escribirFilas(store::Recordset& entries, std::int32_t idInstitucion,
                                     FDAPI::cProgreso& progreso) {
  const store::Recordset institucion = conBaseDatos->Execute(
      "SELECT * FROM Institucion WHERE IDInstitucion=" + std::to_string(idInstitucion));
  const documents::Signature signature{"", contexto_.hoy(), &institucion};
  documents::Lookups lookups(contexto_, *conBaseDatos);
  documents::RowStatements rows(duplicada_->documento, signature, lookups, entries);
  documents::escribirFilas(rows, entries, *conInformes,
                           [&](std::int32_t fila) { progreso.setValue(fila); });
}

/// What a failed attempt of this dialog left must not be printed beside the rows of the next one.
void frmInfDuplicadas::empezarTransaccion() {
  if (transaccionAbierta_) conInformes->RollbackTrans();
  transaccionAbierta_ = false;
  conInformes->BeginTrans();
  transaccionAbierta_ = true;
}

void frmInfDuplicadas::terminarTransaccion() {
  conInformes->CommitTrans();
  transaccionAbierta_ = false;
}

}  // namespace fidaleon
