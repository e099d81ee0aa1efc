#include "support/frmTarea.h"

#include "core/contract/Teclado.h"
#include "store/Transaction.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

// Four digits: the agenda is printed from the first two and the last two.
std::string horaGuardada(const forms::TimeField& campo) {
  return text::replaceAll(campo.stored(), ":", "");
}

}  // namespace

frmTarea::frmTarea(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                   FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::int32_t id)
    : Ficha(ui, settings, clock, conexion, config, "frmTarea", id) {
  setCaption(id == 0 ? "Agregar tarea" : "Propiedades de la tarea");
  txtNombre.setMaxLength(255);
  txtNombre.setWidthChars(50);
  txtDescripcion.setLines(8);
  txtDescripcion.setWidthChars(50);
  // Most tasks are short: the end is proposed, and there to be changed.
  txtHoraInicio.onLostFocus = [this](forms::Control*) {
    if (txtHoraFin.text().empty()) txtHoraFin.setText(txtHoraInicio.stored());
  };
  setLayout(forms::column(
      {forms::fields(3, {forms::item(txtFecha), forms::item(txtHoraInicio), forms::item(txtHoraFin),
                         forms::item(txtNombre, 3), forms::item(txtDescripcion, 3)}),
       forms::stretch(), botones()}));
}

void frmTarea::cargar() {
  if (id_ == 0) return txtFecha.setStored(text::toStored(clock_.today()));
  const store::Recordset rs =
      conexion_.Execute("SELECT * FROM Tareas WHERE IDTarea=" + std::to_string(id_));
  if (rs.EOF_()) throw std::runtime_error("La tarea ya no existe.");
  txtFecha.setStored(rs.text("Fecha"));
  txtHoraInicio.setStored(rs.text("HoraInicio"));
  txtHoraFin.setStored(rs.text("HoraFin"));
  txtNombre.setText(rs.text("Nombre"));
  txtDescripcion.setText(rs.text("Descripcion"));
}

text::DateSense frmTarea::dateSense(const forms::DateField&) const {
  return {clock_.today(), clock_.today().year + ANOS_POR_DELANTE};
}

bool frmTarea::comprobar() {
  if (sinBlancos(txtFecha).empty()) return falta(txtFecha);
  if (!txtFecha.valid()) return rechazar(txtFecha, "¡La fecha no es correcta!");
  if (!comprobarHoras()) return false;
  return sinBlancos(txtNombre).empty() ? falta(txtNombre) : true;
}

bool frmTarea::comprobarHoras() {
  for (forms::TimeField* hora : {&txtHoraInicio, &txtHoraFin}) {
    if (sinBlancos(*hora).empty()) return falta(*hora);
    if (!hora->valid()) return rechazar(*hora, "¡La hora no es correcta!");
  }
  if (horaGuardada(txtHoraFin) < horaGuardada(txtHoraInicio))
    return rechazar(txtHoraFin, "¡La hora de fin no puede ser anterior a la de inicio!");
  return true;
}

void frmTarea::guardar() {
  const std::string date = entreComillas(txtFecha.stored());
  const std::string from = entreComillas(horaGuardada(txtHoraInicio));
  const std::string to = entreComillas(horaGuardada(txtHoraFin));
  const std::string name = entreComillas(txtNombre.text());
  const std::string text = entreComillas(txtDescripcion.text());
  if (id_ != 0) {
    conexion_.Execute("UPDATE Tareas SET Fecha=" + date + ", HoraInicio=" + from +
                      ", HoraFin=" + to + ", Nombre=" + name + ", Descripcion=" + text +
                      " WHERE IDTarea=" + std::to_string(id_));
    return;
  }
  // Accepting again after a failure must not find the task there.
  store::Transaction transaction(conexion_);
  conexion_.Execute(
      "INSERT INTO Tareas (Fecha, HoraInicio, HoraFin, Nombre, Descripcion) VALUES (" + date +
      ", " + from + ", " + to + ", " + name + ", " + text + ")");
  const auto id = static_cast<std::int32_t>(
      conexion_.Execute("SELECT MAX(IDTarea) AS ID FROM Tareas").integer("ID"));
  transaction.commit();
  id_ = id;
}

}  // namespace fidaleon::support
