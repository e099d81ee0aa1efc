// Fields that all entry dialogs have, where they stand, and the caption.

#include "registers/entry/frmPartida.h"

#include "registers/common/Guiones.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using forms::fields;
using forms::item;

namespace {

constexpr int ANCHO_TEXTO = 255;  // of the columns
constexpr int ANCHO_FOLIO = 9;
constexpr int LINEAS_NOTAS = 10;
constexpr int LINEAS_OBSERVACIONES = 5;

}  // namespace

frmPartida::frmPartida(Contexto& contexto, const VariantePartida& variante)
    : DialogoConMemoria(contexto, std::string("frmPartida") + variante.sacramento.palabra),
      mstPartida(*this, std::string("mst") + variante.sacramento.palabra, variante.pestanas),
      txtPartida(*this, std::string("txt") + variante.sacramento.palabra),
      adtpPartida(*this, std::string("adtp") + variante.sacramento.palabra),
      cboPartida(*this, std::string("cbo") + variante.sacramento.palabra),
      cmdPartida(*this, std::string("cmd") + variante.sacramento.palabra),
      txtLibro(*this, "txtLibro"),
      fraLibro(*this, "fraLibro", "LIBRO"),
      lblNumeroRepetido(*this, "lblNumeroRepetido"),
      lblPartidaAnulada(*this, "lblPartidaAnulada", "PARTIDA ANULADA"),
      cmdAltaInstitucion(*this, "cmdAltaInstitucion", "Agregar Institución"),
      cmdAltaLibro(*this, "cmdAltaLibro", "Agregar Libro"),
      cmdAltaProvincia(*this, "cmdAltaProvincia", "Agregar Provincia"),
      cmdAltaPoblacion(*this, "cmdAltaPoblacion", "Agregar Población"),
      variante_(variante) {
  cboPartida.add(variante_.listaInstitucion, "INSTITUCIÓN:").setWidthChars(40);
  cboPartida.add(variante_.listaLibro, "LIBRO:").setWidthChars(40);
  for (auto [indice, etiqueta] : {std::pair{FOLIO, "FOLIO:"}, {NUMERO, "NÚMERO:"}}) {
    txtLibro.add(indice, etiqueta).setWidthChars(10);
    txtLibro[indice].setMaxLength(ANCHO_FOLIO);
  }
  txtLibro[FOLIO].setDigitsOnly(true);
  txtLibro[NUMERO].fits = esNumeroDePartida;
  for (forms::Label* aviso : {&lblNumeroRepetido, &lblPartidaAnulada}) {
    aviso->setEmphasised(true);
    aviso->setVisible(false);
  }
  cmdPartida.add(ACEPTAR, "&Aceptar").setDefault(true);
  cmdPartida.add(CANCELAR, "&Cancelar").setCancel(true);
  cmdPartida.add(ANULAR, "A&nular");
}

forms::TextBox& frmPartida::crearTexto(forms::ControlArray<forms::TextBox>& grupo, int indice,
                                       const char* etiqueta, Clase clase) {
  forms::TextBox& campo = grupo.add(indice, etiqueta);
  campo.setMaxLength(clase == Clase::Largo ? 0 : ANCHO_TEXTO);
  if (clase == Clase::Nombre) campo.setQuoteRule(forms::QuoteRule::Remove);
  if (clase == Clase::Cifras) campo.setDigitsOnly(true);
  if (clase == Clase::Largo) campo.setLines(LINEAS_OBSERVACIONES);
  textos_.push_back(&campo);
  return campo;
}

forms::DateField& frmPartida::crearFecha(int indice, const char* etiqueta,
                                         const std::string& nombre, RevisionFechas::Hoy hoy) {
  forms::DateField& campo = adtpPartida.add(indice, etiqueta);
  fechasRevisadas_.vigilar(campo, nombre, hoy);
  fechas_.push_back(&campo);
  return campo;
}

forms::ComboBox& frmPartida::crearLista(int indice, const char* etiqueta) {
  forms::ComboBox& lista = cboPartida.add(indice, etiqueta);
  lista.onKeyPress = [this, &lista](forms::KeyPress& tecla) {
    contexto_.fidaleon()->Comprobar_borrarcombo(tecla, lista);
  };
  elegibles_.push_back(&lista);
  return lista;
}

ParProvinciaPoblacion& frmPartida::crearMunicipio(int provincia, const char* etiquetaProvincia,
                                                  const char* etiquetaPoblacion) {
  forms::ComboBox& provincias = cboPartida.add(provincia, etiquetaProvincia);
  forms::ComboBox& poblaciones = cboPartida.add(provincia + 1, etiquetaPoblacion);
  return pares_.emplace_back(contexto_, provincias, poblaciones);
}

void frmPartida::ponerNotas(int indice) {
  notas_ = &txtPartida[indice];
  notas_->setLines(LINEAS_NOTAS);
  limiteNotas_.emplace(ui(), *notas_, variante_.avisoNotas);
}

void frmPartida::disponer(forms::Nodes paginas) {
  paginas.insert(paginas.begin(), paginaGeneral());
  setLayout(
      forms::column({item(lblPartidaAnulada), forms::tabs(mstPartida, std::move(paginas)),
                     forms::buttons({&cmdAltaProvincia, &cmdAltaPoblacion, &cmdPartida[ANULAR],
                                     &cmdPartida[ACEPTAR], &cmdPartida[CANCELAR]})}));
  crearSucesos();
}

forms::LayoutNode frmPartida::paginaGeneral() {
  return forms::page(
      {fields(1, {item(institucion(), {&cmdAltaInstitucion}), item(libro(), {&cmdAltaLibro})}),
       forms::group(fraLibro, {fields(1, {item(txtLibro[FOLIO]), item(txtLibro[NUMERO]),
                                          item(lblNumeroRepetido)})}),
       forms::stretch()});
}

const char* frmPartida::titulo() const {
  const VariantePartida::Titulos& t = variante_.titulos;
  switch (Operacion) {
    case cCOperacion::ANADIR:
      return t.nueva;
    case cCOperacion::ANTIGUA:
      return t.antigua;
    case cCOperacion::EDITAR:
      return libroNuevo_ ? t.deNueva : t.deAntigua;
    case cCOperacion::ANADIRSOLICITUD:
      return t.solicitud;
    default:
      return t.deSolicitud;
  }
}

void frmPartida::refrescarTitulo() {
  const std::string folio = txtLibro[FOLIO].text();
  const bool conPosicion =
      Operacion != cCOperacion::ANADIR || !folio.empty() || variante_.titulos.siempreConPosicion;
  std::string caption = titulo();
  if (!esSolicitud() && conPosicion)
    caption += (caption.ends_with('.') ? " Folio:" : ". Folio:") + folio + variante_.tituloNumero +
               txtLibro[NUMERO].text();
  setCaption(caption);
}

}  // namespace fidaleon
