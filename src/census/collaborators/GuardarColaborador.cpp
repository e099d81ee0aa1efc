// What is checked and stored when the collaborator dialog is accepted.

#include "census/collaborators/TablasColaborador.h"
#include "census/collaborators/frmColaborador.h"
#include "census/common/CamposPersona.h"
#include "store/Transaction.h"
#include "text/Dates.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr std::size_t CIFRAS_DEL_AÑO = 4;
constexpr const char* TIPO_COLABORADOR = "3";

/// "yyyymmdd" of "dd/mm" and a year; empty when they make no day of the calendar.
std::string fechaDe(const std::string& cumpleaños, const std::string& año) {
  const auto diaMes = diaYMes(cumpleaños);
  const auto fecha = diaMes ? text::parseShort(*diaMes + "/" + año) : std::nullopt;
  return fecha ? text::toStored(*fecha) : std::string();
}

}  // namespace

void frmColaborador::aceptar() {
  if (faltaNombre() || faltaNacimiento() || faltaGrupoOCargo()) return;
  const Persona persona = leerCampos();
  if (!guardar(persona)) return;
  if (Operacion == cCOperacion::ANADIR) recordar(enlaces_.campos(persona));
  Unload();
}

bool frmColaborador::faltaNombre() {
  const std::pair<Texto, const char*> EXIGIDOS[] = {
      {Nombre, "¡Debe insertar nombre del colaborador!"},
      {PrimerApellido, "¡Debe insertar el primer apellido del colaborador!"},
      {SegundoApellido, "¡Debe insertar el segundo apellido del colaborador!"},
  };
  for (const auto& [indice, mensaje] : EXIGIDOS) {
    if (!text::trim(txtColaborador[indice].text()).empty()) continue;
    rechazar(TAB_DATOS, indice, mensaje);
    return true;
  }
  return false;
}

// What is in the store already passes as long as nobody touches it.
bool frmColaborador::faltaNacimiento() {
  const std::string& cumpleaños = txtColaborador[Cumpleaños].text();
  const std::string& año = txtColaborador[AñoNacimiento].text();
  if (cumpleaños == persona_.Cumpleaños && año == persona_.AñoNacimiento) return false;
  if (!cumpleaños_->valido())
    rechazar(TAB_NACIMIENTO, Cumpleaños, cumpleaños_->aviso());
  else if (!año.empty() && año.size() != CIFRAS_DEL_AÑO)
    rechazar(TAB_NACIMIENTO, AñoNacimiento, "¡El año de nacimiento debe tener cuatro cifras!");
  else if (!cumpleaños.empty() && !año.empty() && fechaDe(cumpleaños, año).empty())
    rechazar(TAB_NACIMIENTO, AñoNacimiento,
             "¡El " + cumpleaños + "/" + año +
                 " no existe! Revise el cumpleaños o el año de nacimiento.");
  else
    return false;
  return true;
}

void frmColaborador::rechazar(Pestaña pestaña, Texto campo, const std::string& mensaje) {
  forms::warn(ui(), mensaje);
  mstColaborador.setTab(pestaña);
  txtColaborador[campo].selectAll();
  setFocus(txtColaborador[campo]);
}

Persona frmColaborador::leerCampos() const {
  Persona persona = persona_;
  for (const auto& e : enlaces_.textos)
    persona.*e.miembro = e.campo->multiline() ? e.campo->text() : text::trim(e.campo->text());
  for (const auto& [par, miembro] : enlaces_.municipios) persona.*miembro = par->valor();
  persona.FechaNacimiento = fechaNacimiento();
  for (const auto& [campo, miembro] : enlaces_.fechas)
    persona.*miembro = fechaEnLugarDe(persona_.*miembro, *campo);
  return persona;
}

// A birth date that comes from the census, and not from a birthday and a year, is not for this
// dialog to take away.
std::string frmColaborador::fechaNacimiento() const {
  const std::string& cumpleaños = txtColaborador[Cumpleaños].text();
  const std::string& año = txtColaborador[AñoNacimiento].text();
  const bool cambiados = cumpleaños != persona_.Cumpleaños || año != persona_.AñoNacimiento;
  if (!cambiados && !persona_.FechaNacimiento.empty()) return persona_.FechaNacimiento;
  const std::string compuesta = fechaDe(cumpleaños, año);
  if (!compuesta.empty()) return compuesta;
  const bool propia =
      persona_.FechaNacimiento == fechaDe(persona_.Cumpleaños, persona_.AñoNacimiento);
  return propia ? std::string() : persona_.FechaNacimiento;
}

// Accepting again after a failure must not find half of the person there; and what was written is
// taken back before the failure is told, since nobody else can write until then.
bool frmColaborador::guardar(Persona persona) {
  const bool alta = Operacion == cCOperacion::ANADIR;
  return procedimiento(alta ? "AgregarColaborador" : "EditarColaborador", [&] {
    const forms::Hourglass reloj(ui());
    store::Transaction transaccion(*conBaseDatos, quitaActividades());
    alta ? AgregarColaborador(persona) : EditarColaborador(persona);
    guardarActividades(persona.CodPadron);
    transaccion.commit();
  });
}

void frmColaborador::AgregarColaborador(Persona& persona) {
  conBaseDatos->Execute(sqlInsertar(ALTA_COLABORADOR, persona));
  persona.CodPadron = static_cast<std::int32_t>(
      conBaseDatos->Execute("SELECT MAX(IDPADRON) AS IDPADRON FROM PADRON").integer("IDPADRON"));
  conBaseDatos->Execute(sqlInsertar(ALTA_COLABORADOR_NACIMIENTO, persona));
  conBaseDatos->Execute(sqlInsertar(ALTA_COLABORADOR_BAUTISMO, persona));
  for (const std::string& fila : sqlSatelitesVacios(persona.CodPadron)) conBaseDatos->Execute(fila);
  const store::Recordset tipo =
      conBaseDatos->Execute("SELECT * FROM Tipo_Persona WHERE Nombre='Colaborador'");
  darTipoColaborador(persona.CodPadron,
                     tipo.EOF_() ? TIPO_COLABORADOR : tipo.text("IDTipoPersona"));
}

void frmColaborador::EditarColaborador(const Persona& persona) {
  const std::string id = std::to_string(IDPadron);
  conBaseDatos->Execute(sqlActualizar(FICHA_COLABORADOR, persona) + " WHERE IDPadron=" + id);
  guardarFila(ALTA_COLABORADOR_NACIMIENTO, FICHA_COLABORADOR_NACIMIENTO, persona);
  guardarFila(ALTA_COLABORADOR_BAUTISMO, FICHA_COLABORADOR_BAUTISMO, persona);
  if (!hay("SELECT * FROM [Padron_TipoPersona] WHERE CodPadron=" + id + " And CodTipoPersona=3"))
    darTipoColaborador(IDPadron, TIPO_COLABORADOR);
}

void frmColaborador::guardarFila(const Tabla<Persona>& alta, const Tabla<Persona>& ficha,
                                 const Persona& persona) {
  const std::string condicion = " WHERE CodPadron = " + std::to_string(IDPadron);
  const bool esta = hay(std::string("SELECT CodPadron FROM ") + alta.nombre + condicion);
  conBaseDatos->Execute(esta ? sqlActualizar(ficha, persona) + condicion
                             : sqlInsertar(alta, persona));
}

void frmColaborador::darTipoColaborador(std::int32_t idPadron, const std::string& tipo) {
  conBaseDatos->Execute("INSERT INTO Padron_TipoPersona (CodPadron,CodTipoPersona) VALUES (" +
                        std::to_string(idPadron) + "," + tipo + ");");
}

}  // namespace fidaleon
