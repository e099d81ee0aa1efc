// What the controls of the baptism dialog set off.

#include "core/dialogs/Guard.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/books/frmAltaLibro.h"

namespace fidaleon {

void frmPartidaBautismo::crearSucesos() {
  listas_.emplace(contexto_, BAUTISMO, cboBautismo[Institucion], cboBautismo[Libro]);
  posicion_.emplace(contexto_, BAUTISMO,
                    CamposPosicion{cboBautismo[Institucion], cboBautismo[Libro], txtLibro[FOLIO],
                                   txtLibro[NUMERO], mstBautismo, lblNumeroRepetido,
                                   [this] { return posicionesDeColeccion(); }});
  limiteNotas_.emplace(ui(), txtBautismo[NotasMarginales]);
  using Hoy = RevisionFechas::Hoy;
  fechasRevisadas_.vigilar(adtpBautismo[FechaNac], "fecha de nacimiento", Hoy::DUDOSO);
  fechasRevisadas_.vigilar(adtpBautismo[FechaMatr], "fecha de la boda de los padres", Hoy::DUDOSO);
  fechasRevisadas_.vigilar(adtpBautismo[FechaBautismo], "fecha de bautismo", Hoy::NORMAL);
  fechasRevisadas_.enEsteOrden(adtpBautismo[FechaNac], adtpBautismo[FechaBautismo]);
  txtBautismo[NotasMarginales].onChange = [this] {
    if (!cargando_) limiteNotas_->comprobar();
  };

  mstBautismo.onMouseDown = [this](int) { return mstBautismo_MouseDown(); };
  mstBautismo.onClick = [this](int) { mstBautismo_Click(); };
  cboBautismo[Institucion].onClick = [this] { cboInstitucion_Click(); };
  cboBautismo[Libro].onClick = [this] { cboLibro_Click(); };
  cboBautismo[Sexo].onKeyPress = [this](forms::KeyPress& tecla) {
    contexto_.fidaleon()->Comprobar_borrarcombo(tecla, cboBautismo[Sexo]);
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
  for (const Texto apellido : {PrimerApellidoHijo, SegundoApellidoHijo})
    txtBautismo[apellido].onLostFocus = [this](forms::Control* siguiente) {
      apellidos_LostFocus(siguiente);
    };
  for (forms::TextBox* parroquia :
       {&txtSC[PadreParroquia], &txtBautismo[ParroquiaMatrimonio], &txtBautismo[ParroquiaBautismo]})
    parroquia->onGotFocus = [this] { BuscarPadres(); };

  cmdAltaInstitucion.onClick = [this] { cmdAltaInstitucion_Click(); };
  cmdAltaLibro.onClick = [this] { cmdAltaLibro_Click(); };
  cmdAltaProvincia.onClick = [this] { cmdAltaProvincia_Click(); };
  cmdAltaPoblacion.onClick = [this] { cmdAltaPoblacion_Click(); };
  cmdBautismo[ACEPTAR].onClick = [this] {
    procedimiento("cmdBautismo_Click", [this] { aceptar(); });
  };
  cmdBautismo[CANCELAR].onClick = [this] { Unload(); };
  cmdBautismo[ANULAR].onClick = [this] {
    procedimiento("cmdBautismo_Click", [this] { anular(); });
  };
}

void frmPartidaBautismo::cmdAltaInstitucion_Click() {
  procedimiento("cmdAltaInstitucion_Click", [this] { listas_->agregarInstitucion(); });
}

void frmPartidaBautismo::cmdAltaLibro_Click() {
  procedimiento("cmdAltaLibro_Click", [this] {
    const std::int64_t elegido = cboBautismo[Libro].data();
    frmAltaLibroBautismo alta(contexto_);
    alta.conBaseDatos = conBaseDatos;
    alta.lngInstitucion = static_cast<std::int32_t>(cboBautismo[Institucion].data());
    alta.Show();
    if (alta.strAgregado.empty()) return;
    llenarLibros();
    listas_->elegirAgregado(alta.strAgregado, elegido);
  });
}

void frmPartidaBautismo::cmdAltaProvincia_Click() {
  procedimiento("cmdAltaProvincia_Click", [this] {
    bool agregada = false;
    contexto_.fidaleon()->NuevaProvincia(agregada, *conBaseDatos, contexto_.config());
    if (!agregada) return;
    for (ParProvinciaPoblacion& par : pares_) par.refrescar();
  });
}

void frmPartidaBautismo::cmdAltaPoblacion_Click() {
  procedimiento("cmdAltaPoblacion_Click", [this] {
    bool agregada = false;
    contexto_.fidaleon()->NuevoMunicipio(agregada, *conBaseDatos, contexto_.config());
    if (!agregada) return;
    for (ParProvinciaPoblacion& par : pares_) par.refrescar();
  });
}

}  // namespace fidaleon
