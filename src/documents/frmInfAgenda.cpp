#include "documents/frmInfAgenda.h"

#include "core/contract/Teclado.h"
#include "core/dialogs/Guard.h"
#include "documents/CensoRows.h"
#include "documents/CensoStatements.h"
#include "store/Transaction.h"

namespace fidaleon {

frmInfAgenda::frmInfAgenda(Contexto& contexto)
    : Dialogo(contexto, "frmInfAgenda"),
      adtpFecha(*this, "adtpFecha"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Informe de tareas");
  forms::DateField& desde = adtpFecha.add(DESDE, "Desde:");
  forms::DateField& hasta = adtpFecha.add(HASTA, "Hasta:");
  for (forms::DateField* fecha : {&desde, &hasta})
    fecha->onLostFocus = [this](forms::Control* siguiente) {
      procedimiento("adtpFecha_LostFocus()", [&] { adtpFecha_LostFocus(siguiente); });
    };
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] { Unload(); };
  setDisposable();
  setLayout(
      forms::column({forms::fields(1, {forms::item(desde), forms::item(hasta)}), forms::stretch(),
                     forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmInfAgenda::Form_Load() {
  for (const auto& [indice, fecha] : adtpFecha.all()) fecha->setToday(contexto_.hoy());
}

text::DateSense frmInfAgenda::dateSense(const forms::DateField& field) const {
  text::DateSense sentido = Dialogo::dateSense(field);
  sentido.latestYear += ANOS_POR_DELANTE;
  return sentido;
}

void frmInfAgenda::adtpFecha_LostFocus(const forms::Control* siguiente) {
  forms::DateField& hasta = adtpFecha[HASTA];
  const std::string desde = adtpFecha[DESDE].stored();
  if (siguiente == &cmdBoton[CANCELAR] || hasta.stored().empty() || desde <= hasta.stored()) return;
  forms::warn(ui(), "¡La segunda fecha debe de ser igual o mayor a la primera!");
  hasta.setStored(desde);
  // What was changed is seen before anything goes on.
  setFocus(hasta);
}

void frmInfAgenda::aceptar() {
  for (const auto& [indice, fecha] : adtpFecha.all())
    if (fecha->stored().empty()) {
      contexto_.fidaleon()->verfalta(*fecha->label());
      return setFocus(*fecha);
    }
  const forms::Hourglass hourglass(ui());
  escribir();
  if (!conInformes->Execute("SELECT * FROM Tareas_Agenda").EOF_()) return Unload();
  forms::warn(ui(), "¡No se ha encontrado ningún registro!", forms::MsgIcon::Information);
}

void frmInfAgenda::escribir() {
  store::Recordset tareas = conBaseDatos->Execute(
      documents::sentenciaTareas(adtpFecha[DESDE].stored(), adtpFecha[HASTA].stored()));
  for (; !tareas.EOF_(); tareas.MoveNext()) {
    store::Transaction transaction(*conInformes);
    documents::InsertarFilaTarea(*conInformes, tareas);
    transaction.commit();
  }
}

}  // namespace fidaleon
