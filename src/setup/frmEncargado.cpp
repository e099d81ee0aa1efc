#include "setup/frmEncargado.h"

#include "core/dialogs/Guard.h"
#include "core/statements/Citas.h"
#include "core/statements/NombreRepetido.h"
#include "core/statements/Sentencia.h"
#include "text/Names.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr const char* TABLA_ENCARGADOS = "Institucion_Encargado";
constexpr std::size_t MAXIMO_ENCARGADO = 120;

/// The institution whose book holds the entry.
std::string sentenciaInstitucion(const std::string& palabra, std::int32_t id) {
  const Sacramento* sacramento = sacramentoDeNodo(palabra, "");
  if (!sacramento) throw std::invalid_argument("Sacramento desconocido: " + palabra);
  return sentencia(*sacramento,
                   "SELECT IDInstitucion, Nombre FROM Institucion WHERE IDInstitucion IN (SELECT "
                   "CodInstitucion FROM {Libros} WHERE {IDLibro} IN (SELECT CodLibro FROM "
                   "{Partidas} WHERE {IDPartida} = ") +
         std::to_string(id) + "))";
}

}  // namespace

frmEncargado::frmEncargado(Contexto& contexto)
    : Dialogo(contexto, "frmEncargado"),
      lblInstitucion(*this, "lblInstitucion"),
      cboEncargado(*this, "cboEncargado", "ENCARGADO:"),
      cmdAgregarEncargado(*this, "cmdAgregarEncargado", "Agregar encargado"),
      adtpFecha(*this, "adtpFecha", "FECHA DE IMPRESION DEL DOCUMENTO:"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Selección de encargado");
  lblInstitucion.setLabel(makeLabel("lblEncargadoPara", "ENCARGADO PARA:"));
  cboEncargado.setWidthChars(50);
  cmdAgregarEncargado.onClick = [this] {
    procedimiento("cmdAgregarEncargado_Click()", [this] { agregarEncargado(); });
  };
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] {
    procedimiento("cmdBoton_Click()", [this] { cancelar(); });
  };
  setDisposable();
  setLayout(
      forms::column({forms::fields(1, {forms::item(lblInstitucion),
                                       forms::item(cboEncargado, {&cmdAgregarEncargado}),
                                       forms::item(adtpFecha)}),
                     forms::stretch(), forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmEncargado::Form_Load() {
  strEncargado.clear();
  strFecha = contexto_.hoy();
  procedimiento("Form_Load()", [this] { cargar(); });
}

void frmEncargado::Form_Unload() {
  procedimiento("Form_Unload()", [this] {
    if (bloqueos_) bloqueos_->LiberarBloqueos();
    bloqueos_.reset();
  });
}

void frmEncargado::cargar() {
  adtpFecha.setStored(strFecha);
  if (!leerInstitucion()) return Unload();
  cmdAgregarEncargado.setEnabled(bloquearInstitucion());
  CargarComboEncargados();
  elegirUltimo();
}

bool frmEncargado::leerInstitucion() {
  const store::Recordset rs = conBaseDatos->Execute(sentenciaInstitucion(Sacramento, IDPartida));
  try {
    lngInstitucion = static_cast<std::int32_t>(rs.integer("IDInstitucion"));
    lblInstitucion.setCaption(rs.text("Nombre"));
    return true;
  } catch (const store::Error& error) {
    forms::warn(ui(), "Ha ocurrido el error nº " + std::to_string(error.number()) +
                          "\n Descripción: " + error.what());
    return false;
  }
}

bool frmEncargado::bloquearInstitucion() {
  if (!bloqueos_) bloqueos_ = abrirSesion(contexto_, *conBaseDatos);
  for (const char* tabla : {"Institucion", TABLA_ENCARGADOS}) {
    FDAPI::DefinicionBloqueo bloqueo;
    bloqueo.strTabla = tabla;
    bloqueo.blnBloqueoParcialRegistro = true;
    bloqueo.strRegistro = std::to_string(lngInstitucion);
    bloqueo.conBd = conBaseDatos;
    bloqueos_->DefinirBloqueo(bloqueo);
  }
  return bloqueos_->lngEfectuarBloqueos() == 0;
}

void frmEncargado::CargarComboEncargados() {
  procedimiento("CargarComboEncargados", [this] {
    store::Recordset rs = conBaseDatos->Execute(
        "SELECT IDEncargado, Nombre FROM Institucion_Encargado WHERE CodInstitucion=" +
        std::to_string(lngInstitucion));
    cboEncargado.clear();
    for (; !rs.EOF_(); rs.MoveNext())
      cboEncargado.addItem(rs.text("Nombre"), rs.integer("IDEncargado"));
  });
}

void frmEncargado::elegirUltimo() {
  const store::Recordset rs = conBaseDatos->Execute("SELECT * FROM Ultimos WHERE IDInstitucion=" +
                                                    std::to_string(lngInstitucion));
  if (!rs.EOF_()) cboEncargado.selectText(rs.text("Encargado"));
  if (cboEncargado.listIndex() < 0 && cboEncargado.listCount() == 1) cboEncargado.setListIndex(0);
}

void frmEncargado::agregarEncargado() {
  FDAPI::DefinicionBloqueo tabla;
  tabla.strTabla = TABLA_ENCARGADOS;
  bloqueos_->DefinirBloqueo(tabla);
  if (bloqueos_->lngEfectuarBloqueos() != 0) return;
  const std::optional<std::string> tecleado = ui().inputBox(
      "Especifique el nombre de la persona encargada del archivo parroquial.\n"
      "Advertencia: Longitud máxima 120 caracteres.",
      "Agregar encargado");
  const std::string nombre = text::withoutQuotes(
      text::trim(text::left(text::trim(text::sanitized(tecleado.value_or(""))), MAXIMO_ENCARGADO)),
      MAXIMO_ENCARGADO);
  if (!nombre.empty())
    procedimiento("cmdAgregarEncargado_Click()", [&] { guardarEncargado(nombre); });
  // The whole table was needed for the moment only; the shared use of the institution goes on.
  bloqueos_->LiberarBloqueos();
  cmdAgregarEncargado.setEnabled(bloquearInstitucion());
}

void frmEncargado::guardarEncargado(const std::string& nombre) {
  const std::string id = std::to_string(lngInstitucion);
  if (!conBaseDatos
           ->Execute("SELECT * FROM Institucion_Encargado WHERE CodInstitucion=" + id +
                     " AND Nombre =" + entreApostrofos(nombre))
           .EOF_() ||
      hayMismoNombre(*conBaseDatos,
                     "SELECT Nombre FROM Institucion_Encargado WHERE CodInstitucion=" + id, nombre))
    return forms::warn(ui(), "¡El encargado ya existe en la base de datos!");
  conBaseDatos->Execute("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (" + id +
                        ", " + entreApostrofos(nombre) + ")");
  CargarComboEncargados();
  cboEncargado.selectText(nombre);
}

void frmEncargado::aceptar() {
  if (adtpFecha.stored().empty()) {
    contexto_.fidaleon()->verfalta(*adtpFecha.label());
    return setFocus(adtpFecha);
  }
  strFecha = adtpFecha.stored();
  strEncargado = cboEncargado.text();
  Unload();
}

void frmEncargado::cancelar() {
  strEncargado.clear();
  strFecha = contexto_.hoy();
  Unload();
}

}  // namespace fidaleon
