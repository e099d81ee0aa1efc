// What the controls of an entry dialog set off.

#include "registers/books/frmAltaLibro.h"
#include "registers/common/Guiones.h"
#include "registers/entry/frmPartida.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

/// "cboBautismo_Click", under which an error in it is reported.
std::string frmPartida::suceso(const forms::Control& control, const char* cual) const {
  return control.name().substr(0, control.name().find('(')) + "_" + cual;
}

void frmPartida::crearSucesos() {
  listas_.emplace(contexto_, sacramento(), institucion(), libro());
  posicion_.emplace(
      contexto_, sacramento(),
      CamposPosicion{institucion(), libro(), txtLibro[FOLIO], txtLibro[NUMERO], mstPartida,
                     lblNumeroRepetido,
                     [this]() -> const std::vector<Posicion>& { return posicionesDeColeccion(); }});
  notas_->onChange = [this] {
    if (!cargando_) limiteNotas_->comprobar();
  };
  mstPartida.onMouseDown = [this](int) { return mst_MouseDown(); };
  mstPartida.onClick = [this](int) { mst_Click(); };
  institucion().onClick = [this] { cboInstitucion_Click(); };
  libro().onClick = [this] {
    if (esAlta()) proponerPosicion();
  };
  for (const CampoLibro campo : {FOLIO, NUMERO}) {
    txtLibro[campo].onLostFocus = [this, campo](forms::Control* siguiente) {
      txtLibro_LostFocus(campo, siguiente);
    };
    txtLibro[campo].onChange = [this] {
      procedimiento("txtLibro_Change", [this] {
        refrescarTitulo();
        avisarNumeroRepetido();
      });
    };
  }
  mirarApellidos();
  sucesosDeBotones();
}

void frmPartida::sucesosDeBotones() {
  cmdAltaInstitucion.onClick = [this] {
    procedimiento("cmdAltaInstitucion_Click", [this] { listas_->agregarInstitucion(); });
  };
  cmdAltaLibro.onClick = [this] { procedimiento("cmdAltaLibro_Click", [this] { altaLibro(); }); };
  cmdAltaProvincia.onClick = [this] {
    procedimiento("cmdAltaProvincia_Click",
                  [this] { altaMunicipio(&FDAPI::cFidaleon::NuevaProvincia); });
  };
  cmdAltaPoblacion.onClick = [this] {
    procedimiento("cmdAltaPoblacion_Click",
                  [this] { altaMunicipio(&FDAPI::cFidaleon::NuevoMunicipio); });
  };
  const auto alPulsar = [this](Boton boton, void (frmPartida::*hacer)()) {
    cmdPartida[boton].onClick = [this, boton, hacer] {
      procedimiento(suceso(cmdPartida[boton], "Click").c_str(),
                    [this, hacer] { (this->*hacer)(); });
    };
  };
  alPulsar(ACEPTAR, &frmPartida::aceptar);
  alPulsar(ANULAR, &frmPartida::anular);
  cmdPartida[CANCELAR].onClick = [this] { Unload(); };
}

void frmPartida::cboInstitucion_Click() {
  procedimiento(suceso(institucion(), "Click").c_str(), [this] {
    if (!esAlta()) return;
    preestablecer();
    if (esSolicitud() || lngLibro != 0) return;
    llenarLibros();
    vaciarPosicion();
    elegirUnico(libro());
  });
}

void frmPartida::proponer(forms::TextBox& campo, const std::string& valor) {
  if (!text::trim(campo.text()).empty() && campo.text() != propuestos_[&campo]) return;
  campo.setText(valor);
  propuestos_[&campo] = valor;
}

void frmPartida::proponer(ParProvinciaPoblacion& par, std::int32_t municipio) {
  std::string& propuesto = propuestos_[&par.poblacion()];
  if (par.valor() != 0 && std::to_string(par.valor()) != propuesto) return;
  par.poner(municipio);
  propuesto = std::to_string(municipio);
}

bool frmPartida::mst_MouseDown() {
  bool adelante = false;
  procedimiento(suceso(mstPartida, "MouseDown").c_str(), [&] {
    const bool comprobar = mstPartida.tab() == TAB_GENERAL && Operacion == cCOperacion::ANTIGUA;
    adelante = !comprobar || (elecciones_->siguen() && posicion_->comprobarPosicionTecleada());
  });
  return adelante;
}

void frmPartida::mst_Click() {
  procedimiento(suceso(mstPartida, "Click").c_str(), [this] {
    if (faltaInstitucionOLibro()) return;
    refrescarTitulo();
    focusFirstOn(mstPartida);
  });
}

void frmPartida::txtLibro_LostFocus(CampoLibro indice, const forms::Control* siguiente) {
  if (siguiente == &cmdPartida[CANCELAR] || !text::trim(txtLibro[indice].text()).empty()) return;
  if (txtLibro[indice].locked()) return;
  forms::warn(ui(), std::string("¡Debe introducir datos en el campo ") +
                        (indice == FOLIO ? "folio!" : "número!"));
  // Without a book there is no proposal either: the way back to the lists stays open.
  if (libro().listIndex() >= 0) setFocus(txtLibro[indice]);
}

void frmPartida::persona(int nombre, int primerApellido, int segundoApellido) {
  forms::TextBox& primero = txtPartida[primerApellido];
  forms::TextBox& segundo = txtPartida[segundoApellido];
  personas_.push_back({&txtPartida[nombre], &primero, &segundo, {sacramento(), primero, segundo}});
  const std::size_t cual = personas_.size() - 1;
  for (forms::TextBox* apellido : {&primero, &segundo})
    apellido->onLostFocus = [this, cual](forms::Control* siguiente) {
      if (siguiente != &cmdPartida[CANCELAR] && personas_[cual].busqueda.sale(siguiente))
        BuscarDatos(cual);
    };
}

void frmPartida::proponerProgenitor(int apellido, int progenitor) {
  forms::TextBox& campo = txtPartida[apellido];
  campo.onLostFocus = [this, &campo, progenitor, antes = campo.onLostFocus](forms::Control* c) {
    antes(c);
    const std::string escrito = text::trim(campo.text());
    const bool propone = esAlta() || variante_.progenitorAlCorregir;
    if (!propone || c == &cmdPartida[CANCELAR] || enBlanco(escrito)) return;
    forms::TextBox& nombre = txtPartida[progenitor];
    if (!nombre.locked() && text::trim(nombre.text()).empty())
      nombre.setText("--- " + escrito + " ---");
  };
}

void frmPartida::BuscarDatos(std::size_t cual) {
  BusquedaPorApellidos& apellidos = personas_[cual].busqueda;
  if (!apellidos.toca()) return;
  frmBuscaPadres busqueda(contexto_);
  procedimiento(variante_.procBuscar, [&] {
    busqueda.filas = apellidos.buscar(*conBaseDatos, institucion(), libro(), esSolicitud());
    std::erase_if(busqueda.filas,
                  [&](const FilaBusqueda& f) { return f.IDBautismo == bautismoPropio(); });
  });
  if (busqueda.filas.empty()) return;
  busqueda.conBaseDatos = conBaseDatos;
  busqueda.Origen = origenLista(sacramento());
  busqueda.strApellidos = apellidos.apellidos();
  busqueda.lngPersona = cual;
  busqueda.Show();
  if (busqueda.blnAceptado)
    procedimiento(variante_.procImportar, [&] { importar(cual, busqueda); });
}

void frmPartida::altaLibro() {
  const std::int64_t elegido = libro().data();
  const auto alta = crearAltaLibro(contexto_, sacramento());
  alta->conBaseDatos = conBaseDatos;
  alta->lngInstitucion = static_cast<std::int32_t>(institucion().data());
  alta->Show();
  if (alta->strAgregado.empty()) return;
  llenarLibros();
  listas_->elegirAgregado(alta->strAgregado, elegido);
}

void frmPartida::altaMunicipio(AltaEnCatalogo alta) {
  bool agregado = false;
  (contexto_.fidaleon().get()->*alta)(agregado, *conBaseDatos, contexto_.config());
  if (!agregado) return;
  Memoria::de(contexto_).ponerAlDia();
  for (ParProvinciaPoblacion& par : pares_) par.refrescar();
}

}  // namespace fidaleon
