#include "census/search/frmPadronDetalles.h"

#include <stdexcept>

#include "core/dialogs/Guard.h"
#include "text/Dates.h"

namespace fidaleon {

namespace {

constexpr const char* SIN_VALOR = "---";

struct Rotulo {
  frmPadronDetalles::Linea linea;
  const char* texto;
};

constexpr Rotulo ROTULOS[] = {
    {frmPadronDetalles::NOMBRE, "APELLIDOS, NOMBRE:"},
    {frmPadronDetalles::DNI, "DNI:"},
    {frmPadronDetalles::ESTADO_CIVIL, "ESTADO CIVIL:"},
    {frmPadronDetalles::DIRECCION, "DIRECCION  //   POBLACION (Provincia):"},
    {frmPadronDetalles::TELEFONO, "TELEFONO:"},
    {frmPadronDetalles::PROFESION, "PROFESION / COLEGIO:"},
    {frmPadronDetalles::INSTITUCION, "INSTITUCION:"},
    {frmPadronDetalles::POSICION_FAMILIAR, "POSICION FAMILIAR:"},
    {frmPadronDetalles::FECHA_NACIMIENTO, "FECHA  DE NACIMIENTO:"},
    {frmPadronDetalles::PADRE, "NOMBRE DE LOS PADRES:"},
    {frmPadronDetalles::MADRE, ""},  // beside the father
    {frmPadronDetalles::LUGAR_NACIMIENTO, "LUGAR DE NACIMIENTO:"},
};

std::string conValor(const std::string& texto) {
  return texto.empty() ? SIN_VALOR : texto;
}

}  // namespace

frmPadronDetalles::frmPadronDetalles(Contexto& contexto)
    : Dialogo(contexto, "frmPadronDetalles"),
      txtDetalle(*this, "txtDetalle"),
      cmdAceptar(*this, "cmdAceptar", "ACEPTAR") {
  setCaption("Detalles de la persona");
  for (const auto& [linea, texto] : ROTULOS) txtDetalle.add(linea, texto).setLocked(true);
  txtDetalle[PADRE].setToolTip("Padre");
  txtDetalle[MADRE].setToolTip("Madre");
  forms::Nodes lineas;
  for (const auto& [linea, campo] : txtDetalle.all()) {
    if (linea == PADRE)
      lineas.push_back(forms::item(*campo, {&txtDetalle[MADRE]}));
    else if (linea != MADRE)
      lineas.push_back(forms::item(*campo));
  }
  txtDetalle[NOMBRE].setWidthChars(60);
  cmdAceptar.setDefault(true);
  cmdAceptar.setCancel(true);
  cmdAceptar.onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column({forms::fields(1, std::move(lineas)), forms::buttons({&cmdAceptar})}));
}

void frmPadronDetalles::Form_Load() {
  const bool cargado =
      procedimiento("CargaDetallesEmpadronado", [this] { CargaDetallesEmpadronado(); });
  if (!cargado) Unload();
}

void frmPadronDetalles::poner(Linea linea, const std::string& texto) {
  txtDetalle[linea].setText(conValor(texto));
}

void frmPadronDetalles::CargaDetallesEmpadronado() {
  const store::Recordset persona =
      conBaseDatos->Execute("SELECT * FROM Padron WHERE IDPadron=" + std::to_string(IDPadron));
  if (persona.EOF_()) throw std::runtime_error("Esta persona ya no existe.");
  poner(NOMBRE, persona.text("PrimerApellido") + " " + persona.text("SegundoApellido") + ",  " +
                    persona.text("Nombre"));
  poner(DNI, persona.text("DNI"));
  poner(ESTADO_CIVIL, persona.text("EstadoCivil"));
  poner(DIRECCION,
        conValor(persona.text("Direccion")) + "  //  " + lugar(persona.integer("CodMunicipio")));
  poner(TELEFONO, persona.text("Telefono"));
  poner(PROFESION, persona.text("Profesion/Colegio"));
  poner(INSTITUCION, institucion(persona.integer("CodInstitucionEmpadronado")));
  poner(POSICION_FAMILIAR, persona.text("PosicionFamiliar"));
  cargarNacimiento();
}

// A person may have no row of birth.
void frmPadronDetalles::cargarNacimiento() {
  const store::Recordset nacimiento = conBaseDatos->Execute(
      "SELECT * FROM Padron_Nacimiento WHERE CodPadron=" + std::to_string(IDPadron));
  const auto valor = [&](const char* columna) {
    return nacimiento.EOF_() ? std::string() : nacimiento.text(columna);
  };
  const std::string fecha = valor("FechaNacimiento");
  poner(FECHA_NACIMIENTO,
        text::isBlankDate(fecha) ? SIN_VALOR : contexto_.fidaleon()->stringdate(fecha));
  poner(PADRE, valor("NombrePadre"));
  poner(MADRE, valor("NombreMadre"));
  poner(LUGAR_NACIMIENTO,
        nacimiento.EOF_() ? SIN_VALOR : lugar(nacimiento.integer("CodMunicipioNac")));
}

std::string frmPadronDetalles::lugar(std::int64_t idMunicipio) {
  if (idMunicipio == 0) return SIN_VALOR;
  const store::Recordset municipio = conBaseDatos->Execute(
      "SELECT * FROM Municipio WHERE IDMunicipio=" + std::to_string(idMunicipio));
  if (municipio.EOF_()) return SIN_VALOR;
  const store::Recordset provincia =
      conBaseDatos->Execute("SELECT * FROM Provincia WHERE IDProvincia=" +
                            std::to_string(municipio.integer("CodProvincia")));
  return municipio.text("Nombre") + " (" +
         (provincia.EOF_() ? SIN_VALOR : conValor(provincia.text("Nombre"))) + ")";
}

std::string frmPadronDetalles::institucion(std::int64_t idInstitucion) {
  const store::Recordset rs = conBaseDatos->Execute(
      "SELECT Nombre FROM Institucion WHERE IDInstitucion=" + std::to_string(idInstitucion));
  return rs.EOF_() ? std::string() : rs.text("Nombre");
}

}  // namespace fidaleon
