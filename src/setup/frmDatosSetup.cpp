#include "setup/frmDatosSetup.h"

#include <array>

#include "core/dialogs/Guard.h"
#include "core/statements/Citas.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

struct Campo {
  const char* etiqueta;
  std::string FDAPI::cInstitucion::*miembro;
  const char* falta;
  Voz voz;
};

// By frmDatosSetup::Dato.
constexpr std::array<Campo, 4> CAMPOS{{
    {"PARROCO:", &FDAPI::cInstitucion::Parroco, "¡Tiene que introducir un nombre para el Párroco!",
     Voz::Ministro},
    {"ENCARGADO DEL ARCHIVO:", &FDAPI::cInstitucion::EncargadoArchivo,
     "¡Tiene que introducir el nombre para el Encargado del archivo!", Voz::Ninguna},
    {"DIOCESIS:", &FDAPI::cInstitucion::Diocesis, "¡Tiene que introducir el nombre de la Diócesis!",
     Voz::Diocesis},
    {"VICARIA:", &FDAPI::cInstitucion::Vicaria, "¡Tiene que introducir el nombre de la Vicaría!",
     Voz::Ninguna},
}};

constexpr int MAXIMO_ENCARGADO = 120;
constexpr int MAXIMO_TEXTO = 255;

}  // namespace

frmDatosSetup::frmDatosSetup(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmDatosSetup"),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCION"),
      txtDatos(*this, "txtDatos"),
      cmdBoton(*this, "cmdBoton") {
  setCaption("Datos necesarios para el Módulo de Gestión Parroquial");
  for (int dato = PARROCO; dato <= VICARIA; ++dato) {
    forms::TextBox& campo = txtDatos.add(dato, CAMPOS[static_cast<std::size_t>(dato)].etiqueta);
    campo.setMaxLength(dato == ENCARGADO ? MAXIMO_ENCARGADO : MAXIMO_TEXTO);
    campo.setWidthChars(50);
    ofrecer(campo, CAMPOS[static_cast<std::size_t>(dato)].voz);
  }
  cboInstitucion.onClick = [this] {
    procedimiento("cboInstitucion_Click()", [this] { cboInstitucion_Click(); });
  };
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdBoton[ACEPTAR].onClick = [this] { procedimiento("cmdBoton_Click()", [this] { aceptar(); }); };
  cmdBoton[CANCELAR].onClick = [this] {
    procedimiento("cmdBoton_Click()", [this] { cancelar(); });
  };
  setLayout(forms::column(
      {forms::fields(1, {forms::item(cboInstitucion), forms::item(txtDatos[PARROCO]),
                         forms::item(txtDatos[ENCARGADO]), forms::item(txtDatos[DIOCESIS]),
                         forms::item(txtDatos[VICARIA])}),
       forms::stretch(), forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
}

void frmDatosSetup::Form_Load() {
  procedimiento("Form_Load()", [this] { cargarInstituciones(); });
}

void frmDatosSetup::cargarInstituciones() {
  store::Recordset rs = conBaseDatos->Execute(
      "SELECT * FROM Institucion WHERE IDInstitucion NOT IN (SELECT IDInstitucion FROM "
      "Institucion WHERE Parroco<>'' OR Diocesis<>'' OR Vicaria<>'')");
  for (; !rs.EOF_(); rs.MoveNext()) {
    FDAPI::cInstitucion institucion;
    institucion.IDInstitucion = static_cast<std::int32_t>(rs.integer("IDInstitucion"));
    institucion.Nombre = rs.text("Nombre");
    institucion.Parroco = rs.text("Parroco");
    institucion.EncargadoArchivo = rs.text("EncargadoArchivo");
    institucion.Diocesis = rs.text("Diocesis");
    institucion.Vicaria = rs.text("Vicaria");
    cboInstitucion.addItem(institucion.Nombre, institucion.IDInstitucion);
    colInstituciones_.push_back(std::move(institucion));
  }
  visitada_.assign(colInstituciones_.size(), false);
  if (!colInstituciones_.empty()) return cboInstitucion.setListIndex(0);
  blnResultado = true;
  Unload();
}

void frmDatosSetup::cboInstitucion_Click() {
  recogerCampos();
  mostrada_ = cboInstitucion.listIndex();
  mostrarInstitucion();
}

void frmDatosSetup::recogerCampos() {
  if (mostrada_ < 0) return;
  FDAPI::cInstitucion& institucion = colInstituciones_[static_cast<std::size_t>(mostrada_)];
  for (int dato = PARROCO; dato <= VICARIA; ++dato)
    institucion.*CAMPOS[static_cast<std::size_t>(dato)].miembro = text::trim(txtDatos[dato].text());
}

void frmDatosSetup::mostrarInstitucion() {
  const auto posicion = static_cast<std::size_t>(mostrada_);
  FDAPI::cInstitucion& institucion = colInstituciones_[posicion];
  // Read once: coming back must not take away a keeper typed meanwhile.
  if (!visitada_[posicion]) leerEncargado(institucion);
  visitada_[posicion] = true;
  for (int dato = PARROCO; dato <= VICARIA; ++dato)
    txtDatos[dato].setText(institucion.*CAMPOS[static_cast<std::size_t>(dato)].miembro);
}

void frmDatosSetup::leerEncargado(FDAPI::cInstitucion& institucion) {
  const store::Recordset rs =
      conBaseDatos->Execute("SELECT * FROM Institucion_Encargado WHERE CodInstitucion=" +
                            std::to_string(institucion.IDInstitucion));
  if (!rs.EOF_()) institucion.EncargadoArchivo = rs.text("Nombre");
}

void frmDatosSetup::aceptar() {
  recogerCampos();
  if (faltaAlgo()) return;
  for (const FDAPI::cInstitucion& institucion : colInstituciones_) guardar(institucion);
  blnResultado = true;
  Unload();
}

bool frmDatosSetup::faltaAlgo() {
  for (std::size_t i = 0; i < colInstituciones_.size(); ++i) {
    for (int dato = PARROCO; dato <= VICARIA; ++dato) {
      const Campo& campo = CAMPOS[static_cast<std::size_t>(dato)];
      if (!text::trim(colInstituciones_[i].*campo.miembro).empty()) continue;
      forms::warn(ui(), campo.falta);
      cboInstitucion.setListIndex(static_cast<int>(i));
      setFocus(txtDatos[dato]);
      return true;
    }
  }
  return false;
}

void frmDatosSetup::guardar(const FDAPI::cInstitucion& institucion) {
  const std::string id = std::to_string(institucion.IDInstitucion);
  conBaseDatos->Execute("UPDATE Institucion SET Parroco=" + entreComillas(institucion.Parroco) +
                        ",Diocesis=" + entreComillas(institucion.Diocesis) + ",Vicaria=" +
                        entreComillas(institucion.Vicaria) + " WHERE IDInstitucion=" + id);
  if (!conBaseDatos->Execute("SELECT * FROM Institucion_Encargado WHERE CodInstitucion=" + id)
           .EOF_())
    return;
  conBaseDatos->Execute("INSERT INTO Institucion_Encargado (Nombre,CodInstitucion) VALUES (" +
                        entreComillas(institucion.EncargadoArchivo) + "," + id + ")");
}

void frmDatosSetup::cancelar() {
  if (!forms::ask(ui(),
                  "¡No ha rellenado todos los datos!\n"
                  "Es necesario que complete todos los datos para poder continuar ejecutando la "
                  "aplicación.\n"
                  "¿Está seguro de querer salir?"))
    return;
  blnResultado = false;
  Unload();
}

}  // namespace fidaleon
