// What the census dialog shows when it opens.

#include <stdexcept>

#include "census/persons/frmPadron.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmPadron::Form_Load() {
  const bool cargado = procedimiento("Form_Load", [this] {
    const forms::Hourglass reloj(ui());
    ConfigGridNotasPersonales();
    refrescarMemoria();
    cargarListas();
    BorrarDatosEmpadronado();
    if (Operacion == cCOperacion::EDITAR && !leerEmpadronado()) return Unload();
    if (Operacion == cCOperacion::ANADIR) elegirUnico(cboPadron[Institucion]);
    mostrarModo();
  });
  // A person shown in part would be stored in part.
  if (!cargado) Unload();
}

void frmPadron::cargarListas() {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboPadron[Institucion], 0,
                                                                 *conBaseDatos);
  for (ParProvinciaPoblacion& par : pares_) par.abrir(*conBaseDatos);
  cIListas(contexto_).fillSexo(cboPadron[Sexo]);
  contexto_.fidaleon()->CambioEtiquetasMoneda(*this, txtPadron[ImporteNicho], contexto_.config());
}

void frmPadron::BorrarDatosEmpadronado() {
  ficha_ = {};
  mostrarPersona();
  txtPadron[ImporteNicho].setText(importeCero());
  cboPadron[Pagado].setListIndex(-1);
}

std::vector<forms::Field> frmPadron::campos(const Persona& persona) const {
  std::vector<forms::Field> todos = enlaces_.campos(persona);
  todos.push_back({cboPadron[Institucion].name(), {}, {}, persona.CodInstitucionEmpadronado});
  return todos;
}

const std::vector<forms::Field>& frmPadron::ultima() const {
  if (ultima_) return *ultima_;
  ultima_.emplace();
  procedimiento("takeFormer", [&] {
    const store::Recordset fila = conBaseDatos->Execute(
        "SELECT MAX(CodPadron) AS IDPadron FROM Padron_TipoPersona WHERE CodTipoPersona=2");
    FichaEmpadronado ficha;
    if (!fila.EOF_() &&
        ficha.leer(*conBaseDatos, static_cast<std::int32_t>(fila.integer("IDPadron"))))
      ultima_ = campos(ficha.persona);
  });
  return *ultima_;
}

bool frmPadron::leerEmpadronado() {
  if (!ficha_.leer(*conBaseDatos, IDPadron)) {
    forms::warn(ui(), "Esta persona ya no está en el padrón.");
    return false;
  }
  mostrarPersona();
  return true;
}

void frmPadron::mostrarPersona() {
  const Persona& p = ficha_.persona;
  enlaces_.mostrar(p);
  comprobarPoblaciones();
  cboPadron[Sexo].setListIndex(-1);
  sexoMostrado_ = cboPadron[Sexo].selectText(p.Sexo) || p.Sexo.empty();
  cboPadron[Institucion].setListIndex(-1);
  cboPadron[Institucion].selectData(p.CodInstitucionEmpadronado);
  mostrarDNI();
  mostrarDefuncion();
  CargaGridNotasPersonales();
  coincidencias_.olvidarCambio();
  dniCambiado_ = false;
}

// A province without its town is a list that could not be read; the person would lose the town.
void frmPadron::comprobarPoblaciones() const {
  for (const Lista lista :
       {ProvinciaDireccion, ProvinciaNac, ProvinciaBaut, ProvinciaConf, ProvinciaMatr})
    if (cboPadron[lista].listIndex() >= 0 && cboPadron[lista + 1].listIndex() < 0)
      throw std::runtime_error("No se han podido leer las poblaciones de esta persona.");
}

void frmPadron::mostrarDNI() {
  const std::string& guardado = dniGuardado_ = ficha_.persona.DNI;
  const std::size_t largo = text::length(guardado);
  const bool completo = largo > 2;
  dniMostrado_ = {completo ? text::left(guardado, largo - 2) : "",
                  completo ? text::right(guardado, 1) : ""};
  txtPadron[NIF].setText(dniMostrado_.first);
  txtPadron[LetraNIF].setText(dniMostrado_.second);
}

void frmPadron::mostrarDefuncion() {
  const Persona& p = ficha_.persona;
  txtPadron[ImporteNicho].setText(conPesetas() ? p.Importe : p.ImporteEur);
  cboPadron[Pagado].selectText(p.Pagado ? "Sí" : "No");
}

void frmPadron::mostrarModo() {
  const bool alta = Operacion == cCOperacion::ANADIR;
  const Persona& p = ficha_.persona;
  cmdPadron[BUSCAR].setVisible(alta);
  alta ? setCaption("Agregar empadronado")
       : mostrarTitulo(p.Nombre, p.PrimerApellido, p.SegundoApellido);
}

void frmPadron::mostrarTitulo(const std::string& nombre, const std::string& primerApellido,
                              const std::string& segundoApellido) {
  setCaption("Propiedades del empadronado " + nombre + " " + primerApellido + " " +
             segundoApellido);
}

void frmPadron::Form_Unload() {
  procedimiento("Form_Unload", [this] { ficha_.retirar(*conBaseDatos); });
  procedimiento("Form_Unload", [this] { guardarAnchos(); });
}

}  // namespace fidaleon
